// The command line.

#include "vigrel-report/options.h"

#include <gtest/gtest.h>

#include "common/failure.h"
#include "report/written_station.h"

namespace vigrel::report {
namespace {

using testing::kStockholm;
using testing::Wall;

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
