// What is handed out: words, page, tables, JSON, text, and the command line that asks for them.

#include <gtest/gtest.h>

#include <set>

#include "common/failure.h"
#include "report/written_station.h"
#include "vigrel-report/page/writers.h"
#include "vigrel-report/run.h"

namespace vigrel::report {
namespace {

using testing::cFakeFiles;
using testing::cWrittenStation;
using testing::kNoZone;
using testing::kStockholm;
using testing::Wall;

constexpr eLanguage kAll[] = {eLanguage::English, eLanguage::Swedish,   eLanguage::German,
                              eLanguage::Danish,  eLanguage::Norwegian, eLanguage::Finnish};

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
        for (const eLanguage language : kAll) {
            const std::string_view text = Word(language, word);
            EXPECT_FALSE(text.empty()) << english;
            EXPECT_EQ(PlacesIn(text), PlacesIn(english)) << text;
            EXPECT_EQ(text.find("  "), std::string_view::npos) << text;
            EXPECT_EQ(text.find_first_of("<>\""), std::string_view::npos) << text;
        }
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

class HandedOut : public ::testing::Test {
  protected:
    // A week with one alarm of hostile texts, from a hostile sender.
    HandedOut() {
        const std::string evil = "<script>alert('x')</script>&\"\x01";
        station.Start(monday);
        for (int day = 0; day < 7; ++day) {
            station.Active(monday + day * 86400 + 36000, evil + " (=cmd|'C calc'!A1/Fire//)", "=1+1");
            station.Acknowledge(monday + day * 86400 + 36060, evil + " (=cmd|'C calc'!A1/Fire//)");
            station.Inactive(monday + day * 86400 + 37000, evil + " (=cmd|'C calc'!A1/Fire//)", "=1+1");
        }
        station.KeepAlive(monday + 7 * 86400);
        station.Finish();
    }
    cOutput Make(const std::vector<std::string>& words) {
        const cOptions options = ReadReportOptions(words);
        const Moment now = monday + 7 * 86400 + 3600;
        return MakeReport(options, {files, kNoZone, {}, now, [](std::size_t, std::size_t) {}});
    }
    const WallTime monday = Wall(2026, 6, 1);
    cFakeFiles files;
    cWrittenStation station{files};
};

TEST_F(HandedOut, ThePageNeedsNothingElseAndRunsNothing) {
    const std::string page = Make({"--html", "x", "/app"}).page;
    for (const char* outside :
         {"<script", "http://", "https://", "url(", "<link", "<img", "@import", " onload", " onclick"}) {
        EXPECT_EQ(page.find(outside), std::string::npos) << outside;
    }
    EXPECT_NE(page.find("&lt;script&gt;alert(&#39;x&#39;)&lt;/script&gt;&amp;&quot;\\x01"),
              std::string::npos);
    for (const char* wanted : {"prefers-color-scheme:dark", "@page{size:A4", "role=\"img\"", "<title>",
                               "lang=\"en\"", "break-inside:avoid"}) {
        EXPECT_NE(page.find(wanted), std::string::npos) << wanted;
    }
}

TEST_F(HandedOut, EveryPictureHasATableBehindIt) {
    const std::string page = Make({"--html", "x", "/app"}).page;
    std::size_t pictures = 0;
    for (std::size_t at = page.find("<svg"); at != std::string::npos; at = page.find("<svg", at + 1)) {
        ++pictures;
        const std::size_t next = page.find("<svg", at + 1), table = page.find("<table", at);
        EXPECT_LT(table, next);
    }
    EXPECT_EQ(pictures, 5u);
}

TEST_F(HandedOut, ThePageSpeaksEveryLanguage) {
    for (const eLanguage language : kAll) {
        const std::string page = Make({"--html", "x", "--language", CodeOf(language), "/app"}).page;
        EXPECT_NE(page.find("<html lang=\"" + CodeOf(language) + "\""), std::string::npos);
        EXPECT_NE(page.find(std::string(Word(language, eWord::Quoted))), std::string::npos);
        EXPECT_EQ(page.find("{1}"), std::string::npos);
    }
}

TEST_F(HandedOut, TheLanguageIsThatOfTheStation) {
    cWrittenStation swedish(files, "/svensk/", "046");
    swedish.Start(monday);
    swedish.Finish();
    EXPECT_NE(Make({"/svensk"}).text.find("Larmrapport"), std::string::npos);
    EXPECT_NE(Make({"/app"}).text.find("Alarm report"), std::string::npos);
}

TEST_F(HandedOut, ThreeSentencesComeFirst) {
    const std::string page = Make({"--html", "x", "/app"}).page;
    const std::size_t list = page.find("<ul class=\"lead\">"), end = page.find("</ul>", list);
    std::size_t sentences = 0;
    for (std::size_t at = page.find("<li>", list); at < end; at = page.find("<li>", at + 1)) ++sentences;
    EXPECT_EQ(sentences, 3u);
    EXPECT_LT(end, page.find("<section>"));
}

TEST_F(HandedOut, TablesDisarmFormulas) {
    const auto tables = Make({"--csv", "x", "/app"}).tables;
    EXPECT_EQ(tables.size(), 16u);
    const std::string& sources = tables.at("sources.csv");
    EXPECT_TRUE(sources.starts_with(
        "\"rank\",\"alarm\",\"place\",\"category\",\"sender\",\"alarms\",\"share\",\"together\"\r\n"));
    EXPECT_NE(sources.find("\"'=cmd|'C calc'!A1\""), std::string::npos);
    EXPECT_NE(sources.find("\"'=1+1\",\"7\",\"1\",\"1\"\r\n"), std::string::npos);
    EXPECT_NE(tables.at("days.csv").find("\"2026-06-01\",\"1\",\"1\",\"0\",\"86400\"\r\n"),
              std::string::npos);
    EXPECT_NE(tables.at("acknowledgement.csv").find("\"all\",\"7\",\"60\",\"60\",\"60\",\"0\",\"0\"\r\n"),
              std::string::npos);
}

TEST_F(HandedOut, JsonEscapesAndKeepsItsWordsInEveryLanguage) {
    const std::string json = Make({"--json", "--language", "fi", "/app"}).json;
    EXPECT_NE(json.find("\"sender\": \"=1+1\", \"alarms\": 7"), std::string::npos);
    EXPECT_NE(json.find("<script>alert('x')</script>&\\\"\\\\x01"), std::string::npos);
    EXPECT_NE(json.find("\"verdict\": \"within\""), std::string::npos);
    EXPECT_NE(json.find("\"from\": \"2026-06-01 00:00:00\",\n  \"to\": \"2026-06-08 00:00:00\""),
              std::string::npos);
    for (const char c : json) EXPECT_TRUE(c == '\n' || static_cast<unsigned char>(c) >= 0x20);
}

TEST_F(HandedOut, TheTextIsForPeople) {
    const std::string text = Make({"/app"}).text;
    EXPECT_TRUE(text.starts_with("Alarm report: Mill, 2026-06-01 to 2026-06-07\n"));
    for (const char c : text) EXPECT_TRUE(c == '\n' || static_cast<unsigned char>(c) >= 0x20);
}

// --- the command line

std::string RefusalOf(const std::vector<std::string>& words) {
    const auto failure = CatchFailure([&] { ReadReportOptions(words); });
    return failure ? failure->what() : "";
}

TEST(ReportOptions, WrongOnesAreRefusedByName) {
    EXPECT_EQ(RefusalOf({}), "no folder was named");
    EXPECT_EQ(RefusalOf({"x", "--last", "fortnight"}),
              "--last: \"fortnight\" is not day, week, month, year or a number of days");
    EXPECT_EQ(RefusalOf({"x", "--last", "0"}), "--last: \"0\" is not a number from 1 to 3660");
    EXPECT_EQ(RefusalOf({"x", "--last", "week", "--from", "2026-01-01"}),
              "--last and --from, --to exclude each other");
    EXPECT_EQ(RefusalOf({"x", "--to", "2026-01-01"}), "--to needs --from");
    EXPECT_EQ(RefusalOf({"x", "--priority", "Fire=urgent"}),
              "--priority: \"Fire=urgent\" is not CATEGORY=high, medium or low");
    EXPECT_EQ(RefusalOf({"x", "--priority", "Fire"}),
              "--priority: \"Fire\" is not CATEGORY=high, medium or low");
    EXPECT_EQ(RefusalOf({"x", "--language", "fr"}),
              "--language: \"fr\" is not one of en, sv, de, da, nb, fi");
    EXPECT_EQ(RefusalOf({"x", "--operators", "0"}), "--operators: \"0\" is not a number from 1 to 1000");
    EXPECT_EQ(RefusalOf({"x", "--working-hours", "17-7"}), "--working-hours: \"17-7\" ends before it begins");
    EXPECT_EQ(RefusalOf({"x", "--working-days", "5"}), "--working-days: \"5\" is not of the form FROM-TO");
    EXPECT_EQ(RefusalOf({"x", "--json", "--html", "-"}), "--json and --html - both want standard output");
    EXPECT_EQ(RefusalOf({"--help"}), "");
}

TEST(ReportOptions, PrioritiesKnowCategoriesInAnyCase) {
    const cOptions options = ReadReportOptions({"x", "--priority", "fire=HIGH", "--priority", "A=B=low"});
    EXPECT_EQ(options.settings.priorities,
              (std::map<std::string, ePriority>{{"FIRE", ePriority::High}, {"A=B", ePriority::Low}}));
}

cPeriods PeriodsOf(const std::vector<std::string>& words) {
    // Wednesday, 21 October 2026, at noon in Stockholm.
    return FindPeriods(ReadReportOptions(words), Wall(2026, 10, 21, 10), kStockholm);
}

TEST(ReportOptions, LastPeriodsAreWholeOnes) {
    const auto local = [](int year, unsigned month, unsigned day) {
        return kStockholm.ToMoments(Wall(year, month, day)).first;
    };
    const cPeriods week = PeriodsOf({"x"});
    EXPECT_EQ(week.period, (cSpan{local(2026, 10, 12), local(2026, 10, 19)}));
    EXPECT_EQ(week.before, (cSpan{local(2026, 10, 5), local(2026, 10, 12)}));
    const cPeriods month = PeriodsOf({"x", "--last", "month"});
    EXPECT_EQ(month.period, (cSpan{local(2026, 9, 1), local(2026, 10, 1)}));
    EXPECT_EQ(month.before, (cSpan{local(2026, 8, 1), local(2026, 9, 1)}));
    EXPECT_EQ(PeriodsOf({"x", "--last", "year"}).period, (cSpan{local(2025, 1, 1), local(2026, 1, 1)}));
    EXPECT_EQ(PeriodsOf({"x", "--last", "day"}).period, (cSpan{local(2026, 10, 20), local(2026, 10, 21)}));
    EXPECT_EQ(PeriodsOf({"x", "--last", "30"}).period, (cSpan{local(2026, 9, 21), local(2026, 10, 21)}));
}

TEST(ReportOptions, FromAndToEndNowAtTheLatest) {
    const cPeriods periods = PeriodsOf({"x", "--from", "2026-10-19", "--to", "2026-10-31"});
    EXPECT_EQ(periods.period.end, Wall(2026, 10, 21, 10));
    EXPECT_EQ(periods.before.end, periods.period.begin);
    EXPECT_EQ(periods.before.Length(), periods.period.Length());
    EXPECT_THROW(PeriodsOf({"x", "--from", "2027-01-01"}), cFailure);
    EXPECT_THROW(PeriodsOf({"x", "--from", "2026-02-02", "--to", "2026-02-01"}), cFailure);
}

}  // namespace
}  // namespace vigrel::report
