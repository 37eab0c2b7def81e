#pragma once

#include <QAbstractButton>
#include <QTabWidget>
#include <functional>
#include <memory>
#include <string>

#include "editor_ui/editor_bench.h"
#include "editor_ui/records/definition_page.h"
#include "editor_ui/window/editor_words.h"
#include "support/samples.h"

namespace vigrel::testing {

// Walks through all that the editor's window can show: what is open, and each of its pages.
class cEditorPages {
  public:
    // The translator is installed as long as the window stands.
    explicit cEditorPages(std::unique_ptr<QTranslator> words) : m_Words(std::move(words)) {
        QCoreApplication::installTranslator(m_Words.get());
        m_Bench = std::make_unique<cEditorBench>();
        m_Bench->Choose(Window(), "Menu_Zoom_Fit");
        m_Bench->m_Files.Put("/app/Receivers/Receiver_0007.dat", Sample("receiver_version_5.dat"));
        m_Bench->m_Files.Put("/app/Profiles/Profile_0012.dat", Sample("profile_version_5.dat"));
        // With a hint of each kind that has many words.
        m_Bench->m_Files.Put("/app/ReceiverTypes.txt", "9;XRT;Radio;Radio.INI\n");
        m_Bench->m_Files.Put("/app/Radio.INI",
                             "[ReceiverTypeSettings]\r\nSetting0=COM\r\nSetting0Type=Integer16\r\n"
                             "Setting1=COM\r\nSetting1Type=Currency\r\nSetting2=COM\r\nSetting2Type=Byte\r\n"
                             "Setting3=COM\r\nSetting3Type=YesNo\r\n");
        m_Bench->m_Files.Put("/app/OwnHolidays.txt", "12-24 | COM\r\nnonsense\r\n");
        m_Bench->m_Files.Put("/app/ColourRules.txt",
                             "* | * | * | 120,120,120 | 255,255,255 | 15\r\nnonsense\r\n");
    }
    // In a delivered language.
    explicit cEditorPages(const char* language) : cEditorPages(std::make_unique<cEditorWords>(language)) {}
    ~cEditorPages() {
        m_Bench.reset();
        QCoreApplication::removeTranslator(m_Words.get());
    }

    cDefinitionsWindow& Window() { return *m_Bench->m_Window; }
    cEditorBench& Bench() { return *m_Bench; }

    // Calls for each, by its name, when it shows. What has tabs is one for each of them.
    void ForEach(const std::function<void(const std::string& name)>& look) {
        look("start page");
        m_Bench->NewSchedule();
        look("schedule");
        m_Bench->NewCalendar();
        look("calendar");
        cEditorBench::Find<QAbstractButton>(*Window().CurrentPage(), "Button_Calendar_ShowYear").click();
        look("calendar, year");
        Window().ShowColourRules();
        look("colour rules");
        Window().ShowOwnHolidays();
        look("own holidays");
        Window().ShowReceivers();
        dynamic_cast<cDefinitionPage&>(*Window().CurrentPage()).Choose(0);
        look("receivers");
        Window().ShowProfiles();
        dynamic_cast<cDefinitionPage&>(*Window().CurrentPage()).Choose(0);
        auto& tabs = cEditorBench::Find<QTabWidget>(*Window().CurrentPage(), "Tabs_Profile");
        for (int tab = 0; tab < tabs.count(); ++tab) {
            tabs.setCurrentIndex(tab);
            look("profiles, tab " + std::to_string(tab));
        }
    }

  private:
    std::unique_ptr<QTranslator> m_Words;
    std::unique_ptr<cEditorBench> m_Bench;
};

}  // namespace vigrel::testing
