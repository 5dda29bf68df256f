#include "messaging/message_fixture.h"
#include "messaging/receive_message.h"

namespace ruvenmark {
namespace {

struct Heard {
    const char* why;
    std::string_view to, text, number;
    Setting setting = Setting::Call;
    std::string_view value = "N0CALL";
    bool bFiled = true, bAcked = false;
};
// A rule left out, or asked in another order, files what should not be or keeps silent where a sender waits.
TEST_F(MessageTest, WhatIsFiledAndWhatIsAnswered)
{
    constexpr Heard kCases[] = {
        {"to us", "N0CALL", "hi", "7", Setting::Call, "N0CALL", true, true},
        {"to us without a number", "N0CALL", "hi", ""},
        {"any SSID of ours", "N0CALL-5", "hi", "7", Setting::MatchSSID, "False", true, true},
        {"only our own SSID", "N0CALL-5", "hi", "7", Setting::MatchSSID, "True", false, false},
        {"our own SSID", "N0CALL-5", "hi", "7", Setting::Call, "N0CALL-5", true, true},
        {"as many letters as it has", "N0C", "hi", "7", Setting::MatchSSID, "False", true, true},
        {"more letters than ours", "N0CALLX", "hi", "7", Setting::MatchSSID, "False", false, false},
        {"to another one", "N1CALL", "hi", "7", Setting::MatchSSID, "False", false, false},
        {"to another one, all wanted", "N1CALL", "hi", "7", Setting::All, "1"},
        {"another subnet", "N0CALL", "hi", "7", Setting::MessageSubnet, "NET", false, false},
        {"our subnet in other letters", "N0CALL", "hi", "7", Setting::MessageSubnet, "aprs", true, true},
        {"a bulletin", "BLN3", "hi", "", Setting::ReceiveBulletin, "True"},
        {"no bulletins", "BLN3", "hi", "", Setting::ReceiveBulletin, "False", false, false},
        {"an acknowledgement in capitals", "N0CALL", "ACK3", "", Setting::All, "1", false, false},
        {"nobody answers under no name", "", "hi", "7", Setting::Call, ""},
    };
    Open(false, false, true);
    for (const Heard& heard : kCases) {
        const std::string former = SettingText(main.Settings, heard.setting);
        Set(heard.setting, heard.value);
        Hear(Channel::TCP, heard.to, heard.text, heard.number);
        EXPECT_EQ(Inbox().Count(), heard.bFiled ? 1U : 0U) << heard.why;
        const std::string call = SettingText(main.Settings, Setting::Call);
        EXPECT_EQ(Take(), heard.bAcked ? Texts{"server " + call + ">APRS,TCPIP*::W1AW     :ack7"} : Texts{})
            << heard.why;
        main.messages.lvMessageList.Clear();
        Set(heard.setting, former);
    }
    EXPECT_EQ(main.abandoned.Count(), 0U); // No answer was tried in vain.
}

TEST_F(MessageTest, ARepeatIsAnsweredEachTimeAndFiledOnce)
{
    Open(false, true, true);
    Set(Setting::Tactical, "BASE"); // Answers go out under the call that was addressed.
    for (int i = 0; i < 3; ++i)
        Hear(Channel::RF, i == 1 ? "n0call" : "N0CALL", "hi", "7");
    EXPECT_EQ(Take().size(), 6U);
    EXPECT_EQ(Inbox().Count(), 1U);
    main.messages.lvMessageList.Clear();
    Hear(Channel::RF, "N0CALL", "hi", "7");
    EXPECT_EQ(Inbox().Count(), 1U);
    EXPECT_EQ(Take(),
              (Texts{"frame N0CALL|APRS|WIDE1-1|:W1AW     :ack7", "server N0CALL>APRS,TCPIP*::W1AW     :ack7"}));
}

TEST_F(MessageTest, AnAcknowledgementClearsTheFirstRowOfItsNumber)
{
    for (const char* number : {"3", "33", "3"})
        SendAprsMessage(main, "N0CALL", number[1] ? "W1AW" : "N1CALL", "", "to " + std::to_string(SentList().Count()),
                        number);
    const auto bold = [&] {
        std::string marks;
        for (std::size_t i = 0; i < SentList().Count(); ++i)
            marks += SentList().At(i).IsBold() ? '*' : '.';
        return marks;
    };
    Hear(Channel::RF, "N0CALL-1", "ack3"); // Another station's.
    Hear(Channel::RF, "N0CALL", "ack");
    Hear(Channel::RF, "N0CALL", "ack3 ");
    EXPECT_EQ(bold(), "***");
    Set(Setting::MessageSubnet, "elsewhere");
    Hear(Channel::RF, "n0call", "aCk3", "", "ANYBODY");
    EXPECT_EQ(bold(), ".**");
    Hear(Channel::RF, "N0CALL", "ACK3"); // The first one that fits, read or not.
    EXPECT_EQ(bold(), ".**");
    Hear(Channel::FL, "N0CALL", "ack33"); // Of a file, too.
    EXPECT_EQ(bold(), "..*");
}

TEST_F(MessageTest, TheSoundIsForUsOrForAll)
{
    program.Set("WaveFile=/ring.wav PlayAll=True");
    Hear(Channel::RF, "N0CALL", "no such file");
    program.files.texts["/ring.wav"] = "RIFF";
    Hear(Channel::RF, "N1CALL", "not ours");
    EXPECT_TRUE(program.sound.played.empty());
    Hear(Channel::RF, "N0CALL", "ours");
    Set(Setting::All, "1");
    Hear(Channel::FL, "N1CALL", "everybody's");
    EXPECT_EQ(program.sound.played, (Texts{"/ring.wav", "/ring.wav"}));
    Set(Setting::PlayAll, "False");
    Hear(Channel::RF, "N1CALL", "silent");
    EXPECT_EQ(program.sound.played.size(), 2U);
}

} // namespace
} // namespace ruvenmark
