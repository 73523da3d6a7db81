// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/photo_fetch.h"

#include "platform/collation.h"
#include "platform/within_memory.h"

#include <QCursor>
#include <QFile>
#include <QGuiApplication>
#include <cstring>
#include <map>
#include <utility>

using PhotoMessages::Frame;
using PhotoMessages::Kind;

namespace {

// More than any library holds, and still no burden: a helper gone astray could go
// on telling until its time is over.
constexpr qsizetype mostPathBytes = 256'000'000;
constexpr std::size_t mostPaths = 1'000'000;
constexpr std::size_t mostAlbums = 100'000;

// One may be a heavy picture on a busy machine.
constexpr int mostStalls = 2;

} // namespace

class PhotoFetch::BusyPointer {
public:
    BusyPointer()
    {
        if (m_isShown)
            QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    }
    ~BusyPointer()
    {
        if (m_isShown)
            QGuiApplication::restoreOverrideCursor();
    }
    BusyPointer(const BusyPointer&) = delete;
    BusyPointer& operator=(const BusyPointer&) = delete;

private:
    bool m_isShown = qobject_cast<QGuiApplication*>(QCoreApplication::instance()) != nullptr;
};

PhotoFetch::PhotoFetch(QString helper, QByteArray library, PhotoPatience patience)
    : m_program(std::move(helper))
    , m_library(std::move(library))
    , m_patience(patience)
    , m_deadline(patience.round)
    , m_pointer(std::make_unique<BusyPointer>())
{
}

PhotoFetch::~PhotoFetch() = default;

void PhotoFetch::ask(Kind request, QByteArrayView content)
{
    const bool mayStart = !m_library.isEmpty() && m_stalls < mostStalls && !m_isInterrupted &&
                          !m_deadline.hasExpired();
    if (mayStart && (!m_helper || m_helper->state() != PhotoHelper::State::running))
        m_helper = std::make_unique<PhotoHelper>(m_program, m_library, m_patience.silence);
    if (m_helper)
        m_helper->send(request, content);
}

std::optional<Frame> PhotoFetch::receive()
{
    std::optional<Frame> reply;
    if (m_helper && !withinMemory([&] { reply = m_helper->receive(m_deadline); }))
        m_helper.reset();
    m_isInterrupted =
        m_isInterrupted || (m_helper && m_helper->state() == PhotoHelper::State::interrupted);
    return reply;
}

void PhotoFetch::list(Kind request, QByteArrayView content,
                      const std::function<bool(const Frame&)>& take)
{
    m_isListComplete = m_library.isEmpty();
    ask(request, content);
    qsizetype total = 0;
    bool isSound = true;
    while (m_helper && isSound && total < mostPathBytes) {
        const std::optional<Frame> reply = receive();
        if (!reply || reply->kind == Kind::done) {
            m_isListComplete = reply.has_value();
            return;
        }
        total += reply->content.size();
        const bool isKept =
            withinMemory([&] { isSound = reply->kind == Kind::working || take(*reply); });
        isSound = isSound && isKept;
    }
    // Whatever else it has to say belongs to this list.
    m_helper.reset();
}

PhotoAlbums PhotoFetch::albums(Counted counted)
{
    const Kind request = counted == Counted::no ? Kind::albums : Kind::countedAlbums;
    // Keeps the order of albums with equal titles.
    std::multimap<QString, PhotoAlbum, decltype(&sortsBefore)> byTitle(&sortsBefore);
    list(request, {}, [&byTitle](const Frame& reply) {
        if (reply.kind != Kind::album || reply.content.size() < 2 || byTitle.size() == mostAlbums)
            return false;
        const QByteArray folder = reply.content.sliced(1);
        const QString title = QFile::decodeName(folder);
        byTitle.insert({title, {title, reply.content.front() != '\0' ? 1 : 0, folder}});
        return true;
    });
    PhotoAlbums albums;
    const bool isSorted = withinMemory([&] {
        for (const auto& [title, album] : byTitle)
            albums.list.push_back(album);
    });
    m_isListComplete = m_isListComplete && isSorted;
    albums.isComplete = m_isListComplete;
    return albums;
}

PhotoAssets PhotoFetch::assetList(Kind request, QByteArrayView content)
{
    PhotoAssets assets;
    list(request, content, [&assets](const Frame& reply) {
        if (reply.kind != Kind::paths)
            return false;
        qsizetype begin = 0;
        for (qsizetype end = 0; (end = reply.content.indexOf('\0', begin)) >= 0; begin = end + 1) {
            if (end == begin || assets.size() == mostPaths)
                return false;
            assets.push_back(reply.content.mid(begin, end - begin));
        }
        return begin > 0 && begin == reply.content.size();
    });
    return assets;
}

PhotoAssets PhotoFetch::images()
{
    return assetList(Kind::images, {});
}

PhotoAssets PhotoFetch::assets(const PhotoAlbum& album)
{
    return assetList(Kind::assets, album.folder);
}

QImage PhotoFetch::image(const PhotoAsset& asset)
{
    ask(Kind::picture, asset);
    const std::optional<Frame> reply = receive();
    if (m_helper && m_helper->state() == PhotoHelper::State::stalled)
        ++m_stalls;
    if (!reply || (reply->kind == Kind::pixels && reply->content.isEmpty()))
        return {};
    if (reply->kind != Kind::pixels || reply->content.size() != 1 + PhotoMessages::pictureBytes) {
        m_helper.reset(); // It answers another question.
        return {};
    }
    const int edge = PhotoMessages::pictureEdge;
    QImage image(edge, edge,
                 reply->content.front() != '\0' ? QImage::Format_ARGB32_Premultiplied
                                                : QImage::Format_RGB32);
    std::memcpy(image.bits(), reply->content.constData() + 1, PhotoMessages::pictureBytes);
    return image;
}
