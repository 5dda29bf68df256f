#include "devices/tnc_source.h"
#include "recorded_events.h"
#include "support/fake_byte_links.h"

#include <gmock/gmock.h>

namespace ruvenmark {
namespace {

using namespace std::string_literals;
using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;

// Each as units write it, and the packet line that it is.
struct HeardForm {
    std::string said, packet;
};
const std::vector<HeardForm> kHeardForms{
    {"N0CALL>APRS,WIDE2-2:>Hi\r\n", "N0CALL>APRS,WIDE2-2:>Hi"},
    {"KB1ZXL-1>T2QY5P,W1MHL*,WIDE2-1: <<UI>>:\r\n`c1Yl!->/\r\n", "KB1ZXL-1>T2QY5P,W1MHL*,WIDE2-1:`c1Yl!->/"},
    {"N8VIM>BEACON,W1XM,WIDE2*: <UI>:\r\n!4236\r\n", "N8VIM>BEACON,W1XM,WIDE2*:!4236"},
    {"KD5EOC-10>BEACON/2: <UI>:\r\n>Hi\r\n", "KD5EOC-10>BEACON:>Hi"},
    {"AA6I>APOTU0,K6IXA-3,WIDE2* [06/02/18 13:47:54] <UI>:\r\n\r\n\r\n>Hi\r\n", "AA6I>APOTU0,K6IXA-3,WIDE2*:>Hi"},
    {"AA6I>APOTU0 [06/02/18 13:47:54]:>Hi\r\n", "AA6I>APOTU0:>Hi"},
    {"AA6I>APOTU0 [06/02/18 13:47:54]: <UI>:\r\n>Hi\r\n", "AA6I>APOTU0:>Hi"},
    {"W2JUP*>TESTER <UI>:>Hi\r\n", "W2JUP>TESTER:>Hi"},
    {"W2JUP*>TESTER <UI>:\r\n>Hi\r\n", "W2JUP>TESTER:>Hi"},
    {"W2MEB-9>SX2X9U,W0BJ-1*,WIDE2* <UI R Len=34>:`c1Yl!->/\r\n", "W2MEB-9>SX2X9U,W0BJ-1*,WIDE2*:`c1Yl!->/"},
    {"N0CALL>APRS:\r\n>Hi\r\n", "N0CALL>APRS:>Hi"}, // Headers on a line of their own.
    {"N0CALL>APRS:<IGATE,MSG_CNT=1\r\n", "N0CALL>APRS:<IGATE,MSG_CNT=1"},
    {"N0CALL>APRS: <UI>:\r\ncmd:\r\n", "N0CALL>APRS:cmd:"}, // Text that looks like the TNC's own.
    {"N0CALL>APRS: <UI>:\r\n$GPRMC,1\r\n", "N0CALL>APRS:$GPRMC,1"},
    {"N0CALL>APRS: <UI>:\r\nA>B:>Hi\r\n", "N0CALL>APRS:A>B:>Hi"},
    {"N0CALL>APRS: <UI>:\r\n\r\nW1AW>APRS:>Hi\r\n", "W1AW>APRS:>Hi"}, // The first had no information,
    {"N0CALL>APRS:\r\nW1AW>APRS:>Hi\r\n", "W1AW>APRS:>Hi"},           // nor had this.
    {"cmd:N0CALL>APRS:>Hi\r\n", "N0CALL>APRS:>Hi"},
    {"N0CALL>APRS:>Hi\r", "N0CALL>APRS:>Hi"},
};
// Says nothing of the air.
constexpr std::string_view kChatter =
    "\r\n\r\nTAPR TNC 2\r\nAX.25 Level 2 Version 2.0\r\nChecksum $3C\r\n\x07"
    "cmd:MYCALL   was NOCALL\r\n*** CONNECTED to W1AW\r\nW1AW>N0CALL <I C S0 R0>:hi\r\n"
    ">:,*\r\nTOOLONGCAL>APRS:no\r\nA>B no packet\r\ncmd:";

struct Tnc : testing::Test {
    FakeByteLinks links;
    LineCounts counts;
    RecordedEvents recorded;
    std::vector<std::string> fates; // Of texts for the air.
    LinkEvents events{[this](const SentReport& sent) {
                          fates.push_back((sent.bWent ? "typed " : "given up ") + std::string(sent.text));
                      },
                      {}};
    std::unique_ptr<TncSource> source = std::make_unique<TncSource>(links, recorded.sink, counts, &events);

    void Open() { source->OpenPort("/dev/ttyS0", 9600, kAccessToken); }
    // A new one, open, at the prompt, with nothing under way.
    void OpenToPrompt()
    {
        source = std::make_unique<TncSource>(links, recorded.sink, counts, &events);
        recorded.events.clear();
        Open();
        links.Say("\r\ncmd:");
        links.Written();
    }
    void Send(std::initializer_list<const char*> commands)
    {
        source->EnterCommandMode();
        for (const char* command : commands)
            source->SendCommand(command);
    }
};

TEST_F(Tnc, MakesOnePacketLineOfEveryFormHeard)
{
    for (const HeardForm& form : kHeardForms) {
        ForEveryCut(std::string(kChatter) + "\r\n" + form.said + std::string(kChatter),
                    [&](const std::vector<std::string>& pieces) {
                        OpenToPrompt();
                        links.Say(pieces);
                        EXPECT_THAT(recorded.Raw(), ElementsAre(form.packet));
                    });
    }
}

TEST_F(Tnc, LeavesOutLinesThatAreTooLong)
{
    Open();
    for (int i = 0; i < 100; ++i)
        links.Say("N0CALL>APRS:>" + std::string(1000, 'x'));
    links.Say("\r\nN0CALL>APRS:>Hi\r\n");
    EXPECT_THAT(recorded.Raw(), ElementsAre("N0CALL>APRS:>Hi"));
}

// A command typed in converse mode would go on the air: each waits for the prompt before it.
TEST_F(Tnc, TypesEachCommandBehindThePromptAndTheTextOnce)
{
    Open();
    EXPECT_EQ(links.opened, "serial /dev/ttyS0 9600 xon");
    EXPECT_EQ(links.Written(), "\x03");
    Send({"MYCALL W1AW", "UNPROTO APRS VIA WIDE1-1", "CONV", "N0CALL>APRS:>my own\rtext\x03"});
    EXPECT_EQ(links.WrittenIn(1s), "");
    EXPECT_EQ(links.AnswerTo("\r\ncm"), "");
    EXPECT_EQ(links.AnswerTo("d:"), "\x03");
    EXPECT_EQ(links.AnswerTo("\r\ncmd:\r\n"), "MYCALL W1AW\r"); // With a line end.
    EXPECT_EQ(links.AnswerTo("MYCALL W1AW\r\nMYCALL   was NOCALL\r\n"), "");
    EXPECT_EQ(links.AnswerTo("cmd:W1XM>APRS:>heard meanwhile\r\n"), "UNPROTO APRS VIA WIDE1-1\r");
    EXPECT_EQ(links.AnswerTo("UNPROTO APRS VIA WIDE1-1\r\ncmd:"), "CONV\r");
    EXPECT_EQ(links.WrittenIn(250ms), "");
    EXPECT_EQ(links.WrittenIn(500ms), "N0CALL>APRS:>my owntext\r");
    links.Say("N0CALL>APRS:>my ow\r\nntext\r\n"); // The echo, as wide as the TNC's screen: not heard.
    EXPECT_EQ(links.WrittenIn(2min), "");
    EXPECT_THAT(recorded.Raw(), ElementsAre("W1XM>APRS:>heard meanwhile"));
    Send({"LTM 0"});
    EXPECT_EQ(links.Written(), "\x03");
}

// Taken for an echo, it would leave its header to the next station's lines.
TEST_F(Tnc, HearsItsOwnTextRepeatedByADigipeaterWhereTheTncEchoesNothing)
{
    OpenToPrompt();
    Send({"CONV", ">Hi"});
    links.Say("cmd:");
    links.Tick(750ms);
    links.Say("W1XM>APRS: <UI>:\r\n>Hi\r\n>heard\r\n"); // The echo, in the middle of a packet.
    source->SendCommand(">Ho");
    links.Tick(750ms);
    links.Say("N0CALL>APRS,W1MHL*: <UI>:\r\n>Ho\r\nW1XM>APRS: <UI>:\r\n>other\r\n");
    EXPECT_THAT(recorded.Raw(), ElementsAre("W1XM>APRS:>heard", "N0CALL>APRS,W1MHL*:>Ho", "W1XM>APRS:>other"));
}

TEST_F(Tnc, GivesUpARunWhosePromptDoesNotComeAndSaysSoAtTheNext)
{
    OpenToPrompt();
    Send({"MYCALL W1AW", "CONV", ">one"});
    EXPECT_EQ(links.WrittenIn(5750ms), "\x03\x03\x03"); // Never anything else.
    links.Tick(1s);
    EXPECT_THROW(source->EnterCommandMode(), Failure);
    EXPECT_EQ(links.Written(), "\x03");
    links.Tick(7s);
    links.Say("cmd:"); // Too late for that run, but it answers again.
    EXPECT_EQ(links.WrittenIn(5s), "\x03\x03");
    Send({"MYCALL W1AW", "CONV", ">two"});
    EXPECT_EQ(links.AnswerTo("cmd:"), "\x03MYCALL W1AW\r");
    links.Tick(4s);
    links.Say("LISTS PAGES\r\n"); // It is at work still.
    links.Tick(4s);
    EXPECT_EQ(links.AnswerTo("cmd:"), "CONV\r");
    Send({"MYCALL W1AW", "CONV", ">three"});
    links.Tick(750ms);
    EXPECT_EQ(links.AnswerTo("cmd:"), ">two\r\x03MYCALL W1AW\r");
    links.Tick(4750ms); // Silent in the middle.
    EXPECT_EQ(fates.size(), 2U);
    links.Tick(250ms);
    EXPECT_THAT(fates, ElementsAre("given up >one", "typed >two", "given up >three"));
    EXPECT_THROW(source->SendCommand("CONV"), Failure);
    links.Say("cmd:");
    EXPECT_EQ(links.WrittenIn(1s), "");
}

// It was typed Ctrl-C more than once. A late prompt of theirs taken for the answer to MYCALL, the text would be out
// before its refusal comes.
TEST_F(Tnc, WaitsForEveryPromptOfATncThatWakesLate)
{
    for (const auto pause : {0ms, 2000ms}) {
        source = std::make_unique<TncSource>(links, recorded.sink, counts);
        Open();
        Send({"MYCALL NO CALL", "UNPROTO APRS", "CONV", ">Hi"});
        EXPECT_EQ(links.WrittenIn(4500ms), "\x03\x03\x03");
        EXPECT_EQ(links.AnswerTo("\r\ncmd:"), "\x03");
        std::string typed;
        for (int i = 0; i < 3; ++i) {
            typed += links.WrittenIn(pause);
            typed += links.AnswerTo("\r\ncmd:");
        }
        EXPECT_TRUE(typed.ends_with("MYCALL NO CALL\r")) << typed;
        links.Say("\r\n?bad call\r\ncmd:");
        links.Say("\r\ncmd:");
        typed += links.WrittenIn(5s);
        EXPECT_TRUE(typed.ends_with("MYCALL NO CALL\rUNPROTO APRS\r")) << typed;
    }
    source = std::make_unique<TncSource>(links, recorded.sink, counts);
    Open();
    links.Tick(4500ms);
    links.Say("cmd:"); // The only one.
    Send({"MYCALL W1AW", "UNPROTO APRS"});
    EXPECT_EQ(links.AnswerTo("cmd:"), "\x03\x03\x03\x03");
    EXPECT_EQ(links.WrittenIn(1s), "MYCALL W1AW\r");
    EXPECT_EQ(links.AnswerTo("MYCALL   was NOCALL\r\ncmd:"), "UNPROTO APRS\r");
}

TEST_F(Tnc, GivesUpOneThatIsBusyForAMinute)
{
    OpenToPrompt();
    Send({"MYCALL W1AW", "CONV", ">Hi"});
    links.Say("cmd:");
    for (int i = 0; i < 14; ++i) {
        links.Tick(4s);
        links.Say("LISTS PAGES\r\n");
    }
    links.Tick(3750ms);
    EXPECT_THAT(fates, IsEmpty());
    links.Tick(250ms);
    EXPECT_THAT(fates, ElementsAre("given up >Hi"));
}

// What comes later is no information of a header that lost its own.
TEST_F(Tnc, AHeaderWaitsTwoSeconds)
{
    Open();
    for (const auto pause : {2000ms, 2250ms}) {
        links.Say("N0CALL>APRS: <UI>:\r\n");
        links.Tick(pause);
        links.Say(">Hi\r\n");
    }
    EXPECT_THAT(recorded.Raw(), ElementsAre("N0CALL>APRS:>Hi"));
}

// Refused the call or the way, the text would go out under the last ones.
TEST_F(Tnc, PutsNothingOnTheAirWhereACommandWasRefused)
{
    for (const std::string& fault : {"?EH"s, "$\r\nEH?"s, "?bad parameter"s, "?VIA"s, "*** What?"s}) {
        OpenToPrompt();
        Send({"MYCALL NO CALL", "UNPROTO APRS", "CONV", ">Hi"});
        links.Say("cmd:");
        links.Say("MYCALL NO CALL\r\n" + fault + "\r\ncmd:");
        links.Say("cmd:");
        links.Tick(5s);
        EXPECT_EQ(links.Written(), "\x03MYCALL NO CALL\rUNPROTO APRS\r") << fault;
        EXPECT_EQ(recorded.Raw().size(), 1U) << fault; // The operator sees why.
        Send({"CONV", ">Hi"});
        links.Say("cmd:");
        links.Say("CONV\r\n" + fault + "\r\ncmd:");
        links.Tick(5s);
        EXPECT_EQ(links.Written(), "\x03"
                                   "CONV\r")
            << fault;
        Send({"CONV", ">Hi"});
        links.Say("cmd:");
        links.Tick(1s);
        EXPECT_EQ(links.Written(), "\x03"
                                   "CONV\r>Hi\r")
            << fault;
        links.Say(fault + "\r\n"); // On the air, that is nobody's fault.
        EXPECT_EQ(recorded.Raw().size(), 2U) << fault;
    }
}

TEST_F(Tnc, ObeysXoffButNotForever)
{
    OpenToPrompt();
    links.Say("\x13");
    Send({"MYCALL W1AW"});
    EXPECT_EQ(links.WrittenIn(9s), "");
    EXPECT_EQ(links.AnswerTo("W1XM\x11>APRS:>Hi\r\n"), "\x03");
    links.Say("cmd:\x13");
    EXPECT_EQ(links.WrittenIn(9s), ""); // A packet may hold the byte.
    EXPECT_EQ(links.WrittenIn(2s), "MYCALL W1AW\r");
    EXPECT_THAT(recorded.Raw(), ElementsAre("W1XM>APRS:>Hi"));
}

// While a sound plays or a server is called the program stands still: a text that the TNC held up all the time has not
// been sent where its link is then given up.
TEST_F(Tnc, ATextThatIsStillHeldUpWhenTheLinkIsGivenUpWasNotSent)
{
    OpenToPrompt();
    Send({"CONV"});
    links.Say("cmd:");
    links.Tick(750ms);
    links.Say("\x13");
    source->SendCommand(">one");
    Send({"MYCALL W1AW"});
    links.Tick(1s);
    EXPECT_THAT(fates, IsEmpty());
    links.Advance(8s);
    links.Say("\x11");
    links.Tick(250ms);
    EXPECT_EQ(links.Written().find(">one"), std::string::npos);
    EXPECT_THAT(fates, ElementsAre("given up >one"));
}

// Closing follows at once on the commands that put the TNC back as it was.
TEST_F(Tnc, ClosingSendsWhatStillWaitsAndGivesUpOnASilentTnc)
{
    OpenToPrompt();
    Send({"LTM 0", "MYCALL NOCALL"});
    std::string typed = links.Written();
    links.answer = [&](const std::string& written) {
        typed += written;
        return "W1XM>APRS:>Hi\r\ncmd:"s;
    };
    source->ClosePort();
    EXPECT_EQ(typed + links.Written(), "\x03LTM 0\rMYCALL NOCALL\r");
    EXPECT_FALSE(links.IsKept());
    EXPECT_THAT(recorded.events, IsEmpty());
    EXPECT_THROW(source->ClosePort(), Failure);

    const auto closing = [&](std::function<std::string(const std::string&)> answer) {
        OpenToPrompt();
        Send({"LTM 0"});
        const Moment begun = links.Now();
        links.answer = std::move(answer);
        source->ClosePort();
        return links.Now() - begun;
    };
    EXPECT_LE(closing(nullptr), 4s);
    EXPECT_EQ(closing([](const std::string& written) { return written.ends_with('\x03') ? "cmd:" : "AT WORK\r\n"; }),
              15s);
}

// A receiver behind the TNC: one sentence every few seconds or minutes, and no silence is a loss.
TEST_F(Tnc, PassesOnPositionsOfAReceiverBehindIt)
{
    OpenToPrompt();
    links.Say("cmd:$GPGGA,123519,4807.038,N,01131.000,E,1,08,0.9,100.0,M,46.9,M,,*46\r\n");
    EXPECT_THAT(recorded.events, IsEmpty());
    links.Tick(500ms);
    EXPECT_THAT(recorded.events, ElementsAre("ReportGpsData"));
    links.Tick(5min);
    EXPECT_EQ(recorded.events.size(), 1U);
    links.Say("$GPGGA,124019,,,,,0,00,,,M,,M,,*69\r\n$GPGGA,124020,,,,,0,00,,,M,,M,,\r\n");
    links.Tick(500ms);
    EXPECT_EQ(recorded.events.size(), 2U);
}

TEST_F(Tnc, TellsALostPortOnceAndRefusesWhatNeedsOne)
{
    EXPECT_THROW(source->OpenPort("/dev/ttyS0", 9600, "1234"), Failure);
    EXPECT_THROW(source->EnterCommandMode(), Failure);
    OpenToPrompt();
    EXPECT_THROW(Open(), Failure);
    source->EnterCommandMode(); // What would pile up is refused.
    EXPECT_THROW(for (int i = 0; i < 1000; ++i) source->SendCommand("DISPLAY"), Failure);
    links.Lose();
    EXPECT_THAT(recorded.events, ElementsAre("SocketConnectionClosed"));
    EXPECT_FALSE(links.IsKept());
    EXPECT_THROW(source->SendCommand("CONV"), Failure);
}

TEST_F(Tnc, DroppedInsideAnyOfItsEventsItFallsSilent)
{
    const auto run = [&] {
        OpenToPrompt();
        Send({"NONSENSE"});
        links.Say("cmd:");
        links.Say("W1AW>APRS:>a\r\n?EH\r\ncmd:W1AW>APRS:>b\r\n$GPGLL,4807.038,N,01131.000,E\r\n");
        links.Tick(1s);
        links.Lose();
    };
    EXPECT_TRUE(IsSilentOnceDropped(7, recorded, source, run));
}

} // namespace
} // namespace ruvenmark
