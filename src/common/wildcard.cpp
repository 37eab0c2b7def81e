#include "common/wildcard.h"

#include <vector>

namespace vigrel {
namespace {

constexpr std::size_t kMostTokens = 31;

enum class eToken { Exact, Skip, Seek };

struct cToken {
    eToken kind;
    std::string_view text;  // to be found there; of Skip as many characters as are to be skipped
};

// Cuts the first token off the pattern.
cToken TakeToken(std::string_view& pattern) {
    const eToken kind = pattern[0] == '*' ? eToken::Seek : pattern[0] == '?' ? eToken::Skip : eToken::Exact;
    const std::size_t end =
        kind == eToken::Skip ? pattern.find_first_not_of('?') : pattern.find_first_of("?*", 1);
    const std::string_view token = pattern.substr(0, end);
    pattern.remove_prefix(token.size());
    return {kind, kind == eToken::Seek ? token.substr(1) : token};
}

std::vector<cToken> Tokens(std::string_view pattern) {
    std::vector<cToken> tokens;
    while (!pattern.empty() && tokens.size() < kMostTokens) tokens.push_back(TakeToken(pattern));
    return tokens;
}

// Cuts what a token fits off the text; false when it fits nothing there.
bool Consume(std::string_view& text, const cToken& token, bool isLast) {
    if (token.kind == eToken::Seek) {
        if (token.text.empty()) {
            if (isLast) text = {};
            return true;
        }
        const std::size_t found = text.find(token.text);
        if (found == std::string_view::npos) return false;
        text.remove_prefix(found + token.text.size());
        return true;
    }
    if (token.kind == eToken::Exact ? !text.starts_with(token.text) : text.size() < token.text.size())
        return false;
    text.remove_prefix(token.text.size());
    return true;
}

}  // namespace

Boolean16 WildcardMatch(std::string_view text, std::string_view pattern) {
    if (pattern == "*") return True16;
    if (text.empty()) return False16;
    const std::vector<cToken> tokens = Tokens(pattern);
    for (std::size_t i = 0; i < tokens.size(); ++i) {
        if (!Consume(text, tokens[i], i + 1 == tokens.size())) return False16;
    }
    return text.empty() ? True16 : False16;
}

}  // namespace vigrel
