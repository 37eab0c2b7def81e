// Input: the content of a list of colour rules. What is saved reads back the same; every rule is at work or
// tells why not.

#include "categories/colour_rules.h"
#include "common/failure.h"
#include "fuzz/fuzz_target.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace vigrel;
    cColourRules rules;
    rules.Parse(fuzz::Text(data, size));
    const std::string text = rules.Text();
    cColourRules again;
    again.Parse(text);
    fuzz::Require(again.Text() == text, "a list that was written reads back");
    std::vector<cUserColor> colours;
    for (const cColourRule& rule : rules.m_Rules)
        SkipFailure([&] { colours.push_back(MakeUserColor(rule)); });
    for (const int number : {-1, 0, 7, 255, 256, 999, 1000}) {
        const auto match = FirstMatch(colours, "TAG_1", number, number);
        fuzz::Require(!match || *match < colours.size(), "a match is a rule");
    }
    while (!rules.m_Rules.empty()) rules.Remove(rules.m_Rules.size() / 2);
    return 0;
}
