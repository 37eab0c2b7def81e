#include "editor_ui/colours/alarm_preview.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QTableWidget>
#include <QVBoxLayout>
#include <algorithm>
#include <tuple>

#include "adapters/qt/qt_text.h"
#include "categories/colour_rules.h"
#include "common/date_text.h"
#include "common/dates.h"
#include "common/numbers.h"
#include "tool_support/stored_alarms.h"
#include "windows/colours.h"
#include "windows/plain_text.h"

namespace vigrel {
namespace {

constexpr int kTexts = 6, kCategoryText = 2;
constexpr int kRuleColumn = 0, kTimeColumn = 1, kFirstText = 2;
// A folder may hold very many; enough to see what the rules do.
constexpr std::size_t kMostFiles = 2000, kMostRows = 200;
constexpr const char* kTagKey = "PreviewTag";

// The numbers of the files are drawn at random; when they were written tells which are the newest.
bool IsNewer(const std::pair<cFileReader::cStamp, std::string>& a,
             const std::pair<cFileReader::cStamp, std::string>& b) {
    return std::tie(a.first.modifiedNs, a.second) > std::tie(b.first.modifiedNs, b.second);
}

}  // namespace

cAlarmPreview::cAlarmPreview(cEditorServices& services, QWidget* parent)
    : QWidget(parent),
      m_Services(services),
      m_Tag(new QComboBox),
      m_Table(new QTableWidget(0, kFirstText + kTexts)),
      m_Count(new cPlainLabel) {
    setObjectName("Preview_Alarms");
    QStringList heads{tr("Rule"), tr("Time")};
    for (int i = 0; i < kTexts; ++i) heads += QString("t%1").arg(i);
    m_Tag->setObjectName("Combo_Preview_Tag");
    m_Tag->setAccessibleName(tr("Text that is the tag"));
    m_Tag->addItems(heads.mid(kFirstText));
    m_Tag->view()->setAccessibleName(m_Tag->accessibleName());
    m_Tag->setCurrentIndex(std::clamp(services.m_Settings.value(kTagKey).toInt(), 0, kTexts - 1));
    m_Table->setObjectName("List_Preview_Alarms");
    m_Table->setAccessibleName(tr("Alarms of the station"));
    m_Table->setHorizontalHeaderLabels(heads);
    m_Table->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    m_Table->verticalHeader()->hide();
    m_Table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_Table->setSelectionMode(QAbstractItemView::NoSelection);
    m_Table->setTabKeyNavigation(false);
    m_Count->setObjectName("Label_Preview_Alarms");
    m_Count->setWordWrap(true);
    auto* choice = new QHBoxLayout;
    choice->addWidget(new cPlainLabel(tr("Tag:")));
    choice->addWidget(m_Tag);
    choice->addStretch(1);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(choice);
    layout->addWidget(m_Table, 1);
    layout->addWidget(m_Count);
    connect(m_Tag, &QComboBox::currentIndexChanged, this, [this](int tag) {
        m_Services.m_Settings.setValue(kTagKey, tag);
        Fill();
    });
    m_Files = FilesOfAlarms();
    Read();
}

cAlarmPreview::StampedNames cAlarmPreview::FilesOfAlarms() const {
    const std::vector<std::string> names = AlarmFileNames(m_Services.m_Files, Folder());
    StampedNames files(names.size());
    std::transform(names.begin(), names.end(), files.begin(), [this](const std::string& name) {
        return std::make_pair(m_Services.m_Files.Stamp(Folder() + name), name);
    });
    std::sort(files.begin(), files.end(), IsNewer);
    return files;
}

void cAlarmPreview::LookAgain() {
    StampedNames files = FilesOfAlarms();
    if (files == m_Files) return;
    m_Files = std::move(files);
    Read();
    Fill();
}

void cAlarmPreview::Read() {
    std::vector<std::string> names(std::min(m_Files.size(), kMostFiles));
    std::transform(m_Files.begin(), m_Files.begin() + static_cast<std::ptrdiff_t>(names.size()),
                   names.begin(), [](const auto& each) { return each.second; });
    m_Alarms.clear();
    ReadStoredAlarms(m_Services.m_Files, Folder(), names,
                     [this](const std::string&, const cStoredAlarm& stored) {
                         if (!stored.problem.empty()) return;
                         cRow row{stored.alarm.m_CreatedTime, {}};
                         for (int i = 0; i < kTexts; ++i)
                             row.texts.push_back(stored.alarm.m_Alarm.GetCondition(i));
                         m_Alarms.push_back(std::move(row));
                     });
    std::sort(m_Alarms.begin(), m_Alarms.end(),
              [](const cRow& a, const cRow& b) { return Earlier(b.created, a.created); });
    m_Alarms.resize(std::min(m_Alarms.size(), kMostRows));
    m_Count->setText(m_Alarms.empty() ? tr("The station has no alarms yet.")
                                      : tr("%1 of %2").arg(m_Alarms.size()).arg(m_Files.size()));
}

void cAlarmPreview::Show(const std::vector<cUserColor>& rules, int category, int area) {
    m_Rules = rules;
    m_Category = category;
    m_Area = area;
    Fill();
}

void cAlarmPreview::Fill() {
    m_Table->setRowCount(static_cast<int>(m_Alarms.size()));
    for (int row = 0; row < m_Table->rowCount(); ++row) FillRow(row);
}

int cAlarmPreview::CategoryOf(const cRow& alarm) const {
    const std::string& category = alarm.texts[kCategoryText];
    const bool isNumber = !category.empty() && category.size() < 5 &&
                          category.find_first_not_of("0123456789") == std::string::npos;
    return isNumber ? ToInt32(Val(category)) : m_Category;
}

// As in a list, every other row on its darker ground.
void cAlarmPreview::FillRow(int row) {
    const cRow& alarm = m_Alarms[static_cast<std::size_t>(row)];
    const std::string& tag = alarm.texts[static_cast<std::size_t>(m_Tag->currentIndex())];
    const auto match = FirstMatch(m_Rules, tag, CategoryOf(alarm), m_Area);
    const auto set = [&](int column, const QString& text) {
        auto* item = new QTableWidgetItem(text);
        if (match) {
            const cUserColor& rule = m_Rules[*match];
            item->setForeground(ColourFromNumber(rule.m_ForeColor));
            item->setBackground(ColourFromNumber(row % 2 == 0 ? rule.m_BackColor : rule.m_BackColorFade));
        }
        m_Table->setItem(row, column, item);
    };
    set(kRuleColumn, match ? QString::number(*match + 1) : tr("none"));
    set(kTimeColumn, ToQString(DateTimeText(alarm.created)));
    for (int i = 0; i < kTexts; ++i) set(kFirstText + i, ToQString(alarm.texts[static_cast<std::size_t>(i)]));
}

}  // namespace vigrel
