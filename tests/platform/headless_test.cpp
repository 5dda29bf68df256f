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
    EXPECT_EQ(prompts.Messages(), std::vector<std::string>{"gr\xFC\xDF\x1B"});
}

} // namespace
} // namespace ruvenmark
