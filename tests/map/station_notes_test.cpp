#include "map/edit_commands.h"
#include "map/marker_names.h"
#include "map/selection.h"
#include "map/station_notes.h"
#include "support/test_program.h"

#include <gmock/gmock.h>

#include <chrono>

namespace ruvenmark {
namespace {

using testing::EndsWith;
using testing::HasSubstr;

class StationNotesTest : public testing::Test {
protected:
    void SetUp() override { p.Position(Channel::RF, "N0CALL", 48, 11, "Van", "at home"); }
    std::string Note() const { return p.Note("N0CALL(r)"); }

    TestProgram p;
};

// Made when it is read, a note must still be of the last report: not of one before it.
TEST_F(StationNotesTest, AreOfTheLastReport)
{
    EXPECT_EQ(Note(), "RF, 2026-11-22 20:15:03\r\nWIDE1-1,WIDE2-1\r\n48°, 11°\r\nat home");
    p.clock.Advance(std::chrono::seconds(60));
    p.Position(Channel::RF, "N0CALL", 49, 11, "Van", "away");
    EXPECT_EQ(Note(), "RF, 2026-11-22 20:16:03\r\nWIDE1-1,WIDE2-1\r\n49°, 11°\r\naway");
    EXPECT_TRUE(p.Marker("N0CALL(r)")->NoteBeginsWith(Note()));
    EXPECT_FALSE(p.Marker("N0CALL(r)")->NoteBeginsWith("FL"));
}

// A note that is only made of the record is lost with it.
TEST_F(StationNotesTest, OutlastTheRecord)
{
    for (const bool bAll : {false, true}) {
        const std::string note = Note();
        if (bAll)
            ForgetStations(p.main, Channel::RF);
        else
            ForgetStation(p.main, Channel::RF, "N0CALL");
        EXPECT_EQ(Note(), note);
        p.Hear(Channel::RF, "N0CALL>APRS:>on the air"); // A new record, of the status alone.
        EXPECT_EQ(Note(), note);
        p.Position(Channel::RF, "N0CALL", 50, 12);
        EXPECT_THAT(Note(), EndsWith("50°, 12°"));
    }
}

// What the note is worked out by is the name: a pin that is renamed keeps what it had.
TEST_F(StationNotesTest, StayWithThePinAndGoWhereItIsCopied)
{
    const std::string note = Note();
    Pushpin pin = *p.Marker("N0CALL(r)");
    SelectOnMap(p.main, pin);
    mnuEditCopy_Click(p.main);
    EXPECT_THAT(p.desktop.clipboard, HasSubstr("at home"));
    p.main.mpCtrl.SaveMapAs("/notes.ptm");
    EXPECT_THAT(p.files.texts["/notes.ptm"], HasSubstr("at home"));

    pin.SetName("Home");
    EXPECT_EQ(pin.Note(), note);
    p.Position(Channel::RF, "N0CALL", 50, 12, "Van", "elsewhere");
    EXPECT_EQ(pin.Note(), note);
    EXPECT_THAT(Note(), EndsWith("elsewhere"));
}

} // namespace
} // namespace ruvenmark
