// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The helper's end of the pipe: whatever is asked for, nothing outside of the library is
// opened, and requests are the same however they are cut into pieces on the way.
#include "fuzz.h"
#include "photos/listing.h"
#include "photos/protocol/messages.h"
#include "stage/files.h"

#include <QDir>
#include <QFile>
#include <fcntl.h>

namespace {

/// The kind and the content of each request.
using Requests = std::vector<std::pair<PhotoMessages::Kind, QByteArray>>;

Requests requestsIn(const QByteArray& bytes, qsizetype piece)
{
    Requests requests;
    PhotoMessages::FrameReader reader;
    for (qsizetype at = 0; at < bytes.size() && !reader.isBroken(); at += piece) {
        reader.append(QByteArrayView(bytes).sliced(at, std::min(piece, bytes.size() - at)));
        while (const auto frame = reader.next())
            requests.emplace_back(frame->kind, frame->content);
    }
    return requests;
}

/// A library with an album, a picture, a circle and a way out.
QByteArray madeLibrary(const QTemporaryDir& folder)
{
    const QDir root(folder.path());
    root.mkpath(QStringLiteral("library/Alps"));
    for (const char* name : {"secret.png", "library/a.png", "library/Alps/b.png"})
        writeFile(root.filePath(QString::fromLatin1(name)), "no picture");
    QFile::link(QStringLiteral(".."), root.filePath(QStringLiteral("library/out")));
    QFile::link(QStringLiteral("."), root.filePath(QStringLiteral("library/Alps/circle")));
    return QFile::encodeName(QDir(root.filePath(QStringLiteral("library"))).canonicalPath());
}

} // namespace

void tryInput(const QByteArray& input)
{
    static const QTemporaryDir folder;
    static const QByteArray library = madeLibrary(folder);
    static const Descriptor root(::open(library.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    Listing listing(root.get(), [] {});

    const Requests requests = requestsIn(input, input.size());
    require(requests == requestsIn(input, 3), "pieces make no difference");
    const auto isInside = [](const Descriptor& file) {
        const QByteArray link = "/proc/self/fd/" + QByteArray::number(file.get());
        const QString opened = QFile::symLinkTarget(QString::fromLatin1(link));
        return (QFile::encodeName(opened) + '/').startsWith(library + '/');
    };
    for (const auto& [kind, path] : requests) {
        const Descriptor file = openBelow(root.get(), path);
        require(!file.isOpen() || isInside(file), "what is opened lies in the library");
        listing.visitAssets(path, true, [&isInside](const QByteArray& listed) {
            const Descriptor asset = openBelow(root.get(), listed);
            require(asset.isOpen() && isInside(asset), "what is listed lies in the library");
            return true;
        });
    }
}
