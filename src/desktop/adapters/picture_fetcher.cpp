#include "desktop/adapters/picture_fetcher.h"

#include "desktop/map/tiles/tile_fetcher.h"
#include "desktop/map/tiles/tile_image.h"
#include "desktop/shown_text.h"
#include "mapfiles/tile_picture.h"

#include <QImage>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QUrl>

#include <utility>

namespace ruvenmark {

namespace {

constexpr int kLimitMs = 10000;
constexpr qsizetype kMostWords = 120; // Characters of what the server says.

FetchedPicture Read(QNetworkReply& reply)
{
    FetchedPicture picture;
    picture.status = reply.attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    const QByteArray bytes = reply.readAll();
    picture.bytes = static_cast<std::size_t>(bytes.size());
    const QString said = reply.attribute(QNetworkRequest::HttpReasonPhraseAttribute).toString();
    if (picture.status == 0)
        picture.problem = reply.errorString().left(kMostWords).toStdString();
    else if (picture.status != 200)
        picture.problem = said.left(kMostWords).toStdString();
    const QImage image = TileImage(bytes);
    picture.width = image.width();
    picture.height = image.height();
    return picture;
}

} // namespace

PictureFetcher::PictureFetcher()
{
    m_network.setTransferTimeout(kLimitMs);
}

PictureFetcher::~PictureFetcher()
{
    GiveUp();
}

void PictureFetcher::GiveUp()
{
    if (!m_reply)
        return;
    m_reply->disconnect();
    m_reply->abort();
    m_reply->deleteLater();
    m_reply = nullptr;
}

void PictureFetcher::Fetch(std::string_view url, Take take)
{
    GiveUp();
    m_reply = m_network.get(TileRequest(QUrl(ForDisplay(url))));
    QNetworkReply* reply = m_reply;
    QObject::connect(reply, &QNetworkReply::downloadProgress, reply, [reply](qint64 received, qint64) {
        if (received > static_cast<qint64>(kMostTileBytes))
            reply->abort();
    });
    QObject::connect(reply, &QNetworkReply::finished, reply, [this, reply, take = std::move(take)] {
        m_reply = nullptr;
        reply->deleteLater();
        take(Read(*reply));
    });
}

} // namespace ruvenmark
