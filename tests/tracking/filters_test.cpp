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
    for (const auto& [text, pattern] :
         {std::pair("", ""), std::pair("", "***"), std::pair("APRS", "APRS"), std::pair("APRS", "AP*"),
          std::pair("APRS", "*S"), std::pair("APRS", "A*R*"), std::pair("APRS", "????"), std::pair("N0CALL", "N#CALL"),
          std::pair("AB", "[A-C][!A-A]"), std::pair("-", "[-]"), std::pair("-", "[A-]"), std::pair("*", "[*]"),
          std::pair("#", "[?#]"), std::pair("!", "[A!]"), std::pair("\xff", "[\x80-\xff]"), std::pair("\xff", "?"),
          std::pair("aXbXc", "a*Xc"), std::pair("]", "]")})
        EXPECT_TRUE(MatchesPattern(text, pattern)) << text << " like " << pattern;
    for (const auto& [text, pattern] :
         {std::pair("", "?"), std::pair("A", ""), std::pair("aprs", "APRS"), std::pair("APRS", "APR"),
          std::pair("APRSX", "APRS"), std::pair("NXCALL", "N#CALL"), std::pair("D", "[A-C]"), std::pair("A", "[!A]"),
          std::pair("", "[A]"), std::pair("A", "[]"), std::pair("A", "[A"), std::pair("[A", "[A"),
          std::pair("APRS", "*X*"), std::pair("\xb2", "#")})
        EXPECT_FALSE(MatchesPattern(text, pattern)) << text << " like " << pattern;
}

TEST(MatchesList, TakesThePiecesBetweenBlanks)
{
    EXPECT_TRUE(MatchesList("APRS", "TEST APRS"));
    EXPECT_TRUE(MatchesList("APRS", "TEST AP*"));
    EXPECT_FALSE(MatchesList("TEST APRS", "TEST APRS"));
    // An empty piece stands between two blanks and at the ends, and is like an empty text only.
    EXPECT_TRUE(MatchesList("", ""));
    EXPECT_TRUE(MatchesList("", "A  B"));
    EXPECT_TRUE(MatchesList("", "A "));
    EXPECT_FALSE(MatchesList("", "A B"));
    EXPECT_FALSE(MatchesList("A", "  "));
    EXPECT_FALSE(MatchesList("A\0"sv, "A\0"sv)); // Pieces with a NUL are out.
    EXPECT_TRUE(MatchesList("A", "B\0* A"sv));
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
    double Miles(double lat1, double lon1, double lat2, double lon2)
    {
        return TravelDistance(p.main, lat1, lon1, lat2, lon2);
    }

    TestProgram p;
    ReportFilter& filter;
};

TEST_F(FilterReports, WithNothingFilledEverythingPasses)
{
    EXPECT_FALSE(Drops("N0CALL"));
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
    filter.bTracked = true;
    filter.Call.clear();
    EXPECT_TRUE(Drops("N2CALL")); // A track list alone keeps all others out ...
    SetTrackList(p.main.Of(Channel::TCP), "");
    EXPECT_FALSE(Drops("N2CALL")); // ... and an empty one does nothing at all.

    filter.Call = "N1CALL";
    Around("48", "11", "10");
    EXPECT_FALSE(Drops("N1CALL", "APRS", 10, 10));
    EXPECT_FALSE(Drops("N2CALL", "APRS", 48.1, 11));
    EXPECT_TRUE(Drops("N2CALL", "APRS", 48.2, 11));
}

TEST_F(FilterReports, ADistanceEqualToTheRangePasses)
{
    const double miles = Miles(48, 11, 48.5, 11.5);
    Around("48", "11", ShortText(miles));
    EXPECT_FALSE(Drops("N0CALL", "APRS", 48.5, 11.5));
    Around("48", "11", ShortText(std::nextafter(miles, 0)));
    EXPECT_TRUE(Drops("N0CALL", "APRS", 48.5, 11.5));
    Around(" +48 ", "11.0", "0"); // As typed.
    EXPECT_FALSE(Drops("N0CALL", "APRS", 48, 11));
}

// The flag overrides whatever the lists said.
TEST_F(FilterReports, AReportWithoutAPositionFollowsItsOwnFlag)
{
    Around("48", "11", "10");
    filter.Call = "N1CALL";
    EXPECT_FALSE(Drops("N2CALL"));
    EXPECT_FALSE(Drops("N2CALL", "APRS", 90.01, 11));
    filter.bApply = true;
    EXPECT_TRUE(Drops("N2CALL"));
    EXPECT_TRUE(Drops("N2CALL", "APRS", 48, -180.01));
    EXPECT_FALSE(Drops("N1CALL")); // Accepted ahead of that.
    EXPECT_FALSE(Drops("N2CALL", "APRS", 48, 11));
    Around("90.01", "11", "10"); // A centre that is not on the earth counts as the same.
    EXPECT_TRUE(Drops("N2CALL", "APRS", 48, 11));
    filter.bApply = false;
    EXPECT_FALSE(Drops("N2CALL", "APRS", 48, 11));
}

TEST_F(FilterReports, NeverFails)
{
    filter.Call = "N1CALL";
    for (const char* range : {"far", " ", "1e999", "10 miles", "nan"}) { // Counts as empty.
        Around("48", "11", range);
        EXPECT_TRUE(Drops("N2CALL", "APRS", 48, 11)) << range;
    }
    Around("48", "east", "10");
    EXPECT_TRUE(Drops("N2CALL", "APRS", 48, 11));

    TestProgram bare(false); // No map: the result stands as the lists left it.
    ReportFilter& other = bare.main.Of(Channel::RF).Filter;
    other.Lat = "48", other.Lon = "11", other.Range = "10";
    EXPECT_FALSE(FilterReport(bare.main, Channel::RF, "N2CALL", "APRS", 10, 10));
    other.Call = "N1CALL";
    EXPECT_TRUE(FilterReport(bare.main, Channel::RF, "N2CALL", "APRS", 48, 11));
}

} // namespace
} // namespace ruvenmark
