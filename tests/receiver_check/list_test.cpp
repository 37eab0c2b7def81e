// Columns, and the forms of date and time.

#include "receiver_check/checked_station.h"

namespace vigrel::testing {
namespace {

const std::string kPlace = " [General] Columns";

class ListCheck : public testing::cCheckedStation {
  protected:
    cFindings Columns(const std::string& columns, const std::string& rest = "") {
        std::string content = Content("", rest);
        const std::string old = "Columns=StateIcon,t0";
        return Check(content.replace(content.find(old), old.size(), "Columns=" + columns));
    }
};

TEST_F(ListCheck, AListWithoutColumnsShowsNothing) {
    EXPECT_EQ(Lines(Columns("")), "error no-columns" + kPlace);
    EXPECT_EQ(Lines(Columns(",t0")), "error no-columns" + kPlace);
}

TEST_F(ListCheck, MoreThan32ColumnsEndTheStart) {
    std::string columns = "StateIcon";
    for (int i = 0; i < 31; ++i) columns += ",c" + std::to_string(i);
    EXPECT_EQ(Lines(Columns(columns)).find("too-many-columns"), std::string::npos);
    EXPECT_EQ(Lines(Columns(columns + ",c31")).find("error too-many-columns" + kPlace), 0u);
}

TEST_F(ListCheck, TheFirstColumnStaysBlankUnlessItHasAPicture) {
    EXPECT_EQ(Lines(Columns("t0,StateIcon")), "warning first-column-blank" + kPlace);
    EXPECT_EQ(Lines(Columns("Observed,t0")), "");
    EXPECT_EQ(Lines(Columns("stateicon,T0")), "");
}

TEST_F(ListCheck, OneColumnAloneHasNoText) {
    EXPECT_EQ(Lines(Columns("StateIcon")), "warning one-column" + kPlace);
}

TEST_F(ListCheck, AnUnknownColumnComesWithTheNearestKnownOne) {
    const cFindings findings = Columns("StateIcon,StateTxt");
    EXPECT_EQ(Lines(findings), "warning unknown-column" + kPlace);
    EXPECT_EQ(Message(findings),
              "the column \"StateTxt\" is not known and acts as StateIcon; is \"StateText\" meant?");
}

TEST_F(ListCheck, ABlankMakesAColumnUnknown) {
    const cFindings findings = Columns("StateIcon, t0");
    EXPECT_EQ(Lines(findings), "warning column-blank" + kPlace);
    EXPECT_EQ(Message(findings), "\" t0\" has blanks around it and so acts as StateIcon");
}

TEST_F(ListCheck, AnEmptyColumnEndsTheList) {
    const cFindings findings = Columns("StateIcon,t0,,t1");
    EXPECT_EQ(Lines(findings), "warning column-list-cut" + kPlace);
    EXPECT_EQ(Message(findings), "a \",\" without a column ends the list behind t0");
}

TEST_F(ListCheck, AColumnThatStandsTwiceIsRemarked) {
    EXPECT_EQ(Lines(Columns("StateIcon,t0,T0")), "remark column-repeated" + kPlace);
}

TEST_F(ListCheck, TheSectionOfAnUnknownColumnIsRead) {
    EXPECT_EQ(
        Lines(Columns("StateIcon,Zone", "[Zone]\r\nColumnText=Zone\r\nColumnWidth=wide\r\nColumnColour=red")),
        "warning unknown-column [General] Columns\n"
        "warning number-unreadable [Zone] ColumnWidth\n"
        "warning unknown-key [Zone] ColumnColour");
}

TEST_F(ListCheck, ADateThatLeavesOutDayOrMonthIsTold) {
    for (const std::string form : {"yyyy-mm-dd", "Medium Date", "d/m", "dd mmm yy", ""}) {
        EXPECT_EQ(General("DateFormat=" + form), "") << form;
    }
    EXPECT_EQ(General("DateFormat=yyyy-mm"), "warning form-without-part [General] DateFormat");
    EXPECT_EQ(GeneralMessage("DateFormat=yyyy-nn-dd"), "shows no month: 2021-06-04");
    EXPECT_EQ(GeneralMessage("DateFormat=none").substr(0, 22), "shows no day nor month");
}

TEST_F(ListCheck, ATimeThatLeavesOutHourOrMinuteIsTold) {
    for (const std::string form : {"hh:mm", "h:nn AM/PM", "Short Time", "hh:nn:ss"}) {
        EXPECT_EQ(General("TimeFormat=" + form), "") << form;
    }
    EXPECT_EQ(General("TimeFormat=hh"), "warning form-without-part [General] TimeFormat");
    EXPECT_EQ(GeneralMessage("TimeFormat=nn:ss"), "shows no hour: 06:07");
}

}  // namespace
}  // namespace vigrel::testing
