#include "editor_ui/records/system_grid.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QPushButton>

namespace vigrel {
namespace {

constexpr int kColumns = 8;

}  // namespace

cSystemGrid::cSystemGrid(QWidget* parent) : QWidget(parent) {
    setObjectName("Grid_Systems");
    auto* layout = new QGridLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    for (int i = 0; i < cProfile::kSystems; ++i) {
        auto* flag = new QCheckBox(QString::number(i));
        flag->setObjectName(QString("Check_System_%1").arg(i));
        flag->setAccessibleName(tr("System %1").arg(i));
        layout->addWidget(flag, i / kColumns, i % kColumns);
        connect(flag, &QCheckBox::clicked, this, [this, i](bool on) {
            if (OnEdited) OnEdited({static_cast<std::int16_t>(i)}, on);
        });
        m_Flags[static_cast<std::size_t>(i)] = flag;
    }
    auto* all = new QPushButton(tr("&All"));
    auto* none = new QPushButton(tr("&None"));
    all->setObjectName("Button_Systems_All");
    none->setObjectName("Button_Systems_None");
    layout->addWidget(all, cProfile::kSystems / kColumns, 0, 1, 2);
    layout->addWidget(none, cProfile::kSystems / kColumns, 2, 1, 2);
    connect(all, &QPushButton::clicked, this, [this] { SetAll(true); });
    connect(none, &QPushButton::clicked, this, [this] { SetAll(false); });
}

void cSystemGrid::Show(const cProfile& profile) {
    for (std::int16_t i = 0; i < cProfile::kSystems; ++i) {
        m_Flags[static_cast<std::size_t>(i)]->setChecked(profile.GetSystem(i) != 0);
    }
}

void cSystemGrid::SetAll(bool on) {
    std::vector<std::int16_t> indices;
    for (std::size_t i = 0; i < m_Flags.size(); ++i) {
        if (m_Flags[i]->isChecked() == on) continue;
        m_Flags[i]->setChecked(on);
        indices.push_back(static_cast<std::int16_t>(i));
    }
    if (OnEdited && !indices.empty()) OnEdited(indices, on);
}

}  // namespace vigrel
