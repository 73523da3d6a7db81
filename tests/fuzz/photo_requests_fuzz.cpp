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

using PhotoMessages::Frame;

std::vector<Frame> framesOf(const QByteArray& bytes, qsizetype piece)
{
    std::vector<Frame> frames;
    PhotoMessages::FrameReader reader;
    for (qsizetype at = 0; at < bytes.size() && !reader.isBroken(); at += piece) {
        reader.append(QByteArrayView(bytes).sliced(at, std::min(piece, bytes.size() - at)));
        while (auto frame = reader.next())
            frames.push_back(*frame);
    }
    return frames;
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

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const QTemporaryDir folder;
    static const QByteArray library = madeLibrary(folder);
    static const Descriptor root(::open(library.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    Listing listing(root.get(), library, [] {});

    const QByteArray bytes = bytesOf(data, size);
    const std::vector<Frame> frames = framesOf(bytes, bytes.size());
    const std::vector<Frame> again = framesOf(bytes, 3);
    require(std::ranges::equal(frames, again,
                               [](const Frame& one, const Frame& other) {
                                   return one.kind == other.kind && one.content == other.content;
                               }),
            "pieces make no difference");
    const auto isInside = [](const Descriptor& file) {
        const QByteArray link = "/proc/self/fd/" + QByteArray::number(file.get());
        const QString opened = QFile::symLinkTarget(QString::fromLatin1(link));
        return (QFile::encodeName(opened) + '/').startsWith(library + '/');
    };
    for (const Frame& frame : frames) {
        const Descriptor file = openBelow(root.get(), frame.content);
        require(!file.isOpen() || isInside(file), "what is opened lies in the library");
        listing.visitAssets(frame.content, true, [&isInside](const QByteArray& path) {
            const Descriptor asset = openBelow(root.get(), path);
            require(asset.isOpen() && isInside(asset), "what is listed lies in the library");
            return true;
        });
    }
    return 0;
}
