#include "platform/clock.h"
#include "platform/headless.h"
#include "support/doubles.h"

#include <gtest/gtest.h>

#include <ctime>
#include <sstream>

namespace ruvenmark {
namespace {

TEST(Clocks, ShowLocalTimeInOneForm)
{
    ::setenv("TZ", "UTC-2", 1); // Two hours east.
    ::tzset();
    SystemClock clock;
    const std::string text(clock.LocalNowText());
    std::tm shown = {};
    const char* end = ::strptime(text.c_str(), "%Y-%m-%d %H:%M:%S", &shown);
    ASSERT_TRUE(end && *end == '\0') << text;
    EXPECT_EQ(text.size(), 19U);
    EXPECT_NEAR(static_cast<double>(::timegm(&shown)), static_cast<double>(std::time(nullptr)) + 7200, 2);
}

TEST(HeadlessPrompts, PrintsWithTheHarmlessAnswerAndKeepsTheMessages)
{
    std::ostringstream out;
    HeadlessPrompts prompts(out);
    EXPECT_EQ(prompts.AskYesNoCancel("Save?"), Answer::Cancel);
    EXPECT_FALSE(prompts.AskYesNo("Remove?"));
    EXPECT_EQ(prompts.OpenFile("Open", {"All (*.*)", "*.*"}), std::nullopt);
    EXPECT_EQ(prompts.SaveFile("Save As", {"All (*.*)", "*.*"}), std::nullopt);
    prompts.Message("gr\xFC\xDF\n\x1B[2J\x9B");
    prompts.Message("\xC2\x9B\x7F\xC2\xA0");
    EXPECT_EQ(out.str(), "ruvenmark: Save? Cancel\nruvenmark: Remove? No\n"
                         "ruvenmark: Open, All (*.*): no file\nruvenmark: Save As, All (*.*): no file\n"
                         "ruvenmark: gr\xC3\xBC\xC3\x9F..[2J.\nruvenmark: ..\xC2\xA0\n");
    ASSERT_EQ(prompts.Messages().size(), 2U);
    EXPECT_EQ(prompts.Messages()[1], "\xC2\x9B\x7F\xC2\xA0");
}

} // namespace
} // namespace ruvenmark
