#include "app/headless.h"
#include "platform/failure.h"
#include "platform/file_lock.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <chrono>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <stdlib.h>
#include <sys/stat.h>
#include <thread>

namespace ruvenmark {
namespace {

using nlohmann::json;
using testing::HasSubstr;

constexpr const char* kDay = "N0CALL-9>APRS,WIDE1-1:!4903.50N/07201.75W>088/036hello\r\n"
                             "N0CALL-9>APRS,WIDE1-1:!4904.50N/07201.75W>088/036hello\r\n"
                             "N1CALL>APRS:>status \xe4\x1b[2J\x9b\r\n"
                             "what is this\r\n";

class Headless : public testing::Test {
protected:
    Headless()
    {
        std::string name = testing::TempDir() + "ruvenmark-XXXXXX";
        folder = mkdtemp(name.data());
    }
    void TearDown() override { std::filesystem::remove_all(folder); }

    std::string Path(const char* name) const { return folder + "/" + name; }
    void Write(const char* name, const std::string& text) { std::ofstream(Path(name), std::ios::binary) << text; }
    std::string Read(const char* name) const
    {
        std::ifstream file(Path(name), std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }
    int Run(std::vector<std::string> words)
    {
        words.insert(words.end(), {"--headless", "--settings", Path("settings"), "--folder", Path("program/folder")});
        out.str({});
        err.str({});
        return RunHeadless(ReadOptions(words), out, err);
    }

    // A day of packets, loaded.
    int RunDay(std::vector<std::string> more)
    {
        Write("day.txt", kDay);
        more.insert(more.end(), {"--load", Path("day.txt")});
        return Run(std::move(more));
    }

    std::string folder;
    std::ostringstream out, err;
};

TEST_F(Headless, LoadsPrintsAndStops)
{
    EXPECT_EQ(RunDay({"--print", "tree,counts"}), 0);
    EXPECT_THAT(out.str(), testing::StartsWith("My station\n  Position\n  Weather\nRF reports\n"));
    EXPECT_THAT(out.str(), HasSubstr("FL reports (2)\n  Positions (1)\n    N0CALL-9\n      Lat: "));
    EXPECT_THAT(out.str(), HasSubstr("decoded: 3\nundecoded: 1\n  "));
    EXPECT_THAT(out.str(), HasSubstr("abandoned: 0\n"));
    // Nothing from the air may steer a terminal: neither escapes nor the one-byte controls that read as Latin-1.
    EXPECT_THAT(out.str(), HasSubstr("status \u00e4.[2J.\n"));
    EXPECT_EQ(err.str(), ""); // Nobody is asked to save the map.
}

TEST_F(Headless, PrintsAllAsJson)
{
    EXPECT_EQ(RunDay({"--json", "--track", "n0call-9", "--set", "TrackLineSize=3"}), 0);
    EXPECT_THAT(out.str(), HasSubstr("status \u00e4\\u001b[2J\\u009b\""));
    const json whole = json::parse(out.str());
    const json expected = json::parse(R"json({
        "/tree/3/key": "FL", "/tree/3/text": "FL reports (2)", "/tree/3/image": "Closed",
        "/tree/3/children/0/children/0/key": "FLPositionsN0CALL-9", "/tree/3/children/0/children/0/image": "Car",
        "/tree/3/children/0/children/0/bold": true, "/tree/3/children/0/children/0/color": 255,
        "/markers/0/name": "N0CALL-9(f)*", "/markers/1/name": "N0CALL-9(f)", "/markers/1/symbol": 82,
        "/markers/1/balloon": 1, "/lines/0/weight": 3, "/lines/0/end_arrow": true, "/circles": [],
        "/records/FL/N0CALL-9/Speed": "41", "/records/RF": {}, "/counts/decoded": 3
    })json");
    for (const auto& [at, value] : expected.items())
        EXPECT_EQ(whole.at(json::json_pointer(at)), value) << at;
    EXPECT_EQ(whole["markers"].size() + whole["lines"].size(), 3U);
    EXPECT_NEAR(whole["markers"][1]["lat"].get<double>(), 49.075, 1e-9);
    EXPECT_THAT(whole["markers"][1]["note"].get<std::string>(), testing::StartsWith("FL, "));
    EXPECT_EQ(whole["counts"]["undecoded_reasons"].size(), 1U);
}

TEST_F(Headless, WhatIsAbandonedIsCountedAndTold)
{
    EXPECT_EQ(RunDay({"--json", "--set", "DefaultMap=/missing.ptm"}), 0);
    const json counts = json::parse(out.str())["counts"];
    EXPECT_EQ(counts["abandoned"], 1);
    EXPECT_THAT(counts["abandoned_reasons"].begin().key(), HasSubstr("/missing.ptm"));
    EXPECT_THAT(err.str(), HasSubstr("The map for the start could not be opened: cannot open /missing.ptm"));
    EXPECT_EQ(json::parse(out.str())["tree"].size(), 4U);
}

// What is set for a run is not the operator's choice for the next one.
TEST_F(Headless, SettingsOfTheRunStayOutOfTheFile)
{
    Write("settings", "[Settings]\nCall=N0CALL\nTrackedFLStations=A\n");
    EXPECT_EQ(RunDay({"--set", "Call=N9CALL", "--track", "N0CALL-9", "--region", "2", "--print", "markers"}), 0);
    EXPECT_THAT(out.str(), HasSubstr("N0CALL-9(f)*  49."));
    const std::string saved = Read("settings");
    EXPECT_THAT(saved, HasSubstr("Call=N0CALL\n"));
    EXPECT_THAT(saved, HasSubstr("TrackedFLStations=A\n"));
    EXPECT_THAT(saved, testing::Not(HasSubstr("Region=")));
    EXPECT_THAT(saved, HasSubstr("Path=WIDE2-2\n"));
    EXPECT_TRUE(std::filesystem::is_directory(Path("program/folder")));

    // In whatever spelling: the program writes its own.
    Write("settings", "[Settings]\nTrackedFLStations=a  b\n");
    EXPECT_EQ(Run({"--track", "b,n0call", "--set", "FLAdd=0", "--set", "FLDelay=05", "--set", "FLShow=tRUE"}), 0);
    for (const char* key : {"N0CALL", "FLAdd", "FLDelay", "FLShow"})
        EXPECT_THAT(Read("settings"), testing::Not(HasSubstr(key)));
}

TEST_F(Headless, MessagesGoToTheErrorStreamAndTheirPart)
{
    Write("one.txt", "N0CALL>APRS:>x\n");
    EXPECT_EQ(Run({"--load", Path("one.txt"), "--print", "messages,records"}), 0);
    EXPECT_THAT(err.str(), HasSubstr("Stations load failed!"));
    EXPECT_THAT(out.str(), testing::StartsWith("Stations load failed!\nFL N0CALL\n  Call: N0CALL\n  Status: x\n"));
}

// A script must see that what it asked for is not there.
TEST_F(Headless, WhatCannotBeWrittenEndsInStatusOneAndALine)
{
    std::ofstream full("/dev/full");
    const auto options = [&](const std::string& settings) {
        return ReadOptions({"--headless", "--settings", settings, "--folder", Path("program")});
    };
    EXPECT_EQ(RunHeadless(options(Path("settings")), full, err), 1);
    EXPECT_EQ(err.str(), "ruvenmark: the output could not be written\n");
    err.str({});
    EXPECT_EQ(RunHeadless(options(Path("none/settings")), out, err), 1);
    EXPECT_EQ(err.str(), "ruvenmark: The settings could not be saved: cannot write " + Path("none/settings") +
                             ": No such file or directory\n");
}

TEST_F(Headless, ASecondProgramOnTheSameSettingsSavesNothing)
{
    Write("settings", "[Settings]\n");
    {
        const FileLock other(Path("settings"));
        EXPECT_EQ(Run({}), 0);
        EXPECT_EQ(err.str(), "ruvenmark: another program uses these settings: nothing will be saved\n");
        EXPECT_EQ(Read("settings"), "[Settings]\n");
    }
    Write(".ruvenmark-7", "half a fi"); // Of a program that was killed.
    EXPECT_EQ(Run({}), 0);
    EXPECT_EQ(err.str(), "");
    EXPECT_THAT(Read("settings"), HasSubstr("\nCall=\n"));
    EXPECT_FALSE(std::filesystem::exists(Path(".ruvenmark-7")));
    EXPECT_FALSE(std::filesystem::exists(Path("settings.lock")));
}

TEST_F(Headless, LoadsFromAPipeAndWaitsForNoMap)
{
    ASSERT_EQ(mkfifo(Path("pipe").c_str(), 0600), 0);
    std::thread writer([&] { std::ofstream(Path("pipe"), std::ios::binary) << kDay; });
    Write("settings", "[Settings]\nFLDelay=20000\n"); // A load that heeds it takes over a minute.
    const auto start = std::chrono::steady_clock::now();
    EXPECT_EQ(Run({"--load", Path("pipe"), "--print", "counts"}), 0);
    writer.join();
    EXPECT_THAT(out.str(), testing::StartsWith("decoded: 3\nundecoded: 1\n"));
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(20));
    EXPECT_THAT(Read("settings"), HasSubstr("FLDelay=20000\n"));
}

TEST_F(Headless, FilesThatCannotBeUsedAreToldAhead)
{
    EXPECT_THROW(Run({"--load", Path("missing.txt")}), Failure);
    EXPECT_THROW(Run({"--load", folder}), Failure);
    EXPECT_THROW(Run({"--load", "/dev/zero"}), Failure);
    EXPECT_FALSE(std::filesystem::exists(Path("settings"))); // Nothing had started.
    std::filesystem::create_directory(Path("settings"));
    EXPECT_THROW(Run({}), Failure);
    std::filesystem::remove(Path("settings"));
    ASSERT_EQ(mkfifo(Path("settings").c_str(), 0600), 0);
    EXPECT_THROW(Run({}), Failure); // And does not wait for a writer.
    std::filesystem::remove(Path("settings"));
    Write("program", "a file where the folder should be");
    EXPECT_THROW(Run({}), Failure);
}

} // namespace
} // namespace ruvenmark
