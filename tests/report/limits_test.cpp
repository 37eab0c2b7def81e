// Every quoted limit, with a value on each side of it. The numbers are written out by hand.

#include "vigrel-report/figures/figures.h"

#include <gtest/gtest.h>

#include <fstream>
#include <functional>
#include <map>
#include <string>

namespace vigrel::report {
namespace {

using Setter = std::function<void(cFigures&, double)>;

struct cSides {
    const char* name;
    eFigure figure;
    double within, outside;
    Setter set;
    eVerdict verdict = eVerdict::Over;  // outside
};

std::size_t Whole(double value) {
    return static_cast<std::size_t>(value);
}

// Of a thousand activations.
Setter ShareOf(ePriority priority) {
    return [priority](cFigures& figures, double share) {
        const std::size_t wanted = Whole(share * 1000 + 0.5);
        const ePriority other = priority == ePriority::High ? ePriority::Low : ePriority::High;
        figures.answers.priorities = {{"", priority, wanted, {}}, {"", other, 1000 - wanted, {}}};
    };
}

const cSides kSides[] = {
    {"ten minutes", eFigure::RateTenMinutes, 1, 1.01,
     [](cFigures& figures, double value) { figures.load.perTenMinutes = value; }},
    {"hour", eFigure::RateHour, 6, 6.01,
     [](cFigures& figures, double value) { figures.load.perHour = value; }},
    {"day", eFigure::RateDay, 150, 150.1,
     [](cFigures& figures, double value) { figures.load.perDay = value; }},
    {"peak", eFigure::Peak, 10, 11,
     [](cFigures& figures, double value) { figures.load.peak = Whole(value); }},
    {"busy ten minutes", eFigure::BusyBins, 0.0099, 0.01,
     [](cFigures& figures, double value) { figures.load.busyBins = value; }},
    {"busy hours", eFigure::BusyHours, 0.0099, 0.01,
     [](cFigures& figures, double value) { figures.load.busyHours = value; }},
    {"flood share", eFigure::FloodShare, 0.0099, 0.01,
     [](cFigures& figures, double value) { figures.load.floodShare = value; }},
    {"top ten", eFigure::TopTen, 0.05, 0.0501,
     [](cFigures& figures, double value) { figures.sources.topTenShare = value; }},
    {"chattering", eFigure::Chattering, 0, 1,
     [](cFigures& figures, double value) { figures.nuisance.chattering.resize(Whole(value)); }},
    {"fleeting", eFigure::Fleeting, 0, 1,
     [](cFigures& figures, double value) { figures.nuisance.fleetingActivations = Whole(value); }},
    {"stale", eFigure::Stale, 4, 5,
     [](cFigures& figures, double value) { figures.nuisance.mostStale = Whole(value); }},
    {"standing", eFigure::Standing, 9, 10,
     [](cFigures& figures, double value) { figures.nuisance.standing.resize(Whole(value)); }},
    {"high", eFigure::HighShare, 0.05, 0.051, ShareOf(ePriority::High)},
    {"medium", eFigure::MediumShare, 0.15, 0.151, ShareOf(ePriority::Medium)},
    {"low", eFigure::LowShare, 0.8, 0.799, ShareOf(ePriority::Low), eVerdict::Below},
};

eVerdict VerdictOf(const cSides& sides, double value) {
    cFigures figures;
    figures.load.observed = kDay;
    figures.load.activations = 1000;
    figures.sources.ranking.resize(11);
    sides.set(figures, value);
    for (const cJudged& line : Judge(figures, nullptr)) {
        if (line.figure == sides.figure) return line.verdict;
    }
    return eVerdict::NotJudged;
}

TEST(Limits, AreThoseThatAreQuoted) {
    for (const cSides& sides : kSides) {
        EXPECT_EQ(VerdictOf(sides, sides.within), eVerdict::Within) << sides.name;
        EXPECT_EQ(VerdictOf(sides, sides.outside), sides.verdict) << sides.name;
    }
}

// Alarms in the first hour of two, two minutes apart at most.
double BusyHours(std::size_t alarms, int operators) {
    cPlant plant;
    plant.known = {{0, 2 * kHour}};
    for (std::size_t i = 0; i < alarms; ++i) {
        cActivation activation;
        activation.start = activation.order = static_cast<Moment>(i) * 50;
        plant.activations.push_back(activation);
    }
    plant.tellsReturns = {false};
    return MeasureLoad(plant, {0, 2 * kHour}, cTimeZone(), operators).busyHours;
}

TEST(Limits, AnHourIsBusyAboveThirtyAlarmsForEachOperator) {
    EXPECT_EQ(BusyHours(30, 1), 0);
    EXPECT_EQ(BusyHours(31, 1), 0.5);
    EXPECT_EQ(BusyHours(60, 2), 0);
    EXPECT_EQ(BusyHours(61, 2), 0.5);
}

// The last cell of the table's row that begins with this name.
std::string DocumentedLimit(const std::string& name) {
    std::ifstream page(VIGREL_DOCS_DIR "/report.md");
    for (std::string line; std::getline(page, line);) {
        if (line.rfind("| " + name, 0) == 0) return line.substr(line.rfind(" | ") + 3);
    }
    return "no row " + name;
}

TEST(Limits, AreThoseOfTheirPage) {
    const std::map<std::string, std::string> rows = {
        {"alarms in 10 minutes", "judged by 1, 6 and 150 |"},
        {"most alarms in 10 minutes", "at most 10 for each operator |"},
        {"share of 10 minutes with more than 10 alarms", "under 1 % |"},
        {"share of hours with more than 30 alarms", "under 1 % |"},
        {"alarm floods", "under 1 % of the time"},
        {"share of the ten most frequent", "judged by 5;"},
        {"chattering alarms", "none may occur |"},
        {"fleeting alarms", "none may occur |"},
        {"active for more than 24 h", "fewer than 5 |"},
        {"active at the end", "fewer than 10 |"},
        {"share of high, medium, low", "5, 15 and 80 % |"}};
    for (const auto& [name, limit] : rows) {
        EXPECT_NE(DocumentedLimit(name).find(limit), std::string::npos)
            << name << ": " << DocumentedLimit(name);
    }
}

}  // namespace
}  // namespace vigrel::report
