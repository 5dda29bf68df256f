#include "platform/failure.h"
#include "platform/numbers.h"
#include "platform/text.h"

#include <gtest/gtest.h>

#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <limits>
#include <random>

namespace ruvenmark {
namespace {

// Neither a terminal nor the order of a line's words is steered by what came from the air.
TEST(Text, ControlsAndDirectionMarksAreHarmlessOnATerminal)
{
    EXPECT_EQ(
        TerminalText("a\x1b[2J\n\x7f\u0085\u009bz\u00a0\u00e4\u202e\u2066\u200f\u2028\u061c\ufeff\u4e2d\U0001f600"),
        "a.[2J....z\u00a0\u00e4......\u4e2d\U0001f600");
    EXPECT_EQ(TerminalText("\x9b\xe4"), ".\u00e4"); // Read as Latin-1.
    EXPECT_EQ(TerminalJson("{\n \"a\": \"\u00e4\x7f\u009b\u202e\u4e2d\\u001b\"\n}"),
              "{\n \"a\": \"\u00e4\\u007f\\u009b\\u202e\u4e2d\\u001b\"\n}");
}

TEST(Text, Utf8IsCheckedAtItsEdges)
{
    for (const char* text :
         {"", "a\xC2\x80", "\xDF\xBF", "\xE0\xA0\x80", "\xED\x9F\xBF", "\xF0\x90\x80\x80", "\xF4\x8F\xBF\xBF"})
        EXPECT_TRUE(IsUtf8(text)) << text;
    for (const char* text : {"\x80", "\xC1\xBF", "\xE0\x9F\xBF", "\xED\xA0\x80", "\xF0\x8F\xBF\xBF", "\xF4\x90\x80\x80",
                             "\xC2", "\xE2\x82", "\xF0\x9F\x98", "\xC2x"})
        EXPECT_FALSE(IsUtf8(text)) << text;
}

TEST(Text, ShownTextKeepsUtf8AndReadsTheRestAsLatin1)
{
    EXPECT_EQ(ShownText("gr\xC3\xBC\xC3\x9F"), "gr\xC3\xBC\xC3\x9F");
    EXPECT_EQ(ShownText("gr\xFC\xDF"), "gr\xC3\xBC\xC3\x9F");
    std::string all;
    for (int byte = 0; byte < 256; ++byte)
        all += static_cast<char>(byte);
    EXPECT_TRUE(IsUtf8(ShownText(all)));
}

TEST(Text, OnlyTheLettersOfAsciiIgnoreCase)
{
    EXPECT_EQ(CompareIgnoringCase("alfa", "ALFA"), 0);
    EXPECT_LT(CompareIgnoringCase("alf", "ALFA"), 0);
    EXPECT_LT(CompareIgnoringCase("z", "\xE4"), 0); // Bytes are unsigned.
    EXPECT_NE(CompareIgnoringCase("\xC4", "\xE4"), 0);
    EXPECT_TRUE(ContainsIgnoringCase("xN0CALLx", "n0call") && ContainsIgnoringCase("", ""));
    EXPECT_FALSE(ContainsIgnoringCase("abc", "abcd"));
}

TEST(Numbers, ReadsDecimalNumbersAndNothingElse)
{
    for (const auto& [text, number] :
         {std::pair(" 12 ", 12.0), {"+1.5", 1.5}, {"-.5", -0.5}, {"5.", 5.0}, {"1e3", 1e3}})
        EXPECT_EQ(ReadNumber(text), number) << text;
    for (const char* text :
         {"", " ", "+", ".", "+-5", "--5", "0x10", "1e400", "inf", "nan", "1,5", "1 2", "12a", "1e", "\t1"})
        EXPECT_EQ(ReadNumber(text), std::nullopt) << text;
    EXPECT_EQ(ReadNumber(std::string_view("1\0", 2)), std::nullopt);
}

TEST(Numbers, WholeNumbersAreRoundedHalfToEvenAndChecked)
{
    for (const auto& [value, rounded] :
         {std::pair(0.5, 0), {1.5, 2}, {-2.5, -2}, {32766.5, 32766}, {32767.4999, 32767}, {-32768.5, -32768}})
        EXPECT_EQ(ToInt16(value), rounded) << value;
    EXPECT_THROW(ToInt16(32767.5), Failure);
    EXPECT_THROW(ToInt16(-32768.51), Failure);
    EXPECT_EQ(ToInt32("2147483647.4"), 2147483647);
    EXPECT_EQ(ToInt32("-2147483648.5"), std::numeric_limits<std::int32_t>::min());
    for (const double value : {2147483647.5, std::nan(""), HUGE_VAL})
        EXPECT_THROW(ToInt32(value), Failure) << value;
    EXPECT_THROW(ToInt16("x"), Failure);
    EXPECT_THROW(ToDouble(""), Failure);
}

TEST(Numbers, TruthIsAWordOrANumber)
{
    for (const char* text : {" TRUE ", "true", "-1", "0.1"})
        EXPECT_TRUE(ToBool(text)) << text;
    for (const char* text : {"False", "0", "-0"})
        EXPECT_FALSE(ToBool(text)) << text;
    for (const char* text : {"", "yes", "Truely", "nan"})
        EXPECT_THROW(ToBool(text), Failure) << text;
}

TEST(Numbers, ShortTextIsPlainAndReadsBack)
{
    EXPECT_EQ(ShortText(49.05833333333333), "49.05833333333333");
    for (const auto& [value, text] : {std::pair(1e21, "1000000000000000000000"), {-0.0, "0"}, {1e-7, "0.0000001"}})
        EXPECT_EQ(ShortText(value), text);
    for (const auto& [value, text] : {std::pair(-0.4, "0"), {2.5, "2"}, {70000.0, "70000"}})
        EXPECT_EQ(NearestText(value), text);

    std::mt19937_64 random(1);
    for (int i = 0; i < 20000; ++i) {
        const double value = std::bit_cast<double>(random());
        if (std::isfinite(value)) {
            ASSERT_EQ(ReadNumber(ShortText(value)), value) << value;
        }
        // Millionths have a road of their own, to the same texts.
        const double millionths = static_cast<double>(static_cast<std::int64_t>(random() >> (14 + i % 50)) - 300) / 1e6;
        std::array<char, 400> shortest{};
        std::to_chars(shortest.data(), shortest.data() + shortest.size(), millionths, std::chars_format::fixed);
        ASSERT_EQ(ShortText(millionths), shortest.data());
    }
    for (const double value : {std::numeric_limits<double>::denorm_min(), std::numeric_limits<double>::lowest()})
        EXPECT_EQ(ReadNumber(ShortText(value)), value);
}

} // namespace
} // namespace ruvenmark
