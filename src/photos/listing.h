// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "photos/protocol/descriptor.h"

#include <QByteArray>
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
/// the bytes of their names. Hidden entries are left out, and what cannot be
/// read. A link counts as what it leads to, if that lies in the library; where it
/// leads to something that is listed anyway, it is left out, so that nothing
/// comes twice and circles end.
class Listing {
public:
    /// Called with each path; false ends the listing.
    using Visitor = std::function<bool(const QByteArray& path)>;

    /// `root` is the open folder of the library, `rootPath` its path without links
    /// in it. `progress` is called before each step that may take long: a folder may
    /// lie on a file system that does not answer.
    Listing(int root, QByteArray rootPath, std::function<void()> progress);

    /// What lies below the folder `path`; without `withFilms` pictures only.
    void visitAssets(const QByteArray& path, bool withFilms, const Visitor& visit);

    /// The library's direct subfolders, and links to its folders: name and path.
    void
    visitAlbums(const std::function<void(const QByteArray& name, const QByteArray& path)>& visit);

    /// Whether nothing was left out so far that may be there another time: what a disk
    /// or a server did not give. What is forbidden or gone does not count.
    [[nodiscard]] bool isWhole() const { return m_isWhole; }

private:
    class Walk;
    /// Takes note of a failure, which `errno` tells of.
    void note(bool isRead);
    /// Where the link `name` in the folder `folder` leads to; empty if out of the
    /// library or to something hidden.
    [[nodiscard]] QByteArray linkTarget(const QByteArray& folder, const QByteArray& name);

    int m_root;
    QByteArray m_rootPath;
    std::function<void()> m_progress;
    bool m_isWhole = true;
};
