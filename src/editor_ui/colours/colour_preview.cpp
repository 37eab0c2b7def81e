#include "editor_ui/colours/colour_preview.h"

#include <QFormLayout>
#include <QGroupBox>
#include <QHeaderView>
#include <QPlainTextEdit>
#include <QSpinBox>
#include <QTabWidget>
#include <QTableWidget>
#include <QToolButton>
#include <QVBoxLayout>
#include <cmath>

#include "adapters/qt/qt_text.h"
#include "categories/colour_rules.h"
#include "categories/readable_colours.h"
#include "editor_ui/colours/alarm_preview.h"
#include "windows/colours.h"
#include "windows/plain_text.h"

namespace vigrel {
namespace {

constexpr int kLastNumber = 999;

QTableWidgetItem* ColouredItem(const QString& text, Colour fore, Colour back) {
    auto* item = new QTableWidgetItem(text);
    item->setForeground(ColourFromNumber(fore));
    item->setBackground(ColourFromNumber(back));
    return item;
}

QSpinBox* NumberBox(const char* objectName) {
    auto* box = new QSpinBox;
    box->setObjectName(objectName);
    box->setRange(0, kLastNumber);
    return box;
}

}  // namespace

cColourPreview::cColourPreview(cEditorServices& services, QAction& makeReadable, QWidget* parent)
    : QWidget(parent),
      m_Tags(new QPlainTextEdit),
      m_Category(NumberBox("Number_Preview_Category")),
      m_Area(NumberBox("Number_Preview_Area")),
      m_Table(new QTableWidget(0, 5)),
      m_StationAlarms(new cAlarmPreview(services)),
      m_HardToRead(new cPlainLabel),
      m_Mend(MakeReadability(makeReadable)) {
    setObjectName("Preview_Colours");
    auto* fields = new QFormLayout;
    fields->addRow(tr("&Category:"), m_Category);
    fields->addRow(tr("Are&a:"), m_Area);
    auto* kinds = new QTabWidget;
    kinds->setObjectName("Tabs_Preview");
    kinds->setAccessibleName(tr("Preview"));
    kinds->addTab(m_StationAlarms, tr("Alarms"));
    kinds->addTab(MakeTyped(), tr("Typed tags"));
    kinds->setCurrentIndex(m_StationAlarms->IsEmpty() ? 1 : 0);
    auto* box = new QGroupBox(tr("Preview"));
    auto* inside = new QVBoxLayout(box);
    inside->addLayout(fields);
    inside->addWidget(kinds, 1);
    inside->addWidget(m_Mend);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(box);
    connect(m_Tags, &QPlainTextEdit::textChanged, this, [this] { Refresh(); });
    connect(m_Category, &QSpinBox::valueChanged, this, [this] { Refresh(); });
    connect(m_Area, &QSpinBox::valueChanged, this, [this] { Refresh(); });
}

QWidget* cColourPreview::MakeTyped() {
    m_Tags->setObjectName("Text_Preview_Tags");
    m_Tags->setAccessibleName(tr("Tags to try"));
    m_Tags->setPlaceholderText(tr("Tags to try, one a line"));
    m_Tags->setTabChangesFocus(true);
    m_Table->setObjectName("List_Preview");
    m_Table->setAccessibleName(tr("Preview"));
    m_Table->setHorizontalHeaderLabels(
        {tr("Tag"), tr("Rule"), tr("Row"), tr("Every other row"), tr("Flashing")});
    m_Table->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    m_Table->horizontalHeader()->setStretchLastSection(true);
    m_Table->verticalHeader()->hide();
    m_Table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_Table->setSelectionMode(QAbstractItemView::NoSelection);
    m_Table->setFocusPolicy(Qt::NoFocus);
    auto* typed = new QWidget;
    auto* layout = new QVBoxLayout(typed);
    layout->addWidget(m_Tags, 1);
    layout->addWidget(m_Table, 2);
    return typed;
}

// What is hard to read, and what is one click away from it.
QWidget* cColourPreview::MakeReadability(QAction& makeReadable) {
    auto* panel = new QWidget;
    m_HardToRead->setObjectName("Label_HardToRead");
    m_HardToRead->setWordWrap(true);
    auto* mend = new QToolButton;
    mend->setObjectName("Button_Readable");
    mend->setDefaultAction(&makeReadable);
    mend->setFocusPolicy(Qt::TabFocus);
    auto* layout = new QVBoxLayout(panel);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_HardToRead);
    layout->addWidget(mend);
    return panel;
}

QString cColourPreview::ContrastText(double contrast) {
    // Cut, not rounded: 4.46 is not the 4.5 that is asked for.
    return QString::number(std::floor(contrast * 10) / 10, 'f', 1);
}

void cColourPreview::SetRules(std::vector<cUserColor> rules) {
    m_Rules = std::move(rules);
    Refresh();
}

void cColourPreview::LookAgain() {
    m_StationAlarms->LookAgain();
}

void cColourPreview::Refresh() {
    const QStringList tags = m_Tags->toPlainText().split('\n', Qt::SkipEmptyParts);
    m_Table->setRowCount(static_cast<int>(tags.size()));
    for (int row = 0; row < m_Table->rowCount(); ++row) ShowTag(row, tags[row]);
    m_StationAlarms->Show(m_Rules, m_Category->value(), m_Area->value());
    ShowReadability();
}

// Of all rules, since the one that nobody tried is the one that an operator can't read at night.
void cColourPreview::ShowReadability() {
    QStringList rules;
    for (std::size_t i = 0; i < m_Rules.size(); ++i) {
        const double contrast = LeastContrast(m_Rules[i]);
        if (contrast < kReadableContrast) rules += tr("%1 (%2)").arg(i + 1).arg(ContrastText(contrast));
    }
    m_HardToRead->setText(tr("Hard to read, by rule and least contrast (%1 is readable): %2")
                              .arg(ContrastText(kReadableContrast), rules.join(", ")));
    m_Mend->setVisible(!rules.isEmpty());
}

void cColourPreview::ShowTag(int row, const QString& tag) {
    const auto match = FirstMatch(m_Rules, FromQString(tag), m_Category->value(), m_Area->value());
    m_Table->setItem(row, 0, new QTableWidgetItem(tag));
    m_Table->setItem(row, 1, new QTableWidgetItem(match ? QString::number(*match + 1) : tr("none")));
    if (!match) {
        for (int column = 2; column < m_Table->columnCount(); ++column) {
            m_Table->setItem(row, column, new QTableWidgetItem);
        }
        return;
    }
    const cUserColor& rule = m_Rules[*match];
    m_Table->setItem(row, 2, ColouredItem(tag, rule.m_ForeColor, rule.m_BackColor));
    m_Table->setItem(row, 3, ColouredItem(tag, rule.m_ForeColor, rule.m_BackColorFade));
    m_Table->setItem(row, 4, ColouredItem(tag, rule.m_ForeColor, rule.m_BackColorFlash));
}

}  // namespace vigrel
