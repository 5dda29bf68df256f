#include "platform/clock.h"
#include "platform/failure.h"
#include "platform/file_lock.h"
#include "platform/file_replacement.h"
#include "platform/files.h"
#include "platform/headless.h"

#include <gmock/gmock.h>

#include <array>
#include <csignal>
#include <cstdlib>
#include <ctime>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <sys/file.h>
#include <sys/resource.h>
#include <sys/stat.h>

namespace ruvenmark {
namespace {

namespace fs = std::filesystem;

class PosixFilesTest : public testing::Test {
protected:
    PosixFilesTest()
    {
        std::string name = JoinPath(fs::temp_directory_path().string(), "ruvenmark-test-XXXXXX");
        m_folder = ::mkdtemp(name.data());
    }
    void TearDown() override { fs::remove_all(m_folder); }

    std::string In(std::string_view name) const { return JoinPath(m_folder, name); }
    std::size_t FileCount() const
    {
        return static_cast<std::size_t>(std::distance(fs::directory_iterator(m_folder), fs::directory_iterator()));
    }
    static mode_t Mode(const std::string& path)
    {
        struct stat found = {};
        EXPECT_EQ(::stat(path.c_str(), &found), 0);
        return found.st_mode & 07777;
    }
    // What the operation says when it fails.
    template <typename Operation>
    static std::string Words(Operation operation)
    {
        try {
            operation();
        } catch (const Failure& failure) {
            return failure.what();
        }
        return "";
    }

    PosixFiles files;

private:
    std::string m_folder;
};

TEST_F(PosixFilesTest, EveryByteComesBack)
{
    std::string text;
    for (int i = 0; i < 200000; ++i)
        text += static_cast<char>(i * 7);
    for (const std::string& written : {text, std::string()}) {
        files.WriteText(written, In("a"), FileKind::Map);
        EXPECT_EQ(files.ReadText(In("a"), FileKind::Map), written);
    }
    EXPECT_EQ(FileCount(), 1U);
    files.Remove(In("a"));
    files.Remove(In("none/a"));
    EXPECT_FALSE(files.Exists(In("a")));
    EXPECT_EQ(Words([&] { files.ReadText(In("a"), FileKind::Map); }),
              "cannot open " + In("a") + ": No such file or directory");
    files.WriteText("", In("f"), FileKind::Map);
    EXPECT_NE(Words([&] { files.ReadText(In(std::string_view("f\0x", 3)), FileKind::Map); }), "");
}

TEST_F(PosixFilesTest, AWriteThatFailsHalfwayLeavesTheOldFile)
{
    files.WriteText("old", In("a"), FileKind::Map);
    const auto formerHandler = std::signal(SIGXFSZ, SIG_IGN);
    rlimit former = {};
    ASSERT_EQ(::getrlimit(RLIMIT_FSIZE, &former), 0);
    const rlimit small = {4096, former.rlim_max};
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &small), 0);
    const std::string words = Words([&] { files.WriteText(std::string(100000, 'x'), In("a"), FileKind::Map); });
    ::setrlimit(RLIMIT_FSIZE, &former);
    std::signal(SIGXFSZ, formerHandler);

    EXPECT_EQ(words, "cannot write " + In("a") + ": File too large");
    EXPECT_EQ(files.ReadText(In("a"), FileKind::Map), "old");
    EXPECT_EQ(FileCount(), 1U);
}

TEST_F(PosixFilesTest, KeepsThePermissionsAndFollowsLinks)
{
    fs::create_directory(In("d"));
    files.WriteText("old", In("d/target"), FileKind::Map);
    ASSERT_EQ(::chmod(In("d/target").c_str(), 0640), 0);
    fs::create_symlink("d/target", In("link"));
    fs::create_symlink(In("link"), In("link2"));
    files.WriteText("new", In("link2"), FileKind::Map);
    EXPECT_TRUE(fs::is_symlink(In("link2")) && fs::is_symlink(In("link")));
    EXPECT_EQ(files.ReadText(In("d/target"), FileKind::Map), "new");
    EXPECT_EQ(Mode(In("d/target")), 0640U);
    fs::create_symlink("loop", In("loop"));
    EXPECT_THAT(Words([&] { files.WriteText("x", In("loop"), FileKind::Map); }), testing::HasSubstr("symbolic links"));

    fs::create_symlink("d/made", In("dangling"));
    const mode_t former = ::umask(027);
    files.WriteText("x", In("dangling"), FileKind::Map);
    ::umask(former);
    EXPECT_EQ(files.ReadText(In("d/made"), FileKind::Map), "x");
    EXPECT_EQ(Mode(In("d/made")), 0640U);
}

// A pipe or a device has no end: it must neither be waited for nor read for ever, nor be replaced by a file.
TEST_F(PosixFilesTest, OnlyOrdinaryFilesOfFairSizeAreTexts)
{
    ASSERT_EQ(::mkfifo(In("fifo").c_str(), 0600), 0);
    const auto read = [&](const std::string& path) { return Words([&] { files.ReadText(path, FileKind::Settings); }); };
    EXPECT_EQ(read(In("fifo")), "cannot read " + In("fifo") + ": it is no ordinary file");
    EXPECT_EQ(read("/dev/zero"), "cannot read /dev/zero: it is no ordinary file");
    EXPECT_EQ(read(In("")), "cannot read " + In("") + ": Is a directory");
    EXPECT_EQ(Words([&] { files.WriteText("x", In("fifo"), FileKind::Map); }),
              "cannot write " + In("fifo") + ": it is no ordinary file");
    EXPECT_EQ(Words([&] { files.OpenStream("/dev/zero"); }), "cannot read /dev/zero: it is neither a file nor a pipe");

    std::ofstream(In("large")).close();
    fs::resize_file(In("large"), 4000000);
    EXPECT_EQ(read(In("large")), "");
    fs::resize_file(In("large"), 4000001);
    EXPECT_EQ(read(In("large")), "cannot read " + In("large") + ": it is larger than 4 MB");
}

// A pipe without a writer waits for one; one whose writers have gone is at its end.
TEST_F(PosixFilesTest, StreamsAreFilesAndPipes)
{
    const auto read = [](IByteStream& stream) -> std::string {
        std::array<char, 8> room{};
        const auto count = stream.Read(room, std::chrono::milliseconds(0));
        return count ? std::string(room.data(), *count) : "(end)";
    };
    files.WriteText("0123456789", In("a"), FileKind::Map);
    const auto file = files.OpenStream(In("a"));
    EXPECT_EQ(file->Size(), 10U);
    for (const char* bytes : {"01234567", "89", "(end)"})
        EXPECT_EQ(read(*file), bytes);

    ASSERT_EQ(::mkfifo(In("fifo").c_str(), 0600), 0);
    const auto pipe = files.OpenStream(In("fifo"));
    EXPECT_EQ(pipe->Size(), std::nullopt);
    EXPECT_EQ(read(*pipe), "");
    const int writer = ::open(In("fifo").c_str(), O_WRONLY | O_NONBLOCK);
    EXPECT_EQ(read(*pipe), "");
    ASSERT_EQ(::write(writer, "ab", 2), 2);
    ::close(writer);
    EXPECT_EQ(read(*pipe), "ab");
    EXPECT_EQ(read(*pipe), "(end)");
}

TEST_F(PosixFilesTest, WhatACrashLeftIsClearedAway)
{
    std::ofstream(In(".ruvenmark-1")).close();
    std::ofstream(In(".ruvenmark-" + std::to_string(::getpid()) + "-0")).close(); // A process of our number wrote it.
    std::ofstream(In(".ruvenmark-2-0")).close();
    const int busy = ::open(In(".ruvenmark-2-0").c_str(), O_WRONLY);
    ASSERT_EQ(::flock(busy, LOCK_EX), 0); // Another program writes it just now.
    std::ofstream(In("ruvenmark-3")).close();
    files.WriteText("x", In("a"), FileKind::Map);
    EXPECT_TRUE(fs::exists(In(".ruvenmark-2-0")) && fs::exists(In("ruvenmark-3")) && fs::exists(In("a")));
    EXPECT_EQ(FileCount(), 3U);
    ::close(busy);
    RemoveLeftovers(In(""));
    EXPECT_EQ(FileCount(), 2U);
    RemoveLeftovers(In("none"));
}

TEST_F(PosixFilesTest, SettingsAreForThisUserAloneAndItIsKnownWhoMayRead)
{
    std::ofstream(In("old")).close();
    ASSERT_EQ(::chmod(In("old").c_str(), 0664), 0);
    EXPECT_TRUE(files.IsReadableByOthers(In("old")));
    for (const char* name : {"old", "new"}) {
        files.WriteText("", In(name), FileKind::Settings);
        EXPECT_EQ(Mode(In(name)), 0600U) << name;
        EXPECT_FALSE(files.IsReadableByOthers(In(name)));
    }
    ASSERT_EQ(::chmod(In("old").c_str(), 0604), 0);
    EXPECT_TRUE(files.IsReadableByOthers(In("old")));
    ASSERT_EQ(::chmod(In("old").c_str(), 0622), 0);
    EXPECT_FALSE(files.IsReadableByOthers(In("old")));
}

TEST_F(PosixFilesTest, OneProgramAtATimeHoldsALock)
{
    fs::create_symlink("s.ini", In("link"));
    {
        const FileLock lock(In("s.ini"));
        EXPECT_FALSE(lock.IsElsewhere());
        EXPECT_TRUE(FileLock(In("link")).IsElsewhere()); // Another name of the same file.
        EXPECT_TRUE(FileLock(In("s.ini")).IsElsewhere());
        EXPECT_FALSE(FileLock(In("t.ini")).IsElsewhere());
    }
    EXPECT_EQ(FileCount(), 1U);              // No lock is left lying.
    std::ofstream(In("s.ini.lock")).close(); // As of a program that was killed.
    EXPECT_FALSE(FileLock(In("s.ini")).IsElsewhere());
    EXPECT_FALSE(FileLock(In("none/s.ini")).IsElsewhere());
}

TEST_F(PosixFilesTest, MakesFolders)
{
    for (const char* folder : {"a/b//c/", "a/b/c"})
        MakeFolder(In(folder));
    EXPECT_TRUE(fs::is_directory(In("a/b/c")));
    files.WriteText("", In("f"), FileKind::Map);
    EXPECT_EQ(Words([&] { MakeFolder(In("f")); }), "cannot make " + In("f") + ": Not a directory");
}

TEST(Paths, FollowTheEnvironment)
{
    ::setenv("HOME", "/home/op", 1);
    ::setenv("XDG_DATA_HOME", "/data", 1);
    ::setenv("XDG_CONFIG_HOME", "relative", 1);
    EXPECT_EQ(DefaultProgramFolder(), "/data/ruvenmark");
    EXPECT_EQ(DefaultSettingsFile(), "/home/op/.config/ruvenmark/settings.ini");
    ::unsetenv("XDG_DATA_HOME");
    EXPECT_EQ(DefaultProgramFolder(), "/home/op/.local/share/ruvenmark");
}

TEST(Clocks, ShowLocalTimeInOneForm)
{
    ::setenv("TZ", "UTC-2", 1); // Two hours east.
    ::tzset();
    const std::string text(SystemClock().LocalNowText());
    std::tm shown = {};
    const char* end = ::strptime(text.c_str(), "%Y-%m-%d %H:%M:%S", &shown);
    ASSERT_TRUE(end && *end == '\0' && text.size() == 19U) << text;
    EXPECT_NEAR(static_cast<double>(::timegm(&shown)), static_cast<double>(std::time(nullptr)) + 7200, 60);
}

TEST(HeadlessPrompts, PrintsWithTheHarmlessAnswerAndKeepsTheMessages)
{
    std::ostringstream out;
    HeadlessPrompts prompts(out);
    EXPECT_EQ(prompts.AskYesNoCancel("Save?"), Answer::Cancel);
    EXPECT_FALSE(prompts.AskYesNo("Remove?"));
    EXPECT_EQ(prompts.OpenFile("Open", {"All (*.*)", "*.*"}), std::nullopt);
    prompts.Message("gr\xFC\xDF\x1B");
    EXPECT_EQ(out.str(), "ruvenmark: Save? Cancel\nruvenmark: Remove? No\n"
                         "ruvenmark: Open, All (*.*): no file\nruvenmark: gr\xC3\xBC\xC3\x9F.\n");
    EXPECT_THAT(prompts.Messages(), testing::ElementsAre("gr\xFC\xDF\x1B"));
}

} // namespace
} // namespace ruvenmark
