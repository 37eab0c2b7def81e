// Nothing that the editor says is cut: in the language with the longest words as in the others, and with
// letters of twice the size.

#include <QHeaderView>
#include <QLabel>
#include <QMenuBar>
#include <QMessageBox>
#include <QScrollArea>
#include <QScrollBar>
#include <QTest>
#include <QTimer>
#include <QToolButton>

#include "editor_ui/editor_pages.h"

namespace vigrel::testing {
namespace {

// Letters of a size, for as long as it lives.
class cLetters {
  public:
    explicit cLetters(double scale) : m_Before(QApplication::font()) {
        QFont font = m_Before;
        font.setPointSizeF(font.pointSizeF() * scale);
        QApplication::setFont(font);
    }
    ~cLetters() { QApplication::setFont(m_Before); }

  private:
    QFont m_Before;
};

QString Told(const QWidget& widget, const QString& text, QSize wanted) {
    return QString("%1 \"%2\" has %3x%4, needs %5x%6\n")
        .arg(widget.metaObject()->className(), text)
        .arg(widget.width())
        .arg(widget.height())
        .arg(wanted.width())
        .arg(wanted.height());
}

// What a text needs to show whole.
QSize RoomFor(const QLabel& label) {
    return label.wordWrap() ? QSize(0, label.heightForWidth(label.width())) : label.sizeHint();
}

// A style's own frames take or leave a pixel.
bool IsCut(const QWidget& widget, QSize wanted) {
    return widget.width() + 1 < wanted.width() || widget.height() + 1 < wanted.height();
}

std::string CutTexts(const QWidget& window) {
    QString cut;
    for (const QWidget* widget : window.findChildren<QWidget*>()) {
        if (!widget->isVisible() || widget->objectName().startsWith("qt_")) continue;
        if (auto* label = qobject_cast<const QLabel*>(widget); label != nullptr && !label->text().isEmpty()) {
            if (IsCut(*label, RoomFor(*label))) cut += Told(*label, label->text(), RoomFor(*label));
        }
        if (auto* button = qobject_cast<const QAbstractButton*>(widget);
            button != nullptr && !button->text().isEmpty() && IsCut(*button, button->sizeHint())) {
            cut += Told(*button, button->text(), button->sizeHint());
        }
        if (auto* line = qobject_cast<const QLineEdit*>(widget)) {
            const int wanted = line->fontMetrics().horizontalAdvance(line->placeholderText());
            if (line->width() < wanted) cut += Told(*line, line->placeholderText(), QSize(wanted, 0));
        }
        if (auto* header = qobject_cast<const QHeaderView*>(widget);
            header != nullptr && header->count() > 0) {
            for (int i = 0; i < header->count(); ++i) {
                const QString text = header->model()->headerData(i, header->orientation()).toString();
                const int wanted = header->fontMetrics().horizontalAdvance(text);
                if (header->sectionSize(i) < wanted) cut += Told(*header, text, QSize(wanted, 0));
            }
        }
    }
    return cut.toStdString();
}

class TextRoom : public ::testing::TestWithParam<double> {};

// On a screen of 800x600 with letters of the usual size, 1600x1000 with such of twice the size.
TEST_P(TextRoom, IsThereForEveryTextOfThePages) {
    const cLetters letters(GetParam());
    for (const char* language : {"044", "045", "046", "047", "049", "358"}) {
        cEditorPages pages(language);
        pages.ForEach([&](const std::string& name) {
            QCoreApplication::sendPostedEvents();
            QCoreApplication::processEvents();
            const QSize least = pages.Window().minimumSizeHint();
            const QSize smallest = QSize(800, 470) * GetParam();
            EXPECT_EQ(least.boundedTo(smallest), least)
                << language << ", " << name << ", " << least.width() << "x" << least.height();
            EXPECT_EQ(CutTexts(pages.Window()), "")
                << language << ", " << name << ", window " << pages.Window().width();
        });
    }
}

// A screen of 1920x1080 at 200 % has the size of 960x540, less the desktop's bar; the default is larger. With
// letters of twice the size it takes the whole screen.
TEST_P(TextRoom, IsThereForAProfilesScheduleAndCalendarWithoutScrolling) {
    const cLetters letters(GetParam());
    for (const char* language : {"044", "045", "046", "047", "049", "358"}) {
        cEditorPages pages(language);
        pages.Window().resize(QSize(960, 510) * GetParam());
        pages.ForEach([&](const std::string& name) {
            if (name != "profiles, tab 3" && name != "profiles, tab 4") return;
            QTest::qWait(1);
            auto& tabs = cEditorBench::Find<QTabWidget>(*pages.Window().CurrentPage(), "Tabs_Profile");
            const auto& area = dynamic_cast<QScrollArea&>(*tabs.currentWidget());
            EXPECT_FALSE(area.horizontalScrollBar()->isVisible())
                << language << ", " << name << ": " << area.widget()->minimumSizeHint().width() << " in "
                << area.viewport()->width();
        });
    }
}

// The boxes that ask, each with the longest question it has.
TEST_P(TextRoom, IsThereForEveryTextOfTheBoxes) {
    const cLetters letters(GetParam());
    for (const char* language : {"044", "045", "046", "047", "049", "358"}) {
        cEditorPages pages(language);
        int boxes = 0;
        QTimer look;
        look.callOnTimeout([&] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            if (box == nullptr) return;
            ++boxes;
            EXPECT_EQ(CutTexts(*box), "") << language;
            box->reject();
        });
        look.start(10);
        cDialogPrompts prompts;
        const QString name = "North wing, technical alarms";
        prompts.AskConflict(&pages.Window(), name, false);
        prompts.AskConflict(&pages.Window(), name, true);
        prompts.AskToSave(&pages.Window(), "North wing, technical alarms.sch");
        cEditorBench::Find<QAction>(pages.Window(), "Menu_About").trigger();
        EXPECT_EQ(boxes, 4) << language;
    }
}

INSTANTIATE_TEST_SUITE_P(Letters, TextRoom, ::testing::Values(1.0, 2.0));

}  // namespace
}  // namespace vigrel::testing
