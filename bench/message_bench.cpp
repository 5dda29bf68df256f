// Reception of messages with 100 and with 100,000 rows in each box: each is looked up among all that are there, each
// acknowledgement among all that were sent. Prints nanoseconds of CPU time each, and their ratio; and what it takes to
// save both boxes, which happens between two events.

#include "bench_machine.h"
#include "lifecycle/start.h"
#include "messaging/message_files.h"
#include "messaging/send_message.h"

#include <cstdio>
#include <filesystem>
#include <memory>
#include <string>

namespace {

using namespace ruvenmark;

struct Program {
    BenchMachine<NoYield> machine;
    MainWindow main{machine.Lend()};

    explicit Program(std::size_t rows)
    {
        machine.store.Set("Call", "N0CALL");
        StartMainWindow(main, AutoConnect::No);
        for (std::size_t i = 0; i < rows; ++i) {
            Hear("N0CALL", i, "");
            SendAprsMessage(main, "N0CALL", "W1AW", "", "hello there", std::to_string(i));
        }
    }
    void Hear(std::string_view to, std::size_t number, std::string_view ahead)
    {
        const std::string digits = std::to_string(number);
        const std::string text = ahead.empty() ? "are you there?" : std::string(ahead) + digits;
        main.links.SinkOf(Channel::RF)
            .ReportAprsMsg({"W1AW", "APRS", "WIDE2-1", to, text, ahead.empty() ? digits : ""});
    }
};

struct Figures {
    double repeated = 0, unknown = 0, acknowledged = 0; // Nanoseconds each.
    double saved = 0;
};

template <typename Work>
double Nanoseconds(std::size_t count, Work&& work)
{
    const double start = CpuSeconds();
    for (std::size_t i = 0; i < count; ++i)
        work(i);
    return (CpuSeconds() - start) * 1e9 / static_cast<double>(count);
}

Figures Measure(std::size_t rows)
{
    constexpr std::size_t kCount = 200'000, kStep = 7919; // A prime: rows from everywhere.
    const auto program = std::make_unique<Program>(rows);
    Figures figures;
    figures.repeated = Nanoseconds(kCount, [&](std::size_t i) { program->Hear("N0CALL", i * kStep % rows, ""); });
    figures.unknown = Nanoseconds(kCount, [&](std::size_t i) { program->Hear("N9OTHER", i, ""); }); // Not filed.
    figures.acknowledged =
        Nanoseconds(kCount, [&](std::size_t i) { program->Hear("N0CALL", i * kStep % rows, "ack"); });
    const std::string folder = std::filesystem::temp_directory_path() / "ruvenmark_message_bench";
    std::filesystem::create_directory(folder);
    program->main.services.programFolder = folder;
    figures.saved = Nanoseconds(1, [&](std::size_t) { SaveMessageBoxes(program->main); });
    std::filesystem::remove_all(folder);
    return figures;
}

void Print(const char* what, double few, double many)
{
    std::printf("%-44s %12.0f %12.0f %8.2f\n", what, few, many, many / few);
}

} // namespace

int main()
{
    const Figures few = Measure(100), many = Measure(100'000);
    std::printf("%-44s %12s %12s %8s\n", "nanoseconds of CPU, rows in each box:", "100", "100,000", "ratio");
    Print("a message that is there already", few.repeated, many.repeated);
    Print("a message that is not there", few.unknown, many.unknown);
    Print("an acknowledgement", few.acknowledged, many.acknowledged);
    Print("both boxes saved", few.saved, many.saved);
    return 0;
}
