#include "desktop/panes/directions_pane.h"

#include "core/main_window.h"
#include "desktop/icons/icon_set.h"
#include "desktop/named_control.h"
#include "desktop/panes/copy_keys.h"
#include "desktop/shown_text.h"
#include "map/directions.h"
#include "platform/text.h"
#include "ui/menus.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QShowEvent>

namespace ruvenmark {

namespace {

struct EndTexts {
    const char* editName;
    const char* pickName;
    const char* label;
    const char* pickTip;
};
constexpr std::array<EndTexts, 2> kEndTexts = {
    {{"txtDirectionsFrom", "PickFrom", "Fro&m", "Take the start from a click on the map"},
     {"txtDirectionsTo", "PickTo", "T&o", "Take the end from a click on the map"}}};

constexpr const char* kHint = "Place, call, marker, lat and lon, locator";
constexpr const char* kMissing = "Name a start and an end, or pick them on the map.";

} // namespace

DirectionsPane::DirectionsPane(MainWindow& main, const IconSet& icons, QWidget* parent)
    : QFrame(parent), m_main(main), m_icons(icons), m_result(new QLabel(this)),
      m_copy(new QPushButton(QStringLiteral("Cop&y"), this))
{
    setObjectName(QStringLiteral("directionsPane"));
    setFrameStyle(QFrame::StyledPanel);
    setAutoFillBackground(true);
    auto* layout = new QGridLayout(this);
    for (std::size_t end = 0; end < m_ends.size(); ++end)
        AddEnd(*layout, end);
    NameControl(*m_result, "lblDirections", QStringLiteral("Distance and bearings"));
    m_result->setTextFormat(Qt::PlainText);
    m_result->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    m_result->setWordWrap(true);
    KeepCopyKeys(*m_result);
    NameControl(*m_copy, "CopyDirections", QStringLiteral("Copy the directions"));
    connect(m_copy, &QPushButton::clicked, this, [this] { RunMenuEntry(m_main, MenuEntry::mnuCopyDirections); });
    auto* close = new QPushButton(QStringLiteral("Close"), this);
    NameControl(*close, "CloseDirections", QStringLiteral("Close the directions"));
    connect(close, &QPushButton::clicked, this, [this] { m_main.mpCtrl.SetItineraryVisible(false); });
    layout->addWidget(m_result, 0, 3, 2, 1);
    layout->addWidget(m_copy, 0, 4);
    layout->addWidget(close, 1, 4);
    layout->setColumnStretch(1, 2);
    layout->setColumnStretch(3, 3);
    m_subscription = main.map.DirectionsChanged.Observe([this] { Refresh(); });
    RefreshIcons();
    Refresh();
}

void DirectionsPane::RefreshIcons()
{
    for (const End& end : m_ends)
        end.pick->setIcon(m_icons.Action(QStringLiteral("crosshair"), palette()));
}

void DirectionsPane::AddEnd(QGridLayout& layout, std::size_t end)
{
    const EndTexts& texts = kEndTexts[end];
    const int row = static_cast<int>(end);
    auto* label = new QLabel(QString::fromLatin1(texts.label), this);
    auto* edit = new QLineEdit(this);
    NameControl(*edit, texts.editName, label->text());
    edit->setPlaceholderText(QString::fromLatin1(kHint));
    edit->setToolTip(QString::fromLatin1(kHint));
    edit->setMinimumWidth(90);
    label->setBuddy(edit);
    connect(edit, &QLineEdit::editingFinished, this, [this, end] { Enter(end); });
    auto* pick = new QPushButton(this);
    NameControl(*pick, texts.pickName, QString::fromLatin1(texts.pickTip));
    pick->setToolTip(QString::fromLatin1(texts.pickTip));
    connect(pick, &QPushButton::clicked, this, [this, end] { PinPointDirectionsEnd(m_main, end); });
    layout.addWidget(label, row, 0);
    layout.addWidget(edit, row, 1);
    layout.addWidget(pick, row, 2);
    m_ends[end] = {edit, pick};
}

// Opened: one types at once, where an end is missing.
void DirectionsPane::showEvent(QShowEvent* event)
{
    QFrame::showEvent(event);
    if (event->spontaneous())
        return;
    const bool bToMissing = m_main.map.directions[0] && !m_main.map.directions[1];
    QLineEdit* edit = m_ends[bToMissing ? 1 : 0].text;
    edit->setFocus();
    edit->selectAll();
}

// A text that stands for nothing stays to be mended.
void DirectionsPane::Enter(std::size_t end)
{
    End& entered = m_ends[end];
    if (!entered.text->isModified())
        return;
    entered.bUnknown = !SetDirectionsEnd(m_main, end, entered.text->text().toStdString());
    Refresh();
}

QString DirectionsPane::ResultText() const
{
    QStringList lines;
    for (const End& end : m_ends)
        if (end.bUnknown)
            lines += QStringLiteral("“%1” is no place, call, marker, latitude and longitude or locator.")
                         .arg(end.text->text());
    if (!lines.isEmpty())
        return lines.join(QLatin1Char('\n'));
    const std::string directions = DirectionsText(m_main);
    if (directions.empty())
        return QString::fromLatin1(kMissing);
    for (const std::string_view line : Lines(directions))
        lines += ForDisplay(line);
    return lines.mid(2).join(QLatin1Char('\n')); // The ends stand in their fields.
}

void DirectionsPane::Refresh()
{
    const auto& ends = m_main.map.directions;
    for (std::size_t end = 0; end < m_ends.size(); ++end) {
        QLineEdit* edit = m_ends[end].text;
        if (ends[end]) {
            edit->setText(ForDisplay(DirectionsEndText(*ends[end])));
            edit->setModified(false);
            m_ends[end].bUnknown = false;
        } else if (!edit->isModified()) {
            edit->clear();
        }
    }
    m_result->setText(ResultText());
    m_copy->setEnabled(ends[0] && ends[1]);
}

} // namespace ruvenmark
