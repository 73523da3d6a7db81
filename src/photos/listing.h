// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "photos/protocol/descriptor.h"

#include <QByteArray>
#include <QList>
#include <functional>

/// Opens what is found at `path` below the folder `root`, for reading. A link
/// anywhere in the path, "..", a NUL, and whatever is neither a folder nor a plain file
/// are refused: between listing and reading, a folder may have become a link to
/// elsewhere and a picture a pipe, at which reading would wait. An empty path is
/// the folder itself.
[[nodiscard]] Descriptor openBelow(int root, const QByteArray& path);

/// The pictures and films in a folder with all its subfolders.
///
/// A folder's own come first, then those of its subfolders, each in the order of
/// the bytes of their names. Hidden entries and symbolic links are left out, and what
/// cannot be read.
class Listing {
public:
    /// Called with each path; false ends the listing.
    using Visitor = std::function<bool(const QByteArray& path)>;

    /// `root` is the open folder of the library. `progress` is called before each step
    /// that may take long: a folder may be on a file system that does not answer.
    Listing(int root, std::function<void()> progress);

    /// Visits everything below the folder `path`; without `withFilms` pictures only.
    void visitAssets(const QByteArray& path, bool withFilms, const Visitor& visit);

    /// Returns the names of the library's direct subfolders, in the order of their bytes.
    [[nodiscard]] QList<QByteArray> albums();

    /// Whether nothing was left out so far that may be there another time: what a disk
    /// or a server did not give. What is forbidden or gone does not count.
    [[nodiscard]] bool isWhole() const { return m_isWhole; }

private:
    /// Returns false if the visitor ended the listing.
    bool visitFolder(const Descriptor& folder, const QByteArray& path, int depth,
                     const Visitor& visit);
    /// Records a failure, whose reason is in `errno`.
    void note(bool isRead);

    int m_root;
    std::function<void()> m_progress;
    bool m_isWhole = true;
};
