#include "platform/settings_store.h"
#include "support/doubles.h"

#include <gtest/gtest.h>

#include <random>

namespace ruvenmark {
namespace {

constexpr const char* kPath = "settings.ini";

std::string RandomBytes(std::mt19937& random)
{
    std::string bytes;
    for (auto length = random() % 12; length > 0; --length)
        bytes += random() % 3 == 0 ? " =[]#;\\\n\rx0"[random() % 11] : static_cast<char>(random());
    return bytes;
}

TEST(FileSettingsStore, KeysAndValuesComeBackByteForByte)
{
    std::mt19937 random(2);
    MemoryFiles files;
    MemorySettingsStore expected;
    FileSettingsStore store(files, kPath);
    for (int i = 0; i < 3000; ++i) {
        const std::string key = RandomBytes(random);
        const std::string value = RandomBytes(random);
        expected.Set(key, value);
        store.Set(key, value);
    }
    ASSERT_TRUE(store.Flush());
    const FileSettingsStore again(files, kPath);
    for (const auto& [key, value] : expected.Values()) {
        ASSERT_EQ(store.Get(key, "default"), value);
        ASSERT_EQ(again.Get(key, "default"), value);
    }
    EXPECT_EQ(again.Get("no such key", "default"), "default");
}

TEST(FileSettingsStore, IsTextThatPersonsMayEdit)
{
    MemoryFiles files;
    files.texts[kPath] = "; mine\r\n[Other]\r\nCall=OTHER\r\nnoise\r\n[Settings]\r\n# a remark\r\n Call = N0CALL-9 \r\n"
                         "Path=C:\\dir\\x4\r\nCall2=a=b\r\n[More]\r\nx=1";
    FileSettingsStore store(files, kPath);
    EXPECT_EQ(store.Get("Call", ""), "N0CALL-9");
    EXPECT_EQ(store.Get("Path", ""), "C:\\dir\\x4"); // No escape.
    EXPECT_EQ(store.Get("Call2", ""), "a=b");
    EXPECT_EQ(store.Get("x", "none"), "none");

    store.Set("Call", " N0CALL\n");
    ASSERT_TRUE(store.Flush());
    EXPECT_EQ(files.texts[kPath], "; mine\r\n[Other]\r\nCall=OTHER\r\nnoise\r\n[More]\r\nx=1\n[Settings]\n"
                                  "# a remark\r\nCall=\\x20N0CALL\\x0a\nPath=C:\\x5cdir\\x5cx4\nCall2=a=b\n");
}

TEST(FileSettingsStore, WritesOnlyWhatChanged)
{
    MemoryFiles files;
    FileSettingsStore store(files, kPath);
    EXPECT_TRUE(store.Flush());
    EXPECT_EQ(files.writes, 0);
    store.Set("a", "1");
    files.FailWrite(1);
    EXPECT_FALSE(store.Flush());
    EXPECT_TRUE(store.Flush()); // Tried again, and well.
    store.Set("a", "1");
    EXPECT_TRUE(store.Flush());
    EXPECT_EQ(files.writes, 2);
}

TEST(FileSettingsStore, AFileThatCannotBeReadIsNotWrittenOver)
{
    MemoryFiles files;
    files.texts[kPath] = "[Settings]\na=1\n";
    files.unreadable.insert(kPath);
    FileSettingsStore store(files, kPath);
    EXPECT_EQ(store.Get("a", "default"), "default");
    store.Set("a", "2");
    EXPECT_EQ(store.Get("a", "default"), "2");
    EXPECT_FALSE(store.Flush());
    EXPECT_EQ(files.texts[kPath], "[Settings]\na=1\n");
}

TEST(FileSettingsStore, DamageCostsNoMoreThanItsLine)
{
    MemoryFiles files;
    files.texts[kPath] =
        "[Settings]\na=1\n" + std::string(3, '\0') + "\xFF garbage\n=\n[broken\n[]\nlost=1\n[Settings]\nb=\\x\n";
    const FileSettingsStore store(files, kPath);
    EXPECT_EQ(store.Get("a", ""), "1");
    EXPECT_EQ(store.Get("b", ""), "\\x");
    EXPECT_EQ(store.Get("lost", "none"), "none");
}

TEST(OverlaySettingsStore, HoldsForThisRunUntilSet)
{
    MemorySettingsStore below;
    below.Set("a", "1");
    OverlaySettingsStore store(below);
    store.SetForThisRun("a", "2");
    EXPECT_EQ(store.Get("a", ""), "2");
    store.Set("a", "2"); // Written back as it was read.
    EXPECT_EQ(below.Get("a", ""), "1");
    store.Set("a", "3");
    EXPECT_EQ(store.Get("a", ""), "3");
    EXPECT_EQ(below.Get("a", ""), "3");
    EXPECT_EQ(store.Get("b", "default"), "default");
}

} // namespace
} // namespace ruvenmark
