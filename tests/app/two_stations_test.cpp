// Stations of the real program that meet over real sockets: what only the whole can show of messages is that they
// arrive, that their acknowledgement comes back, and that both boxes hold it when all is over.

#include "server_hub.h"

namespace ruvenmark {
namespace {

TEST(TwoStations, ExchangeAMessage)
{
    ServerHub hub;
    StationProgram receiver, sender;
    receiver.Start("N0CALL", hub.Link(), {});
    ASSERT_TRUE(RunUntil([&] { return hub.StationsReady() == 1; }));
    sender.Start("W1AW-7", hub.Link(), {"--send", "message:n0call:hello: you", "--for", "60"});
    const QByteArray message = ":N0CALL   :hello: you{1", ack = ":W1AW-7   :ack1";
    for (std::size_t times = 1; times <= 3; ++times) { // Each repeat is answered: the sender may not have heard it.
        ASSERT_TRUE(RunUntil([&] { return hub.Count(ack) == times; })) << receiver.err.toStdString();
        hub.Repeat(message);
    }
    EXPECT_EQ(hub.Count(message), 1U);
    EXPECT_EQ(sender.End(), 0);
    EXPECT_EQ(receiver.End(), 0);
    const QByteArray sent = sender.File("Sent.txt"), inbox = receiver.File("Inbox.txt");
    EXPECT_TRUE(sent.startsWith("N0CALL#####W1AW-7#####") && sent.endsWith("#####hello: you#####1#####notbold"))
        << sent.toStdString();
    EXPECT_EQ(sender.File("Inbox.txt"), "(no file)"); // What it sent itself is no mail.
    EXPECT_TRUE(inbox.startsWith("W1AW-7#####N0CALL#####") && inbox.endsWith("#####hello: you#####1"))
        << inbox.toStdString();
    EXPECT_EQ(inbox.count("hello"), 1);
}

} // namespace
} // namespace ruvenmark
