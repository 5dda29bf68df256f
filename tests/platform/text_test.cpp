#include "platform/text.h"

#include <gtest/gtest.h>

namespace ruvenmark {
namespace {

using Pieces = std::vector<std::string_view>;

TEST(Text, Utf8IsCheckedAtItsEdges)
{
    for (const char* text : {"", "plain", "\xC2\x80", "\xDF\xBF", "\xE0\xA0\x80", "\xED\x9F\xBF", "\xEE\x80\x80",
                             "\xF0\x90\x80\x80", "\xF4\x8F\xBF\xBF"})
        EXPECT_TRUE(IsUtf8(text)) << text;
    for (const char* text : {"\x80", "\xC1\xBF", "\xE0\x9F\xBF", "\xED\xA0\x80", "\xF0\x8F\xBF\xBF", "\xF4\x90\x80\x80",
                             "\xF5\x80\x80\x80", "\xFF", "\xC2", "\xE2\x82", "\xF0\x9F\x98", "\xC2x", "a\xE2\x82z"})
        EXPECT_FALSE(IsUtf8(text)) << text;
    EXPECT_TRUE(IsUtf8(std::string_view("\0", 1)));
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

TEST(Text, CharactersAreSequencesOrBytes)
{
    EXPECT_EQ(FirstCharacters("\xE2\x82\xAC\xC3\xBCx", 2), "\xE2\x82\xAC\xC3\xBC");
    EXPECT_EQ(FirstCharacters("\xE2\x82\xAC\xC3\xBCx", 9), "\xE2\x82\xAC\xC3\xBCx");
    EXPECT_EQ(FirstCharacters("\xFC\xFC\xFC", 2), "\xFC\xFC");
    EXPECT_EQ(FirstCharacters("abc", 0), "");
}

TEST(Text, SplitsAndTrims)
{
    EXPECT_EQ(Split("", ':'), (Pieces{""}));
    EXPECT_EQ(Split("a::b:", ':'), (Pieces{"a", "", "b", ""}));
    EXPECT_EQ(Words("  a  b "), (Pieces{"a", "b"}));
    EXPECT_TRUE(Words("   ").empty());
    EXPECT_EQ(Lines("a\r\nb\n\r\nc\rd\r\r\n"), (Pieces{"a", "b", "", "c\rd\r", ""}));
    EXPECT_EQ(Trim("  a b\t "), "a b\t");
    EXPECT_EQ(Trim("   "), "");
}

TEST(Text, OnlyTheLettersOfAsciiIgnoreCase)
{
    EXPECT_EQ(CompareIgnoringCase("alfa", "ALFA"), 0);
    EXPECT_LT(CompareIgnoringCase("alf", "ALFA"), 0);
    EXPECT_GT(CompareIgnoringCase("b", "ALFA"), 0);
    EXPECT_LT(CompareIgnoringCase("z", "\xE4"), 0); // Bytes are unsigned.
    EXPECT_NE(CompareIgnoringCase("\xC4", "\xE4"), 0);
    EXPECT_TRUE(ContainsIgnoringCase("xN0CALLx", "n0call"));
    EXPECT_TRUE(ContainsIgnoringCase("", ""));
    EXPECT_FALSE(ContainsIgnoringCase("abc", "abcd"));
}

} // namespace
} // namespace ruvenmark
