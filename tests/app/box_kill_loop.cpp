// Stations that file messages as fast as a busy net brings them, killed at moments of chance: their boxes stay whole,
// are never shorter than before, and lack at most the last seconds. usage: box_kill_loop COUNT

#include "station_program.h"

#include <QCoreApplication>
#include <QTcpSocket>

#include <cstdio>
#include <cstdlib>
#include <memory>
#include <random>
#include <stdexcept>
#include <vector>

namespace ruvenmark {
namespace {

using Time = std::chrono::steady_clock::time_point;
using std::chrono::milliseconds;

constexpr int kStations = 10;        // At a time, each in a folder of its own.
constexpr int kOldMessages = 30'000; // So that a save takes its time.
constexpr const char* kOldRow = "N1CALL#####N0CALL#####WIDE2-2#####2026-11-22 20:15:03#####an old message#####";
constexpr milliseconds kPeriod{20};       // Between two messages.
constexpr milliseconds kMayBeLost{10000}; // A save comes every 5 s; the rest is for a machine with other work.

[[noreturn]] void Fail(const QString& what)
{
    throw std::runtime_error(what.toStdString());
}

// One station over its runs, and the server's end of its line.
struct Station {
    QString call;
    std::unique_ptr<StationProgram> run = std::make_unique<StationProgram>();
    QTcpSocket* line = nullptr;
    std::size_t sent = 0;           // Messages, by their numbers.
    std::vector<Time> answered;     // When each was acknowledged, which is when it was filed; by number.
    std::size_t answeredBefore = 0; // Ahead of this run.
    Time end;                       // It is killed then; known from the login on.
    qsizetype rows = kOldMessages;
};

class Loop {
public:
    explicit Loop(int count) : m_count(count)
    {
        Listen(m_server);
        QObject::connect(&m_server, &QTcpServer::newConnection,
                         [this] { TakeLine(*m_server.nextPendingConnection()); });
        QByteArray old;
        for (int i = 0; i < kOldMessages; ++i)
            old += (i == 0 ? "" : "\r\n") + QByteArray(kOldRow) + QByteArray::number(i);
        m_stations.resize(kStations);
        for (std::size_t i = 0; i < m_stations.size(); ++i) {
            m_stations[i].call = QStringLiteral("N%1CALL").arg(i);
            m_stations[i].run->Write("Inbox.txt", old);
        }
    }
    void Run()
    {
        for (; m_kills < m_count; RunFor(kPeriod))
            for (Station& station : m_stations)
                Tick(station);
        std::printf("%d kills: boxes whole, %d while one was written, at most %lld ms of messages lost\n", m_kills,
                    m_inWrite, static_cast<long long>(m_worst.count()));
    }

private:
    void TakeLine(QTcpSocket& line)
    {
        QObject::connect(&line, &QTcpSocket::readyRead, [this, &line] {
            while (line.canReadLine())
                Take(line, line.readLine());
        });
        QObject::connect(&line, &QTcpSocket::disconnected, &line, &QObject::deleteLater);
    }
    void Take(QTcpSocket& line, const QByteArray& said)
    {
        const bool bLogin = said.startsWith("user ");
        const QString call = bLogin ? said.split(' ').at(1) : said.left(said.indexOf('>'));
        const auto found = std::find_if(m_stations.begin(), m_stations.end(),
                                        [&](const Station& station) { return station.call == call; });
        const Time now = std::chrono::steady_clock::now();
        if (found == m_stations.end())
            return;
        if (bLogin) {
            found->line = &line;
            found->end = now + Moment();
        } else if (const auto at = said.indexOf(":ack"); at >= 0) {
            found->answered.resize(said.mid(at + 4).trimmed().toUInt(), now);
        }
    }
    // A save is due every 5 s: half of the kills are meant for one.
    milliseconds Moment()
    {
        const auto random = [&](int low, int high) { return std::uniform_int_distribution(low, high)(m_random); };
        return milliseconds(random(0, 1) == 0 ? random(100, 11000) : 5000 * random(1, 2) + random(0, 400));
    }
    void Start(Station& station)
    {
        station.answeredBefore = station.sent;
        station.end = std::chrono::steady_clock::now() + std::chrono::minutes(1); // If it never comes to its login.
        station.run->Start(station.call, QStringLiteral("server=127.0.0.1:%1").arg(m_server.serverPort()),
                           {"--for", "1000"});
    }
    void Tick(Station& station)
    {
        const Time now = std::chrono::steady_clock::now();
        if (station.run->program.state() == QProcess::NotRunning)
            Start(station);
        else if (now >= station.end)
            Kill(station, now);
        else if (station.line)
            Say(station);
    }
    static void Say(Station& station)
    {
        ++station.sent;
        station.line->write("W1AW>APRS::" + station.call.leftJustified(9).toUtf8() + ":a new message{" +
                            QByteArray::number(static_cast<int>(station.sent)) + "\r\n");
        station.line->flush();
    }
    void Kill(Station& station, Time killed)
    {
        if (station.run->program.state() != QProcess::Running)
            Fail("a run ended by itself: " + QString::fromUtf8(station.run->program.readAllStandardError()));
        station.run->program.kill();
        station.run->program.waitForFinished();
        station.line = nullptr;
        ++m_kills;
        const QDir folder(station.run->folder.path());
        m_inWrite += static_cast<int>(folder.entryList({".ruvenmark-*"}, QDir::Files | QDir::Hidden).size());
        if (!folder.entryList({"*.bak*", "*.new"}).isEmpty())
            Fail("a box was taken for a damaged one");
        CheckInbox(station, killed);
    }
    void CheckInbox(Station& station, Time killed)
    {
        const auto rows = station.run->File("Inbox.txt").split('\n');
        if (rows.size() < station.rows)
            Fail(QStringLiteral("the Inbox of %1 rows has %2 left").arg(station.rows).arg(rows.size()));
        std::size_t last = 0;
        for (qsizetype i = 0; i < rows.size(); ++i) {
            const bool bOld = i < kOldMessages;
            const auto number = rows[i].mid(rows[i].lastIndexOf('#') + 1).trimmed().toUInt();
            const bool bWhole = QByteArray(rows[i]).replace("#####", "\t").count('\t') == 5 &&
                                rows[i].contains(bOld ? kOldRow : "#a new message#");
            if (!bWhole || (bOld ? number != static_cast<std::size_t>(i) : number <= last || number > station.sent))
                Fail("a row of the Inbox is not what came: " + QString::fromUtf8(rows[i]));
            last = bOld ? 0 : number;
        }
        station.rows = rows.size();
        const std::size_t firstLost = std::max(last, station.answeredBefore);
        if (firstLost >= station.answered.size())
            return;
        const auto lost = std::chrono::duration_cast<milliseconds>(killed - station.answered[firstLost]);
        m_worst = std::max(m_worst, lost);
        if (lost > kMayBeLost)
            Fail(QStringLiteral("messages of the last %1 ms are lost").arg(lost.count()));
    }
    int m_count, m_kills = 0, m_inWrite = 0;
    milliseconds m_worst{0};
    std::mt19937 m_random{std::random_device()()};
    std::vector<Station> m_stations;
    QTcpServer m_server;
};

} // namespace
} // namespace ruvenmark

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const int count = argc == 2 ? std::atoi(argv[1]) : 0;
    if (count <= 0) {
        std::fprintf(stderr, "usage: box_kill_loop COUNT\n");
        return 2;
    }
    try {
        ruvenmark::Loop(count).Run();
    } catch (const std::exception& error) { // Behind it nothing runs any more.
        std::fprintf(stderr, "box_kill_loop: %s\n", error.what());
        return 1;
    }
    return 0;
}
