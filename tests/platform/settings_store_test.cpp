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
    EXPECT_NO_THROW(store.Flush());
    EXPECT_EQ(files.texts[kPath], "; mine\r\n[Other]\r\nCall=OTHER\r\nnoise\r\n[More]\r\nx=1\n[Settings]\n"
                                  "# a remark\r\nCall=\\x20N0CALL\\x0a\nPath=C:\\x5cdir\\x5cx4\nCall2=a=b\n");
}

TEST(FileSettingsStore, WritesOnlyWhatChanged)
{
    MemoryFiles files;
    FileSettingsStore store(files, kPath);
    store.Flush();
    EXPECT_EQ(files.writes, 0);
    store.Set("a", "1");
    files.FailWrite(1);
    EXPECT_THROW(store.Flush(), Failure);
    store.Flush(); // Tried again, and well.
    store.Set("a", "1");
    store.Flush();
    EXPECT_EQ(files.writes, 2);
}

// Two programs on one file: each keeps what the other changed, and neither writes what only it was given as default.
TEST(FileSettingsStore, LaysOnlyItsOwnChangesOverWhatStandsThereByThen)
{
    MemoryFiles files;
    std::string& text = files.texts[kPath];
    text = "[Settings]\na=1\nb=1\nc=1\n";
    FileSettingsStore ours(files, kPath);
    for (const char* key : {"d", "e"})
        EXPECT_EQ(ours.Get(key, "default"), "default");
    text = "[Settings]\na=2\nb=2\nd=2\nx=2\n# another's\n";
    for (const auto& [key, value] : {std::pair("a", "1"), {"b", "3"}, {"c", "1"}, {"d", "default"}, {"e", "default"}})
        ours.Set(key, value); // As it was, and gone from the file meanwhile: c.
    ours.Flush();
    EXPECT_EQ(text, "[Settings]\n# another's\na=2\nb=3\nd=2\nx=2\nc=1\ne=default\n");

    const std::string before = "[Settings]\n  a = 4\nb=4\nc=4\nd=4\ne=4\n";
    text = before;
    for (const char* key : {"a", "b", "c", "d", "e"})
        ours.Set(key, ours.Get(key, ""));
    ours.Flush();
    EXPECT_EQ(text, before); // Nothing of this run is new: not even its blanks are touched.

    for (const char* value : {"5", "3"}) // There and back is still a choice of this run.
        ours.Set("b", value);
    ours.Flush();
    EXPECT_NE(text.find("\nb=3\n"), std::string::npos);
    ours.KeepNothing();
    ours.Set("b", "6");
    ours.Flush();
    EXPECT_EQ(text.find("b=6"), std::string::npos);
    EXPECT_FALSE(OverlaySettingsStore(ours).IsKept());
}

TEST(FileSettingsStore, AFileThatCannotBeReadIsNotWrittenOver)
{
    MemoryFiles files;
    files.texts[kPath] = "[Settings]\na=1\n";
    files.unreadable.insert(kPath);
    FileSettingsStore store(files, kPath);
    EXPECT_EQ(store.Get("a", "default"), "default");
    store.Set("a", "2");
    EXPECT_THROW(store.Flush(), Failure);
    EXPECT_EQ(store.ReadFault(), "cannot open settings.ini");
    EXPECT_EQ(files.texts[kPath], "[Settings]\na=1\n");
    files.texts.clear();
    EXPECT_EQ(FileSettingsStore(files, kPath).ReadFault(), ""); // A missing one is no fault.
}

TEST(OverlaySettingsStore, HoldsForThisRunUntilSet)
{
    MemorySettingsStore below;
    below.Set("a", "1");
    OverlaySettingsStore store(below);
    store.SetForThisRun("a", "2");
    store.Set("a", "2"); // Written back as it was read.
    EXPECT_EQ(store.Get("a", "") + below.Get("a", ""), "21");
    store.Set("a", "3");
    EXPECT_EQ(store.Get("a", "") + below.Get("a", ""), "33");
}

} // namespace
} // namespace ruvenmark
