#include "signals/conditional_forms.h"

#include "common/code_page.h"
#include "events/alarm.h"
#include "signals/text_scan.h"

namespace vigrel {
namespace {

bool IsWordOf(std::string_view word, std::int16_t status) {
    switch (status) {
        case StatusInactive:
            return word == "INACTIVE?";
        case StatusActive:
            return word == "ACTIVE?";
        case StatusAcked:
            return word == "ACKED?";
        case StatusMessage:
            return word == "MESSAGE?";
        default:
            return false;
    }
}

}  // namespace

std::string ExpandConditionalForms(std::string_view text, std::int16_t status) {
    cTextScan scan(text, '{', '}');
    while (!scan.AtEnd()) {
        const std::string_view form = scan.AtBrackets() ? scan.Inside() : std::string_view();
        const std::size_t mark = form.find('?');
        if (mark == std::string_view::npos) {
            scan.Keep();
        } else if (IsWordOf(ToUpper(form.substr(0, mark + 1)), status)) {
            // Between "{" and "}" stands no further "{", so what stays need not be looked at again.
            scan.Replace(form.substr(mark + 1));
        } else {
            scan.Replace("");
        }
    }
    return scan.Take();
}

}  // namespace vigrel
