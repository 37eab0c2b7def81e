#pragma once

#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QLabel>
#include <QLineEdit>
#include <QScrollArea>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>
#include <utility>

#include "adapters/qt/qt_text.h"
#include "definitions/station_definitions.h"
#include "editor_ui/fake_prompts.h"
#include "editor_ui/pages/editor_services.h"
#include "support/fake_clock.h"
#include "support/fake_files.h"
#include "support/fake_random.h"
#include "support/samples.h"

namespace vigrel {

// An application folder in memory, with what pages of the editor need around it.
class PageTest : public ::testing::Test {
  protected:
    PageTest() {
        Put("VigrelReceiver.INI", "[General]\r\nLanguage=044\r\n");
        Put("Vigrel_Texts.044",
            "0=English\r\n803=File\r\n804=is no receiver\r\n805=is no profile\r\n888=Receiver brought up\r\n"
            "930=Profile brought up\r\n976=Receiver removed\r\n977=Receiver not removed\r\n"
            "978=Receiver not loaded\r\n979=Receiver not saved\r\n980=Profile not saved\r\n"
            "981=Profile removed\r\n982=Profile not loaded\r\n1088=Unknown type\r\n");
        Put("ReceiverTypes.txt", "2;PRINTER;Printer\n7;XRT;Radio;Radio.INI\n8;MAIL;Mail;Mail.INI\n");
        Put("Radio.INI",
            "[ReceiverTypeSettings]\r\nSetting0=Serial port\r\nSetting1=Keep-alive interval\r\n"
            "Setting1Type=Integer32\r\nSetting2=Night\r\nSetting2Type=YesNo\r\n");
        Put("Mail.INI", "[ReceiverTypeSettings]\r\nSetting0=Address\r\nSetting1=Subject\r\n");
        m_Texts.LoadTexts();
    }
    static std::string Path(const std::string& name) { return "C:\\App\\" + name; }
    void Put(const std::string& name, const std::string& bytes) { m_Files.Put(Path(name), bytes); }
    void PutSample(const std::string& name, const std::string& sample) { Put(name, testing::Sample(sample)); }
    std::string OnDisk(const std::string& name) const { return m_Files.ReadFile(Path(name)); }

    template <class Widget>
    static Widget* Find(QWidget& page, const char* name) {
        auto* widget = page.findChild<Widget*>(name);
        EXPECT_NE(widget, nullptr) << name;
        return widget;
    }
    static void Press(QWidget& page, const char* button) {
        auto* widget = page.findChild<QWidget*>(button);
        ASSERT_NE(widget, nullptr) << button;
        EXPECT_TRUE(widget->isEnabled()) << button;
        QTest::mouseClick(widget, Qt::LeftButton, {}, QPoint(8, widget->height() / 2));
    }
    // What was asked and told, in UTF-8, since the last call.
    std::string Asked() { return std::exchange(m_Prompts.m_Asked, {}).toStdString(); }
    static std::string TextOf(QWidget& page, const char* field) {
        return Find<QLineEdit>(page, field)->text().toStdString();
    }
    static std::string LabelOf(QWidget& page, const char* label) {
        return Find<QLabel>(page, label)->text().toStdString();
    }
    // The rows of the list of definitions: "name | details | file", one a line.
    static std::string Rows(QWidget& page) {
        const QAbstractItemModel& model = *Find<QAbstractItemView>(page, "List_Definitions")->model();
        QString rows;
        for (int row = 0; row < model.rowCount(); ++row) {
            QStringList cells;
            for (int column = 0; column < model.columnCount(); ++column) {
                cells += model.index(row, column).data().toString();
            }
            rows += cells.join(" | ") + "\n";
        }
        return rows.toStdString();
    }
    // Replaces the text of a field as a user does.
    static void Type(QWidget& page, const char* field, const QString& text) {
        auto* widget = Find<QLineEdit>(page, field);
        if (widget == nullptr) return;
        widget->selectAll();
        if (text.isEmpty()) QTest::keyClick(widget, Qt::Key_Delete);
        QTest::keyClicks(widget, text);
    }

    // The fields of a form that scrolling can't bring into sight whole, or as much of them as fits, but for
    // a line at the edge.
    static std::string HiddenFields(QScrollArea& area) {
        QStringList hidden;
        for (QWidget* field : area.widget()->findChildren<QWidget*>()) {
            if (!field->isVisible() || (field->focusPolicy() & Qt::TabFocus) == 0) continue;
            const QPoint middle = field->mapTo(area.widget(), field->rect().center());
            area.ensureVisible(middle.x(), middle.y(), field->width() / 2 + 1, field->height() / 2 + 1);
            const QSize seen = field->visibleRegion().boundingRect().size();
            const QSize wanted = field->size().boundedTo(area.viewport()->size());
            if (seen.width() + 2 < wanted.width() || seen.height() + 2 < wanted.height())
                hidden += QString("%1 shows %2x%3 of %4x%5")
                              .arg(field->objectName())
                              .arg(seen.width())
                              .arg(seen.height())
                              .arg(wanted.width())
                              .arg(wanted.height());
        }
        return hidden.join('\n').toStdString();
    }

    testing::cFakeFiles m_Files;
    testing::cFakeClock m_Clock;
    testing::cFakeRandom m_Random;
    cIni m_Ini{m_Files, "C:\\App\\"};
    cTexts m_Texts{m_Files, m_Ini};
    cLocaleForms m_Forms;
    testing::cFakePrompts m_Prompts;
    QTemporaryDir m_Home;
    QSettings m_Settings{m_Home.filePath("settings.ini"), QSettings::IniFormat};
    cStationDefinitions m_Station{m_Files, m_Clock, m_Random, m_Texts, m_Ini};
    cEditorServices m_Services{m_Files,
                               m_Clock,
                               m_Ini,
                               m_Forms,
                               [this](std::int32_t id) { return m_Texts.GetText(id); },
                               m_Prompts,
                               m_Settings,
                               cDayTypeNames(m_Ini, m_Forms),
                               cDayTypeImages(m_Ini),
                               m_Station};
};

}  // namespace vigrel
