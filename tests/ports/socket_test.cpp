#include "platform/failure.h"
#include "ports/noting_sink.h"
#include "ports/qt_byte_links.h"
#include "ports/socket_wire.h"
#include "support/black_hole.h"

#include <QTcpServer>
#include <QTcpSocket>

#include <gtest/gtest.h>

#include <thread>

namespace ruvenmark {
namespace {

using namespace std::chrono_literals;

constexpr std::string_view kHost = "127.0.0.1";

class Sockets : public testing::Test {
protected:
    void SetUp() override { ASSERT_TRUE(server.listen(QHostAddress::LocalHost)); }

    std::unique_ptr<IByteLink> Start() { return links.StartSocket(kHost, server.serverPort(), sink); }
    std::unique_ptr<IByteLink> Connect() { return links.ConnectSocket(kHost, server.serverPort(), 30s, sink); }
    bool Accept()
    {
        return RunUntil([&] { return (peer = peer ? peer : server.nextPendingConnection()) != nullptr; });
    }
    bool PeerHears(const QByteArray& bytes)
    {
        return RunUntil([&] { return (heard += peer->readAll()) == bytes; });
    }

    QtByteLinks links;
    NotingSink sink;
    QTcpServer server;
    QTcpSocket* peer = nullptr;
    QByteArray heard;
};

TEST_F(Sockets, StartCarryAndEnd)
{
    auto link = Start();
    EXPECT_THROW(link->Write("early"), Failure);
    EXPECT_EQ(sink.opened, 0);
    ASSERT_TRUE(RunUntil([&] { return sink.opened == 1; }));
    ASSERT_TRUE(Accept());
    link->Write(std::string_view("a\0b", 3));
    EXPECT_TRUE(PeerHears(QByteArray("a\0b", 3)));
    peer->write("answer");
    EXPECT_TRUE(RunUntil([&] { return sink.bytes == "answer"; }));
    peer->write(" more"); // Right behind it, told a moment later.
    EXPECT_TRUE(RunUntil([&] { return sink.bytes == "answer more"; }, 5s));
    // What is written right before the link is dropped is sent all the same.
    link->Write("bye");
    link.reset();
    EXPECT_TRUE(PeerHears(QByteArray("a\0bbye", 6)));
    RunFor(300ms);
    EXPECT_EQ(sink.lost, 0);
}

// All that came before the other end closed is told, then one loss; the clock goes on.
TEST_F(Sockets, TellTheLastBytesBeforeOneLoss)
{
    const auto link = Connect();
    link->Write("x"); // Open at once.
    ASSERT_TRUE(Accept());
    const std::string flood(3'000'000, 'f');
    peer->write(flood.data(), static_cast<qint64>(flood.size()));
    peer->disconnectFromHost();
    std::size_t heardAtLoss = 0;
    sink.onLost = [&] { heardAtLoss = sink.bytes.size(); };
    ASSERT_TRUE(RunUntil([&] { return sink.lost > 0; }));
    EXPECT_EQ(heardAtLoss, flood.size());
    EXPECT_THROW(link->Write("x"), Failure);
    EXPECT_THROW(link->Wait(1ms), Failure);
    const int ticks = sink.ticks;
    EXPECT_TRUE(RunUntil([&] { return sink.ticks >= ticks + 2; }));
    EXPECT_EQ(sink.lost, 1);
    EXPECT_EQ(sink.opened, 0);
}

// Lines that come one by one are told together, none later than a person notices; a line must not stay behind in a
// socket that was held, nor be lost when the other end goes.
TEST_F(Sockets, GatherASteadyStream)
{
    const auto link = Connect();
    ASSERT_TRUE(Accept());
    int goes = 0, sent = 0;
    sink.onBytes = [&] { ++goes; };
    QByteArray all;
    QTimer pace;
    QObject::connect(&pace, &QTimer::timeout, &pace, [&] {
        const QByteArray line = "line " + QByteArray::number(sent++) + "\r\n";
        all += line;
        peer->write(line);
    });
    pace.start(4);
    ASSERT_TRUE(RunUntil([&] { return sent >= 200; }));
    pace.stop();
    ASSERT_TRUE(RunUntil([&] { return sink.bytes == all.toStdString(); }));
    EXPECT_LT(goes, sent / 3);
    // While it is held, an answer that is waited for comes all the same.
    peer->write("a");
    peer->flush();
    ASSERT_TRUE(RunUntil([&] { return sink.bytes.back() == 'a'; }));
    peer->write("b");
    peer->flush();
    RunFor(10ms);
    peer->write("c");
    peer->flush();
    std::string waited;
    for (int i = 0; i < 50 && sink.bytes.size() + waited.size() < static_cast<std::size_t>(all.size()) + 3; ++i)
        waited += link->Wait(20ms).bytes;
    EXPECT_EQ(sink.bytes.substr(static_cast<std::size_t>(all.size())) + waited, "abc");
    peer->write("last");
    peer->flush();
    peer->disconnectFromHost();
    ASSERT_TRUE(RunUntil([&] { return sink.lost == 1; }));
    EXPECT_TRUE(sink.bytes.ends_with("last"));
}

TEST_F(Sockets, MayBeDroppedInsideTheirOwnEvents)
{
    std::unique_ptr<IByteLink> link;
    const auto drop = [&] { link.reset(); };
    sink.onBytes = drop;
    link = Connect();
    ASSERT_TRUE(Accept());
    peer->write("1");
    EXPECT_TRUE(RunUntil([&] { return link == nullptr; }));

    sink.onBytes = nullptr;
    sink.onTick = drop;
    link = Connect();
    EXPECT_TRUE(RunUntil([&] { return link == nullptr; }));

    // From a loop that runs inside the event, too.
    sink.onTick = nullptr;
    sink.onLost = [&] {
        QTimer::singleShot(0, drop);
        RunFor(20ms);
    };
    const quint16 port = server.serverPort();
    server.close();
    link = links.StartSocket(kHost, port, sink);
    EXPECT_TRUE(RunUntil([&] { return link == nullptr; }));
    const int ticks = sink.ticks;
    RunFor(600ms);
    EXPECT_EQ(sink.ticks, ticks);
}

TEST_F(Sockets, NameTheCauseOfARefusal)
{
    const quint16 port = server.serverPort();
    server.close();
    const auto refusal = [&](std::string_view host, std::int32_t number) -> std::string {
        try {
            links.ConnectSocket(host, number, 30s, sink);
        } catch (const Failure& failure) {
            return failure.what();
        }
        return "connected";
    };
    EXPECT_EQ(refusal(kHost, port), "cannot connect to 127.0.0.1:" + std::to_string(port) + ": Connection refused");
    EXPECT_NE(refusal("no-such-host.invalid", 80).find("no-such-host.invalid:80: the host is not found"),
              std::string::npos);
    EXPECT_EQ(refusal(kHost, 65536 + 80), "there is no port 65616");
    EXPECT_EQ(refusal(kHost, 0), "there is no port 0");
    EXPECT_EQ(refusal("", 80), "no host is given");

    const auto link = links.StartSocket(kHost, port, sink);
    EXPECT_EQ(sink.lost, 0); // Never inside the call.
    EXPECT_TRUE(RunUntil([&] { return sink.lost == 1; }));
    EXPECT_EQ(sink.opened, 0);
}

TEST_F(Sockets, TakeAHostInBrackets)
{
    links.ConnectSocket("[127.0.0.1]", server.serverPort(), 30s, sink)->Write("x");
    const auto started = links.StartSocket("[127.0.0.1]", server.serverPort(), sink);
    EXPECT_TRUE(RunUntil([&] { return sink.opened == 1; }));
    EXPECT_THROW(links.StartSocket("[]", server.serverPort(), sink), Failure);
}

// The look-up and the connect have succeeded by then, and the loop does not know it yet.
TEST_F(Sockets, AConnectThatSucceededWhileTheLoopStoodStillIsNoneThatFailed)
{
    const WireLink link(MakeWire<SocketWire>("localhost", server.serverPort(), sink, 10ms));
    std::this_thread::sleep_for(100ms);
    ASSERT_TRUE(RunUntil([&] { return sink.opened + sink.lost > 0; }));
    EXPECT_EQ(sink.opened, 1);

    const BlackHole swallowing;
    const WireLink unheard(MakeWire<SocketWire>(kHost, swallowing.Port(), sink, 10ms));
    EXPECT_TRUE(RunUntil([&] { return sink.lost == 1; })); // It still has a limit.
}

// An other end that stands still must not eat the memory.
TEST_F(Sockets, AreLostWhenTooMuchIsUnsent)
{
    const auto link = Connect();
    ASSERT_TRUE(Accept());
    peer->setReadBufferSize(1);
    const std::string piece(1 << 20, 'x');
    int taken = 0;
    EXPECT_THROW(for (; taken < 64; ++taken) link->Write(piece), Failure);
    EXPECT_GE(taken, 8);
    EXPECT_TRUE(RunUntil([&] { return sink.lost == 1; }));
}

} // namespace
} // namespace ruvenmark
