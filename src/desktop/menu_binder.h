#pragma once

#include "ui/menus.h"

#include <QObject>

#include <functional>
#include <utility>
#include <vector>

class QAction;
class QMenu;
class QMenuBar;
class QPalette;

namespace ruvenmark {

class IconSet;

// Makes Qt menus of the menus of the logic. Captions, ticks and enabled states are those of the moment at which a menu
// opens; while none is open every entry is enabled, so that a shortcut is never judged by an old state.
class MenuBinder final : public QObject {
public:
    using Runner = std::function<void(MenuEntry)>;

    MenuBinder(MainWindow& main, const IconSet& icons, Runner run, QObject* parent = nullptr);

    void Fill(QMenuBar& bar);
    // The caller owns it.
    QMenu* MakePopup(const std::vector<MenuItem>& items, QWidget* parent);
    void RefreshIcons(const QPalette& palette);

private:
    struct BoundMenu {
        Menu menu;
        std::vector<QAction*> actions; // In the order of MenuItems.
    };

    void FillMenu(QMenu& target, Menu menu);
    QAction* AddItem(QMenu& target, const MenuItem& item);
    void Refresh(const BoundMenu& bound);

    MainWindow& m_main;
    const IconSet& m_icons;
    Runner m_run;
    std::vector<std::pair<MenuEntry, QAction*>> m_withIcons; // Of the menu bar.
};

} // namespace ruvenmark
