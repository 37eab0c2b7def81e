#include "common/phrase.h"

#include <gtest/gtest.h>

namespace vigrel::testing {
namespace {

std::string Shouted(const cPattern& pattern) {
    return std::string(pattern.context) + "! " + pattern.english;
}

TEST(Phrase, HasItsValuesInTheirPlacesInEnglish) {
    const cPhrase phrase(Pattern("Reasons", "%2 before %1, %3 and 100%"), {"a", "b"});
    EXPECT_EQ(phrase.English(), "b before a, %3 and 100%");
    EXPECT_EQ(cPhrase("as it is: %1").English(), "as it is: %1");
}

TEST(Phrase, IsSaidByOtherWordsWithThePhrasesInItsPlaces) {
    const cPhrase phrase(Pattern("Reasons", "%1: %2"), {cPhrase(Pattern("Inner", "fade")), "%1 stays"});
    EXPECT_EQ(phrase.Told(Shouted), "Reasons! Inner! fade: %1 stays");
    EXPECT_EQ(phrase.English(), "fade: %1 stays");
}

TEST(Phrase, OfTheSystemKeepsTheSystemsWordsWhereNoOtherAreAskedFor) {
    const cPhrase known = cPhrase::OfSystem(Pattern("Reasons", "the disk has failed"), "Input/output error");
    EXPECT_EQ(known.English(), "Input/output error");
    EXPECT_EQ(known.Told(Shouted), "Reasons! the disk has failed");
    EXPECT_EQ(cPhrase::OfSystem({}, "Some error").Told(Shouted), "Some error");
}

}  // namespace
}  // namespace vigrel::testing
