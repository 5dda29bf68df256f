#include "aprs/decode.h"
#include "messaging/message_fixture.h"

#include <random>

namespace ruvenmark {
namespace {

TEST_F(MessageTest, AMessageGoesOutOverEveryRoadToTheLetterAndIsFiled)
{
    Open(true, true, true);
    EXPECT_EQ(SendByDialog("w1aw", "hello"), "");
    EXPECT_EQ(Take(),
              (Texts{"command mode", "MYCALL N0CALL", "UNPROTO APRS VIA WIDE1-1", "CONV", ":W1AW     :hello{1",
                     "frame N0CALL|APRS|WIDE1-1|:W1AW     :hello{1", "server N0CALL>APRS,TCPIP*::W1AW     :hello{1"}));
    EXPECT_EQ(main.sbStatusBar.Sent(), "Sent over TNC, AGW, server at 20:15:03");
    EXPECT_EQ(RowsOf(SentList()), Texts{"W1AW|N0CALL|WIDE1-1|2026-11-22 20:15:03|hello|1*"});
    EXPECT_EQ(BoxText("MessagesSent"), "Sent Items (1)");

    SendByDialog(" W1AW ", "hello"); // Two alike differ by their number.
    EXPECT_EQ(Take().back(), "server N0CALL>APRS,TCPIP*::W1AW     :hello{2");
    EXPECT_EQ(SentList().Count(), 2U);
    EXPECT_EQ(main.sbStatusBar.PanelText(Panel::Call), "N0CALL");
    mnuSendMessage_Click(main); // Closed: nothing goes out.
    EXPECT_EQ(SentList().Count(), 2U);
}

// What the addressee's decoder makes of it, whatever is written.
TEST_F(MessageTest, OurDecoderReadsBackWhatIsSent)
{
    std::mt19937 random(4711); // NOLINT: the same every time.
    const auto text = [&](std::size_t most, char first, char last) {
        std::string made(1 + random() % most, ' ');
        for (char& c : made)
            c = static_cast<char>(first + static_cast<char>(random() % static_cast<unsigned>(last - first + 1)));
        return made;
    };
    Open(false, false, true);
    main.frmMessage.roads.chkTCP = true;
    for (int i = 0; i < 3000; ++i) {
        const std::string to = text(9, 'A', 'Z'), body = text(67, '!', 'z'), number = std::to_string(random() % 100000);
        SendAprsMessage(main, "N0CALL", to, "", "x" + body.substr(1), number);
        const std::string line = Take().at(0).substr(7);
        const aprs::Packet packet = aprs::Decode(line);
        const auto* message = std::get_if<aprs::Message>(&packet.body);
        if (to.starts_with("BLN") || to.starts_with("NWS"))
            continue;
        ASSERT_NE(message, nullptr) << line;
        EXPECT_EQ(message->addressee, to) << line;
        EXPECT_EQ(message->text, "x" + body.substr(1)) << line;
        EXPECT_EQ(message->id, number) << line;
    }
}

// The ticks say over what; a message without any open link still gets its number and its row, and no box.
TEST_F(MessageTest, OnlyTickedLinksAreTaken)
{
    Open(false, true, true);
    main.frmMessage.roads.chkTCP = true;
    SendAprsMessage(main, "N0CALL", "W1AW", "", "one", "");
    EXPECT_EQ(Take(), Texts{"server N0CALL>APRS,TCPIP*::W1AW     :one{0"});
    main.frmMessage.roads = {.chkRF = true};
    SendAprsMessage(main, "N0CALL", "W1AW", "", "by radio", "");
    EXPECT_EQ(Take(), Texts{"frame N0CALL|APRS||:W1AW     :by radio{0"});
    Open(false, false, false);
    SendByDialog("W1AW", "two");
    EXPECT_EQ(Take(), Texts{});
    EXPECT_EQ(SentList().Count(), 3U);
    EXPECT_TRUE(program.prompts.messages.empty());
}

TEST_F(MessageTest, BulletinsAndAnnouncementsHaveNoNumberAndAreNeverBold)
{
    Open(false, false, true);
    for (int i = 0; i < 11; ++i)
        SendByDialog("", "net at nine", 1);
    Texts bodies = Take();
    EXPECT_EQ(bodies.front(), "server N0CALL>APRS,TCPIP*::BLN0     :net at nine");
    EXPECT_EQ(bodies[9], "server N0CALL>APRS,TCPIP*::BLN9     :net at nine");
    EXPECT_EQ(bodies[10], bodies.front());
    EXPECT_EQ(SentList().Count(), 10U); // The eleventh is the first again: sent, not filed.
    for (int i = 0; i < 27; ++i)
        SendByDialog("", "storm", 2);
    bodies = Take();
    EXPECT_EQ(bodies[25], "server N0CALL>APRS,TCPIP*::BLNZ     :storm");
    EXPECT_EQ(bodies[26], "server N0CALL>APRS,TCPIP*::BLNA     :storm");
    SendByDialog("bln1", "by hand"); // The message number rises all the same.
    EXPECT_EQ(Take(), Texts{"server N0CALL>APRS,TCPIP*::BLN1     :by hand"});
    EXPECT_EQ(main.frmMessage.lMessageNumber, 1);
    EXPECT_EQ(SentList().CountBold(), 0U);
    EXPECT_EQ(SentList().At(0).Icon(), RowIcon::Bulletin);
    main.frmMessage.lMessageNumber = 99999; // It wraps.
    SendByDialog("W1AW", "b");
    EXPECT_EQ(Take(), Texts{"server N0CALL>APRS,TCPIP*::W1AW     :b{0"});
}

// An ack by hand is one too; only small letters make one.
TEST_F(MessageTest, AnAcknowledgementTakesEveryOpenLinkAndIsNotFiled)
{
    Open(true, false, true);
    SendAprsMessage(main, "N0CALL", "W1AW", "", "ack3", "");
    EXPECT_EQ(Take(), (Texts{"command mode", "MYCALL N0CALL", "UNPROTO APRS", "CONV", ":W1AW     :ack3",
                             "server N0CALL>APRS,TCPIP*::W1AW     :ack3"}));
    EXPECT_EQ(main.sbStatusBar.Sent(), "Sent over TNC, server at 20:15:03");
    EXPECT_TRUE(SentList().IsEmpty());
    SendByDialog("W1AW", "Ack3");
    EXPECT_EQ(Take().back(), "server N0CALL>APRS,TCPIP*::W1AW     :Ack3{1");
    bRfFails = true;
    SendAprsMessage(main, "N0CALL", "W1AW", "", "ack4", "");
    EXPECT_TRUE(program.prompts.messages.empty());
}

// A row would say that the message is on its way.
TEST_F(MessageTest, AFailureIsToldAndNothingIsFiled)
{
    Open(true, false, true);
    bRfFails = true;
    SendByDialog("W1AW", "hello");
    EXPECT_EQ(Take(), Texts{});
    EXPECT_EQ(program.prompts.messages, Texts{"Message not sent correctly, check TNC connection!"});
    EXPECT_TRUE(SentList().IsEmpty());
}

TEST_F(MessageTest, SendAgainRepeatsTheRowAsItStands)
{
    Open(false, true, true);
    SendByDialog("W1AW", "hello");
    const Texts first = Take();
    SendByDialog("W1AW", "the next number is given");
    Take();
    const Texts rows = RowsOf(SentList());
    mnuMsgSendAgain_Click(main); // No row is selected.
    EXPECT_EQ(Take(), Texts{});
    main.messages.lvSentList.Select(0, true);
    main.frmMessage.roads.chkRF = main.frmMessage.roads.chkTCP = false;
    program.clock.Advance(std::chrono::minutes(5));
    for (int i = 0; i < 2; ++i) {
        mnuMsgSendAgain_Click(main);
        EXPECT_EQ(Take(), first);
    }
    EXPECT_EQ(RowsOf(SentList()), rows);
    EXPECT_FALSE(main.frmMessage.roads.chkRF || main.frmMessage.roads.chkTCP);
    Open(false, false, false);
    mnuMsgSendAgain_Click(main);
    EXPECT_EQ(Take(), Texts{});
}

TEST_F(MessageTest, ReplyForwardAndAStationOfTheTreeFillTheDialogOnce)
{
    const auto shown = [&](void (*command)(MainWindow&)) {
        std::string fields = "(not opened)";
        program.dialogs.onRun[Form::frmMessage] = [&](MainWindow& opened) {
            fields = opened.frmMessage.txtTo + "|" + opened.frmMessage.txtMessage;
        };
        command(main);
        return fields;
    };
    EXPECT_EQ(shown(mnuMsgReply_Click), "(not opened)");
    Hear(Channel::RF, "N0CALL", "are you there?");
    main.messages.lvMessageList.Select(0, true);
    EXPECT_EQ(shown(mnuMsgReply_Click), "W1AW|");
    EXPECT_EQ(shown(mnuMsgForward_Click), "|are you there?");
    EXPECT_EQ(shown(mnuSendMessage_Click), "|");
    program.Position(Channel::RF, "N1CALL-9", 40, -80);
    program.Select("RFPositionsN1CALL-9");
    EXPECT_EQ(shown(mnuPop1SendMsg_Click), "N1CALL-9|");
}

TEST_F(MessageTest, TheDialogKeepsItsFieldsAndRefuses)
{
    SendByDialog("W1AW", "hello");
    MessageForm& form = main.frmMessage;
    form.sFrom = "n1call";
    frmMessage_Load(main);
    EXPECT_EQ(form.txtFrom + "|" + form.txtTo + "|" + form.txtVia + "|" + form.txtMessage, "n1call||WIDE1-1|");
    EXPECT_EQ(frmMessage_Send(form), "You must enter call sign and recipient!");
    form.txtTo = "tencharact";
    EXPECT_EQ(frmMessage_Send(form), "Message field can not be empty!");
    form.txtMessage.assign(68, 'x');
    EXPECT_EQ(frmMessage_Send(form), "Recipient call sign can not be longer than 9 characters!");
    form.txtTo = "ninechars";
    EXPECT_EQ(frmMessage_Send(form), "Message can not be longer than 67 characters!");
    form.txtMessage = "a##### b"; // Would come back as two fields.
    EXPECT_NE(frmMessage_Send(form), "");
    EXPECT_TRUE(form.bCancelled);
    EXPECT_EQ(form.lMessageNumber, 1);
    form.txtMessage.assign(67, 'x');
    EXPECT_EQ(frmMessage_Send(form), "");
    EXPECT_EQ(form.sFrom + "|" + form.sTo, "N1CALL|NINECHARS");
}

} // namespace
} // namespace ruvenmark
