#include "platform/text.h"
#include "support/test_program.h"
#include "ui/layout.h"
#include "ui/menus.h"

#include <gmock/gmock.h>

#include <set>

namespace ruvenmark {
namespace {

using testing::ElementsAre;

char Mnemonic(std::string_view caption)
{
    const std::size_t mark = caption.find('&');
    return mark == std::string_view::npos ? '\0' : ToUpper(caption.at(mark + 1));
}

std::vector<Menu> MenuBarAndBelow(const TestProgram& program)
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
    const TestProgram program;
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
        TestProgram program(bStarted);
        for (const Menu menu : MenuBarAndBelow(program))
            for (const MenuItem& item : MenuItems(program.main, menu))
                EXPECT_NO_THROW(RunMenuEntry(program.main, item.entry)) << Info(item.entry).name;
    }
}

TEST(Menus, WhatShowsAndIsChosenIsTicked)
{
    TestProgram program;
    const auto ticked = [&] {
        std::vector<std::string_view> names;
        for (const Menu menu :
             {Menu::View, Menu::MapFont, Menu::MapStyle, Menu::MapToolbars, Menu::Region, Menu::Tools})
            for (const MenuItem& item : MenuItems(program.main, menu))
                if (item.state.bChecked)
                    names.emplace_back(Info(item.entry).name);
        return names;
    };
    EXPECT_THAT(ticked(),
                ElementsAre("mnuViewToolbar", "mnuViewStatusBar", "mnuTreeView", "mnuViewMap", "mnuFontMedium",
                            "mnuRoadMap", "mnuNavigationToolbar", "mnuDrawingToolbar", "mnuRegionNorthAmerica",
                            "mnuToolsStationTracking", "mnuToolsGpsTracking", "mnuToolsShowTrackLine"));
    for (const MenuEntry entry :
         {MenuEntry::mnuViewToolbar, MenuEntry::mnuTreeView, MenuEntry::mnuOnlineTiles, MenuEntry::mnuFontSmallest,
          MenuEntry::mnuToolsShowTrackLine, MenuEntry::mnuDirections, MenuEntry::mnuPoliticalMap,
          MenuEntry::mnuStandardToolbar, MenuEntry::mnuDrawingToolbar, MenuEntry::mnuRuvenmarkHelp})
        RunMenuEntry(program.main, entry);
    EXPECT_THAT(ticked(), ElementsAre("mnuViewStatusBar", "mnuOnlineTiles", "mnuFontSmallest", "mnuPoliticalMap",
                                      "mnuStandardToolbar", "mnuNavigationToolbar", "mnuRegionNorthAmerica",
                                      "mnuToolsStationTracking", "mnuToolsGpsTracking", "mnuDirections"));
}

// Points or lines of any channel are tracks.
TEST(Menus, RemoveAllTracksIsOfferedWhereThereIsATrack)
{
    for (const Channel channel : kChannels) {
        TestProgram program;
        const auto isOffered = [&] {
            return FindState(MenuItems(program.main, Menu::Tools), MenuEntry::mnuRemoveAllTracks)->bEnabled;
        };
        EXPECT_FALSE(isOffered());
        program.main.Of(channel).TrackMarkers.Set("N0CALL", {});
        EXPECT_TRUE(isOffered());
        program.main.Of(channel).TrackMarkers.Clear();
        program.main.Of(channel).TrackLines.Set("N0CALL", {});
        EXPECT_TRUE(isOffered());
    }
}

} // namespace
} // namespace ruvenmark
