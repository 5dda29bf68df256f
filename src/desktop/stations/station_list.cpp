#include "desktop/stations/station_list.h"

#include "desktop/named_control.h"
#include "desktop/panes/copy_keys.h"
#include "desktop/stations/station_model.h"

#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QPointer>
#include <QTableView>
#include <QVBoxLayout>

#include <algorithm>
#include <array>
#include <utility>

namespace ruvenmark {

namespace {

struct HeardWithin {
    const char* text;
    int minutes;
};
constexpr std::array kHeardWithin = {HeardWithin{"At any time", 0},      HeardWithin{"Last 15 minutes", 15},
                                     HeardWithin{"Last hour", 60},       HeardWithin{"Last 6 hours", 360},
                                     HeardWithin{"Last 24 hours", 1440}, HeardWithin{"Last 7 days", 10080}};

// In characters, by column.
constexpr std::array<int, kStationColumns> kWidths = {19, 15, 11, 25, 14, 11, 10, 11, 36, 60};

// The keys of copying are the table's own while it has the focus, not the menu's.
bool IsCopyKey(const QEvent& event)
{
    return (event.type() == QEvent::ShortcutOverride || event.type() == QEvent::KeyPress) &&
           static_cast<const QKeyEvent&>(event).matches(QKeySequence::Copy);
}

// Keys that the menus take for the map. Here nothing can be cut, and Del is the row's.
bool IsDeletingKey(const QKeyEvent& key)
{
    return key.matches(QKeySequence::Delete) || key.matches(QKeySequence::Cut);
}

bool IsEnter(const QEvent& event)
{
    if (event.type() != QEvent::KeyPress)
        return false;
    const int key = static_cast<const QKeyEvent&>(event).key();
    return key == Qt::Key_Return || key == Qt::Key_Enter;
}

} // namespace

StationList::StationList(MainWindow& main, const IconSet& icons, QWidget* parent)
    : QWidget(parent), m_model(new StationModel(main, icons, this)), m_table(new QTableView(this)),
      m_calls(new QLineEdit(this)), m_within(new QComboBox(this)),
      m_direct(new QCheckBox(QStringLiteral("Heard &directly"), this)), m_count(new QLabel(this))
{
    MakeFilter();
    MakeTable();
    auto* filter = new QHBoxLayout;
    filter->setContentsMargins(4, 2, 4, 2);
    filter->setSpacing(6);
    filter->addWidget(m_calls, 2);
    filter->addWidget(m_within);
    filter->addWidget(m_direct);
    filter->addStretch(1);
    filter->addWidget(m_count);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addLayout(filter);
    layout->addWidget(m_table, 1);
    setFocusProxy(m_table);
    connect(m_model, &StationModel::Counted, this, &StationList::ShowCount);
    connect(m_model, &StationModel::Counted, this, &StationList::StayInPlace);
    ShowCount();
}

void StationList::MakeFilter()
{
    NameControl(*m_calls, "txtStationCalls", QStringLiteral("Calls"));
    m_calls->setPlaceholderText(QStringLiteral("Calls, such as DL* or N0CALL"));
    m_calls->setToolTip(
        QStringLiteral("Calls or parts of them, blanks between; * any run, ? one character, # one digit"));
    m_calls->setClearButtonEnabled(true);
    m_calls->setMinimumWidth(8 * fontMetrics().averageCharWidth());
    NameControl(*m_within, "cboHeardWithin", QStringLiteral("Heard"));
    for (const HeardWithin& row : kHeardWithin)
        m_within->addItem(QString::fromLatin1(row.text), row.minutes);
    NameControl(*m_direct, "chkHeardDirectly", m_direct->text());
    m_direct->setToolTip(QStringLiteral("Without a digipeater or the Internet in between"));
    m_count->setObjectName(QStringLiteral("lblStationCount"));
    connect(m_calls, &QLineEdit::textChanged, this, &StationList::TakeFilter);
    connect(m_within, &QComboBox::currentIndexChanged, this, &StationList::TakeFilter);
    connect(m_direct, &QCheckBox::toggled, this, &StationList::TakeFilter);
}

void StationList::MakeTable()
{
    NameControl(*m_table, "lvStations", QStringLiteral("Station list"));
    m_table->setModel(m_model);
    m_table->setSelectionBehavior(QTableView::SelectRows);
    m_table->setSelectionMode(QTableView::SingleSelection);
    m_table->setEditTriggers(QTableView::NoEditTriggers);
    m_table->setShowGrid(false);
    m_table->setAlternatingRowColors(true);
    m_table->setWordWrap(false);
    m_table->setTabKeyNavigation(false);
    m_table->setFrameShape(QFrame::NoFrame);
    QHeaderView* rows = m_table->verticalHeader();
    rows->hide();
    rows->setSectionResizeMode(QHeaderView::Fixed);
    rows->setDefaultSectionSize(std::max(fontMetrics().height() + 4, 20));
    QHeaderView* columns = m_table->horizontalHeader();
    columns->setHighlightSections(false);
    columns->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    for (int column = 0; column < static_cast<int>(kStationColumns); ++column)
        columns->resizeSection(column, kWidths[static_cast<std::size_t>(column)] * fontMetrics().averageCharWidth());
    columns->setStretchLastSection(true);
    m_table->sortByColumn(0, Qt::AscendingOrder);
    m_table->setSortingEnabled(true);
    m_table->installEventFilter(this);
    m_table->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(m_table, &QTableView::customContextMenuRequested, this, &StationList::OpenMenu);
    connect(m_table, &QTableView::doubleClicked, this,
            [this](const QModelIndex& index) { emit ShowWanted(ChannelAt(index), CallAt(index)); });
}

Channel StationList::ChannelAt(const QModelIndex& index) const
{
    const StationRows& rows = m_model->Rows();
    return rows.ChannelOf(rows.At(static_cast<std::size_t>(index.row())));
}

std::string StationList::CallAt(const QModelIndex& index) const
{
    const StationRows& rows = m_model->Rows();
    return std::string(rows.Call(rows.At(static_cast<std::size_t>(index.row()))));
}

bool StationList::event(QEvent* event)
{
    if (event->type() == QEvent::ShortcutOverride && IsDeletingKey(static_cast<const QKeyEvent&>(*event))) {
        event->accept();
        return true;
    }
    return QWidget::event(event);
}

bool StationList::eventFilter(QObject* watched, QEvent* event)
{
    const QModelIndex current = m_table->currentIndex();
    if (IsCopyKey(*event)) {
        event->accept();
        if (event->type() == QEvent::KeyPress)
            Copy();
        return true;
    }
    if (event->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(event)->matches(QKeySequence::Delete)) {
        if (current.isValid())
            Delete(current);
        return true;
    }
    if (IsEnter(*event) && current.isValid()) {
        emit m_table->doubleClicked(current);
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

// While it is asked about, the list may go too.
void StationList::Delete(const QModelIndex& station)
{
    const QPersistentModelIndex wanted = station;
    const int row = station.row();
    const QPointer<StationList> self = this;
    emit DeleteWanted(ChannelAt(station), CallAt(station));
    if (!self)
        return;
    m_deleted = wanted;
    m_deletedRow = row;
    if (!wanted.isValid())
        StayInPlace();
}

// The station behind the one that went takes its place under the keys.
void StationList::StayInPlace()
{
    const int row = std::exchange(m_deletedRow, -1);
    if (row >= 0 && !m_deleted.isValid() && m_model->rowCount() > 0)
        m_table->selectRow(std::min(row, m_model->rowCount() - 1));
}

void StationList::TakeFilter()
{
    m_model->SetFilter({m_calls->text().toStdString(), m_within->currentData().toInt(), m_direct->isChecked()});
}

void StationList::ShowCount()
{
    const auto shown = static_cast<qulonglong>(m_model->Rows().Count());
    const auto total = static_cast<qulonglong>(m_model->Rows().Total());
    const QLocale locale = QLocale::c();
    QString text = locale.toString(shown);
    if (shown != total)
        text += QStringLiteral(" of ") + locale.toString(total);
    m_count->setText(text + (total == 1 ? QStringLiteral(" station") : QStringLiteral(" stations")));
}

void StationList::Copy()
{
    if (const QModelIndex current = m_table->currentIndex(); current.isValid())
        QApplication::clipboard()->setText(RowText(current));
}

StationListLook StationList::Look() const
{
    return {m_calls->text(), m_within->currentIndex(), m_direct->isChecked(), m_table->horizontalHeader()->saveState()};
}

void StationList::SetLook(const StationListLook& look)
{
    m_calls->setText(look.calls);
    m_within->setCurrentIndex(look.within);
    m_direct->setChecked(look.bDirect);
    m_table->horizontalHeader()->restoreState(look.columns);
    m_table->sortByColumn(m_table->horizontalHeader()->sortIndicatorSection(),
                          m_table->horizontalHeader()->sortIndicatorOrder());
}

void StationList::OpenMenu(QPoint place)
{
    const QModelIndex index = m_table->indexAt(place);
    if (!index.isValid())
        return;
    emit MenuWanted(ChannelAt(index), CallAt(index), m_table->viewport()->mapToGlobal(place));
}

} // namespace ruvenmark
