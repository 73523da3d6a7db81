// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/photo_helper.h"

#include <QImage>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

/// One of the user's own albums: a folder directly in the library.
struct PhotoAlbum {
    std::optional<QString> localizedTitle{}; ///< As it is, not trimmed.
    std::int64_t assetCount = 0;             ///< Pictures and films in it; counted up to 1.
    QByteArray folder{};                     ///< Its path in the library, in the system's bytes.
};

/// A list of albums, and whether it came to its end.
struct PhotoAlbums {
    std::vector<PhotoAlbum> list{};
    bool isComplete = true; ///< Otherwise there may be more than could be listed.
};

/// A picture or film: its path in the library, in the system's bytes.
using PhotoAsset = QByteArray;
using PhotoAssets = std::vector<PhotoAsset>;

/// What one round asks of the photo library: one helper process, started with the
/// first question, and one limit of time for all of it. Meanwhile the pointer shows
/// that the game is busy.
///
/// Nothing fails loudly: what cannot be had is missing in the answer. A helper that
/// crashes or stalls is given up, and another goes on: that costs the picture in
/// hand, or what is missing in a list. Pictures are no longer read after the second
/// stall over one, and nothing once the game is to end.
class PhotoFetch {
public:
    /// For the library in the folder `library`, read by the program `helper`. An
    /// empty folder is an empty library.
    PhotoFetch(QString helper, QByteArray library, PhotoPatience patience = {});
    ~PhotoFetch();
    PhotoFetch(const PhotoFetch&) = delete;
    PhotoFetch& operator=(const PhotoFetch&) = delete;

    /// Whether it is looked into each album, which takes its time.
    enum class Counted { no, upToOne };

    /// The albums in the order of their titles. Those that are not counted have a
    /// count of 1.
    [[nodiscard]] PhotoAlbums albums(Counted counted = Counted::no);

    /// Every picture of the library, without films, in the order of their paths.
    [[nodiscard]] PhotoAssets images();

    /// Everything in the album, films too, in the order of their paths.
    [[nodiscard]] PhotoAssets assets(const PhotoAlbum& album);

    /// True if the last list came to its end; otherwise something may be missing in it.
    [[nodiscard]] bool isListComplete() const { return m_isListComplete; }

    /// The middle of the asset, 512 x 512 pixels; null if it yields no picture.
    [[nodiscard]] QImage image(const PhotoAsset& asset);

private:
    class BusyPointer;

    void ask(PhotoMessages::Kind request, QByteArrayView content = {});
    /// The next reply; none once there is no helper.
    [[nodiscard]] std::optional<PhotoMessages::Frame> receive();
    /// Asks, and calls `take` with each reply up to the one that ends the list. `take`
    /// says whether the reply makes sense.
    void list(PhotoMessages::Kind request, QByteArrayView content,
              const std::function<bool(const PhotoMessages::Frame&)>& take);
    [[nodiscard]] PhotoAssets assetList(PhotoMessages::Kind request, QByteArrayView content);

    QString m_program;
    QByteArray m_library;
    PhotoPatience m_patience;
    QDeadlineTimer m_deadline;
    std::unique_ptr<PhotoHelper> m_helper{};
    std::unique_ptr<BusyPointer> m_pointer;
    int m_stalls = 0; ///< Over pictures.
    bool m_isInterrupted = false;
    bool m_isListComplete = true;
};
