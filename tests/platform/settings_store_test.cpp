#include "platform/settings_store.h"
#include "support/doubles.h"

#include <gtest/gtest.h>

namespace ruvenmark {
namespace {

constexpr const char* kPath = "settings.ini";

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
