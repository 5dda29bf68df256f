#include "platform/text.h"
#include "support/program.h"
#include "ui/layout.h"
#include "ui/menus.h"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

namespace ruvenmark {
namespace {

MenuEntryState StateOf(const Program& program, Menu menu, MenuEntry entry)
{
    const auto items = MenuItems(program.main, menu);
    const MenuEntryState* state = FindState(items, entry);
    return state ? *state : MenuEntryState{"(not in the menu)", false, false, false};
}

// The entries that have a tick.
std::vector<std::string> Ticked(const Program& program, Menu menu)
{
    std::vector<std::string> ticked;
    for (const MenuItem& item : MenuItems(program.main, menu))
        if (item.state.bChecked)
            ticked.emplace_back(Info(item.entry).name);
    return ticked;
}

char Mnemonic(std::string_view caption)
{
    const std::size_t mark = caption.find('&');
    return mark == std::string_view::npos ? '\0' : ToUpper(caption.at(mark + 1));
}

std::vector<Menu> MenuBarAndBelow(const Program& program)
{
    std::vector<Menu> menus(MenuBar().begin(), MenuBar().end());
    for (std::size_t i = 0; i < menus.size(); ++i) {
        for (const MenuItem& item : MenuItems(program.main, menus[i]))
            if (item.submenu != Menu::None)
                menus.push_back(item.submenu);
    }
    return menus;
}

TEST(Menus, EveryEntryOfTheMenuBarHasACommandAndAMnemonicOfItsOwn)
{
    const Program program;
    std::set<std::string_view> shortcuts;
    std::set<MenuEntry> entries;
    for (const Menu menu : MenuBarAndBelow(program)) {
        std::set<char> mnemonics;
        EXPECT_NE(Mnemonic(MenuTitle(menu)), '\0');
        for (const MenuItem& item : MenuItems(program.main, menu)) {
            if (item.IsLine())
                continue;
            EXPECT_TRUE(mnemonics.insert(Mnemonic(item.state.caption)).second) << item.state.caption;
            if (item.submenu != Menu::None)
                continue;
            EXPECT_TRUE(entries.insert(item.entry).second) << Info(item.entry).name;
            EXPECT_NE(Info(item.entry).run, nullptr) << Info(item.entry).name;
            const std::string_view shortcut = Info(item.entry).shortcut;
            EXPECT_TRUE(shortcut.empty() || shortcuts.insert(shortcut).second) << shortcut;
        }
    }
    for (const std::string_view shortcut : {"Ctrl+N", "Ctrl+O", "Ctrl+S", "Ctrl+P", "Ctrl+C", "Ctrl+V", "Ctrl+X",
                                            "Ctrl+F", "Ctrl+Q", "Ctrl+L", "F1", "F11"})
        EXPECT_TRUE(shortcuts.contains(shortcut)) << shortcut;
}

TEST(Menus, EveryCommandOfTheMenuBarRunsOnAFreshProgramAndWithoutAMap)
{
    for (const bool bStarted : {true, false}) {
        Program program(bStarted);
        for (const Menu menu : MenuBarAndBelow(program))
            for (const MenuItem& item : MenuItems(program.main, menu))
                EXPECT_NO_THROW(RunMenuEntry(program.main, item.entry)) << Info(item.entry).name;
    }
}

TEST(Menus, FileOffersToStopALoad)
{
    Program program;
    EXPECT_EQ(StateOf(program, Menu::File, MenuEntry::mnuImportStations).caption, "Loa&d Stations...");
    program.main.FileLoading = true;
    EXPECT_EQ(StateOf(program, Menu::File, MenuEntry::mnuImportStations).caption, "Stop File Loa&ding");
}

TEST(Menus, ViewTicksWhatShows)
{
    Program program;
    EXPECT_EQ(Ticked(program, Menu::View),
              (std::vector<std::string>{"mnuViewToolbar", "mnuViewStatusBar", "mnuTreeView", "mnuViewMap"}));
    EXPECT_EQ(Ticked(program, Menu::MapFont), std::vector<std::string>{"mnuFontMedium"});
    EXPECT_EQ(Ticked(program, Menu::MapStyle), std::vector<std::string>{"mnuRoadMap"});
    EXPECT_EQ(Ticked(program, Menu::MapToolbars),
              (std::vector<std::string>{"mnuNavigationToolbar", "mnuDrawingToolbar"}));
    EXPECT_EQ(Ticked(program, Menu::Region), std::vector<std::string>{"mnuRegionNorthAmerica"});

    for (const MenuEntry entry :
         {MenuEntry::mnuViewToolbar, MenuEntry::mnuTreeView, MenuEntry::mnuOnlineTiles, MenuEntry::mnuFontSmallest,
          MenuEntry::mnuPoliticalMap, MenuEntry::mnuStandardToolbar, MenuEntry::mnuDrawingToolbar})
        RunMenuEntry(program.main, entry);
    RunMenuEntry(program.main, MenuEntry::mnuRuvenmarkHelp);
    EXPECT_EQ(Ticked(program, Menu::View), (std::vector<std::string>{"mnuViewStatusBar", "mnuOnlineTiles"}));
    EXPECT_EQ(Ticked(program, Menu::MapFont), std::vector<std::string>{"mnuFontSmallest"});
    EXPECT_EQ(Ticked(program, Menu::MapStyle), std::vector<std::string>{"mnuPoliticalMap"});
    EXPECT_EQ(Ticked(program, Menu::MapToolbars),
              (std::vector<std::string>{"mnuStandardToolbar", "mnuNavigationToolbar"}));
}

TEST(Menus, ToolsTickTheirFlagsAndKnowOfTracks)
{
    Program program;
    EXPECT_EQ(Ticked(program, Menu::Tools),
              (std::vector<std::string>{"mnuToolsStationTracking", "mnuToolsShowTrackLine"}));
    RunMenuEntry(program.main, MenuEntry::mnuToolsShowTrackLine);
    RunMenuEntry(program.main, MenuEntry::mnuDirections);
    EXPECT_EQ(Ticked(program, Menu::Tools), (std::vector<std::string>{"mnuToolsStationTracking", "mnuDirections"}));

    EXPECT_FALSE(StateOf(program, Menu::Tools, MenuEntry::mnuRemoveAllTracks).bEnabled);
    program.main.Of(Channel::TCP).Tracked.Set("N0CALL", "N0CALL");
    for (const double lat : {40.0, 40.5}) // With no lines, points are a track as well.
        program.Position(Channel::TCP, "N0CALL", lat, -80);
    EXPECT_TRUE(StateOf(program, Menu::Tools, MenuEntry::mnuRemoveAllTracks).bEnabled);
}

TEST(Menus, ToolBarButtonsRunTheirEntries)
{
    Program program;
    tbToolBar_ButtonClick(program.main, "ViewLeft");
    EXPECT_FALSE(program.main.window.bLeftPane);
    tbToolBar_ButtonClick(program.main, "Help");
    EXPECT_EQ(program.main.window.rightView, RightView::Web);
    tbToolBar_ButtonClick(program.main, "ViewMap");
    EXPECT_EQ(program.main.window.rightView, RightView::Map);
    tbToolBar_ButtonClick(program.main, "");
    tbToolBar_ButtonClick(program.main, "SendMessage");

    for (const ToolButton& button : ToolBar()) {
        EXPECT_EQ(button.key.empty(), button.entry == MenuEntry::None);
        const MenuEntryState state = ToolButtonState(program.main, button);
        EXPECT_EQ(state.bChecked, button.key == "ViewMap") << button.key;
        EXPECT_EQ(state.bEnabled,
                  button.key != "Cut" && button.key != "Copy" && button.key != "Paste" && button.key != "Delete")
            << button.key;
    }
}

TEST(Menus, HelpShowsThePageOfTheProgramFolderAndCloseAsksTheWindow)
{
    Program program;
    bool bClosed = false;
    const auto subscription = program.main.window.CloseWanted.Observe([&] { bClosed = true; });
    RunMenuEntry(program.main, MenuEntry::mnuRuvenmarkHelp);
    EXPECT_EQ(program.main.window.webAddress, "/program/Readme.htm");
    RunMenuEntry(program.main, MenuEntry::mnuHelpAbout);
    EXPECT_EQ(program.dialogs.calls, std::vector<std::string>{"RunAbout"});
    RunMenuEntry(program.main, MenuEntry::mnuFileClose);
    EXPECT_TRUE(bClosed);
}

} // namespace
} // namespace ruvenmark
