#include "decoded.h"

namespace ruvenmark::aprs {
namespace {

struct HeaderCase {
    std::string_view line;
    Refusal refusal;
};

// Servers pass more addresses than radios do; too strict a reading loses a third of a real feed, too lax a one files
// garbage as stations.
TEST(Header, AddressesAreJudgedAsServersDo)
{
    constexpr auto kNone = Refusal::None;
    const HeaderCase cases[] = {
        {"N0AAA>APRS42:>x", kNone},
        {"n0aaa>APRS42:>x", kNone},
        {"N0AAA-TS>APRS42:>x", kNone},
        {"123456789>APRS42:>x", kNone},
        {"1234567890>APRS42:>x", Refusal::BadSource},
        {">APRS42:>x", Refusal::BadSource},
        {" N0AAA>APRS42:>x", Refusal::BadSource},
        {"N0 AAA>APRS42:>x", Refusal::BadSource},
        {"N0AAA:>x", Refusal::BadSource},
        {"N0AAA>:>x", Refusal::BadDestination},
        {"N0AAA>APRS42-15:>x", kNone},
        {"N0AAA>APRS42-16:>x", Refusal::BadDestination},
        {"N0AAA>APRS42-:>x", Refusal::BadDestination},
        {"N0AAA>APRSXYZ:>x", Refusal::BadDestination},
        {"N0AAA>Aprs:>x", Refusal::BadDestination},
        {"N0AAA>APRS*:>x", Refusal::BadDestination},
        {"N0AAA>APRS42,D1,D2,D3,D4,D5,D6,D7,D8,D9,D10:>x", kNone},
        {"N0AAA>APRS42,DIGI1*,WIDE1*,qAR,n0gate-10:>x", kNone},
        {"N0AAA>APRS42,123456789*,WIDE2-1:>x", kNone},
        {"N0AAA>APRS42,1234567890,WIDE2-1:>x", Refusal::BadPath},
        {"N0AAA>APRS42,DIGI**:>x", Refusal::BadPath},
        {"N0AAA>APRS42,*:>x", Refusal::BadPath},
        {"N0AAA>APRS42,*DIGI:>x", Refusal::BadPath},
        {"N0AAA>APRS42,A,,B:>x", Refusal::BadPath},
        {"N0AAA>APRS42,:>x", kNone},
        {"N0AAA>APRS42,A,:>x", kNone},
        {"N0AAA>APRS42,DI_GI:>x", Refusal::BadPath},
        {"N0AAA>APRS42,TCPIP*,qAI,N0SRV,20010DB8000000000000000000000002,N0SRV2:>x", kNone},
        {"N0AAA>APRS42,20010DB8000000000000000000000002,WIDE1-1:>x", Refusal::BadPath},
        {"N0AAA>APRS42,TCPIP*,qAI,20010DB800000000000000000000000G:>x", Refusal::BadPath},
    };
    for (const HeaderCase& test : cases) {
        EXPECT_EQ(Decode(test.line).refusal, test.refusal) << test.line;
        // The same with a payload that makes the line long: short and long lines are read by different code.
        const std::string longer = std::string(test.line).append(200, 'y');
        EXPECT_EQ(Decode(longer).refusal, test.refusal) << longer;
    }
}

TEST(Header, SplitsAtTheFirstColonAndKeepsThePathAsWritten)
{
    const Packet packet = Decode("N0AAA-9>APRS42,N0DIG*,WIDE2-1,qAR,N0GATE:>a:b>c,d\r\n");
    EXPECT_EQ(packet.header.source, "N0AAA-9");
    EXPECT_EQ(packet.header.dest, "APRS42");
    EXPECT_EQ(packet.header.path, "N0DIG*,WIDE2-1,qAR,N0GATE");
    EXPECT_EQ(packet.info, ">a:b>c,d");
    EXPECT_EQ(packet.line.back(), 'd');
}

TEST(Header, LinesThatAreNoPackets)
{
    EXPECT_EQ(Decode("").refusal, Refusal::EmptyLine);
    EXPECT_EQ(Decode("\r\n").refusal, Refusal::EmptyLine);
    EXPECT_EQ(Decode("# server 1.0 ready").refusal, Refusal::ServerComment);
    EXPECT_EQ(Decode("N0AAA>APRS42").refusal, Refusal::NoPayload);
    EXPECT_EQ(Decode("N0AAA>APRS42:").refusal, Refusal::NoPayload);
    std::string line = "N0AAA>APRS42:>";
    line.resize(kMaxLine, 'x');
    EXPECT_EQ(Decode(line).refusal, Refusal::None);
    EXPECT_EQ(Decode(line + 'x').refusal, Refusal::LineTooLong);
}

TEST(Header, EveryRefusalHasItsOwnWords)
{
    for (std::size_t i = 1; i < kRefusalCount; ++i) {
        const auto text = RefusalText(static_cast<Refusal>(i));
        EXPECT_FALSE(text.empty());
        for (std::size_t j = 1; j < i; ++j)
            EXPECT_NE(text, RefusalText(static_cast<Refusal>(j)));
    }
}

} // namespace
} // namespace ruvenmark::aprs
