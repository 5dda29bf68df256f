#include "desktop/bars/entry_tool_bar.h"

#include "desktop/action_icons.h"
#include "desktop/icons/icon_set.h"
#include "desktop/shown_text.h"

#include <QAction>
#include <QMenu>
#include <QToolButton>

#include <utility>

namespace ruvenmark {

EntryToolBar::EntryToolBar(MainWindow& main, const IconSet& icons, Runner run, const QString& title, QWidget* parent)
    : QToolBar(title, parent), m_main(main), m_icons(icons), m_run(std::move(run))
{
    setAccessibleName(title);
    setIconSize({20, 20});
    setContextMenuPolicy(Qt::PreventContextMenu);
}

QAction* EntryToolBar::AddEntry(MenuEntry entry, const QString& text)
{
    const MenuEntryInfo& info = Info(entry);
    QAction* action = AddAction(ActionIconName(entry), text);
    action->setObjectName(QStringLiteral("tb") + ForDisplay(info.name));
    action->setCheckable(info.bCheckable);
    if (!info.shortcut.empty())
        action->setToolTip(text + QStringLiteral(" (") + ForDisplay(info.shortcut) + QStringLiteral(")"));
    connect(action, &QAction::triggered, this, [this, entry] { m_run(entry); });
    m_entries.emplace_back(entry, action);
    return action;
}

QAction* EntryToolBar::AddAction(const QString& iconName, const QString& text)
{
    QAction* action = addAction(text);
    action->setIcon(m_icons.Action(iconName, palette()));
    m_pictures.emplace_back(iconName, action);
    return action;
}

QAction* EntryToolBar::AddDropDown(const ToolButton& button)
{
    QAction* action = AddAction(ForDisplay(button.key).toLower(), ForDisplay(button.text));
    action->setObjectName(QStringLiteral("tb") + ForDisplay(button.key));
    auto* menu = new QMenu(this);
    for (const DropDownEntry& below : button.dropDown) {
        QAction* row = menu->addAction(QString());
        row->setObjectName(ForDisplay(below.key));
        connect(row, &QAction::triggered, this, [this, entry = below.entry] { m_run(entry); });
        const auto name = [this, row, &below] { row->setText(ForDisplay(DropDownCaption(m_main, below))); };
        connect(menu, &QMenu::aboutToShow, row, name);
        name();
        const QString icon = ActionIconName(below.entry);
        row->setIcon(m_icons.Action(icon, palette()));
        m_pictures.emplace_back(icon, row);
    }
    action->setMenu(menu);
    if (auto* shown = qobject_cast<QToolButton*>(widgetForAction(action)))
        shown->setPopupMode(QToolButton::InstantPopup);
    return action;
}

void EntryToolBar::RefreshStates()
{
    for (const auto& [entry, action] : m_entries) {
        const MenuEntryState state = StateOf(entry, {m_main, nullptr});
        action->setEnabled(state.bEnabled);
        if (action->isCheckable())
            action->setChecked(state.bChecked);
    }
}

void EntryToolBar::RefreshIcons()
{
    for (const auto& [name, action] : m_pictures)
        action->setIcon(m_icons.Action(name, palette()));
}

} // namespace ruvenmark
