#include "desktop/stations/station_model.h"

#include "desktop/icons/icon_set.h"
#include "desktop/shown_text.h"

#include <chrono>

namespace ruvenmark {

namespace {

using namespace std::chrono_literals;

constexpr std::chrono::milliseconds kUpdateInterval = 50ms;
constexpr std::chrono::milliseconds kNextPiece = 10ms;   // Long enough for the window to paint.
constexpr std::chrono::milliseconds kTimeInterval = 10s; // Of a list of those heard lately.

bool IsNumber(StationColumn column)
{
    return column == StationColumn::Distance || column == StationColumn::Bearing || column == StationColumn::Course ||
           column == StationColumn::Speed;
}

} // namespace

StationModel::StationModel(MainWindow& main, const IconSet& icons, QObject* parent)
    : QAbstractTableModel(parent), m_icons(icons), m_rows(main)
{
    m_updateTimer.setSingleShot(true);
    connect(&m_updateTimer, &QTimer::timeout, this, &StationModel::Update);
    m_timeTimer.setInterval(kTimeInterval);
    connect(&m_timeTimer, &QTimer::timeout, this, &StationModel::Update);
    m_subscriptions = {
        m_rows.Due.Observe([this] { m_updateTimer.start(kUpdateInterval); }),
        m_rows.WillChange.Observe([this] { OnWillChange(); }),
        m_rows.Changed.Observe([this] { OnChanged(); }),
    };
    Update();
}

int StationModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.Count());
}

int StationModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(kStationColumns);
}

QVariant StationModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || static_cast<std::size_t>(index.row()) >= m_rows.Count())
        return {};
    const StationRows::Id id = m_rows.At(static_cast<std::size_t>(index.row()));
    const auto column = static_cast<StationColumn>(index.column());
    switch (role) {
    case Qt::DisplayRole:
        return ForDisplay(m_rows.Text(id, column));
    case Qt::ToolTipRole:
        return PlainTip(ForDisplay(m_rows.Text(id, column)));
    case Qt::DecorationRole:
        return column == StationColumn::Call ? QVariant(m_icons.Tree(m_rows.SymbolWord(id))) : QVariant();
    case Qt::TextAlignmentRole:
        return static_cast<int>((IsNumber(column) ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
    default:
        return {};
    }
}

QVariant StationModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    return ForDisplay(TitleOf(static_cast<StationColumn>(section)));
}

void StationModel::sort(int column, Qt::SortOrder order)
{
    if (column < 0)
        return;
    m_rows.SortBy(static_cast<StationColumn>(column), order == Qt::AscendingOrder);
    if (m_rows.IsSorting())
        m_updateTimer.start(0);
}

void StationModel::SetFilter(const StationListFilter& filter)
{
    m_rows.SetFilter(filter);
    if (filter.heardWithin > 0)
        m_timeTimer.start();
    else
        m_timeTimer.stop();
}

void StationModel::Update()
{
    m_updateTimer.stop();
    if (m_rows.Update())
        m_updateTimer.start(m_rows.IsSorting() ? 0ms : kNextPiece);
}

void StationModel::OnWillChange()
{
    emit layoutAboutToBeChanged({}, VerticalSortHint);
    m_oldIndexes = persistentIndexList();
    m_oldIds.clear();
    for (const QModelIndex& old : m_oldIndexes)
        m_oldIds.push_back(m_rows.At(static_cast<std::size_t>(old.row())));
}

// What is selected, and where the keys stand, goes with its station.
void StationModel::OnChanged()
{
    for (qsizetype i = 0; i < m_oldIndexes.size(); ++i) {
        const auto row = m_rows.RowOf(m_oldIds[static_cast<std::size_t>(i)]);
        changePersistentIndex(m_oldIndexes[i],
                              row ? index(static_cast<int>(*row), m_oldIndexes[i].column()) : QModelIndex());
    }
    m_oldIndexes.clear();
    emit layoutChanged({}, VerticalSortHint);
    emit Counted();
}

} // namespace ruvenmark
