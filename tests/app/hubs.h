#pragma once

#include "station_program.h"

#include <QTcpSocket>

#include <algorithm>
#include <map>
#include <utility>
#include <vector>

namespace ruvenmark {

// Where stations meet: what one of them sends, all others hear.
class Hub {
public:
    virtual ~Hub() = default;

    void Open()
    {
        Listen(m_server);
        QObject::connect(&m_server, &QTcpServer::newConnection, [this] {
            QTcpSocket* station = m_server.nextPendingConnection();
            m_heard[station];
            QObject::connect(station, &QTcpSocket::readyRead, [this, station] {
                m_heard[station] += station->readAll();
                Read(*station, m_heard[station]);
            });
            QObject::connect(station, &QTcpSocket::disconnected, [this, station] { m_heard.erase(station); });
        });
    }
    QString Address() const { return QStringLiteral("127.0.0.1:%1").arg(m_server.serverPort()); }
    virtual QString Link() const = 0; // As the program is told to connect.

    std::size_t StationsReady() const { return m_ready; }
    // How often a packet with this in it came from a station.
    std::size_t Count(const QByteArray& part) const
    {
        return static_cast<std::size_t>(std::count_if(m_packets.begin(), m_packets.end(),
                                                      [&](const QByteArray& packet) { return packet.contains(part); }));
    }
    // Once more to all, as a digipeater or an impatient sender would.
    void Repeat(const QByteArray& part)
    {
        for (const QByteArray& packet : std::vector(m_packets))
            if (packet.contains(part))
                return Pass(packet, nullptr);
    }

protected:
    virtual void Read(QTcpSocket& station, QByteArray& bytes) = 0;

    void Take(const QByteArray& packet, const QTcpSocket& from)
    {
        m_packets.push_back(packet);
        Pass(packet, &from);
    }
    void CountReady() { ++m_ready; }

private:
    void Pass(const QByteArray& packet, const QTcpSocket* from)
    {
        for (const auto& [station, bytes] : m_heard)
            if (station != from)
                station->write(packet);
    }

    std::map<QTcpSocket*, QByteArray> m_heard; // What of each is not read yet.
    std::vector<QByteArray> m_packets;         // As written by the stations.
    std::size_t m_ready = 0;
    QTcpServer m_server; // Last, so that its sockets fall silent first.
};

// An APRS server that believes every login.
class ServerHub final : public Hub {
public:
    QString Link() const override { return "server=" + Address(); }

private:
    void Read(QTcpSocket& station, QByteArray& bytes) override
    {
        for (auto end = bytes.indexOf("\r\n"); end >= 0; end = bytes.indexOf("\r\n")) {
            const QByteArray line = bytes.left(end + 2);
            bytes.remove(0, end + 2);
            if (!line.startsWith("user ")) {
                Take(line, station);
                continue;
            }
            station.write("# logresp " + line.split(' ').at(1) + " verified, server T2TEST\r\n");
            CountReady();
        }
    }
};

// A packet engine whose clients hear what every other one sends.
class AgwHub final : public Hub {
public:
    explicit AgwHub(QByteArray ports = "1;Port1 the test's;") : m_ports(std::move(ports)) {}
    QString Link() const override { return "agw=" + Address(); }

private:
    void Read(QTcpSocket& station, QByteArray& bytes) override
    {
        constexpr qsizetype kHeader = 36;
        while (bytes.size() >= kHeader) {
            const qsizetype size =
                kHeader + static_cast<unsigned char>(bytes[28]) + 256 * static_cast<unsigned char>(bytes[29]);
            if (bytes.size() < size)
                return;
            const QByteArray frame = bytes.left(size);
            bytes.remove(0, size);
            if (frame[4] == 'K') {
                Take(frame, station);
            } else if (frame[4] == 'G') {
                QByteArray answer(kHeader, '\0');
                answer[4] = 'G';
                answer[28] = static_cast<char>(m_ports.size() + 1);
                station.write(answer + m_ports + '\0');
            } else if (frame[4] == 'k') {
                CountReady();
            }
        }
    }

    QByteArray m_ports; // As it lists them.
};

} // namespace ruvenmark
