#include "desktop/panes/row_model.h"

#include "desktop/icons/icon_set.h"
#include "desktop/shown_text.h"
#include "platform/row_list.h"

#include <QFont>
#include <QFontMetrics>
#include <QGuiApplication>
#include <QSize>

#include <algorithm>
#include <chrono>
#include <utility>

namespace ruvenmark {

namespace {

constexpr std::chrono::milliseconds kFlushInterval{50};
constexpr int kRowMargin = 5, kLeastRow = 20; // Pixels.

QIcon IconOf(const IconSet& icons, RowIcon icon)
{
    switch (icon) {
    case RowIcon::Message:
        return icons.Tree("PostOffice");
    case RowIcon::Bulletin:
        return icons.Tree("Report");
    default:
        return {};
    }
}

} // namespace

RowModel::RowModel(RowList& list, const IconSet& icons, QStringList titles, QObject* parent)
    : QAbstractTableModel(parent), m_list(list), m_icons(icons), m_titles(std::move(titles)),
      m_told(static_cast<int>(list.Count()))
{
    m_flushTimer.setSingleShot(true);
    m_flushTimer.setInterval(kFlushInterval);
    connect(&m_flushTimer, &QTimer::timeout, this, &RowModel::Flush);
    m_subscriptions = {
        list.Inserted.Observe([this](std::size_t) {
            if (!m_flushTimer.isActive())
                m_flushTimer.start();
        }),
        list.WillRemove.Observe([this](std::size_t first, std::size_t last) {
            Flush(); // Nothing may point into what is gone.
            beginRemoveRows({}, static_cast<int>(first), static_cast<int>(last));
        }),
        list.Removed.Observe([this](std::size_t first, std::size_t last) { OnRemoved(first, last); }),
        list.Changed.Observe([this](std::size_t first, std::size_t last) {
            Flush();
            emit dataChanged(index(static_cast<int>(first), 0),
                             index(static_cast<int>(last), static_cast<int>(m_titles.size()) - 1), {Qt::FontRole});
        }),
        list.WillReset.Observe([this] {
            m_flushTimer.stop();
            beginResetModel();
        }),
        list.Reset.Observe([this] {
            m_told = static_cast<int>(m_list.Count());
            endResetModel();
        }),
    };
}

int RowModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_told;
}

int RowModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_titles.size());
}

QVariant RowModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || index.row() >= m_told)
        return {};
    const ListRow& row = m_list.At(static_cast<std::size_t>(index.row()));
    switch (role) {
    case Qt::DisplayRole:
        return ForDisplay(row.Text(static_cast<std::size_t>(index.column())));
    case Qt::ToolTipRole:
        return PlainTip(ForDisplay(row.Text(static_cast<std::size_t>(index.column()))));
    case Qt::DecorationRole:
        return index.column() == 0 ? QVariant(IconOf(m_icons, row.Icon())) : QVariant();
    case Qt::SizeHintRole: // All rows are as high as the first, whether it has a picture or not.
        return QSize(0, std::max(QFontMetrics(QGuiApplication::font()).height() + kRowMargin, kLeastRow));
    case Qt::FontRole: {
        if (!row.IsBold())
            return {};
        QFont font;
        font.setBold(true);
        return font;
    }
    default:
        return {};
    }
}

QVariant RowModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    return m_titles.value(section);
}

void RowModel::Flush()
{
    m_flushTimer.stop();
    const int count = static_cast<int>(m_list.Count());
    if (count <= m_told)
        return;
    beginInsertRows({}, m_told, count - 1);
    m_told = count;
    endInsertRows();
}

void RowModel::OnRemoved(std::size_t first, std::size_t last)
{
    m_told -= static_cast<int>(last - first) + 1;
    endRemoveRows();
}

} // namespace ruvenmark
