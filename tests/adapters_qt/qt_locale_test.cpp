#include "adapters/qt/qt_locale.h"

#include <gtest/gtest.h>

namespace vigrel::testing {
namespace {

cLocaleForms FormsOf(QLocale::Language language, QLocale::Territory territory) {
    return cQtLocale(QLocale(language, territory)).Forms();
}

TEST(PatternFromFormat, MinutesAreNAndMonthsAreM) {
    EXPECT_EQ(PatternFromFormat("yyyy-MM-dd HH:mm:ss"), "yyyy-mm-dd hh:nn:ss");
}
TEST(PatternFromFormat, TheTimeZoneIsStripped) {
    EXPECT_EQ(PatternFromFormat("HH:mm:ss t"), "hh:nn:ss");
    EXPECT_EQ(PatternFromFormat("H:mm:ss (t)"), "h:nn:ss");
    EXPECT_EQ(PatternFromFormat("tttt HH:mm:ss"), "hh:nn:ss");
}
TEST(PatternFromFormat, AMarkerOfTheHalfDayIsThatOfTheLocale) {
    EXPECT_EQ(PatternFromFormat("h:mm:ss AP t"), "h:nn:ss AMPM");
    EXPECT_EQ(PatternFromFormat("h:mm ap"), "h:nn AMPM");
    EXPECT_EQ(PatternFromFormat("h:mm a"), "h:nn AMPM");
}
TEST(PatternFromFormat, LettersOfALiteralAreQuoted) {
    EXPECT_EQ(PatternFromFormat("dddd, d 'de' MMMM 'de' yyyy"), "dddd, d \"de\" mmmm \"de\" yyyy");
    EXPECT_EQ(PatternFromFormat("dddd 'den' d. MMMM yyyy"), "dddd \"den\" d. mmmm yyyy");
}
TEST(PatternFromFormat, ALiteralOfSeparatorsNeedsNoQuotes) {
    EXPECT_EQ(PatternFromFormat("d'. 'M'. 'yy"), "d. m. yy");
}
TEST(PatternFromFormat, TwoQuotesAreAnApostrophe) {
    EXPECT_EQ(PatternFromFormat("HH 'o''clock'"), "hh \"o'clock\"");
    EXPECT_EQ(PatternFromFormat("HH''mm"), "hh\"'\"nn");
}
TEST(PatternFromFormat, TheNarrowBlankOfNewerTimeFormatsIsABlank) {
    EXPECT_EQ(PatternFromFormat(QString("h:mm:ss") + QChar(0x202F) + "AP"), "h:nn:ss AMPM");
}

TEST(QtLocale, SwedishForms) {
    const cLocaleForms forms = FormsOf(QLocale::Swedish, QLocale::Sweden);
    EXPECT_EQ(forms.shortDate, "yyyy-mm-dd");
    EXPECT_EQ(forms.longTime, "hh:nn:ss");
    EXPECT_EQ(forms.dateSeparator, "-");
    EXPECT_EQ(forms.timeSeparator, ":");
    EXPECT_EQ(forms.dayNames[0], "s\xF6ndag");
    EXPECT_EQ(forms.dayNames[1], "m\xE5ndag");
    EXPECT_EQ(forms.monthNames[0], "januari");
    EXPECT_EQ(forms.monthNames[11], "december");
}
TEST(QtLocale, BritishForms) {
    const cLocaleForms forms = FormsOf(QLocale::English, QLocale::UnitedKingdom);
    EXPECT_EQ(forms.shortDate, "dd/mm/yyyy");
    EXPECT_EQ(forms.dateSeparator, "/");
    EXPECT_EQ(forms.shortDayNames[6], "Sat");
}
TEST(QtLocale, AmericanTimesKeepTheirTwelveHourClock) {
    const cLocaleForms forms = FormsOf(QLocale::English, QLocale::UnitedStates);
    EXPECT_EQ(forms.longTime, "h:nn:ss AMPM");
    EXPECT_EQ(forms.pm, "PM");
}
TEST(QtLocale, DanishTimesKeepTheirPoints) {
    const cLocaleForms forms = FormsOf(QLocale::Danish, QLocale::Denmark);
    EXPECT_EQ(forms.longTime, "hh.nn.ss");
    EXPECT_EQ(forms.timeSeparator, ".");
}
TEST(QtLocale, NamesThatTheCodePageCannotShowStayEnglish) {
    const cLocaleForms forms = FormsOf(QLocale::Russian, QLocale::Russia);
    EXPECT_EQ(forms.monthNames[0], "January");
    EXPECT_EQ(forms.dayNames[0], "Sunday");
}
TEST(QtLocale, NoLocaleOfTheMachineGivesAFormThatTheCodePageLacks) {
    for (const QLocale& locale :
         QLocale::matchingLocales(QLocale::AnyLanguage, QLocale::AnyScript, QLocale::AnyTerritory)) {
        const cLocaleForms forms = cQtLocale(locale).Forms();
        for (const std::string& text : {forms.shortDate, forms.longDate, forms.longTime, forms.am, forms.pm,
                                        forms.dateSeparator, forms.timeSeparator}) {
            EXPECT_FALSE(text.empty()) << locale.name().toStdString();
            EXPECT_EQ(text.find('?'), std::string::npos) << locale.name().toStdString() << " " << text;
        }
    }
}

TEST(QtLocale, WeeksBeginAsTheCountryCountsThem) {
    const cLocaleForms swedish = FormsOf(QLocale::Swedish, QLocale::Sweden);
    EXPECT_EQ(swedish.firstDayOfWeek, 2);
    EXPECT_EQ(swedish.firstWeekOfYear, eFirstWeek::FirstFourDays);
    const cLocaleForms american = FormsOf(QLocale::English, QLocale::UnitedStates);
    EXPECT_EQ(american.firstDayOfWeek, 1);
    EXPECT_EQ(american.firstWeekOfYear, eFirstWeek::FirstOfJanuary);
    const cLocaleForms arabic = FormsOf(QLocale::Arabic, QLocale::Egypt);
    EXPECT_EQ(arabic.firstDayOfWeek, 7);
}

TEST(QtLocale, NamesOfLanguageAndCountry) {
    const cQtLocale swedish(QLocale(QLocale::Swedish, QLocale::Sweden));
    EXPECT_EQ(swedish.EnglishLanguageName(), "Swedish");
    EXPECT_EQ(swedish.NativeLanguageName(), "svenska");
    EXPECT_EQ(swedish.EnglishCountryName(), "Sweden");
}
TEST(QtLocale, TheLanguageHasOneNameInAllItsCountries) {
    for (const QLocale::Territory country : {QLocale::Germany, QLocale::Austria, QLocale::Switzerland}) {
        EXPECT_EQ(cQtLocale(QLocale(QLocale::German, country)).NativeLanguageName(), "Deutsch");
    }
}
TEST(QtLocale, AMachineWithoutALocaleHasNoNames) {
    const cQtLocale none(QLocale::c());
    EXPECT_EQ(none.EnglishLanguageName(), "");
    EXPECT_EQ(none.NativeLanguageName(), "");
    EXPECT_EQ(none.EnglishCountryName(), "");
}

}  // namespace
}  // namespace vigrel::testing
