// Stations that file messages as fast as a busy net brings them, killed at moments of chance: their boxes stay whole,
// are never shorter than before, and lack at most the last seconds. usage: box_kill_loop COUNT

#include "station_program.h"

#include <QCoreApplication>
#include <QTcpSocket>
#include <QTimer>

#include <cstdio>
#include <cstdlib>
#include <exception>
#include <memory>
#include <random>
#include <stdexcept>
#include <vector>

namespace ruvenmark {
namespace {

using Time = std::chrono::steady_clock::time_point;
using std::chrono::milliseconds;

constexpr int kStations = 10;             // At a time, each in a folder of its own.
constexpr int kOldMessages = 30'000;      // So that a save takes its time.
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
    int runs = 0;
    std::size_t sent = 0;           // Messages, by their numbers.
    std::vector<Time> answered;     // When each was acknowledged, which is when it was filed; by number.
    std::size_t answeredBefore = 0; // Ahead of this run.
    Time end;                       // It is killed then; known from the login on.
    qsizetype inboxRows = kOldMessages, sentRows = 0;
};

void WriteOldMessages(const Station& station)
{
    QByteArray rows;
    for (int i = 0; i < kOldMessages; ++i)
        rows += (i == 0 ? "" : "\r\n") + QByteArray("N1CALL#####") + station.call.toUtf8() +
                "#####WIDE2-2#####2026-11-22 20:15:03#####an old message#####" + QByteArray::number(i);
    station.run->Write("Inbox.txt", rows);
}

QList<QByteArrayList> Rows(const QByteArray& text)
{
    QList<QByteArrayList> rows;
    for (const QByteArray& line : text.split('\n')) {
        QByteArrayList fields;
        QByteArray rest = line.endsWith('\r') ? line.chopped(1) : line;
        for (auto at = rest.indexOf("#####"); at >= 0; at = rest.indexOf("#####")) {
            fields.push_back(rest.left(at));
            rest.remove(0, at + 5);
        }
        rows.push_back(fields << rest);
    }
    return rows;
}

class Loop {
public:
    explicit Loop(int count) : m_count(count)
    {
        Listen(m_server);
        QObject::connect(&m_server, &QTcpServer::newConnection,
                         [this] { TakeLine(*m_server.nextPendingConnection()); });
        m_stations.resize(kStations);
        for (std::size_t i = 0; i < m_stations.size(); ++i) {
            m_stations[i].call = QStringLiteral("N%1CALL").arg(i);
            WriteOldMessages(m_stations[i]);
        }
        QObject::connect(&m_tick, &QTimer::timeout, [this] {
            try {
                Tick();
            } catch (const std::exception&) { // Not through the event loop.
                m_failure = std::current_exception();
            }
        });
        m_tick.start(kPeriod);
    }
    void Run()
    {
        while (m_kills < m_count && !m_failure)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents | QEventLoop::AllEvents, 20);
        m_tick.stop();
        if (m_failure)
            std::rethrow_exception(m_failure);
        std::printf("%d kills: boxes whole, %d while one was written, at most %lld ms of messages lost\n", m_kills,
                    m_inWrite, static_cast<long long>(m_worst.count()));
    }

private:
    void TakeLine(QTcpSocket& line)
    {
        QObject::connect(&line, &QTcpSocket::readyRead, [this, &line] {
            for (QByteArray said = line.readLine(); !said.isEmpty(); said = line.readLine())
                Take(line, said);
        });
        QObject::connect(&line, &QTcpSocket::disconnected, [this, &line] {
            for (Station& station : m_stations)
                if (station.line == &line)
                    station.line = nullptr;
            line.deleteLater();
        });
    }
    void Take(QTcpSocket& line, const QByteArray& said)
    {
        const bool bLogin = said.startsWith("user ");
        const QString call = bLogin ? said.split(' ').at(1) : said.left(said.indexOf('>'));
        for (Station& station : m_stations)
            if (station.call == call)
                bLogin ? Login(station, line) : TakeAnswer(station, said);
    }
    void Login(Station& station, QTcpSocket& line)
    {
        line.write("# logresp " + station.call.toUtf8() + " verified, server T2TEST\r\n");
        station.line = &line;
        station.end = std::chrono::steady_clock::now() + Moment();
    }
    static void TakeAnswer(Station& station, const QByteArray& said)
    {
        const auto at = said.indexOf(":ack");
        if (at >= 0)
            station.answered.resize(said.mid(at + 4).trimmed().toUInt(), std::chrono::steady_clock::now());
    }
    // A save is due every 5 s: half of the kills are meant for one.
    milliseconds Moment()
    {
        const auto random = [&](int low, int high) { return std::uniform_int_distribution(low, high)(m_random); };
        return milliseconds(random(0, 1) == 0 ? random(100, 11000) : 5000 * random(1, 2) + random(0, 400));
    }
    void Start(Station& station)
    {
        ++station.runs;
        station.answeredBefore = station.sent;
        station.end = std::chrono::steady_clock::now() + std::chrono::minutes(1); // If it never comes to its login.
        station.run->Start(station.call, QStringLiteral("server=127.0.0.1:%1").arg(m_server.serverPort()),
                           {"--for", "1000", "--send", QStringLiteral("message:W1AW:run %1").arg(station.runs)});
    }
    void Tick()
    {
        for (Station& station : m_stations) {
            if (m_kills >= m_count)
                return;
            const Time now = std::chrono::steady_clock::now();
            if (station.run->program.state() == QProcess::NotRunning)
                Start(station);
            else if (now >= station.end)
                Kill(station, now);
            else if (station.line)
                Say(station);
        }
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
        CheckSent(station);
    }
    void CheckInbox(Station& station, Time killed)
    {
        const auto rows = Rows(station.run->File("Inbox.txt"));
        if (rows.size() < station.inboxRows)
            Fail(QStringLiteral("the Inbox of %1 rows has %2 left").arg(station.inboxRows).arg(rows.size()));
        std::size_t last = 0;
        for (qsizetype i = 0; i < rows.size(); ++i) {
            if (rows[i].size() != 6)
                Fail(QStringLiteral("row %1 of the Inbox has %2 fields").arg(i).arg(rows[i].size()));
            if (i < kOldMessages)
                continue;
            const auto number = rows[i][5].toUInt();
            if (rows[i][4] != "a new message" || number <= last || number > station.sent)
                Fail("a row of the Inbox is not what was sent: " + QString::fromUtf8(rows[i].join('|')));
            last = number;
        }
        station.inboxRows = rows.size();
        const std::size_t firstLost = std::max(last, station.answeredBefore);
        if (firstLost >= station.answered.size())
            return;
        const auto lost = std::chrono::duration_cast<milliseconds>(killed - station.answered[firstLost]);
        m_worst = std::max(m_worst, lost);
        if (lost > kMayBeLost)
            Fail(QStringLiteral("messages of the last %1 ms are lost").arg(lost.count()));
    }
    static void CheckSent(Station& station)
    {
        const QByteArray text = station.run->File("Sent.txt");
        const auto rows = text == "(no file)" ? QList<QByteArrayList>() : Rows(text);
        if (rows.size() < station.sentRows)
            Fail("the sent items have become fewer");
        for (const QByteArrayList& row : rows)
            if (row.size() != 7 || row[0] != "W1AW" || !row[4].startsWith("run ") || row[6] != "bold")
                Fail("a row of the sent items is not what was sent: " + QString::fromUtf8(row.join('|')));
        station.sentRows = rows.size();
    }

    int m_count, m_kills = 0, m_inWrite = 0;
    milliseconds m_worst{0};
    std::exception_ptr m_failure;
    std::mt19937 m_random{std::random_device()()};
    std::vector<Station> m_stations;
    QTimer m_tick;
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
