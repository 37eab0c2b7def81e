// What assistive tools find in the editor's windows: a name for everything that a user can act on.

#include <QInputDialog>
#include <QTimer>

#include "editor_ui/editor_bench.h"
#include "editor_ui/records/definition_page.h"
#include "support/qt_wait.h"
#include "support/samples.h"
#include "support/unnamed_widgets.h"

namespace vigrel::testing {
namespace {

class AssistiveTools : public ::testing::Test, protected cEditorBench {
  protected:
    AssistiveTools() {
        m_Files.Put("/app/Receivers/Receiver_0007.dat", Sample("receiver_version_5.dat"));
        m_Files.Put("/app/Profiles/Profile_0012.dat", Sample("profile_version_5.dat"));
    }
};

TEST_F(AssistiveTools, FindNamesInTheWindowWithNothingOpen) {
    EXPECT_EQ(UnnamedWidgets(*m_Window), "");
    EXPECT_GE(InteractiveWidgets(*m_Window), 2);
}

TEST_F(AssistiveTools, FindNamesInASchedule) {
    EXPECT_EQ(UnnamedWidgets(NewSchedule()), "");
    EXPECT_GE(InteractiveWidgets(*m_Window->CurrentPage()), 5);
}

TEST_F(AssistiveTools, FindNamesInACalendar) {
    EXPECT_EQ(UnnamedWidgets(NewCalendar()), "");
    EXPECT_GE(InteractiveWidgets(*m_Window->CurrentPage()), 5);
}

TEST_F(AssistiveTools, FindNamesInTheColourRules) {
    m_Window->ShowColourRules();
    EXPECT_EQ(UnnamedWidgets(*m_Window->CurrentPage()), "");
    EXPECT_GE(InteractiveWidgets(*m_Window->CurrentPage()), 5);
}

TEST_F(AssistiveTools, FindNamesInTheReceiversWithOneChosen) {
    m_Window->ShowReceivers();
    dynamic_cast<cDefinitionPage&>(*m_Window->CurrentPage()).Choose(0);
    EXPECT_EQ(UnnamedWidgets(*m_Window->CurrentPage()), "");
    EXPECT_GE(InteractiveWidgets(*m_Window->CurrentPage()), 10);
}

TEST_F(AssistiveTools, FindNamesInTheProfilesWithOneChosen) {
    m_Window->ShowProfiles();
    dynamic_cast<cDefinitionPage&>(*m_Window->CurrentPage()).Choose(0);
    EXPECT_EQ(UnnamedWidgets(*m_Window->CurrentPage()), "");
    EXPECT_GE(InteractiveWidgets(*m_Window->CurrentPage()), 10);
}

}  // namespace
}  // namespace vigrel::testing
