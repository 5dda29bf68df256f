#include "platform/numbers.h"
#include "support/test_program.h"
#include "tracking/filters.h"
#include "tracking/pattern.h"
#include "tracking/track_lists.h"

#include <gtest/gtest.h>

#include <cmath>

namespace ruvenmark {
namespace {

using namespace std::string_view_literals;

TEST(MatchesPattern, KnowsRunsCharactersDigitsAndClasses)
{
    const std::pair<const char*, const char*> kFit[] = {
        {"", "***"},          {"APRS", "AP*"},         {"APRS", "*S"},    {"APRS", "A*R*"}, {"APRS", "????"},
        {"N0CALL", "N#CALL"}, {"AB", "[A-C][!A-A]"},   {"-", "[-]"},      {"-", "[A-]"},    {"*", "[*]"},
        {"!", "[A!]"},        {"\xff", "[\x80-\xff]"}, {"aXbXc", "a*Xc"}, {"]", "]"}};
    for (const auto& [text, pattern] : kFit)
        EXPECT_TRUE(MatchesPattern(text, pattern)) << text << " like " << pattern;
    const std::pair<const char*, const char*> kDoNot[] = {
        {"", "?"},      {"A", ""},     {"aprs", "APRS"}, {"APRS", "APR"}, {"APRSX", "APRS"}, {"NXCALL", "N#CALL"},
        {"D", "[A-C]"}, {"A", "[!A]"}, {"", "[A]"},      {"A", "[]"},     {"[A", "[A"},      {"APRS", "*X*"},
        {"\xb2", "#"}};
    for (const auto& [text, pattern] : kDoNot)
        EXPECT_FALSE(MatchesPattern(text, pattern)) << text << " like " << pattern;
}

// An empty piece stands between two blanks and at the ends, and is like an empty text only. Pieces with a NUL are out.
TEST(MatchesList, TakesThePiecesBetweenBlanks)
{
    for (const auto& [text, list] :
         {std::pair("APRS"sv, "TEST AP*"sv), {"", ""}, {"", "A  B"}, {"", "A "}, {"A", "B\0* A"sv}})
        EXPECT_TRUE(MatchesList(text, list)) << list;
    for (const auto& [text, list] :
         {std::pair("TEST APRS"sv, "TEST APRS"sv), {"", "A B"}, {"A", "  "}, {"A\0"sv, "A\0"sv}})
        EXPECT_FALSE(MatchesList(text, list)) << list;
}

class FilterReports : public testing::Test {
protected:
    FilterReports() : filter(p.main.Of(Channel::TCP).Filter) {}
    bool Drops(std::string_view call, std::string_view dest = "APRS", double lat = kNoPosition,
               double lon = kNoPosition)
    {
        return FilterReport(p.main, Channel::TCP, call, dest, lat, lon);
    }
    void Around(const char* lat, const char* lon, const std::string& range)
    {
        filter.Lat = lat, filter.Lon = lon, filter.Range = range;
    }

    TestProgram p;
    ReportFilter& filter;
};

TEST_F(FilterReports, WithNothingFilledEverythingPasses)
{
    filter.bApply = true; // Without a range there is no test of positions either.
    filter.Lat = "48";
    EXPECT_FALSE(Drops("N0CALL"));
    EXPECT_FALSE(Drops(""));
}

// What is typed into a filter counts from the moment it is switched on, on its own channel.
TEST_F(FilterReports, OneThatIsOffHoldsNothingBack)
{
    filter.Reject = "N*";
    filter.Dest = "NONE";
    p.Position(Channel::TCP, "N0CALL", 1, 2);
    EXPECT_EQ(p.Text("TCP"), "TCP reports (1)");
    filter.bOn = true;
    p.Position(Channel::TCP, "N1CALL", 1, 2);
    p.Position(Channel::RF, "N1CALL", 1, 2);
    EXPECT_EQ(p.Text("TCP"), "TCP reports (1)");
    EXPECT_EQ(p.Text("RF"), "RF reports (1)");
}

TEST_F(FilterReports, SubnetAndRejectListAreWalls)
{
    filter.Dest = "APRS* TEST";
    filter.Call = "N0CALL";
    SetTrackList(p.main.Of(Channel::TCP), "N0CALL");
    EXPECT_FALSE(Drops("n0call", "aprs55")); // Both are upper-cased.
    EXPECT_TRUE(Drops("N0CALL", "TESTS"));
    EXPECT_TRUE(Drops("N0CALL", ""));
    filter.Reject = "N0*";
    EXPECT_TRUE(Drops("N0CALL", "APRS"));
}

TEST_F(FilterReports, TrackListAcceptListAndRangeAreThreeWaysIn)
{
    filter.Call = "N1CALL";
    SetTrackList(p.main.Of(Channel::TCP), "N0CALL");
    EXPECT_FALSE(Drops(" n0call ")); // Tracked stations are known trimmed.
    EXPECT_FALSE(Drops("N1CALL"));
    EXPECT_TRUE(Drops("N2CALL"));
    filter.bTracked = false; // Now judged by the accept list alone.
    EXPECT_TRUE(Drops("N0CALL"));
    Around("48", "11", "10");
    EXPECT_FALSE(Drops("N1CALL", "APRS", 10, 10));
    EXPECT_FALSE(Drops("N2CALL", "APRS", 48.1, 11));
    EXPECT_TRUE(Drops("N2CALL", "APRS", 48.2, 11));

    filter = {};
    EXPECT_TRUE(Drops("N2CALL")); // A track list alone keeps all others out ...
    SetTrackList(p.main.Of(Channel::TCP), "");
    EXPECT_FALSE(Drops("N2CALL")); // ... and an empty one does nothing at all.
}

TEST_F(FilterReports, ADistanceEqualToTheRangePasses)
{
    const double miles = TravelDistance(p.main, 48, 11, 48.5, 11.5);
    for (const auto& [range, bDropped] : {std::pair(miles, false), {std::nextafter(miles, 0), true}}) {
        Around(" +48 ", "11.0", ShortText(range)); // As typed.
        EXPECT_EQ(Drops("N0CALL", "APRS", 48.5, 11.5), bDropped);
    }
}

// The flag overrides whatever the lists said, but an accepted call is in ahead of that.
TEST_F(FilterReports, AReportWithoutAPositionFollowsItsOwnFlag)
{
    Around("48", "11", "10");
    filter.Call = "N1CALL";
    for (const bool bApply : {false, true}) {
        filter.bApply = bApply;
        EXPECT_EQ(Drops("N2CALL"), bApply);
        EXPECT_EQ(Drops("N2CALL", "APRS", 90.01, 11), bApply);
        EXPECT_FALSE(Drops("N1CALL"));
        EXPECT_FALSE(Drops("N2CALL", "APRS", 48, 11));
    }
    Around("90.01", "11", "10"); // A centre that is not on the earth counts as the same.
    EXPECT_TRUE(Drops("N2CALL", "APRS", 48, 11));
}

TEST_F(FilterReports, NeverFails)
{
    filter.Call = "N1CALL";
    for (const auto& [lon, range] :
         {std::pair("11", "far"), {"11", " "}, {"11", "1e999"}, {"11", "10 miles"}, {"east", "10"}}) {
        Around("48", lon, range); // Counts as empty.
        EXPECT_TRUE(Drops("N2CALL", "APRS", 48, 11)) << lon << range;
    }
    TestProgram bare(false); // No map: the result stands as the lists left it.
    ReportFilter& other = bare.main.Of(Channel::RF).Filter;
    other.Lat = "48", other.Lon = "11", other.Range = "10";
    EXPECT_FALSE(FilterReport(bare.main, Channel::RF, "N2CALL", "APRS", 10, 10));
    other.Call = "N1CALL";
    EXPECT_TRUE(FilterReport(bare.main, Channel::RF, "N2CALL", "APRS", 48, 11));
}

} // namespace
} // namespace ruvenmark
