#include "map/documents.h"
#include "support/test_program.h"
#include "ui/menus.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace ruvenmark {
namespace {

class Documents : public testing::Test {
protected:
    // A map with a change in it.
    void Mark() { program.Position(Channel::RF, "N0CALL", 40, -80); }
    void Run(MenuEntry entry) { RunMenuEntry(program.main, entry); }
    const std::string& File() const { return program.main.map.sMainMapFile; }
    const std::string& Caption() const { return program.main.window.caption; }

    TestProgram program;
};

TEST_F(Documents, SavesUnderANewNameThenUnderTheSame)
{
    Mark();
    program.prompts.files = {"/maps/a.ptm"};
    Run(MenuEntry::mnuFileSave);
    EXPECT_EQ(File(), "/maps/a.ptm");
    EXPECT_EQ(Caption(), "Ruvenmark - /maps/a.ptm");
    EXPECT_TRUE(program.TheMap().Saved());
    const std::string first = program.files.texts["/maps/a.ptm"];
    program.Position(Channel::RF, "N1CALL", 41, -80);
    Run(MenuEntry::mnuFileSave);
    EXPECT_NE(program.files.texts["/maps/a.ptm"], first);
    EXPECT_EQ(program.prompts.fileTitles, std::vector<std::string>{"Save As"});
}

TEST_F(Documents, OpenBringsBackWhatWasSaved)
{
    Mark();
    program.prompts.files = {"/a.ptm", "/a.ptm"};
    Run(MenuEntry::mnuFileSaveAs);
    Run(MenuEntry::mnuFileNew);
    EXPECT_EQ(Caption(), "Ruvenmark");
    EXPECT_EQ(File(), "");
    EXPECT_TRUE(program.MarkerNames().empty());
    Run(MenuEntry::mnuFileOpen);
    EXPECT_EQ(program.MarkerNames(), std::vector<std::string>{"N0CALL(r)"});
    EXPECT_EQ(Caption(), "Ruvenmark - /a.ptm");
    EXPECT_TRUE(program.prompts.questions.empty());
}

TEST_F(Documents, CancelInTheQuestionLeavesEverything)
{
    Mark();
    program.prompts.files = {"/a.ptm"};
    Run(MenuEntry::mnuFileSaveAs);
    program.Position(Channel::RF, "N1CALL", 41, -80);
    program.prompts.answers = {Answer::Cancel, Answer::Cancel};
    Run(MenuEntry::mnuFileNew);
    Run(MenuEntry::mnuFileOpen);
    EXPECT_EQ(program.prompts.questions, (std::vector<std::string>{"Do you want to save the current map?",
                                                                   "Do you want to save the current map?"}));
    EXPECT_EQ(program.MarkerNames().size(), 2U);
    EXPECT_EQ(Caption(), "Ruvenmark - /a.ptm");
    EXPECT_EQ(File(), "/a.ptm");
}

// Without that the next command would ask again.
TEST_F(Documents, NoCountsAsSavedEvenWhereNothingFollows)
{
    Mark();
    program.prompts.answers = {Answer::No};
    Run(MenuEntry::mnuFileOpen); // No file is chosen.
    EXPECT_TRUE(program.TheMap().Saved());
    EXPECT_EQ(program.MarkerNames().size(), 1U);
    Run(MenuEntry::mnuFileOpen);
    EXPECT_EQ(program.prompts.questions.size(), 1U);
}

// Style and font are of the document: changing them is a change, and a new map begins with its own.
TEST_F(Documents, StyleAndFontAreChangesAndStayBehindWithTheirMap)
{
    for (const MenuEntry entry : {MenuEntry::mnuPoliticalMap, MenuEntry::mnuFontSmallest}) {
        Run(entry);
        EXPECT_FALSE(program.TheMap().Saved());
        program.TheMap().SetSaved(true);
    }
    program.prompts.files = {"/a.ptm", "/a.ptm"};
    Run(MenuEntry::mnuFileSaveAs);
    const std::int32_t style = program.TheMap().MapStyle();
    const std::int32_t font = program.TheMap().MapFont();
    Run(MenuEntry::mnuFileNew);
    EXPECT_EQ(program.TheMap().MapStyle(), kFirstMapStyle);
    EXPECT_EQ(program.TheMap().MapFont(), kFirstMapFont);
    Run(MenuEntry::mnuFileOpen);
    EXPECT_EQ(program.TheMap().MapStyle(), style);
    EXPECT_EQ(program.TheMap().MapFont(), font);
}

TEST_F(Documents, NoForgetsTheChangesAndASaveAsCancelledGoesOn)
{
    Mark();
    program.prompts.answers = {Answer::No};
    Run(MenuEntry::mnuFileNew);
    EXPECT_TRUE(program.MarkerNames().empty());

    Mark();
    program.prompts.answers = {Answer::Yes}; // No file is chosen.
    Run(MenuEntry::mnuFileNew);
    EXPECT_EQ(program.prompts.fileTitles.back(), "Save As");
    EXPECT_TRUE(program.MarkerNames().empty());
    EXPECT_TRUE(program.files.texts.empty());
}

TEST_F(Documents, ASaveThatFailsOrIsCancelledKeepsTheOldName)
{
    Mark();
    program.prompts.files = {"/a.ptm", "/b.ptm"};
    Run(MenuEntry::mnuFileSaveAs);
    program.files.FailWrite(1);
    Run(MenuEntry::mnuFileSaveAs);
    EXPECT_EQ(File(), "/a.ptm");
    EXPECT_EQ(Caption(), "Ruvenmark - /a.ptm");
    EXPECT_TRUE(program.prompts.messages.empty());

    program.Position(Channel::RF, "N1CALL", 41, -80);
    Run(MenuEntry::mnuFileSaveAs); // Cancelled: counts as saved.
    EXPECT_TRUE(program.TheMap().Saved());
    EXPECT_EQ(File(), "/a.ptm");
}

TEST_F(Documents, AFailedSaveInTheQuestionEndsTheCommandWithTheMapAsItWas)
{
    Mark();
    program.prompts.answers = {Answer::Yes};
    program.prompts.files = {"/a.ptm"};
    program.files.FailWrite(1);
    Run(MenuEntry::mnuFileNew);
    EXPECT_EQ(program.MarkerNames().size(), 1U);
    EXPECT_FALSE(program.TheMap().Saved());
    EXPECT_EQ(File(), "");
}

TEST_F(Documents, AnUnreadableFileLeavesMapAndName)
{
    Mark();
    program.prompts.files = {"/a.ptm", "/broken.ptm"};
    Run(MenuEntry::mnuFileSaveAs);
    program.files.texts["/broken.ptm"] = "{\"type\":";
    Run(MenuEntry::mnuFileOpen);
    EXPECT_EQ(program.MarkerNames().size(), 1U);
    EXPECT_EQ(File(), "/a.ptm");
    EXPECT_EQ(Caption(), "Ruvenmark - /a.ptm");
}

TEST_F(Documents, ARegionIsKeptAtOnceAndMakesANewMapOnlyWhereItIsAnother)
{
    Mark();
    Run(MenuEntry::mnuRegionNorthAmerica);
    EXPECT_EQ(program.MarkerNames().size(), 1U);
    program.prompts.answers = {Answer::Cancel, Answer::No};
    Run(MenuEntry::mnuRegionEurope);
    EXPECT_EQ(program.store.Lasting("Region"), "2"); // Even if the program ended here.
    EXPECT_EQ(program.main.mpCtrl.MapRegion(), kRegionNorthAmerica);
    EXPECT_EQ(program.main.map.Region, kRegionNorthAmerica);
    Run(MenuEntry::mnuRegionEurope);
    EXPECT_EQ(program.main.mpCtrl.MapRegion(), kRegionEurope);
    EXPECT_TRUE(program.MarkerNames().empty());
    Run(MenuEntry::mnuFileNew);
    EXPECT_EQ(program.main.mpCtrl.MapRegion(), kRegionEurope);
    StopMainWindow(program.main);
    EXPECT_EQ(program.store.Get("Region", ""), "2");
}

TEST_F(Documents, PrintsWhatTheDialogGivesAndCopiesThePicture)
{
    Run(MenuEntry::mnuFilePrint);
    EXPECT_TRUE(program.desktop.prints.empty());
    program.desktop.printChoice = PrintChoice{3, true};
    Run(MenuEntry::mnuFilePrint);
    ASSERT_EQ(program.desktop.prints.size(), 1U);
    EXPECT_EQ(program.desktop.prints[0].copies, 3);
    EXPECT_TRUE(program.desktop.prints[0].bLandscape);
    Run(MenuEntry::mnuCopyMap);
    EXPECT_EQ(program.desktop.mapPictures, 1);
}

} // namespace
} // namespace ruvenmark
