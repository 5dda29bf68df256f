#include "desktop/map/mbtiles.h"

#include "desktop/shown_text.h"
#include "platform/failure.h"

#include <QFileInfo>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QTextDocumentFragment>
#include <QUuid>
#include <QVariant>

#include <algorithm>

namespace ruvenmark {

namespace {

constexpr int kDeepestZoom = 22;

QString Metadata(const QSqlDatabase& database, const QString& name)
{
    QSqlQuery query(database);
    query.prepare(QStringLiteral("SELECT value FROM metadata WHERE name = ? LIMIT 1"));
    query.addBindValue(name);
    return query.exec() && query.next() ? query.value(0).toString().left(1000) : QString();
}

bool Open(QSqlDatabase database, const QString& path)
{
    database.setDatabaseName(path);
    database.setConnectOptions(QStringLiteral("QSQLITE_OPEN_READONLY"));
    if (!QFileInfo(path).isFile() || !database.open())
        return false;
    QSqlQuery query(database);
    return query.exec(QStringLiteral("SELECT zoom_level, tile_column, tile_row, tile_data FROM tiles LIMIT 1"));
}

} // namespace

MbTiles::MbTiles(const QString& path) : m_connection(QStringLiteral("tiles-") + QUuid::createUuid().toString())
{
    const bool bOpen = Open(QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), m_connection), path);
    const QString format = bOpen ? Metadata(QSqlDatabase::database(m_connection), QStringLiteral("format")) : QString();
    if (!bOpen || format == QStringLiteral("pbf")) {
        QSqlDatabase::removeDatabase(m_connection);
        throw Failure(bOpen ? "the file holds vector tiles, not pictures" : "the file is no tile archive");
    }
    ReadMetadata();
}

MbTiles::~MbTiles()
{
    QSqlDatabase::removeDatabase(m_connection);
}

void MbTiles::ReadMetadata()
{
    const QSqlDatabase database = QSqlDatabase::database(m_connection);
    const QString markup = Metadata(database, QStringLiteral("attribution"));
    m_attribution = ForDisplay(QTextDocumentFragment::fromHtml(markup).toPlainText().left(120).toStdString());
    QSqlQuery query(database);
    if (query.exec(QStringLiteral("SELECT MAX(zoom_level) FROM tiles")) && query.next())
        m_maxZoom = std::clamp(query.value(0).toInt(), 0, kDeepestZoom);
}

QByteArray MbTiles::Read(TileId tile) const
{
    QSqlQuery query(QSqlDatabase::database(m_connection));
    query.setForwardOnly(true);
    query.prepare(
        QStringLiteral("SELECT tile_data FROM tiles WHERE zoom_level = ? AND tile_column = ? AND tile_row = ?"));
    query.addBindValue(tile.z);
    query.addBindValue(tile.x);
    query.addBindValue((1 << tile.z) - 1 - tile.y); // Its rows count from the south.
    return query.exec() && query.next() ? query.value(0).toByteArray() : QByteArray();
}

} // namespace ruvenmark
