#include "app/options.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace ruvenmark {
namespace {

using testing::ElementsAre;
using testing::Pair;

TEST(Options, ReadWhatIsAsked)
{
    const auto options = ReadOptions({"--headless", "--load=a=b.txt", "--print", "counts,tree", "--print=records",
                                      "--track", "n0call, b", "--track", "c", "--set", "Call=N0=1",
                                      "--set=Comment=", "--region", "2", "--settings", "/s", "--folder=/f"});
    EXPECT_TRUE(options.bHeadless);
    EXPECT_FALSE(options.bJson);
    EXPECT_EQ(options.loadFile, "a=b.txt");
    EXPECT_EQ(options.settingsFile, "/s");
    EXPECT_EQ(options.folder, "/f");
    EXPECT_THAT(options.print, ElementsAre(PrintPart::Counts, PrintPart::Tree, PrintPart::Records));
    EXPECT_EQ(options.track, "N0CALL B C");
    EXPECT_THAT(options.settings, ElementsAre(Pair("Call", "N0=1"), Pair("Comment", ""), Pair("Region", "2")));

    const auto window = ReadOptions(
        {"day.txt", "--view", "-33.9,151.2,10", "--size=800x600", "--scale", "2", "--dark", "--screenshot", "s.png"});
    EXPECT_EQ(window.loadFile, "day.txt");
    EXPECT_EQ(window.view->lat, -33.9);
    EXPECT_EQ(window.size->height, 600);
    EXPECT_THAT(window.print, ElementsAre(PrintPart::Tree));
    EXPECT_TRUE(ReadOptions({"--print", "tree", "--help"}).bHelp); // Help is given whatever else is wrong.
}

TEST(Options, ReadLinks)
{
    const auto options = ReadOptions(
        {"--headless", "--connect", "tnc=/dev/serial/by-path/a:b:9600,server", "--connect=gps", "--for=5", "--follow"});
    ASSERT_EQ(options.connect.size(), 3U);
    EXPECT_EQ(options.connect[0].link, LinkName::Tnc);
    EXPECT_EQ(options.connect[0].address, "/dev/serial/by-path/a:b"); // A name may hold colons.
    EXPECT_EQ(options.connect[0].number, 9600);
    EXPECT_EQ(options.connect[1].link, LinkName::Server);
    EXPECT_EQ(options.connect[1].address, "");
    EXPECT_THAT(options.settings,
                ElementsAre(Pair("ConnectSocket", "False"), Pair("SerialPort", "/dev/serial/by-path/a:b"),
                            Pair("LastBaudRate", "9600")));
    EXPECT_EQ(options.seconds, 5);
    EXPECT_TRUE(options.bFollow);

    for (const char* wrong : {"modem", "wx", "agw=localhost", "agw=:8000", "server=h:99999", "gps=/dev/x:fast",
                              "gps,gps", "tnc,agw", "gps,,tnc", "server=h:9.7"})
        EXPECT_THROW(ReadOptions({"--headless", "--connect", wrong}), UsageError) << wrong;
}

TEST(Options, ReadReports)
{
    using Kind = SendOption::Kind;
    const auto options =
        ReadOptions({"--headless", "--connect", "tnc", "--send", "position", "--send=status:a:b=c", "--send",
                     "message:W1AW-7: at 12:30", "--send", "object:A B:-33.5,8.25:up, or: not", "--send", "status:"});
    ASSERT_EQ(options.send.size(), 5U);
    EXPECT_EQ(options.send[0].kind, Kind::Position);
    EXPECT_EQ(options.send[1].text, "a:b=c");
    EXPECT_EQ(options.send[2].kind, Kind::Message);
    EXPECT_EQ(options.send[2].to + "|" + options.send[2].text, "W1AW-7| at 12:30");
    const SendOption& object = options.send[3];
    EXPECT_EQ(object.to + "|" + object.lat + "|" + object.lon + "|" + object.text, "A B|-33.5|8.25|up, or: not");
    EXPECT_EQ(options.send[4].kind, Kind::Status); // Its emptiness is the dialog's to refuse.

    for (const char* wrong :
         {"beacon", "status", "message:W1AW", "object:A:1,2", "object:A:1:2", "positions", "Position"})
        EXPECT_THROW(ReadOptions({"--headless", "--connect", "tnc", "--send", wrong}), UsageError) << wrong;
}

TEST(Options, RefuseInOneClearLine)
{
    const std::vector<std::pair<std::vector<std::string>, const char*>> cases = {
        {{"--headles"}, "unknown option '--headles'; see --help"},
        {{"--load"}, "--load needs a value"},
        {{"--json=yes"}, "--json takes no value"},
        {{"--headless", "--print", "trees"}, "--print: 'trees' is not tree, markers, records, messages or counts"},
        {{"--print", "tree"}, "--print and --json go with --headless"},
        {{"--headless", "--screenshot", "a.png"}, "--screenshot and --headless do not go together"},
        {{"--region", "3"}, "--region: '3' is not 1 (North America) or 2 (Europe)"},
        {{"--set", "Call"}, "--set: 'Call' is not KEY=VALUE"},
        {{"--connect", "gps"}, "--connect goes with --headless"},
        {{"--headless", "--follow"}, "--for, --follow and --send go with --connect"},
        {{"--headless", "--connect", "tnc", "--send", "beacon"},
         "--send: 'beacon' is not position, weather, status:TEXT, message:TO:TEXT or object:NAME:LAT,LON:TEXT"},
        {{"--headless", "--connect", "gps", "--for", "0.9"},
         "--for: '0.9' is not a whole number of seconds up to 1000000"},
        {{"a.txt", "b.txt"}, "one file at a time: 'b.txt' is one too many"},
        {{"--size", "800.5x600"},
         "--size: '800.5x600' is not WIDTHxHEIGHT in whole numbers between 200x200 and 10000x10000"},
        {{"--view", "91,0,4"}, "--view: '91,0,4' is not LAT,LON,ZOOM with a zoom from 1 to 19"},
        {{"--scale", "nan"}, "--scale: 'nan' is not a number from 1 to 4"},
    };
    for (const auto& [words, message] : cases) {
        try {
            ReadOptions(words);
            ADD_FAILURE() << words.front() << " is taken";
        } catch (const UsageError& error) {
            EXPECT_STREQ(error.what(), message);
        }
    }
}

} // namespace
} // namespace ruvenmark
