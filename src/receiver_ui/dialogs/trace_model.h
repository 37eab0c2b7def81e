#pragma once

#include <QAbstractTableModel>
#include <QIcon>
#include <deque>

#include "common/protocol_trace.h"
#include "common/texts.h"

namespace vigrel {

// The rows of a protocol trace for a list, taken over when told to.
class cTraceModel : public QAbstractTableModel {
  public:
    cTraceModel(const cProtocolTrace& trace, const cTexts& texts, QObject* parent = nullptr);

    // Takes over what has changed since the last time. How many rows went from the front.
    int Sync();

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

  private:
    const cProtocolTrace& m_Trace;
    QStringList m_Captions;
    QIcon m_Outgoing, m_Incoming;
    std::deque<cTraceRow> m_Rows;
    std::uint64_t m_RowsGone = 0;
};

}  // namespace vigrel
