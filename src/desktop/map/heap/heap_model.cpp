#include "desktop/map/heap/heap_model.h"

#include "desktop/icons/icon_set.h"
#include "desktop/shown_text.h"
#include "map/age.h"
#include "platform/map_control.h"

#include <QGuiApplication>
#include <QPixmap>

#include <algorithm>
#include <utility>

namespace ruvenmark {

namespace {

constexpr int kPictureSize = 20;
constexpr int kNameColumn = 0, kColumns = 2; // The second tells the age.

} // namespace

HeapModel::HeapModel(MapControl& control, IconSet& icons, Clock clock, QObject* parent)
    : QAbstractTableModel(parent), m_control(control), m_icons(icons), m_clock(std::move(clock))
{
}

void HeapModel::SetMembers(std::vector<SlotRef> members)
{
    beginResetModel();
    m_members = std::move(members);
    if (const Map* map = m_control.ActiveMap()) {
        const auto& pins = map->Pins();
        std::erase_if(m_members, [&](SlotRef ref) { return !pins.Find(ref); });
        std::stable_sort(m_members.begin(), m_members.end(),
                         [&](SlotRef a, SlotRef b) { return pins.Find(a)->name < pins.Find(b)->name; });
    }
    endResetModel();
}

void HeapModel::Refresh()
{
    if (!m_members.empty())
        emit dataChanged(index(0, 0), index(rowCount() - 1, kColumns - 1));
}

const PinData* HeapModel::PinAt(int row) const
{
    const Map* map = m_control.ActiveMap();
    return map ? map->Pins().Find(RefAt(row)) : nullptr;
}

int HeapModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_members.size());
}

int HeapModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : kColumns;
}

QVariant HeapModel::data(const QModelIndex& index, int role) const
{
    const PinData* pin = PinAt(index.row());
    const bool bName = index.column() == kNameColumn;
    if (role == Qt::DisplayRole && !pin)
        return bName ? QStringLiteral("(gone)") : QString();
    if (role == Qt::DisplayRole)
        return bName ? ForDisplay(FirstCharacters(pin->name, 100)) : ForDisplay(AgeText(m_clock(), pin->heard));
    if (role == Qt::TextAlignmentRole && !bName)
        return int{Qt::AlignRight | Qt::AlignVCenter};
    if (role == Qt::DecorationRole && bName && pin) {
        const qreal ratio = qGuiApp->devicePixelRatio();
        const MapAtlas& atlas = m_icons.Atlas(kPictureSize, ratio);
        QPixmap picture = atlas.Sheet().copy(atlas.Source(pin->symbol));
        picture.setDevicePixelRatio(ratio);
        return picture;
    }
    return {};
}

Qt::ItemFlags HeapModel::flags(const QModelIndex& index) const
{
    return PinAt(index.row()) ? QAbstractTableModel::flags(index) : Qt::NoItemFlags;
}

} // namespace ruvenmark
