#include "events/alarm_maker.h"

#include <gtest/gtest.h>

#include "support/fake_clock.h"

namespace vigrel::testing {
namespace {

class AlarmMaker : public ::testing::Test {
  protected:
    AlarmMaker() {
        m_Categories.m_CategorySettings.resize(2);
        m_Categories.m_CategorySettings[0].m_Category = "Fire";
        m_Categories.m_CategorySettings[1].m_Category = "FIRE";
    }
    // The settings of an alarm of the category.
    const cCategorySpecificSetting* SettingOf(const std::string& category) const {
        const AlarmPtr alarm =
            m_Maker.Make([&](cVigrelRecieverAlarm& made) { made.m_Alarm.SetCondition(2, category); });
        return &alarm->m_CategorySpecificSetting.get();
    }
    testing::cFakeClock m_Clock;
    cCategorySettings m_Categories;
    cAlarmMaker m_Maker{m_Clock, m_Categories};
};

TEST_F(AlarmMaker, TheFirstCategoryOfTheNameInAnyCaseGivesTheSettings) {
    EXPECT_EQ(SettingOf("fire"), m_Categories.m_CategorySettings.data());
}

TEST_F(AlarmMaker, ACategoryThatIsNotConfiguredHasTheGeneralSettings) {
    EXPECT_EQ(SettingOf("Gas"), &m_Categories.m_DefaultCategorySetting);
    EXPECT_EQ(SettingOf(""), &m_Categories.m_DefaultCategorySetting);
}

TEST_F(AlarmMaker, AnAlarmIsCreatedNow) {
    EXPECT_EQ(m_Maker.Make([](cVigrelRecieverAlarm&) {})->m_CreatedTime, m_Clock.Now());
}

}  // namespace
}  // namespace vigrel::testing
