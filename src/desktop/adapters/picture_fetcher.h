#pragma once

#include "core/desktop.h"

#include <QNetworkAccessManager>
#include <QPointer>

#include <functional>
#include <string_view>

class QNetworkReply;

namespace ruvenmark {

// One picture at a time from a server, as a tile is asked for.
class PictureFetcher {
public:
    using Take = std::function<void(const FetchedPicture&)>;

    PictureFetcher();
    ~PictureFetcher();
    PictureFetcher(const PictureFetcher&) = delete;
    PictureFetcher& operator=(const PictureFetcher&) = delete;

    // What was asked before is given up without a word.
    void Fetch(std::string_view url, Take take);

private:
    void GiveUp();

    QNetworkAccessManager m_network;
    QPointer<QNetworkReply> m_reply;
};

} // namespace ruvenmark
