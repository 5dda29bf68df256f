#include "desktop/menu_binder.h"

#include "desktop/action_icons.h"
#include "desktop/icons/icon_set.h"
#include "desktop/shown_text.h"

#include <QAction>
#include <QKeySequence>
#include <QMenu>
#include <QMenuBar>

#include <memory>
#include <utility>

namespace ruvenmark {

namespace {

void Apply(QAction& action, const MenuItem& item)
{
    action.setText(ForDisplay(item.state.caption));
    action.setVisible(item.state.bVisible);
    action.setEnabled(item.state.bEnabled);
    if (action.isCheckable())
        action.setChecked(item.state.bChecked);
}

} // namespace

MenuBinder::MenuBinder(MainWindow& main, const IconSet& icons, Runner run, QObject* parent)
    : QObject(parent), m_main(main), m_icons(icons), m_run(std::move(run))
{
}

void MenuBinder::Fill(QMenuBar& bar)
{
    for (const Menu menu : MenuBar())
        FillMenu(*bar.addMenu(ForDisplay(MenuTitle(menu))), menu);
}

QMenu* MenuBinder::MakePopup(const std::vector<MenuItem>& items, QWidget* parent)
{
    auto* popup = new QMenu(parent);
    for (const MenuItem& item : items) {
        QAction* action = AddItem(*popup, item);
        Apply(*action, item);
        action->setShortcut({});
        action->setIcon(m_icons.Action(ActionIconName(item.entry), parent->palette()));
    }
    return popup;
}

void MenuBinder::RefreshIcons(const QPalette& palette)
{
    for (const auto& [entry, action] : m_withIcons)
        action->setIcon(m_icons.Action(ActionIconName(entry), palette));
}

void MenuBinder::FillMenu(QMenu& target, Menu menu)
{
    auto bound = std::make_shared<BoundMenu>(BoundMenu{menu, {}});
    for (const MenuItem& item : MenuItems(m_main, menu)) {
        if (item.submenu != Menu::None) {
            QMenu* inner = target.addMenu(ForDisplay(MenuTitle(item.submenu)));
            FillMenu(*inner, item.submenu);
            bound->actions.push_back(inner->menuAction());
        } else {
            bound->actions.push_back(AddItem(target, item));
            if (!ActionIconName(item.entry).isEmpty())
                m_withIcons.emplace_back(item.entry, bound->actions.back());
        }
    }
    connect(&target, &QMenu::aboutToShow, this, [this, bound] { Refresh(*bound); });
    connect(&target, &QMenu::aboutToHide, this, [bound] {
        for (QAction* action : bound->actions)
            action->setEnabled(true);
    });
}

QAction* MenuBinder::AddItem(QMenu& target, const MenuItem& item)
{
    if (item.IsLine())
        return target.addSeparator();
    const MenuEntryInfo& info = Info(item.entry);
    auto* action = new QAction(ForDisplay(info.caption), &target);
    action->setObjectName(ForDisplay(info.name));
    action->setCheckable(info.bCheckable);
    action->setShortcut(QKeySequence(ForDisplay(info.shortcut), QKeySequence::PortableText));
    connect(action, &QAction::triggered, this, [this, entry = item.entry] { m_run(entry); });
    target.addAction(action);
    return action;
}

void MenuBinder::Refresh(const BoundMenu& bound)
{
    const auto items = MenuItems(m_main, bound.menu);
    for (std::size_t i = 0; i < items.size(); ++i)
        Apply(*bound.actions[i], items[i]);
}

} // namespace ruvenmark
