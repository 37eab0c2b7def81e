#include <gtest/gtest.h>

#include <array>

#include "signals/conditional_forms.h"
#include "signals/event_text_station.h"
#include "signals/templates_by_the_word.h"
#include "signals/value_shape.h"

namespace vigrel::testing {
namespace {

// Calls visit with every sequence of up to so many pieces.
template <std::size_t Count, class Visit>
void ForEverySequence(const std::array<const char*, Count>& pieces, int length, const Visit& visit,
                      const std::string& begin = "") {
    visit(begin);
    if (length == 0) return;
    for (const char* piece : pieces) ForEverySequence(pieces, length - 1, visit, begin + piece);
}

TEST(EventTextTorture, FormsOfEverySmallTemplateEqualThoseDoneByTheWord) {
    constexpr std::array<const char*, 7> kPieces{"{", "}", "?", "ACTIVE?", "acked?", "x", "{ACTIVE?y}"};
    int compared = 0;
    ForEverySequence(kPieces, 6, [&](const std::string& text) {
        ++compared;
        ASSERT_EQ(ExpandConditionalForms(text, StatusActive), FormsByTheWord(text, StatusActive)) << text;
    });
    EXPECT_EQ(compared, (7 * 7 * 7 * 7 * 7 * 7 * 7 - 1) / 6);
}

TEST(EventTextTorture, TokensOfEverySmallTemplateEqualThoseDoneByTheWord) {
    constexpr std::array<const char*, 7> kPieces{"[", "]", "SENDER", "T4", "[CU:L]", "[65]", "x"};
    const cEventTextStation station;
    ForEverySequence(kPieces, 5, [&](const std::string& text) {
        std::string modifiers;
        const auto expand = [&](const std::string& token, std::string& value) {
            if (token == "CU:L") {
                modifiers += "[CU:L]";
                return true;
            }
            // A condition that is empty, a field, a number, a word behind which nothing numeric stands.
            const bool known = token == "SENDER" || token == "65" || token[0] == 'T';
            if (known) value = station.Expand(modifiers + "[" + token + "]");
            if (known) modifiers.clear();
            return known;
        };
        ASSERT_EQ(station.Expand(text), TokensByTheWord(text, expand)) << text;
    });
}

// Random templates, the same ones in every run.
class cTemplateMaker {
  public:
    explicit cTemplateMaker(std::uint32_t seed) : m_State(seed) {}
    std::string Make(std::size_t size) {
        constexpr std::array<const char*, 32> kPieces{"[",        "]",
                                                      "{",        "}",
                                                      "?",        ":",
                                                      "-",        "[R:a:aa]",
                                                      "[R:a:A]",  "[R:n:",
                                                      "[CU:",     "[CF:",
                                                      "[T0]",     "[T1:0-9]",
                                                      "[T2::40]", "[SENDER]",
                                                      "[T",       "[STATUS$]",
                                                      "[65]",     "{ACTIVE?",
                                                      "{ACKED?",  "[EXTRATEXT::",
                                                      "[DATE]",   "[OBJECT]",
                                                      "a",        "banana",
                                                      "99999",    "-1",
                                                      "\xFF",     "\r\n",
                                                      "[T5]",     "[R::]"};
        std::string text;
        while (text.size() < size) text += kPieces[Next() % kPieces.size()];
        text.resize(size);
        return text;
    }
    std::uint32_t Next() {
        m_State = m_State * 1664525 + 1013904223;
        return m_State >> 16;
    }

  private:
    std::uint32_t m_State;
};

// What the expansion may at most be: the walk ends behind position 32,767, and one value can reach beyond.
std::size_t Bound(const std::string& text) {
    return text.size() + 32767 + kLongestValue;
}

TEST(EventTextTorture, RandomTemplatesStayWithinTheirBound) {
    cTemplateMaker maker(20260315);
    std::size_t total = 0;
    for (int i = 0; i < 2000; ++i) {
        cEventTextStation station;
        station.alarm.m_Alarm.m_Status = static_cast<std::int16_t>(maker.Next() % 5);
        station.alarm.m_Alarm.SetCondition(0, maker.Make(maker.Next() % 300));
        station.alarm.m_Sender = maker.Make(maker.Next() % 100);
        const std::string text = maker.Make(maker.Next() % 3000);
        const std::string result = station.Expand(text);
        ASSERT_LE(result.size(), Bound(text)) << "template " << i;
        total += result.size();
    }
    EXPECT_GT(total, 100000u);
}

TEST(EventTextTorture, LongRandomTemplatesStayWithinTheirBound) {
    cTemplateMaker maker(7);
    for (int i = 0; i < 30; ++i) {
        cEventTextStation station;
        station.alarm.m_Alarm.SetCondition(0, maker.Make(65535));
        const std::string text = maker.Make(32000);
        ASSERT_LE(station.Expand(text).size(), Bound(text)) << "template " << i;
    }
}

// The worst of each kind. Reading one takes milliseconds; an expansion whose work grows with the square of
// the size takes minutes.
TEST(EventTextTorture, HostileTemplatesStayWithinTheirBound) {
    const auto repeated = [](std::string_view piece) {
        std::string text;
        while (text.size() < 32000) text += piece;
        return text;
    };
    for (const char* piece : {"[",
                              "]",
                              "{",
                              "}",
                              "{?",
                              "{ACTIVE?",
                              "[R:",
                              "[T1]",
                              "[T1::9999]",
                              "[R:a:bbbbbbbb]",
                              "[R:a:aa]",
                              "[R:a:Ab]",
                              "[R:aa:a]",
                              "[CU:zz]",
                              "[CF:z]",
                              "[[T0]]",
                              "{{ACTIVE?x}}",
                              "[99999]",
                              "[T99999]",
                              "[WHAT]",
                              "[OBJECT]",
                              "[DATE]",
                              "[:::::]",
                              "{ACTIVE?}"}) {
        cEventTextStation station;
        station.alarm.m_Sender = std::string(65535, 'a');
        const std::string text = repeated(piece) + "[SENDER]";
        EXPECT_LE(station.Expand(text).size(), Bound(text)) << piece;
        station.alarm.m_Alarm.m_Status = StatusMessage;
        station.alarm.m_Alarm.SetCondition(0, text);
        EXPECT_LE(station.Expand("").size(), Bound(text)) << piece;
    }
}

}  // namespace
}  // namespace vigrel::testing
