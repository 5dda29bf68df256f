#pragma once

#include "ui/tool_bar.h"

#include <QToolBar>

#include <functional>
#include <utility>
#include <vector>

namespace ruvenmark {

class IconSet;

// A tool bar whose buttons are entries of the menus.
class EntryToolBar : public QToolBar {
public:
    using Runner = std::function<void(MenuEntry)>;

    EntryToolBar(MainWindow& main, const IconSet& icons, Runner run, const QString& title, QWidget* parent = nullptr);

    QAction* AddEntry(MenuEntry entry, const QString& text);
    // A button that is no entry of a menu.
    QAction* AddAction(const QString& iconName, const QString& text);

    // A button that opens a menu of entries, whose captions are those of the moment at which it opens.
    QAction* AddDropDown(const ToolButton& button);

    void RefreshStates();
    void RefreshIcons();

private:
    MainWindow& m_main;
    const IconSet& m_icons;
    Runner m_run;
    std::vector<std::pair<MenuEntry, QAction*>> m_entries;
    std::vector<std::pair<QString, QAction*>> m_pictures; // Icon names.
};

} // namespace ruvenmark
