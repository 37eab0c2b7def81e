#include "editor_ui/records/definition_list.h"

#include <QHeaderView>
#include <QLineEdit>
#include <QSortFilterProxyModel>
#include <QTableView>
#include <QVBoxLayout>
#include <algorithm>

#include "editor_ui/pages/one_line.h"
#include "windows/plain_text.h"

namespace vigrel {
namespace {

// Finds a text in any column.
QSortFilterProxyModel* MakeFilter(cDefinitionModel& model, QObject* parent) {
    auto* filter = new QSortFilterProxyModel(parent);
    filter->setSortRole(cDefinitionModel::PlainTextRole);
    filter->setFilterRole(cDefinitionModel::PlainTextRole);
    filter->setSortCaseSensitivity(Qt::CaseInsensitive);
    filter->setSortLocaleAware(true);
    filter->setFilterCaseSensitivity(Qt::CaseInsensitive);
    filter->setFilterKeyColumn(-1);
    // A row must not jump away, or vanish, while its name is typed.
    filter->setDynamicSortFilter(false);
    filter->setSourceModel(&model);
    return filter;
}

}  // namespace

cDefinitionList::cDefinitionList(cDefinitionModel& model)
    : m_Model(model),
      m_Filter(MakeFilter(model, this)),
      m_Search(new QLineEdit),
      m_Table(new QTableView),
      m_Count(new cPlainLabel) {
    MakeSearch();
    MakeTable();
    setFocusProxy(m_Table);
    m_Count->setObjectName("Label_Count");
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_Search);
    layout->addWidget(m_Table, 1);
    layout->addWidget(m_Count);
    ShowCount();
}

void cDefinitionList::MakeSearch() {
    m_Search->setObjectName("Text_Search");
    m_Search->setAccessibleName(tr("Search"));
    m_Search->setPlaceholderText(tr("Search (Ctrl+F)"));
    m_Search->setClearButtonEnabled(true);
    connect(m_Search, &QLineEdit::textChanged, this, [this](const QString& text) {
        m_Filter->setFilterFixedString(OneLine(text));
        ShowCount();
    });
}

void cDefinitionList::MakeTable() {
    m_Table->setObjectName("List_Definitions");
    m_Table->setModel(m_Filter);
    m_Table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_Table->setSelectionMode(QAbstractItemView::SingleSelection);
    m_Table->setSortingEnabled(true);
    m_Table->sortByColumn(cDefinitionModel::Name, Qt::AscendingOrder);
    m_Table->setTabKeyNavigation(false);
    m_Table->setShowGrid(false);
    m_Table->setWordWrap(false);
    m_Table->verticalHeader()->hide();
    m_Table->horizontalHeader()->setHighlightSections(false);
    QHeaderView& header = *m_Table->horizontalHeader();
    header.setSectionResizeMode(QHeaderView::Stretch);
    header.setSectionResizeMode(cDefinitionModel::Number, QHeaderView::ResizeToContents);
    // Numbers have four digits: the rows in sight tell the width.
    header.setResizeContentsPrecision(0);
    connect(m_Table->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            &cDefinitionList::ChosenChanged);
}

void cDefinitionList::SetName(const QString& name) {
    m_Table->setAccessibleName(name);
    // Its captions are seen whole; those two share what is left evenly.
    const QHeaderView& header = *m_Table->horizontalHeader();
    const int shared = std::max(header.sectionSizeHint(cDefinitionModel::Name),
                                header.sectionSizeHint(cDefinitionModel::Details));
    m_Table->setMinimumWidth(2 * shared + header.sectionSizeHint(cDefinitionModel::Number) +
                             2 * m_Table->frameWidth());
}

int cDefinitionList::Chosen() const {
    const QModelIndex current = m_Filter->mapToSource(m_Table->currentIndex());
    // The files that can't be read stand behind the definitions.
    return current.isValid() && current.row() < m_Model.Definitions() ? current.row() : -1;
}

QString cDefinitionList::ChosenUnreadable() const {
    const QModelIndex current = m_Filter->mapToSource(m_Table->currentIndex());
    if (!current.isValid() || current.row() < m_Model.Definitions()) return {};
    const auto text = [&](int column) { return current.siblingAtColumn(column).data().toString(); };
    return text(cDefinitionModel::Name) + "\n\n" + text(cDefinitionModel::Details);
}

void cDefinitionList::Choose(int position) {
    const auto find = [&] {
        return position < 0 ? QModelIndex() : m_Filter->mapFromSource(m_Model.index(position, 0));
    };
    if (position >= 0 && !find().isValid()) m_Search->clear();
    m_Table->setCurrentIndex(find());
    if (find().isValid()) m_Table->scrollTo(find());
}

int cDefinitionList::PlaceOf(int position) const {
    return m_Filter->mapFromSource(m_Model.index(position, 0)).row();
}

int cDefinitionList::PositionNear(int place) const {
    const int last = std::max(m_Filter->rowCount() - 1, 0);
    return m_Filter->mapToSource(m_Filter->index(std::clamp(place, 0, last), 0)).row();
}

void cDefinitionList::FocusSearch() {
    m_Search->setFocus();
    m_Search->selectAll();
}

void cDefinitionList::Sort() {
    m_Filter->sort(m_Filter->sortColumn(), m_Filter->sortOrder());
}

void cDefinitionList::ShowCount() {
    const int all = m_Model.rowCount();
    const int shown = m_Filter->rowCount();
    m_Count->setText(shown == all ? tr("%1 in all").arg(all) : tr("%1 of %2").arg(shown).arg(all));
}

}  // namespace vigrel
