#include "editor_ui/records/receiver_picker.h"

#include <QHBoxLayout>
#include <QListWidget>
#include <QMenu>
#include <QProxyStyle>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>

#include "adapters/qt/qt_text.h"
#include "definitions/receiver_list.h"
#include "windows/short_text.h"

namespace vigrel {
namespace {

// Of many entries the toolkit makes columns, which lead out of the screen.
class cScrolledMenus : public QProxyStyle {
  public:
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* result) const override {
        return hint == SH_Menu_Scrollable ? 1 : QProxyStyle::styleHint(hint, option, widget, result);
    }
};

}  // namespace

cReceiverPicker::cReceiverPicker(const char* objectName, const QString& name,
                                 const cReceiverFolder& receivers, QWidget* parent)
    : QWidget(parent),
      m_Receivers(receivers),
      m_List(new QListWidget),
      m_Menu(new QMenu(this)),
      m_Add(new QPushButton(tr("Add"))),
      m_Remove(new QPushButton(tr("Remove"))),
      m_Up(new QPushButton(tr("Up"))),
      m_Down(new QPushButton(tr("Down"))) {
    setObjectName(objectName);
    m_List->setObjectName(QString("List_%1").arg(objectName));
    m_List->setAccessibleName(name);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_List, 1);
    layout->addWidget(MakeButtons());
    connect(m_List, &QListWidget::currentRowChanged, this, [this] { UpdateButtons(); });
    connect(m_Menu, &QMenu::aboutToShow, this, [this] { FillMenu(); });
    UpdateButtons();
}

QWidget* cReceiverPicker::MakeButtons() {
    auto* panel = new QWidget;
    auto* layout = new QVBoxLayout(panel);
    layout->setContentsMargins(0, 0, 0, 0);
    auto* style = new cScrolledMenus;
    style->setParent(m_Menu);
    m_Menu->setStyle(style);
    m_Add->setMenu(m_Menu);
    for (const auto& [button, name] : {std::pair{m_Add, "Add"}, std::pair{m_Remove, "Remove"},
                                       std::pair{m_Up, "Up"}, std::pair{m_Down, "Down"}}) {
        button->setObjectName(QString("Button_%1_%2").arg(objectName(), name));
        layout->addWidget(button);
    }
    layout->addStretch(1);
    connect(m_Remove, &QPushButton::clicked, this, [this] { Remove(); });
    connect(m_Up, &QPushButton::clicked, this, [this] { Move(-1); });
    connect(m_Down, &QPushButton::clicked, this, [this] { Move(1); });
    return panel;
}

// The receivers that have a file and are not in the list, by name.
void cReceiverPicker::FillMenu() {
    m_Menu->clear();
    std::vector<std::pair<QString, std::string>> free;
    for (std::size_t i = 0; i < m_Receivers.Count(); ++i) {
        const cReceiver& receiver = m_Receivers.At(i);
        const std::string item = std::to_string(receiver.m_DiskIdentity);
        if (receiver.m_DiskIdentity < 0 || Lists(receiver.m_DiskIdentity)) continue;
        // One with changes stays in its list though others removed its file.
        if (m_Receivers.StateOfFile(i) == eFileState::Gone) continue;
        free.emplace_back(ItemName(item), item);
    }
    std::sort(free.begin(), free.end(),
              [](const auto& a, const auto& b) { return QString::localeAwareCompare(a.first, b.first) < 0; });
    for (const auto& [name, item] : free) {
        m_Menu->addAction(ShortName(name).replace('&', "&&"), this, [this, item = item] { Add(item); });
    }
    if (free.empty()) m_Menu->addAction(tr("No other saved receiver"))->setEnabled(false);
}

// Whatever the item looks like: "7" and "0007" are one receiver.
bool cReceiverPicker::Lists(std::int16_t identity) const {
    return std::any_of(m_Items.begin(), m_Items.end(),
                       [identity](const std::string& item) { return ReceiverIdentity(item) == identity; });
}

QString cReceiverPicker::ItemName(const std::string& item) const {
    const auto identity = ReceiverIdentity(item);
    if (!identity) return tr("(not a receiver: %1)").arg(ToQString(item));
    for (std::size_t i = 0; i < m_Receivers.Count(); ++i) {
        if (m_Receivers.At(i).m_DiskIdentity != *identity) continue;
        return tr("%1 (%2)")
            .arg(ToQString(m_Receivers.At(i).m_ReceiverName))
            .arg(*identity, 4, 10, QChar('0'));
    }
    return tr("(missing receiver %1)").arg(*identity, 4, 10, QChar('0'));
}

void cReceiverPicker::Show(const std::string& text) {
    m_Items = ReceiverItems(text);
    Fill(m_Items.empty() ? -1 : 0);
}

void cReceiverPicker::Refresh() {
    Fill(m_List->currentRow());
}

void cReceiverPicker::Fill(int current) {
    m_List->clear();
    for (const std::string& item : m_Items) m_List->addItem(ItemName(item));
    m_List->setCurrentRow(std::min(current, m_List->count() - 1));
    UpdateButtons();
}

void cReceiverPicker::Add(const std::string& item) {
    m_Items.push_back(item);
    Edited(static_cast<int>(m_Items.size()) - 1);
}

void cReceiverPicker::Remove() {
    const int row = m_List->currentRow();
    if (row < 0) return;
    m_Items.erase(m_Items.begin() + row);
    Edited(row);
}

void cReceiverPicker::Move(int by) {
    const int row = m_List->currentRow();
    const int target = row + by;
    if (row < 0 || target < 0 || target >= m_List->count()) return;
    std::swap(m_Items[static_cast<std::size_t>(row)], m_Items[static_cast<std::size_t>(target)]);
    Edited(target);
}

void cReceiverPicker::Edited(int current) {
    Fill(current);
    if (OnEdited) OnEdited(ReceiverText(m_Items));
}

void cReceiverPicker::UpdateButtons() {
    const int row = m_List->currentRow();
    m_Remove->setEnabled(row >= 0);
    m_Up->setEnabled(row > 0);
    m_Down->setEnabled(row >= 0 && row + 1 < m_List->count());
}

}  // namespace vigrel
