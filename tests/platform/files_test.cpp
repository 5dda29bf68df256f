#include "platform/failure.h"
#include "platform/files.h"

#include <gmock/gmock.h>

#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
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
    files.WriteText(text, In("a"));
    EXPECT_EQ(files.ReadText(In("a")), text);
    files.WriteText("", In("a"));
    EXPECT_EQ(files.ReadText(In("a")), "");
    EXPECT_EQ(FileCount(), 1U);
    EXPECT_TRUE(files.Exists(In("a")));
    files.Remove(In("a"));
    files.Remove(In("a"));
    files.Remove(In("none/a"));
    EXPECT_FALSE(files.Exists(In("a")));
    EXPECT_EQ(Words([&] { files.ReadText(In("a")); }), "cannot open " + In("a") + ": No such file or directory");
    EXPECT_EQ(Words([&] { files.ReadText(In("")); }), "cannot read " + In("") + ": Is a directory");
    files.WriteText("", In("f"));
    EXPECT_NE(Words([&] { files.ReadText(In(std::string_view("f\0x", 3))); }), "");
}

TEST_F(PosixFilesTest, AWriteThatFailsHalfwayLeavesTheOldFile)
{
    files.WriteText("old", In("a"));
    const auto formerHandler = std::signal(SIGXFSZ, SIG_IGN);
    rlimit former = {};
    ASSERT_EQ(::getrlimit(RLIMIT_FSIZE, &former), 0);
    rlimit small = former;
    small.rlim_cur = 4096;
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &small), 0);
    const std::string words = Words([&] { files.WriteText(std::string(100000, 'x'), In("a")); });
    ::setrlimit(RLIMIT_FSIZE, &former);
    std::signal(SIGXFSZ, formerHandler);

    EXPECT_EQ(words, "cannot write " + In("a") + ": File too large");
    EXPECT_EQ(files.ReadText(In("a")), "old");
    EXPECT_EQ(FileCount(), 1U);
}

TEST_F(PosixFilesTest, KeepsThePermissionsAndFollowsLinks)
{
    fs::create_directory(In("d"));
    files.WriteText("old", In("d/target"));
    ASSERT_EQ(::chmod(In("d/target").c_str(), 0640), 0);
    fs::create_symlink("d/target", In("link"));
    fs::create_symlink(In("link"), In("link2"));

    files.WriteText("new", In("link2"));
    EXPECT_TRUE(fs::is_symlink(In("link2")) && fs::is_symlink(In("link")));
    EXPECT_EQ(files.ReadText(In("d/target")), "new");
    EXPECT_EQ(Mode(In("d/target")), 0640U);

    fs::create_symlink("d/made", In("dangling"));
    files.WriteText("x", In("dangling"));
    EXPECT_EQ(files.ReadText(In("d/made")), "x");
    fs::create_symlink("loop", In("loop"));
    EXPECT_THAT(Words([&] { files.WriteText("x", In("loop")); }), testing::HasSubstr("symbolic links"));

    const mode_t former = ::umask(027);
    files.WriteText("", In("fresh"));
    ::umask(former);
    EXPECT_EQ(Mode(In("fresh")), 0640U);
}

TEST_F(PosixFilesTest, MakesFolders)
{
    MakeFolder(In("a/b//c/"));
    MakeFolder(In("a/b/c"));
    EXPECT_TRUE(fs::is_directory(In("a/b/c")));
    files.WriteText("", In("f"));
    EXPECT_EQ(Words([&] { MakeFolder(In("f")); }), "cannot make " + In("f") + ": Not a directory");
    EXPECT_NE(Words([&] { MakeFolder(In("f/x")); }), "");
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

} // namespace
} // namespace ruvenmark
