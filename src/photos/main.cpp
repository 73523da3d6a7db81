// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
// paircade-photos LIBRARY: lists the photos in the folder LIBRARY and decodes them
// for the game, which starts it for one round, asks on standard input and reads
// answers from standard output (photos/protocol/messages.h). It ends with its input.
#include "photos/card_photo.h"
#include "photos/confinement.h"
#include "photos/listing.h"
#include "photos/protocol/messages.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <array>
#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

namespace {

using PhotoMessages::Kind;

constexpr qsizetype fullReply = 32'768; // bytes gathered before they are sent
constexpr int longestSilence = 200;     // ms, while there is something to do

/// The replies on standard output, gathered to larger pieces.
class Replies {
public:
    Replies() { m_since.start(); }

    void add(Kind kind, QByteArrayView content = {})
    {
        m_pending += PhotoMessages::encoded(kind, content);
        if (m_pending.size() >= fullReply)
            send();
    }
    void addPath(const QByteArray& path)
    {
        m_paths.append(path).append('\0');
        if (m_paths.size() >= fullReply)
            flushPaths();
    }
    /// Lets the game have what was found, before the next folder, which may lie on a
    /// dead mount; and know that the listing goes on, if it has not heard for a while.
    void showProgress()
    {
        flushPaths();
        if (m_since.elapsed() >= longestSilence)
            add(Kind::working);
        if (!m_pending.isEmpty())
            send();
    }
    void finish(Kind kind, QByteArrayView content = {})
    {
        flushPaths();
        add(kind, content);
        send();
    }

private:
    void flushPaths()
    {
        if (!m_paths.isEmpty())
            add(Kind::paths, m_paths);
        m_paths.clear();
    }
    void send()
    {
        for (qsizetype sent = 0; sent < m_pending.size();) {
            const ssize_t written = ::write(STDOUT_FILENO, m_pending.constData() + sent,
                                            std::size_t(m_pending.size() - sent));
            if (written < 0 && errno != EINTR)
                ::_exit(1); // The game is gone.
            sent += std::max<ssize_t>(written, 0);
        }
        m_pending.clear();
        m_since.start();
    }

    QByteArray m_pending{};
    QByteArray m_paths{};
    QElapsedTimer m_since{};
};

/// Ends a list. If something is missing, exits without `done`, so that the game treats the
/// list as incomplete.
void finishList(const Listing& listing, Replies& replies)
{
    if (!listing.isWhole()) {
        replies.showProgress();
        ::_exit(1);
    }
    replies.finish(Kind::done);
}

void listAlbums(Listing& listing, Replies& replies, bool isCounted)
{
    for (const QByteArray& album : listing.albums()) {
        bool holdsSomething = !isCounted;
        if (isCounted)
            listing.visitAssets(album, true, [&holdsSomething](const QByteArray&) {
                holdsSomething = true;
                return false;
            });
        replies.add(Kind::album, QByteArray(1, holdsSomething ? '\1' : '\0') + album);
    }
    finishList(listing, replies);
}

void listAssets(Listing& listing, Replies& replies, const QByteArray& folder, bool withFilms)
{
    listing.visitAssets(folder, withFilms, [&replies](const QByteArray& path) {
        replies.addPath(path);
        return true;
    });
    finishList(listing, replies);
}

QByteArray pixelsOf(const QImage& image)
{
    if (image.width() != PhotoMessages::pictureEdge || image.height() != image.width() ||
        image.depth() != 32)
        return {};
    QByteArray content(1, image.hasAlphaChannel() ? '\1' : '\0');
    content.append(reinterpret_cast<const char*>(image.constBits()), image.sizeInBytes());
    return content;
}

void answer(const PhotoMessages::Frame& request, Listing& listing, int root, Replies& replies)
{
    switch (request.kind) {
    case Kind::countedAlbums:
    case Kind::albums:
        return listAlbums(listing, replies, request.kind == Kind::countedAlbums);
    case Kind::images:
        return listAssets(listing, replies, {}, false);
    case Kind::assets:
        return listAssets(listing, replies, request.content, true);
    case Kind::picture: {
        limitPictureTime();
        const Descriptor file = openBelow(root, request.content);
        return replies.finish(Kind::pixels,
                              file.isOpen() ? pixelsOf(cardPhoto(file.get())) : QByteArray());
    }
    default:
        ::_exit(1);
    }
}

} // namespace

int main(int argc, char* argv[])
{
    limitResources();
    const QCoreApplication application(argc, argv);
    if (argc != 2)
        return 2;
    const Descriptor root(::open(argv[1], O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (!root.isOpen())
        return 1;
    confine(argv[1]);

    Replies replies;
    Listing listing(root.get(), [&replies] { replies.showProgress(); });
    PhotoMessages::FrameReader requests;
    std::array<char, 8192> bytes{};
    while (!requests.isBroken()) {
        if (const auto request = requests.next()) {
            answer(*request, listing, root.get(), replies);
            continue;
        }
        const ssize_t length = ::read(STDIN_FILENO, bytes.data(), bytes.size());
        if (length == 0 || (length < 0 && errno != EINTR))
            break;
        requests.append(QByteArrayView(bytes.data(), std::max<ssize_t>(length, 0)));
    }
    // Nothing is left to tidy up, and libraries of decoders need not try.
    ::_exit(requests.isBroken() ? 1 : 0);
}
