// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "photos/listing.h"

#include "photos/file_kind.h"

#include <QList>
#include <QSet>
#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdlib>
#include <dirent.h>
#include <fcntl.h>
#include <memory>
#include <sys/stat.h>
#include <utility>

namespace {

// Deeper than anybody sorts photos; each level keeps a folder open.
constexpr int deepest = 64;

constexpr int readOnly = O_RDONLY | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY;

/// Whether `errno` tells of a failure that may pass: what was to be read is not gone,
/// forbidden or of another kind, but on a disk or a server that does not give it.
bool mayPass()
{
    static constexpr std::array others = {0, ENOENT, ENOTDIR, EACCES, EPERM, ELOOP, ENAMETOOLONG};
    return std::ranges::find(others, errno) == others.end();
}

/// The entries of one folder that are not hidden, in order of their names.
struct Entries {
    QList<QByteArray> files{};
    QList<QByteArray> folders{};
    QList<QByteArray> links{};
    bool areAll = true; ///< Whether none is missing that may be there another time.
};

unsigned char entryType(int folder, const dirent& entry)
{
    if (entry.d_type != DT_UNKNOWN)
        return entry.d_type;
    // Some file systems do not tell while listing.
    struct stat status {};
    if (::fstatat(folder, entry.d_name, &status, AT_SYMLINK_NOFOLLOW) != 0)
        return DT_UNKNOWN;
    return static_cast<unsigned char>(IFTODT(status.st_mode));
}

Entries entriesOf(int folder)
{
    Entries entries;
    Descriptor copy(::openat(folder, ".", readOnly | O_DIRECTORY));
    entries.areAll = copy.isOpen() || !mayPass();
    const std::unique_ptr<DIR, int (*)(DIR*)> stream(::fdopendir(copy.get()), ::closedir);
    if (!stream)
        return entries;
    (void)copy.release();
    // Its end and a failure look alike but for this.
    const auto next = [&stream] {
        errno = 0;
        return ::readdir(stream.get());
    };
    while (const dirent* const entry = next()) {
        if (entry->d_name[0] == '.')
            continue;
        switch (entryType(folder, *entry)) {
        case DT_REG:
            if (kindByName(entry->d_name) != FileKind::none)
                entries.files << entry->d_name;
            break;
        case DT_DIR:
            entries.folders << entry->d_name;
            break;
        case DT_LNK:
            entries.links << entry->d_name;
            break;
        default: // Pipes, sockets and devices are no pictures.
            break;
        }
    }
    entries.areAll = !mayPass();
    for (QList<QByteArray>* const list : {&entries.files, &entries.folders, &entries.links})
        std::ranges::sort(*list);
    return entries;
}

QByteArray joined(const QByteArray& folder, const QByteArray& name)
{
    return folder.isEmpty() ? name : folder + '/' + name;
}

bool isBelow(const QByteArray& path, const QByteArray& folder)
{
    return folder.isEmpty() || path.startsWith(folder + '/');
}

bool isFolder(int opened)
{
    struct stat status {};
    return ::fstat(opened, &status) == 0 && S_ISDIR(status.st_mode);
}

} // namespace

Descriptor openBelow(int root, const QByteArray& path)
{
    Descriptor opened(::openat(root, ".", readOnly | O_DIRECTORY));
    if (path.isEmpty() || !opened.isOpen())
        return opened;
    const QList<QByteArray> names = path.split('/');
    for (qsizetype i = 0; i < names.size() && opened.isOpen(); ++i) {
        // The system would take a name for ending at a NUL.
        if (names[i].isEmpty() || names[i] == "." || names[i] == ".." || names[i].contains('\0'))
            return Descriptor();
        const int folderToo = i + 1 < names.size() ? O_DIRECTORY : 0;
        opened = Descriptor(::openat(opened.get(), names[i].constData(), readOnly | folderToo));
    }
    struct stat status {};
    if (!opened.isOpen() || ::fstat(opened.get(), &status) != 0 ||
        (!S_ISREG(status.st_mode) && !S_ISDIR(status.st_mode)))
        return Descriptor();
    return opened;
}

/// One listing under way.
class Listing::Walk {
public:
    Walk(Listing& listing, const QByteArray& top, bool withFilms, const Visitor& visit)
        : m_listing(listing)
        , m_top(top)
        , m_withFilms(withFilms)
        , m_visit(visit)
    {
    }

    /// False if the visitor has had enough.
    bool folder(const Descriptor& opened, const QByteArray& path, int depth)
    {
        if (!opened.isOpen() || depth > deepest)
            return true;
        const Entries entries = entriesOf(opened.get());
        m_listing.m_isWhole = m_listing.m_isWhole && entries.areAll;
        for (const QByteArray& name : entries.files) {
            if (!file(joined(path, name)))
                return false;
        }
        for (const QByteArray& name : entries.links) {
            if (!link(path, name, depth))
                return false;
        }
        return std::ranges::all_of(entries.folders, [&](const QByteArray& name) {
            m_listing.m_progress();
            const Descriptor inner(
                ::openat(opened.get(), name.constData(), readOnly | O_DIRECTORY));
            m_listing.note(inner.isOpen());
            return folder(inner, joined(path, name), depth + 1);
        });
    }

private:
    bool file(const QByteArray& path)
    {
        const FileKind kind = kindByName(path);
        if (kind == FileKind::none || (kind == FileKind::film && !m_withFilms))
            return true;
        if (!isBelow(path, m_top)) {
            if (m_outside.contains(path))
                return true;
            m_outside.insert(path);
        }
        return m_visit(path);
    }

    bool link(const QByteArray& path, const QByteArray& name, int depth)
    {
        m_listing.m_progress();
        const QByteArray target = m_listing.linkTarget(path, name);
        // Below the top it is listed where it is, and an upper folder is a circle.
        if (target.isEmpty() || isBelow(target, m_top) || target == m_top ||
            isBelow(m_top, target) || m_linked.contains(target))
            return true;
        m_linked.insert(target);
        const Descriptor opened = openBelow(m_listing.m_root, target);
        m_listing.note(opened.isOpen());
        if (!opened.isOpen())
            return true;
        return isFolder(opened.get()) ? folder(opened, target, depth + 1) : file(target);
    }

    Listing& m_listing;
    const QByteArray& m_top;
    bool m_withFilms;
    const Visitor& m_visit;
    QSet<QByteArray> m_linked{};  ///< Where links led that were followed.
    QSet<QByteArray> m_outside{}; ///< What was visited out of the top, through links.
};

Listing::Listing(int root, QByteArray rootPath, std::function<void()> progress)
    : m_root(root)
    , m_rootPath(std::move(rootPath))
    , m_progress(std::move(progress))
{
}

void Listing::visitAssets(const QByteArray& path, bool withFilms, const Visitor& visit)
{
    m_progress();
    const Descriptor top = openBelow(m_root, path);
    note(top.isOpen());
    Walk(*this, path, withFilms, visit).folder(top, path, 0);
}

void Listing::visitAlbums(const std::function<void(const QByteArray&, const QByteArray&)>& visit)
{
    const Entries entries = entriesOf(m_root);
    m_isWhole = m_isWhole && entries.areAll;
    for (const QByteArray& name : entries.folders)
        visit(name, name);
    for (const QByteArray& name : entries.links) {
        const QByteArray target = linkTarget({}, name);
        if (target.isEmpty())
            continue;
        const Descriptor opened = openBelow(m_root, target);
        note(opened.isOpen());
        if (isFolder(opened.get()))
            visit(name, target);
    }
}

void Listing::note(bool isRead)
{
    m_isWhole = m_isWhole && (isRead || !mayPass());
}

QByteArray Listing::linkTarget(const QByteArray& folder, const QByteArray& name)
{
    const QByteArray path = m_rootPath + '/' + joined(folder, name);
    const std::unique_ptr<char, void (*)(void*)> resolved(::realpath(path.constData(), nullptr),
                                                          std::free);
    note(resolved != nullptr);
    const QByteArray target(resolved.get());
    const QByteArray inside = m_rootPath.endsWith('/') ? m_rootPath : m_rootPath + '/';
    if (!target.startsWith(inside) || target.indexOf("/.", inside.size() - 1) >= 0)
        return {};
    return target.mid(inside.size());
}
