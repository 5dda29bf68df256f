#pragma once

#include "station_program.h"

#include <QTcpSocket>

#include <algorithm>
#include <vector>

namespace ruvenmark {

// An APRS server that believes every login. What one station sends, all others hear.
class ServerHub {
public:
    ServerHub()
    {
        Listen(m_server);
        QObject::connect(&m_server, &QTcpServer::newConnection, [this] {
            QTcpSocket* station = m_server.nextPendingConnection();
            QObject::connect(station, &QTcpSocket::readyRead, [this, station] {
                while (station->canReadLine())
                    Take(station->readLine(), *station);
            });
            QObject::connect(station, &QTcpSocket::disconnected, station, &QObject::deleteLater);
        });
    }
    // As the program is told to connect.
    QString Link() const { return QStringLiteral("server=127.0.0.1:%1").arg(m_server.serverPort()); }
    std::size_t StationsReady() const { return m_ready; }
    // How often a line with this in it came from a station.
    std::size_t Count(const QByteArray& part) const
    {
        return static_cast<std::size_t>(
            std::count_if(m_lines.begin(), m_lines.end(), [&](const QByteArray& line) { return line.contains(part); }));
    }
    // Once more to all, as an impatient sender would.
    void Repeat(const QByteArray& part)
    {
        for (const QByteArray& line : std::vector(m_lines))
            if (line.contains(part))
                return Pass(line, nullptr);
    }

private:
    void Take(const QByteArray& line, QTcpSocket& from)
    {
        if (line.startsWith("user ")) {
            from.write("# logresp " + line.split(' ').at(1) + " verified, server T2TEST\r\n");
            ++m_ready;
            return;
        }
        m_lines.push_back(line);
        Pass(line, &from);
    }
    void Pass(const QByteArray& line, const QTcpSocket* from)
    {
        for (QTcpSocket* station : m_server.findChildren<QTcpSocket*>())
            if (station != from)
                station->write(line);
    }

    std::vector<QByteArray> m_lines; // As the stations wrote them.
    std::size_t m_ready = 0;
    QTcpServer m_server; // Last, so that its sockets fall silent first.
};

} // namespace ruvenmark
