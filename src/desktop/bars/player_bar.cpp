#include "desktop/bars/player_bar.h"

#include "core/main_window.h"
#include "desktop/icons/icon_set.h"
#include "desktop/named_control.h"
#include "desktop/shown_text.h"
#include "links/replay.h"

#include <QComboBox>
#include <QEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QToolButton>

#include <algorithm>

namespace ruvenmark {

namespace {

constexpr int kKeyStep = 5; // Percent.
constexpr int kLeastWidth = 60;

} // namespace

SeekBar::SeekBar(QWidget* parent) : QProgressBar(parent)
{
    setMinimumWidth(kLeastWidth);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void SeekBar::SetSeekable(bool bSeekable)
{
    if (bSeekable == m_bSeekable)
        return;
    m_bSeekable = bSeekable;
    setFocusPolicy(bSeekable ? Qt::TabFocus : Qt::NoFocus);
    setCursor(bSeekable ? Qt::PointingHandCursor : Qt::ArrowCursor);
    setToolTip(bSeekable ? QStringLiteral("Click ahead to go on from there: the lines between are loaded at once.\n"
                                          "There is no way back: what was heard stays.")
                         : QString());
}

void SeekBar::mousePressEvent(QMouseEvent* event)
{
    if (m_bSeekable && event->button() == Qt::LeftButton && width() > 0)
        emit Wanted(static_cast<int>(event->position().x() * 100 / width()));
}

void SeekBar::keyPressEvent(QKeyEvent* event)
{
    const bool bAhead = event->key() == Qt::Key_Right || event->key() == Qt::Key_PageUp;
    if (m_bSeekable && bAhead)
        emit Wanted(std::min(value() + kKeyStep, 100));
    else if (m_bSeekable && event->key() == Qt::Key_End)
        emit Wanted(100);
    else
        QProgressBar::keyPressEvent(event);
}

PlayerBar::PlayerBar(MainWindow& main, const IconSet& icons, const std::function<void(MenuEntry)>& run, QWidget* parent)
    : QWidget(parent), m_main(main), m_icons(icons), m_progress(new SeekBar(this)),
      m_pause(MakeButton("btnPause", QStringLiteral("Pause"))), m_speed(new QComboBox(this)),
      m_stop(MakeButton("btnStop", QStringLiteral("Stop loading")))
{
    NameControl(*m_progress, "pbProgress", QStringLiteral("Progress"));
    NameControl(*m_speed, "cboReplaySpeed", QStringLiteral("Speed of the replay"));
    for (const ReplaySpeed& speed : kReplaySpeeds)
        m_speed->addItem(ForDisplay(speed.brief));
    for (int i = 0; i < m_speed->count(); ++i)
        m_speed->setItemData(i, ForDisplay(kReplaySpeeds[static_cast<std::size_t>(i)].caption), Qt::ToolTipRole);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(2);
    layout->addWidget(m_progress, 1);
    for (QWidget* widget :
         {static_cast<QWidget*>(m_pause), static_cast<QWidget*>(m_speed), static_cast<QWidget*>(m_stop)})
        layout->addWidget(widget);
    m_pause->setCheckable(true);
    connect(m_progress, &SeekBar::Wanted, this, [this](int percent) { JumpInReplay(m_main, percent); });
    connect(m_pause, &QToolButton::clicked, this, [this] {
        ToggleReplayPause(m_main);
        ShowIcons();
    });
    connect(m_speed, &QComboBox::activated, this, [this](int speed) { SetReplaySpeed(m_main, speed); });
    connect(m_stop, &QToolButton::clicked, this, [this, run] {
        if (m_main.links.FileLoading)
            run(MenuEntry::mnuImportStations);
    });
    ShowIcons();
    Refresh();
}

QToolButton* PlayerBar::MakeButton(const char* objectName, const QString& name)
{
    auto* button = new QToolButton(this);
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::TabFocus);
    button->setToolTip(name);
    NameControl(*button, objectName, name);
    return button;
}

void PlayerBar::SetHeight(int pixels)
{
    m_progress->setMaximumHeight(pixels);
    m_speed->setMaximumHeight(pixels);
    const int icon = std::max(pixels - 4, 8);
    for (QToolButton* button : {m_pause, m_stop}) {
        button->setFixedSize(pixels + 4, pixels);
        button->setIconSize(QSize(icon, icon));
    }
}

void PlayerBar::Refresh()
{
    const ReplayState& replay = m_main.replay;
    m_progress->setValue(m_main.sbStatusBar.Progress());
    m_progress->setFormat(replay.bRunning && replay.time ? QStringLiteral("%p%  ") + ForDisplay(ShownTime(*replay.time))
                                                         : QStringLiteral("%p%"));
    m_progress->SetSeekable(replay.bRunning && replay.bEndKnown);
    for (QWidget* widget :
         {static_cast<QWidget*>(m_pause), static_cast<QWidget*>(m_speed), static_cast<QWidget*>(m_stop)})
        widget->setVisible(replay.bRunning);
    if (m_pause->isChecked() != replay.bPaused)
        ShowIcons();
    m_speed->setCurrentIndex(m_main.frmImport.speed);
    m_speed->setEnabled(replay.time.has_value());
    m_speed->setToolTip(replay.time ? QStringLiteral("Speed of the replay")
                                    : QStringLiteral("The lines of this file carry no times"));
}

void PlayerBar::PaintNow()
{
    m_progress->repaint();
}

void PlayerBar::ShowIcons()
{
    const bool bPaused = m_main.replay.bPaused;
    m_pause->setChecked(bPaused);
    m_pause->setIcon(m_icons.Action(bPaused ? QStringLiteral("play") : QStringLiteral("pause"), palette()));
    m_pause->setToolTip(bPaused ? QStringLiteral("Go on") : QStringLiteral("Pause"));
    m_pause->setAccessibleName(m_pause->toolTip());
    m_stop->setIcon(m_icons.Action(QStringLiteral("stop"), palette()));
}

void PlayerBar::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::PaletteChange)
        ShowIcons();
    QWidget::changeEvent(event);
}

} // namespace ruvenmark
