#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <memory>
#include <numeric>
#include <random>
#include <string>
#include <vector>

#include "common/failure.h"
#include "platform/report_list.h"
#include "support/item_table.h"

namespace vigrel::testing {

// What the system may rely on, whatever report list it is given. A rig offers cReportList& List().
template <class Rig>
class ReportListContract : public ::testing::Test {
  protected:
    using Ids = std::vector<RecordId>;
    cReportList& List() { return m_Rig.List(); }
    void AddColumns(int count) {
        for (int i = 0; i < count; ++i) List().AddColumn("c" + std::to_string(i), 100);
    }
    RecordId Add(const std::vector<ItemValue>& values) { return m_Items.Add(values); }
    RecordId AddText(const std::string& text) { return Add({text}); }
    void SortBy(int column, bool ascending) {
        List().ClearSortOrder();
        List().AddSortColumn(column, ascending);
    }
    Ids TakenOver() {
        List().TakeOverRecords();
        return List().Rows();
    }
    Rig m_Rig;
    cItemTable m_Items{m_Rig.List()};
};
TYPED_TEST_SUITE_P(ReportListContract);

TYPED_TEST_P(ReportListContract, ColumnsAreCountedFromZeroAndKeepTheirTagAndWidth) {
    cReportList& list = this->List();
    EXPECT_EQ(list.ColumnCount(), 0);
    EXPECT_EQ(list.AddColumn("first", 10), 0);
    EXPECT_EQ(list.AddColumn("second", 0), 1);
    EXPECT_EQ(list.ColumnCount(), 2);
    list.SetColumnTag(1, "CreatedTimeStamp");
    list.SetColumnWidth(0, 77);
    EXPECT_EQ(list.ColumnTag(0), "");
    EXPECT_EQ(list.ColumnTag(1), "CreatedTimeStamp");
    EXPECT_EQ(list.ColumnWidth(0), 77);
    EXPECT_EQ(list.ColumnWidth(1), 0);
}

TYPED_TEST_P(ReportListContract, AColumnOrItemOrRecordThatIsNotThereIsAFailure) {
    cReportList& list = this->List();
    this->AddColumns(1);
    EXPECT_THROW(list.ColumnTag(1), cFailure);
    EXPECT_THROW(list.SetColumnWidth(-1, 5), cFailure);
    EXPECT_THROW(list.AddSortColumn(1, true), cFailure);
    const RecordId record = this->AddText("a");
    EXPECT_THROW(list.GetItemValue(record, 1), cFailure);
    EXPECT_THROW(list.GetItemValue(record, -1), cFailure);
    EXPECT_THROW(list.RecordTagOf(0), cFailure);
    list.RemoveRecord(record);
    EXPECT_THROW(list.RecordTagOf(record), cFailure);
    EXPECT_THROW(list.RemoveRecord(record), cFailure);
    EXPECT_THROW(list.RecordChanged(record), cFailure);
    EXPECT_THROW(list.GetItemValue(record, 0), cFailure);
}

TYPED_TEST_P(ReportListContract, AChangedWidthIsTold) {
    this->AddColumns(2);
    std::vector<int> told;
    this->List().OnColumnWidthChanged = [&](int column) { told.push_back(column); };
    this->List().SetColumnWidth(1, 150);
    this->List().SetColumnWidth(1, 150);
    EXPECT_EQ(told, std::vector<int>{1});
}

TYPED_TEST_P(ReportListContract, ARecordKeepsItsTagUntilItIsRemoved) {
    const auto tag = std::make_shared<int>(5);
    const RecordId record = this->List().AddRecord(tag);
    EXPECT_EQ(this->List().RecordTagOf(record), tag);
    this->List().TakeOverRecords();
    this->List().RemoveRecord(record);
    EXPECT_EQ(tag.use_count(), 1);
}

TYPED_TEST_P(ReportListContract, IdsAreNeverUsedTwice) {
    const RecordId first = this->AddText("a");
    EXPECT_NE(first, 0u);
    this->List().RemoveRecord(first);
    const RecordId second = this->AddText("b");
    this->List().RemoveAllRecords();
    const RecordId third = this->AddText("c");
    EXPECT_NE(first, second);
    EXPECT_NE(second, third);
    EXPECT_NE(first, third);
}

TYPED_TEST_P(ReportListContract, ItemsAreThoseThatTheOwnerGives) {
    this->AddColumns(2);
    const RecordId record = this->AddText("a");
    EXPECT_EQ(this->List().GetItemValue(record, 0), ItemValue(std::string("a")));
    EXPECT_EQ(this->List().GetItemValue(record, 1), ItemValue(std::string()));
    this->m_Items.SetValue(record, 0, 45000.5);
    EXPECT_EQ(this->List().GetItemValue(record, 0), ItemValue(45000.5));
}

TYPED_TEST_P(ReportListContract, WithoutAnOwnerItemsAreEmpty) {
    this->AddColumns(1);
    this->List().OnItem = nullptr;
    const RecordId record = this->List().AddRecord(nullptr);
    this->SortBy(0, true);
    EXPECT_EQ(this->TakenOver(), (std::vector<RecordId>{record}));
    EXPECT_EQ(this->List().GetItemValue(record, 0), ItemValue(std::string()));
}

TYPED_TEST_P(ReportListContract, RecordsGetRowsWhenTheListTakesThemOver) {
    const RecordId a = this->AddText("a");
    EXPECT_TRUE(this->List().Rows().empty());
    EXPECT_EQ(this->List().RecordCount(), 1);
    EXPECT_EQ(this->TakenOver(), (std::vector<RecordId>{a}));
    const RecordId b = this->AddText("b");
    this->List().Redraw();
    EXPECT_EQ(this->List().Rows(), (std::vector<RecordId>{a}));
    EXPECT_EQ(this->TakenOver(), (std::vector<RecordId>{a, b}));
}

TYPED_TEST_P(ReportListContract, OnlyRecordsAddedBeforeTheTakeOverGetRows) {
    const RecordId a = this->AddText("a");
    this->List().TakeOverRecords();
    this->AddText("b");
    EXPECT_EQ(this->List().Rows(), (std::vector<RecordId>{a}));
}

TYPED_TEST_P(ReportListContract, ARemovedRecordTakesItsRowWithIt) {
    const RecordId a = this->AddText("a"), b = this->AddText("b"), c = this->AddText("c");
    this->TakenOver();
    this->List().RemoveRecord(b);
    EXPECT_EQ(this->List().Rows(), (std::vector<RecordId>{a, c}));
    EXPECT_EQ(this->List().RecordCount(), 2);
    const RecordId d = this->AddText("d");
    this->List().RemoveRecord(d);
    EXPECT_EQ(this->TakenOver(), (std::vector<RecordId>{a, c}));
}

TYPED_TEST_P(ReportListContract, ARecordCanGoBetweenTakeOverAndTheNextLook) {
    const RecordId a = this->AddText("a"), b = this->AddText("b");
    this->List().TakeOverRecords();
    this->List().RemoveRecord(a);
    EXPECT_EQ(this->List().Rows(), (std::vector<RecordId>{b}));
}

TYPED_TEST_P(ReportListContract, AllRecordsCanGoAtOnce) {
    this->AddText("a");
    this->TakenOver();
    this->AddText("b");
    this->List().RemoveAllRecords();
    EXPECT_TRUE(this->List().Rows().empty());
    EXPECT_EQ(this->List().RecordCount(), 0);
    const RecordId c = this->AddText("c");
    EXPECT_EQ(this->TakenOver(), (std::vector<RecordId>{c}));
}

TYPED_TEST_P(ReportListContract, WithoutSortOrderRowsStandByAge) {
    const RecordId z = this->AddText("z"), a = this->AddText("a");
    EXPECT_EQ(this->TakenOver(), (std::vector<RecordId>{z, a}));
}

TYPED_TEST_P(ReportListContract, DateTimesSortByNumber) {
    this->AddColumns(1);
    const RecordId ten = this->Add({10.0}), nine = this->Add({9.0}), minus = this->Add({-1.5});
    this->SortBy(0, true);
    EXPECT_EQ(this->TakenOver(), (std::vector<RecordId>{minus, nine, ten}));
    this->SortBy(0, false);
    EXPECT_EQ(this->TakenOver(), (std::vector<RecordId>{ten, nine, minus}));
}

TYPED_TEST_P(ReportListContract, EveryNumberHasAPlaceInBothDirections) {
    constexpr double kInfinity = std::numeric_limits<double>::infinity();
    constexpr double kNone = std::numeric_limits<double>::quiet_NaN();
    const std::vector<double> none{kNone, kInfinity, -kInfinity};
    std::vector<double> values{kNone, -1e300, 0, 5e-324, 46096.5, 1e300};
    std::vector<std::size_t> arrival(values.size());
    std::iota(arrival.begin(), arrival.end(), std::size_t{0});
    std::mt19937 random(1);
    for (std::size_t round = 0; round < 200; ++round) {
        values[0] = none[round % none.size()];
        TypeParam rig;
        cReportList& list = rig.List();
        cItemTable items(list);
        list.AddColumn("time", 100);
        list.AddSortColumn(0, round % 2 == 0);
        std::shuffle(arrival.begin(), arrival.end(), random);
        std::vector<RecordId> expected(values.size());
        for (const std::size_t i : arrival) {
            expected[i] = items.Add({values[i]});
            list.TakeOverRecords();
            list.Rows();
        }
        if (round % 2 != 0) std::reverse(expected.begin(), expected.end());
        ASSERT_EQ(list.Rows(), expected);
    }
}

TYPED_TEST_P(ReportListContract, RowsOfAnyValueGoWithTheirRecords) {
    constexpr double kNone = std::numeric_limits<double>::quiet_NaN();
    std::mt19937 random(2);
    for (int round = 0; round < 200; ++round) {
        TypeParam rig;
        cReportList& list = rig.List();
        cItemTable items(list);
        list.AddColumn("time", 100);
        list.AddSortColumn(0, true);
        std::vector<RecordId> records;
        for (int i = 0; i < 12; ++i) {
            records.push_back(items.Add({random() % 3 == 0 ? kNone : static_cast<double>(random() % 5)}));
            list.TakeOverRecords();
            list.Rows();
        }
        std::shuffle(records.begin(), records.end(), random);
        while (!records.empty()) {
            list.RemoveRecord(records.back());
            records.pop_back();
            std::vector<RecordId> rows = list.Rows();
            std::vector<RecordId> left = records;
            std::sort(rows.begin(), rows.end());
            std::sort(left.begin(), left.end());
            ASSERT_EQ(rows, left);
        }
    }
}

TYPED_TEST_P(ReportListContract, TextsSortByTheUpperCasedCodePage) {
    this->AddColumns(1);
    const RecordId b = this->AddText("B"), a = this->AddText("a"), c = this->AddText("c"),
                   ouml = this->AddText("\xF6"), auml = this->AddText("\xC4"), aring = this->AddText("\xE5"),
                   ten = this->AddText("10"), nine = this->AddText("9"), empty = this->AddText("");
    this->SortBy(0, true);
    EXPECT_EQ(this->TakenOver(), (std::vector<RecordId>{empty, ten, nine, a, b, c, auml, aring, ouml}));
}

TYPED_TEST_P(ReportListContract, LongTextsSortByTheFirstLetterInWhichTheyDiffer) {
    for (const bool ascending : {true, false}) {
        TypeParam rig;
        cReportList& list = rig.List();
        cItemTable items(list);
        list.AddColumn("text", 100);
        list.AddSortColumn(0, ascending);
        // The later the letter, the further in front.
        std::vector<RecordId> expected;
        for (std::size_t place = 0; place < 40; ++place) {
            std::string text(40, 'b');
            text[place] = 'c';
            expected.push_back(items.Add({text}));
        }
        if (ascending) std::reverse(expected.begin(), expected.end());
        list.TakeOverRecords();
        EXPECT_EQ(list.Rows(), expected) << ascending;
    }
}

TYPED_TEST_P(ReportListContract, NumbersStandInFrontOfTexts) {
    this->AddColumns(1);
    const RecordId text = this->AddText("1"), number = this->Add({99.0});
    this->SortBy(0, true);
    EXPECT_EQ(this->TakenOver(), (std::vector<RecordId>{number, text}));
}

TYPED_TEST_P(ReportListContract, EqualValuesStandByAgeAndADescendingOrderIsTheReverse) {
    this->AddColumns(1);
    const RecordId first = this->AddText("x"), second = this->AddText("X"), third = this->AddText("a");
    this->SortBy(0, true);
    EXPECT_EQ(this->TakenOver(), (std::vector<RecordId>{third, first, second}));
    this->SortBy(0, false);
    EXPECT_EQ(this->TakenOver(), (std::vector<RecordId>{second, first, third}));
}

TYPED_TEST_P(ReportListContract, ASecondSortColumnDecidesBetweenEqualsOfTheFirst) {
    this->AddColumns(2);
    const RecordId b2 = this->Add({std::string("b"), 2.0}), a1 = this->Add({std::string("a"), 1.0}),
                   b1 = this->Add({std::string("b"), 1.0});
    this->List().ClearSortOrder();
    this->List().AddSortColumn(0, false);
    this->List().AddSortColumn(1, true);
    EXPECT_EQ(this->TakenOver(), (std::vector<RecordId>{b1, b2, a1}));
}

TYPED_TEST_P(ReportListContract, ARecordWithoutTheSortedItemSortsAsAnEmptyText) {
    this->AddColumns(2);
    const RecordId full = this->Add({std::string("a"), std::string("b")}), shorter = this->AddText("a");
    this->SortBy(1, true);
    EXPECT_EQ(this->TakenOver(), (std::vector<RecordId>{shorter, full}));
}

TYPED_TEST_P(ReportListContract, ANewSortOrderHoldsFromTheNextTakeOver) {
    this->AddColumns(1);
    const RecordId b = this->AddText("b"), a = this->AddText("a");
    this->TakenOver();
    this->SortBy(0, true);
    EXPECT_EQ(this->List().Rows(), (std::vector<RecordId>{b, a}));
    EXPECT_EQ(this->TakenOver(), (std::vector<RecordId>{a, b}));
}

TYPED_TEST_P(ReportListContract, AChangedValueMovesTheRowAtTheNextTakeOver) {
    this->AddColumns(1);
    const RecordId a = this->AddText("a"), b = this->AddText("b"), c = this->AddText("c");
    this->SortBy(0, true);
    this->TakenOver();
    this->m_Items.SetValue(a, 0, std::string("d"));
    EXPECT_EQ(this->List().Rows(), (std::vector<RecordId>{a, b, c}));
    EXPECT_EQ(this->TakenOver(), (std::vector<RecordId>{b, c, a}));
    this->List().RemoveRecord(a);
    EXPECT_EQ(this->TakenOver(), (std::vector<RecordId>{b, c}));
}

TYPED_TEST_P(ReportListContract, ARecordWhoseValueChangedCanBeRemoved) {
    this->AddColumns(1);
    const RecordId a = this->AddText("a"), b = this->AddText("b");
    this->SortBy(0, true);
    this->TakenOver();
    this->m_Items.SetValue(a, 0, std::string("z"));
    this->List().RemoveRecord(a);
    EXPECT_EQ(this->List().Rows(), (std::vector<RecordId>{b}));
    EXPECT_EQ(this->TakenOver(), (std::vector<RecordId>{b}));
}

TYPED_TEST_P(ReportListContract, NewRecordsFindTheirPlaceAmongTheRows) {
    this->AddColumns(1);
    const RecordId b = this->AddText("b"), d = this->AddText("d");
    this->SortBy(0, true);
    this->TakenOver();
    const RecordId e = this->AddText("e"), a = this->AddText("a"), c = this->AddText("c");
    EXPECT_EQ(this->TakenOver(), (std::vector<RecordId>{a, b, c, d, e}));
}

TYPED_TEST_P(ReportListContract, SelectedRowsComeInDisplayOrder) {
    this->AddColumns(1);
    const RecordId a = this->AddText("a"), b = this->AddText("b"), c = this->AddText("c");
    this->SortBy(0, false);
    this->TakenOver();
    this->List().SelectAndShow(a);
    this->List().SelectAndShow(c);
    EXPECT_EQ(this->List().SelectedRows(), (std::vector<RecordId>{c, a}));
    this->List().SelectAllRows();
    EXPECT_EQ(this->List().SelectedRows(), (std::vector<RecordId>{c, b, a}));
    this->List().ClearSelection();
    EXPECT_TRUE(this->List().SelectedRows().empty());
}

TYPED_TEST_P(ReportListContract, ARecordWithoutRowIsNotSelected) {
    this->AddColumns(1);
    const RecordId a = this->AddText("a");
    this->List().SelectAndShow(a);
    this->List().SelectAndShow(0);
    this->List().SelectAndShow(99);
    EXPECT_TRUE(this->List().SelectedRows().empty());
    this->TakenOver();
    EXPECT_TRUE(this->List().SelectedRows().empty());
}

TYPED_TEST_P(ReportListContract, ARowCanBeSelectedRightAfterTheTakeOver) {
    this->AddColumns(1);
    const RecordId a = this->AddText("a");
    this->List().TakeOverRecords();
    this->List().SelectAndShow(a);
    EXPECT_EQ(this->List().SelectedRows(), (std::vector<RecordId>{a}));
}

TYPED_TEST_P(ReportListContract, AnArrivalLeavesNoSelection) {
    this->AddColumns(1);
    const RecordId a = this->AddText("a");
    this->TakenOver();
    this->List().SelectAndShow(a);
    const RecordId b = this->AddText("b");
    this->List().TakeOverRecords();
    this->List().SelectAndShow(b);
    this->List().ClearSelection();
    EXPECT_TRUE(this->List().SelectedRows().empty());
}

TYPED_TEST_P(ReportListContract, AnOrderOfMoreColumnsDropsTheSelectionOfARowThatIsGone) {
    this->AddColumns(3);
    this->SortBy(0, true);
    std::vector<RecordId> records;
    records.reserve(20);
    for (int i = 0; i < 20; ++i) records.push_back(this->Add({"same", std::to_string(i % 7), "same"}));
    this->TakenOver();
    this->List().SelectAllRows();
    for (int i = 0; i < 20; i += 2) this->List().RemoveRecord(records[static_cast<std::size_t>(i)]);
    for (int column = 1; column < 3; ++column) this->List().AddSortColumn(column, column == 2);
    this->List().TakeOverRecords();
    EXPECT_EQ(this->List().SelectedRows().size(), 10u);
    EXPECT_EQ(this->List().SelectedRows(), this->List().Rows());
}

TYPED_TEST_P(ReportListContract, TheSelectionFollowsItsRowsThroughChanges) {
    this->AddColumns(1);
    const RecordId a = this->AddText("a"), b = this->AddText("b"), c = this->AddText("c");
    this->SortBy(0, true);
    this->TakenOver();
    this->List().SelectAndShow(b);
    this->List().SelectAndShow(c);
    this->List().RemoveRecord(a);
    EXPECT_EQ(this->List().SelectedRows(), (std::vector<RecordId>{b, c}));
    for (const char* text : {"aa", "bb", "cc"}) this->AddText(text);
    this->SortBy(0, false);
    this->TakenOver();
    EXPECT_EQ(this->List().SelectedRows(), (std::vector<RecordId>{c, b}));
    this->m_Items.SetValue(b, 0, std::string("x"));
    this->TakenOver();
    EXPECT_EQ(this->List().SelectedRows(), (std::vector<RecordId>{b, c}));
    this->List().RemoveRecord(b);
    EXPECT_EQ(this->List().SelectedRows(), (std::vector<RecordId>{c}));
}

TYPED_TEST_P(ReportListContract, TheFontSizeReadsBack) {
    this->List().SetFont("Arial", 12.5);
    EXPECT_EQ(this->List().FontPoints(), 12.5);
}

REGISTER_TYPED_TEST_SUITE_P(ReportListContract, ColumnsAreCountedFromZeroAndKeepTheirTagAndWidth,
                            AColumnOrItemOrRecordThatIsNotThereIsAFailure, AChangedWidthIsTold,
                            ARecordKeepsItsTagUntilItIsRemoved, IdsAreNeverUsedTwice,
                            ItemsAreThoseThatTheOwnerGives, WithoutAnOwnerItemsAreEmpty,
                            RecordsGetRowsWhenTheListTakesThemOver, OnlyRecordsAddedBeforeTheTakeOverGetRows,
                            ARemovedRecordTakesItsRowWithIt, ARecordCanGoBetweenTakeOverAndTheNextLook,
                            AllRecordsCanGoAtOnce, WithoutSortOrderRowsStandByAge, DateTimesSortByNumber,
                            EveryNumberHasAPlaceInBothDirections, RowsOfAnyValueGoWithTheirRecords,
                            TextsSortByTheUpperCasedCodePage, LongTextsSortByTheFirstLetterInWhichTheyDiffer,
                            NumbersStandInFrontOfTexts, EqualValuesStandByAgeAndADescendingOrderIsTheReverse,
                            ASecondSortColumnDecidesBetweenEqualsOfTheFirst,
                            ARecordWithoutTheSortedItemSortsAsAnEmptyText,
                            ANewSortOrderHoldsFromTheNextTakeOver, AChangedValueMovesTheRowAtTheNextTakeOver,
                            ARecordWhoseValueChangedCanBeRemoved, NewRecordsFindTheirPlaceAmongTheRows,
                            SelectedRowsComeInDisplayOrder, ARecordWithoutRowIsNotSelected,
                            ARowCanBeSelectedRightAfterTheTakeOver, AnArrivalLeavesNoSelection,
                            AnOrderOfMoreColumnsDropsTheSelectionOfARowThatIsGone,
                            TheSelectionFollowsItsRowsThroughChanges, TheFontSizeReadsBack);

}  // namespace vigrel::testing
