#include "decoded.h"

namespace ruvenmark::aprs {
namespace {

struct MessageCase {
    std::string_view text;
    MessageKind kind;
    std::string_view message, id, ack, rejected;
};

// A number is one only at the end and only with one to five letters and digits; everything else is what somebody wrote.
TEST(Message, NumbersAcknowledgementsAndText)
{
    constexpr auto kText = MessageKind::Text;
    constexpr auto kAck = MessageKind::Acknowledgement;
    constexpr auto kRej = MessageKind::Rejection;
    const MessageCase cases[] = {
        {"Testing", kText, "Testing", "", "", ""},
        {"Testing{003", kText, "Testing", "003", "", ""},
        {"Testing{003 ", kText, "Testing", "003", "", ""},
        {"Testing{AB}", kText, "Testing", "AB", "", ""},
        {"Testing{AB}CD", kText, "Testing", "AB", "CD", ""},
        {"text{123456", kText, "text{123456", "", "", ""},
        {"text{1 2", kText, "text{1 2", "", "", ""},
        {"text{", kText, "text{", "", "", ""},
        {"{1", kText, "", "1", "", ""},
        {"a {b} c", kText, "a {b} c", "", "", ""},
        {"a {b}{7", kText, "a {b}", "7", "", ""},
        {"a: b {7", kText, "a: b ", "7", "", ""},
        {"ack003", kAck, "", "", "003", ""},
        {"ack3 ", kAck, "", "", "3", ""},
        {"ackAB}CD", kAck, "", "", "AB", ""},
        {"ackAB}", kAck, "", "", "AB", ""},
        {"rej12", kRej, "", "", "", "12"},
        {"ack", kText, "ack", "", "", ""},
        {"ack123456", kText, "ack123456", "", "", ""},
        {"acknowledge this", kText, "acknowledge this", "", "", ""},
        {"reject!", kText, "reject!", "", "", ""},
        {"Ack003", kText, "Ack003", "", "", ""},
        {"?APRSD", kText, "?APRSD", "", "", ""},
        {"gr\xc3\xbc\xdf{1", kText, "gr\xc3\xbc\xdf", "1", "", ""},
    };
    for (const MessageCase& test : cases) {
        const std::string line = std::string("N0AAA>APRS42::N0BBB-7  :").append(test.text);
        const auto message = Decoded<Message>(line);
        EXPECT_EQ(message.kind, test.kind) << test.text;
        EXPECT_EQ(message.addressee, "N0BBB-7") << test.text;
        EXPECT_EQ(message.text, test.message) << test.text;
        EXPECT_EQ(message.id, test.id) << test.text;
        EXPECT_EQ(message.ack, test.ack) << test.text;
        EXPECT_EQ(message.rejected, test.rejected) << test.text;
    }
}

TEST(Message, KindsByAddresseeAndWord)
{
    EXPECT_EQ(Decoded<Message>("N0AAA>APRS42::BLN3NET  :Net tonight").kind, MessageKind::Bulletin);
    EXPECT_EQ(Decoded<Message>("N0AAA>APRS42::N0AAA    :PARM.Vin,Temp").kind, MessageKind::TelemetryDefinition);
    EXPECT_EQ(Decoded<Message>("N0AAA>APRS42::N0AAA    :BITS.11111111,Hut").kind, MessageKind::TelemetryDefinition);
    EXPECT_EQ(Decoded<Message>("N0AAA>APRS42::N0AAA    :UNITS are fine").kind, MessageKind::Text);
    EXPECT_EQ(Decoded<Message>("N0AAA>APRS42::WX_WARN  :092010z,STORM,{S9JbA").id, "S9JbA");
}

TEST(Message, Faults)
{
    EXPECT_EQ(RefusalOf(":N0BBB:hi"), Refusal::BadMessage);
    EXPECT_EQ(RefusalOf(":N0BBB    :"), Refusal::BadMessage);
    EXPECT_EQ(RefusalOf(":N0BBB    "), Refusal::BadMessage);
    EXPECT_EQ(RefusalOf(":147.21MHZ:Can you hear"), Refusal::BadMessage);
}

} // namespace
} // namespace ruvenmark::aprs
