#pragma once

#include "ui/menus.h"

#include <QProgressBar>
#include <QWidget>

#include <functional>

class QComboBox;
class QToolButton;

namespace ruvenmark {

class IconSet;
struct MainWindow;

// A progress bar on which a place ahead can be chosen, by mouse or keys, while that is of use.
class SeekBar final : public QProgressBar {
    Q_OBJECT

public:
    explicit SeekBar(QWidget* parent);

    void SetSeekable(bool bSeekable);

signals:
    void Wanted(int percent);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    bool m_bSeekable = false;
};

// The progress of what runs long; while a packet file is replayed also pause, speed and stop.
class PlayerBar final : public QWidget {
public:
    PlayerBar(MainWindow& main, const IconSet& icons, const std::function<void(MenuEntry)>& run, QWidget* parent);

    void SetHeight(int pixels);
    void Refresh();
    void PaintNow();

protected:
    void changeEvent(QEvent* event) override;

private:
    QToolButton* MakeButton(const char* objectName, const QString& name);
    void ShowIcons();

    MainWindow& m_main;
    const IconSet& m_icons;
    SeekBar* m_progress;
    QToolButton* m_pause;
    QComboBox* m_speed;
    QToolButton* m_stop;
};

} // namespace ruvenmark
