// What is handed out: page, tables, JSON, text.

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "common/path_text.h"
#include "report/all_languages.h"
#include "report/written_station.h"
#include "vigrel-report/page/writers.h"
#include "vigrel-report/run.h"

namespace vigrel::report {
namespace {

using testing::cFakeFiles;
using testing::cWrittenStation;
using testing::kNoZone;
using testing::Wall;

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
    for (const eLanguage language : kAllLanguages) {
        const std::string page = Make({"--html", "x", "--language", CodeOf(language), "/app"}).page;
        EXPECT_NE(page.find("<html lang=\"" + CodeOf(language) + "\""), std::string::npos);
        EXPECT_NE(page.find(std::string(Word(language, eWord::Quoted))), std::string::npos);
        EXPECT_EQ(page.find("{1}"), std::string::npos);
    }
}

TEST_F(HandedOut, EveryFileIsToldAsProgress) {
    station.Store({.created = monday + 60, .texts = {"Fan", "Roof", "Technical", "", ""}});
    std::vector<std::pair<std::size_t, std::size_t>> told;
    const auto tell = [&](std::size_t done, std::size_t all) { told.emplace_back(done, all); };
    MakeReport(ReadReportOptions({"/app"}), {files, kNoZone, {}, monday + 8 * 86400, tell});
    ASSERT_EQ(told.size(), 9u);  // the logs of eight days, one alarm
    for (std::size_t i = 0; i < told.size(); ++i) EXPECT_EQ(told[i], std::pair(i + 1, std::size_t{9}));
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

TEST_F(HandedOut, APartOfADayIsNamedToTheMinute) {
    EXPECT_TRUE(Make({"--from", "2026-06-01 10:00", "--to", "2026-06-01 23:59", "/app"})
                    .text.starts_with("Alarm report: Mill, 2026-06-01 10:00 to 2026-06-02 00:00\n"));
    EXPECT_TRUE(Make({"--from", "2026-06-01", "--to", "2026-06-02", "/app"})
                    .text.starts_with("Alarm report: Mill, 2026-06-01 to 2026-06-02\n"));
}

// The labels below a picture whose time line is that of a period.
std::vector<std::string> LabelsOf(const std::string& page) {
    const std::size_t begin = page.find("<svg"), end = page.find("</svg>");
    std::vector<std::string> labels;
    const std::string look = "y=\"216\" class=\"axis\">";
    for (std::size_t at = page.find(look, begin); at < end; at = page.find(look, at + 1)) {
        const std::size_t from = at + look.size();
        labels.push_back(page.substr(from, page.find('<', from) - from));
    }
    return labels;
}

TEST_F(HandedOut, TheTimeLineHasTimesDaysOrMonths) {
    const auto labels = [&](const std::string& from, const std::string& to) {
        return LabelsOf(Make({"--html", "x", "--from", from, "--to", to, "/app"}).page);
    };
    using Labels = std::vector<std::string>;
    EXPECT_EQ(labels("2026-06-01 09:58", "2026-06-01 10:01"), (Labels{"09:58", "09:59", "10:00", "10:01"}));
    EXPECT_EQ(labels("2026-06-01 21:00", "2026-06-02 03:00"),
              (Labels{"21:00", "21:30", "22:00", "22:30", "23:00", "23:30", "06-02", "00:30", "01:00",
                      "01:30", "02:00", "02:30"}));
    EXPECT_EQ(labels("2026-06-01", "2026-06-03"), (Labels{"Mon 06-01", "Tue 06-02", "Wed 06-03"}));
    EXPECT_EQ(labels("2026-05-04", "2026-06-02"), (Labels{"05-04", "05-11", "05-18", "05-25", "06-01"}));
    EXPECT_EQ(labels("2026-03-15", "2026-06-02"), (Labels{"2026-04", "2026-05"}));
    EXPECT_EQ(labels("2025-06-01", "2026-05-31").size(), 12u);
}

TEST_F(HandedOut, AFolderIsNamedInItsOwnScript) {
    const std::string path = "/\u0438\u0432\u0430\u043d";
    const std::string folder = PathText(path + "/");
    cWrittenStation nameless(files, folder);
    files.Put(folder + "VigrelReceiver.INI", "[General]\r\nLanguage=044\r\n");
    nameless.Start(monday);
    nameless.Raw(monday + 86400, "10:00:00 nothing of a station\r\n");
    nameless.Finish();
    files.SetUnreadable(folder + "LogFiles/20260602.Log", true);
    EXPECT_NE(Make({path}).text.find("Alarm report: " + path + "/, "), std::string::npos);
    const std::string page = Make({"--html", "x", path}).page;
    EXPECT_NE(page.find("<h1>Alarm report \u2013 " + path + "/</h1>"), std::string::npos);
    EXPECT_NE(page.find("be read: " + path + "/LogFiles/20260602.Log"), std::string::npos);
    EXPECT_EQ(page.find("\\x1A"), std::string::npos);
}

TEST_F(HandedOut, AYearIsToldByMonth) {
    const std::string page = Make({"--html", "x", "--from", "2025-07-01", "--to", "2026-06-30", "/app"}).page;
    EXPECT_NE(page.find("<td>2026-06</td><td class=\"number\">7</td><td class=\"number\">1</td>"),
              std::string::npos);
    EXPECT_EQ(page.find("<td>2026-06-01</td>"), std::string::npos);
    EXPECT_NE(page.find(">Most on a day</th>"), std::string::npos);
    const auto tables = Make({"--csv", "x", "--from", "2026-05-01", "--to", "2026-06-30", "/app"}).tables;
    EXPECT_EQ(tables.at("months.csv"),
              "\"month\",\"alarms\",\"most_in_10_minutes\",\"in_flood\",\"record\"\r\n"
              "\"2026-05\",\"0\",\"0\",\"0\",\"0\"\r\n\"2026-06\",\"7\",\"1\",\"0\",\"604801\"\r\n");
}

// The table of stations has more columns than a sheet of paper.
TEST_F(HandedOut, StationsStandSideBySide) {
    cWrittenStation second(files, "/second/");
    second.Start(monday);
    second.Finish();
    EXPECT_NE(Make({"--html", "x", "/app", "/second"})
                  .page.find("<tr><th scope=\"row\">Starts</th><td class=\"number\">1</td><td "
                             "class=\"number\">1</td></tr>"),
              std::string::npos);
}

// What is dark on a light screen is light on a dark one.
TEST_F(HandedOut, CaptionsTellShapesNotShades) {
    const std::string page = Make({"--html", "x", "/app"}).page;
    for (const char* shade : {"dark:", "Dark", "Light", "darker"}) {
        const std::size_t body = page.find("<body>");
        EXPECT_EQ(page.find(shade, body), std::string::npos) << shade;
    }
    EXPECT_NE(page.find("Narrow bar: half were acknowledged"), std::string::npos);
}

// The relative luminance of "#rgb" or "#rrggbb", by the definition of the Web's guidelines for accessibility.
double Luminance(const std::string& colour) {
    const std::size_t digits = colour.size() == 4 ? 1 : 2;
    const double weights[] = {0.2126, 0.7152, 0.0722};
    double luminance = 0;
    for (std::size_t i = 0; i < 3; ++i) {
        std::string part = colour.substr(1 + i * digits, digits);
        if (digits == 1) part += part;
        const double value = std::stoi(part, nullptr, 16) / 255.0;
        luminance += weights[i] * (value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4));
    }
    return luminance;
}

double Contrast(const std::string& one, const std::string& other) {
    const auto [least, most] = std::minmax({Luminance(one), Luminance(other)});
    return (most + 0.05) / (least + 0.05);
}

TEST_F(HandedOut, ColoursAreToldApartOnLightAndDarkScreens) {
    const std::string page = Make({"--html", "x", "/app"}).page;
    const std::size_t light = page.find(":root{"), dark = page.find(":root{", light + 1);
    ASSERT_NE(dark, std::string::npos);
    for (const std::size_t colours : {light, dark}) {
        const auto colour = [&](const std::string& name) {
            const std::size_t begin = page.find("--" + name + ":", colours) + name.size() + 3;
            return page.substr(begin, page.find_first_of(";}", begin) - begin);
        };
        for (const char* paper : {"paper", "card"}) {
            for (const char* text : {"ink", "soft-ink", "good", "bad", "calm", "limit"}) {
                EXPECT_GE(Contrast(colour(text), colour(paper)), 4.5) << text << " on " << paper;
            }
            EXPECT_GE(Contrast(colour("bar"), colour(paper)), 3) << paper;
        }
        EXPECT_GE(Contrast(colour("limit"), colour("flood")), 3);
    }
    // Their fills are too weak alone.
    EXPECT_NE(page.find(".soft{fill:var(--light-bar);stroke:var(--bar)"), std::string::npos);
    EXPECT_NE(page.find(".flood{fill:var(--flood);stroke:var(--limit)"), std::string::npos);
}

// A name without a blank must not push the other columns off the paper.
TEST_F(HandedOut, LongWordsMayBreak) {
    const std::string word(60, 'x'), words = "twenty-four characters !";
    station.Active(monday + 40000, word + " (" + words + "/Fire//)");
    station.Finish();
    const std::string page = Make({"--html", "x", "/app"}).page;
    EXPECT_NE(page.find("<td class=\"long\">" + word + "</td><td>" + words + "</td>"), std::string::npos);
}

TEST_F(HandedOut, BarsOfTenMinutesAreCalledSo) {
    EXPECT_NE(Make({"--html", "x", "/app"}).page.find("Each bar shows the alarms of ten minutes. The line"),
              std::string::npos);
    EXPECT_NE(
        Make({"--html", "x", "--last", "30", "/app"}).page.find("Each bar stands for 1\u00a0h and shows"),
        std::string::npos);
}

TEST_F(HandedOut, APeriodOfWhichLittleIsKnownIsNotCompared) {
    const auto before = [&](const std::string& from, const std::string& to) {
        const std::string summary =
            Make({"--csv", "x", "--from", from, "--to", to, "/app"}).tables.at("summary.csv");
        const std::size_t line = summary.find("\"Alarms a day"), end = summary.find("\r\n", line);
        return summary.substr(summary.rfind(',', end) + 1, end - summary.rfind(',', end) - 1);
    };
    EXPECT_EQ(before("2026-06-03", "2026-06-04"), "\"1\"");  // both days before are known
    EXPECT_EQ(before("2026-06-02", "2026-06-04"), "\"\"");   // one of three
}

TEST_F(HandedOut, ARecordOfHoursIsToldByTheHour) {
    EXPECT_NE(Make({"--from", "2026-06-01 09:30", "--to", "2026-06-01 10:29", "/app"})
                  .text.find("An operator got 1.0 alarms an hour: that can be managed well."),
              std::string::npos);
    EXPECT_NE(Make({"/app"}).text.find("An operator got 1.0 alarms a day"), std::string::npos);
}

TEST_F(HandedOut, WhatMustBeReachedIsBelow) {
    const std::string page = Make({"--html", "x", "--priority", "Fire=high", "/app"}).page;
    EXPECT_NE(page.find("<td>Share of low priority</td><td class=\"number\">0\u00a0%</td><td>at least "
                        "80\u00a0%</td><td class=\"verdict over\">\u25bc under</td>"),
              std::string::npos);
    EXPECT_NE(page.find("<td>Share of high priority</td><td class=\"number\">100\u00a0%</td><td>at most "
                        "5\u00a0%</td><td class=\"verdict over\">\u25b2 over</td>"),
              std::string::npos);
}

TEST_F(HandedOut, LimitsArePrintedAsTheyAreQuoted) {
    const std::string summary = Make({"--csv", "x", "/app"}).tables.at("summary.csv");
    std::vector<std::string> limits;
    for (std::size_t at = 0; (at = summary.find("\r\n", at)) + 2 < summary.size();) {
        for (int column = 0; column < 2; ++column) at = summary.find("\",\"", at + 2) + 1;
        limits.push_back(summary.substr(at + 2, summary.find('"', at + 2) - at - 2));
    }
    const std::vector<std::string> quoted = {"at most 1; 2 can be managed",
                                             "at most 6; 12 can be managed",
                                             "at most 150",
                                             "at most 10",
                                             "",
                                             "under 1\u00a0%",
                                             "under 1\u00a0%",
                                             "",
                                             "under 1\u00a0%",
                                             "at most 5\u00a0%",
                                             "",
                                             "none",
                                             "none",
                                             "under 5",
                                             "under 10",
                                             "at most 5\u00a0%",
                                             "at most 15\u00a0%",
                                             "at least 80\u00a0%",
                                             "",
                                             "",
                                             "",
                                             "",
                                             ""};
    EXPECT_EQ(limits, quoted);
}

TEST_F(HandedOut, OperatorsRaiseTheLimitOfThePeak) {
    const std::string page = Make({"--html", "x", "--operators", "2", "/app"}).page;
    EXPECT_NE(page.find("<td>at most 20</td>"), std::string::npos);
    EXPECT_NE(page.find(">limit 20</text>"), std::string::npos);
    EXPECT_NE(page.find("The line is the limit of 20;"), std::string::npos);
}

// --- what is said of a plant with two stations

class TwoStations : public HandedOut {
  protected:
    TwoStations() {
        for (cWrittenStation* one : {&first, &second}) {
            one->Start(monday);
            one->Line(monday, "PLC1 - " + one->Text(10013) + " 5 " + one->Text(10014));
        }
    }
    // A popup about a sender.
    void Tell(cWrittenStation& at, WallTime wall, const std::string& state) {
        at.Line(wall, at.Text(10043) + " " + state + " - VigrelAlarmReceiver (/Vigrel//PLC1 - " +
                          at.Text(10032) + ")");
    }
    std::string Text() {
        for (cWrittenStation* one : {&first, &second}) {
            one->KeepAlive(monday + 7 * 86400);
            one->Finish();
        }
        return Make({"/first", "/second"}).text;
    }
    cWrittenStation first{files, "/first/"}, second{files, "/second/"};
};

TEST_F(TwoStations, WhatOneStationGotIsNotLost) {
    first.End(monday + 3600);
    first.Start(monday + 7200);
    Tell(second, monday + 9000, "Active");
    Tell(second, monday + 9900, "Inactive");
    const std::string text = Text();
    EXPECT_EQ(text.find("reached nobody"), std::string::npos) << text;
    EXPECT_EQ(text.find("could not come"), std::string::npos) << text;
    EXPECT_NE(text.find("Look at the connection of \u201cPLC1\u201d."), std::string::npos) << text;
}

TEST_F(TwoStations, WhatNoneGotIsSaid) {
    first.End(monday + 3600);
    first.Start(monday + 7200);
    second.End(monday + 5400);
    second.Start(monday + 9000);
    Tell(first, monday + 10000, "Active");
    Tell(first, monday + 14000, "Inactive");
    Tell(second, monday + 13000, "Active");
    Tell(second, monday + 15000, "Inactive");
    const std::string text = Text();
    EXPECT_NE(text.find("No station ran for 30\u00a0min: alarms of that time reached nobody here."),
              std::string::npos)
        << text;
    EXPECT_NE(text.find("\u201cPLC1\u201d was without contact for 16\u00a0min 40\u00a0s:"), std::string::npos)
        << text;
}

TEST_F(HandedOut, TablesDisarmFormulas) {
    const auto tables = Make({"--csv", "x", "/app"}).tables;
    EXPECT_EQ(tables.size(), 18u);
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

}  // namespace
}  // namespace vigrel::report
