// The words of the six languages, and the forms of numbers in them.

#include "vigrel-report/page/words.h"

#include <gtest/gtest.h>

#include <set>

#include "report/all_languages.h"
#include "report/written_station.h"
#include "vigrel-report/page/cells.h"

namespace vigrel::report {
namespace {

using testing::kNoZone;

std::set<std::string> PlacesIn(std::string_view text) {
    std::set<std::string> places;
    for (std::size_t at = text.find('{'); at != std::string_view::npos; at = text.find('{', at + 1)) {
        places.insert(std::string(text.substr(at, 3)));
    }
    return places;
}

TEST(Words, AreThereInAllLanguagesWithTheSamePlaces) {
    for (std::size_t i = 0; i < static_cast<std::size_t>(eWord::NumberOfWords); ++i) {
        const auto word = static_cast<eWord>(i);
        const std::string_view english = Word(eLanguage::English, word);
        for (const eLanguage language : kAllLanguages) {
            const std::string_view text = Word(language, word);
            EXPECT_FALSE(text.empty()) << english;
            EXPECT_EQ(PlacesIn(text), PlacesIn(english)) << text;
            EXPECT_EQ(text.find("  "), std::string_view::npos) << text;
            EXPECT_EQ(text.find_first_of("<>\""), std::string_view::npos) << text;
        }
    }
}

// But for the words that are the same in both.
TEST(Words, AreTranslated) {
    const std::map<eWord, std::string> same = {{eWord::Over, "nb"},
                                               {eWord::Below, "sv nb"},
                                               {eWord::DayUnit, "sv de da nb"},
                                               {eWord::HourUnit, "sv de fi"},
                                               {eWord::Alarm, "de da nb"},
                                               {eWord::Sender, "de da nb"},
                                               {eWord::Station, "sv de da"},
                                               {eWord::MedianTime, "sv de da nb"},
                                               {eWord::Starts, "de"},
                                               {eWord::Text, "sv de"},
                                               {eWord::Under, "sv da nb"}};
    for (std::size_t i = 0; i < static_cast<std::size_t>(eWord::NumberOfWords); ++i) {
        const auto word = static_cast<eWord>(i);
        const std::string_view english = Word(eLanguage::English, word);
        std::string found;
        for (const eLanguage language : kAllLanguages) {
            if (language == eLanguage::English || Word(language, word) != english) continue;
            found += (found.empty() ? "" : " ") + CodeOf(language);
        }
        EXPECT_EQ(found, same.contains(word) ? same.at(word) : "") << english;
    }
}

TEST(Words, AreFilledOnce) {
    EXPECT_EQ(Filled("{1} and {2}", {"{2}", "b"}), "{2} and b");
    EXPECT_EQ(Filled("{3} {", {"a"}), "{3} {");
}

TEST(Forms, AreThoseOfTheLanguage) {
    const cForms english(eLanguage::English, kNoZone), swedish(eLanguage::Swedish, kNoZone);
    EXPECT_EQ(english.Number(1234567.891, 2), "1,234,567.89");
    EXPECT_EQ(swedish.Number(12345.5, 1),
              "12\xC2\xA0"
              "345,5");
    EXPECT_EQ(english.Number(1234), "1234");
    EXPECT_EQ(english.Number(-0.4), "0");
    EXPECT_EQ(english.Percent(0.0123), "1.2\xC2\xA0%");
    EXPECT_EQ(english.Percent(0.25), "25\xC2\xA0%");
    EXPECT_EQ(english.Duration(0), "0\xC2\xA0s");
    EXPECT_EQ(english.Duration(3661), "1\xC2\xA0h 1\xC2\xA0min");
    EXPECT_EQ(english.Duration(86400),
              "1\xC2\xA0"
              "d");
}

}  // namespace
}  // namespace vigrel::report
