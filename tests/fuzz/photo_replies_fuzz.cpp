// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The game's end of the pipe: a helper that says whatever it likes. It is "cat", which
// the game starts as its helper, with the input for a library.
#include "fuzz.h"
#include "platform/photo_fetch.h"
#include "stage/files.h"

using PhotoMessages::pictureBytes;
using PhotoMessages::pictureEdge;

void tryInput(const QByteArray& input)
{
    static const QTemporaryDir folder;
    QByteArray said = input;
    // No fuzzer finds a megabyte of pixels by itself.
    if (said.startsWith('p'))
        said = PhotoMessages::encoded(PhotoMessages::Kind::pixels,
                                      QByteArray(1 + pictureBytes, said.back())) +
               said.sliced(1);
    const QString path = folder.filePath(QStringLiteral("said"));
    writeFile(path, said);
    constexpr PhotoPatience patience{std::chrono::seconds(5), std::chrono::seconds(5)};
    PhotoFetch fetch(QStringLiteral("/bin/cat"), QFile::encodeName(path), patience);

    const QImage image = fetch.image("a.png");
    require(image.isNull() || (image.width() == pictureEdge && image.height() == pictureEdge &&
                               image.sizeInBytes() == pictureBytes),
            "a picture has its size");
    const std::vector<PhotoAlbum> albums = fetch.albums(PhotoFetch::Counted::upToOne).list;
    for (const PhotoAlbum& album : albums)
        require(album.localizedTitle && (album.assetCount == 0 || album.assetCount == 1),
                "an album has a title and a count");
    for (const PhotoAsset& asset : albums.empty() ? fetch.images() : fetch.assets(albums.back()))
        require(!asset.contains('\0') && asset.size() <= said.size(), "a path ends at its end");
}
