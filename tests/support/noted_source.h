#pragma once

#include "contracts/report_source.h"
#include "platform/failure.h"
#include "support/test_program.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace ruvenmark {

// A link that writes down what it is told, and fails on demand.
class NotedSource final : public IReportSource {
public:
    NotedSource(std::vector<std::string>& lines, const bool& bFail) : m_lines(lines), m_bFail(bFail) {}
    void EnterCommandMode() override { Note("command mode"); }
    void SendCommand(std::string_view line) override { Note(std::string(line)); }
    void SendFrame(std::string_view source, std::string_view dest, std::string_view via, std::string_view info) override
    {
        Note("frame " + std::string(source) + '|' + std::string(dest) + '|' + std::string(via) + '|' +
             std::string(info));
    }
    void SendServerLine(std::string_view line) override { Note("server " + std::string(line)); }

private:
    void Note(std::string line)
    {
        if (m_bFail)
            throw Failure("lost");
        m_lines.push_back(std::move(line));
    }
    std::vector<std::string>& m_lines;
    const bool& m_bFail;
};

// A started program of N0CALL with such links, all closed.
class NotedLinks : public testing::Test {
protected:
    NotedLinks()
    {
        main.links.aprs = std::make_unique<NotedSource>(sent, bRfFails);
        main.links.aprstcp = std::make_unique<NotedSource>(sent, bServerFails);
        program.Set("Call=N0CALL Dest=APRS Path=WIDE1-1");
    }
    void Set(Setting setting, std::string_view text) { SetSetting(main.Settings, setting, text); }
    void Open(bool bTnc, bool bAgw, bool bServer)
    {
        main.links.bSerialConnected = bTnc;
        main.links.bSocketConnected = bAgw;
        main.links.bServerConnected = bServer;
    }
    // What was sent since it was asked last.
    std::vector<std::string> Take() { return std::exchange(sent, {}); }

    TestProgram program;
    MainWindow& main = program.main;
    bool bRfFails = false, bServerFails = false;
    std::vector<std::string> sent;
};

} // namespace ruvenmark
