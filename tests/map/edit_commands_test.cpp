#include "core/views.h"
#include "map/edit_commands.h"
#include "map/selection.h"
#include "platform/map_document.h"
#include "support/test_program.h"
#include "ui/menus.h"
#include "ui/web_page.h"

#include <gtest/gtest.h>

namespace ruvenmark {
namespace {

class EditCommands : public testing::Test {
protected:
    void Run(MenuEntry entry) { RunMenuEntry(program.main, entry); }
    // Cut, Copy, Paste, Delete as the menu has them.
    std::string Enabled() const
    {
        std::string enabled;
        const auto items = MenuItems(program.main, Menu::Edit);
        for (const MenuEntry entry :
             {MenuEntry::mnuEditCut, MenuEntry::mnuEditCopy, MenuEntry::mnuEditPaste, MenuEntry::mnuEditDelete})
            enabled += FindState(items, entry)->bEnabled ? 'y' : 'n';
        return enabled;
    }

    TestProgram program;
};

TEST_F(EditCommands, APinGoesOverTheClipboardWithAllItHas)
{
    program.Position(Channel::RF, "N0CALL", 40, -80, "House");
    EXPECT_EQ(Enabled(), "nnnn");
    SelectOnMap(program.main, *program.Marker("N0CALL(r)"));
    EXPECT_EQ(Enabled(), "yyny");
    Run(MenuEntry::mnuEditCut);
    EXPECT_TRUE(program.MarkerNames().empty());
    EXPECT_EQ(Enabled(), "nnyn");

    Run(MenuEntry::mnuEditPaste);
    ASSERT_EQ(program.MarkerNames(), std::vector<std::string>{"N0CALL(r)"});
    const Pushpin pin = *program.Marker("N0CALL(r)");
    EXPECT_EQ(pin.Location().Point(), (GeoPoint{40, -80}));
    EXPECT_EQ(pin.Symbol(), 79);
    EXPECT_EQ(pin.BalloonState(), 1);
    EXPECT_TRUE(pin.Note().starts_with("RF, "));
    EXPECT_EQ(Enabled(), "yyyy"); // What was pasted is selected.
}

TEST_F(EditCommands, ShapesGoTheSameWay)
{
    Map& map = program.TheMap();
    Shape line = map.AddLine(map.GetLocation(40, -80), map.GetLocation(41, -81));
    line.SetWeight(8);
    SelectOnMap(program.main, line);
    Run(MenuEntry::mnuEditCopy);
    Run(MenuEntry::mnuEditDelete);
    EXPECT_EQ(map.Shapes().Count(), 0U);
    Run(MenuEntry::mnuEditPaste);
    ASSERT_EQ(map.Shapes().Count(), 1U);
    const auto& pasted = *map.Shapes().At(std::get<Shape>(program.main.map.Selection).Ref().slot);
    EXPECT_EQ(pasted.weight, 8);
    EXPECT_EQ(pasted.to, (GeoPoint{41, -81}));
}

TEST_F(EditCommands, WhatIsGoneIsNotSelected)
{
    program.Position(Channel::RF, "N0CALL", 40, -80);
    Pushpin pin = *program.Marker("N0CALL(r)");
    SelectOnMap(program.main, pin);
    pin.Delete();
    program.Position(Channel::RF, "N1CALL", 40, -80); // May take the place in memory.
    EXPECT_EQ(KindOfSelection(program.main), SelectionKind::Nothing);
    for (const MenuEntry entry : {MenuEntry::mnuEditCut, MenuEntry::mnuEditCopy, MenuEntry::mnuEditDelete})
        Run(entry);
    EXPECT_EQ(program.desktop.clipboard, "");

    SelectOnMap(program.main, *program.Marker("N1CALL(r)"));
    mnuRuvenmarkHelp_Click(program.main);
    Run(MenuEntry::mnuEditDelete);
    EXPECT_EQ(program.MarkerNames().size(), 1U) << "what nobody sees is not deleted";
    program.main.mpCtrl.NewMap(kRegionEurope);
    EXPECT_EQ(KindOfSelection(program.main), SelectionKind::Nothing);
}

TEST_F(EditCommands, OtherTextsAreNotPasted)
{
    MapDocument one;
    one.pins.push_back({"X", "", {1, 2}, 1, 0, 0, {}, {}});
    for (const std::string& text : {std::string("hello"), std::string("{\"type\":\"Point\"}"), WriteMapDocument({}),
                                    "{" + std::string(2U << 20U, ' ') + WriteMapDocument(one).substr(1)}) {
        program.desktop.clipboard = text;
        EXPECT_FALSE(CanPaste(program.main));
        Run(MenuEntry::mnuEditPaste);
        EXPECT_TRUE(program.MarkerNames().empty());
    }
    EXPECT_TRUE(program.main.abandoned.IsEmpty());
}

} // namespace
} // namespace ruvenmark
