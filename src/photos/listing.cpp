// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "photos/listing.h"

#include "photos/file_kind.h"

#include <algorithm>
#include <array>
#include <cerrno>
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
        default: // Pipes and devices are no pictures; a link's target may not answer.
            break;
        }
    }
    entries.areAll = !mayPass();
    std::ranges::sort(entries.files);
    std::ranges::sort(entries.folders);
    return entries;
}

QByteArray joined(const QByteArray& folder, const QByteArray& name)
{
    return folder.isEmpty() ? name : folder + '/' + name;
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

Listing::Listing(int root, std::function<void()> progress)
    : m_root(root)
    , m_progress(std::move(progress))
{
}

void Listing::visitAssets(const QByteArray& path, bool withFilms, const Visitor& visit)
{
    m_progress();
    const Descriptor top = openBelow(m_root, path);
    note(top.isOpen());
    visitFolder(top, path, 0, [&](const QByteArray& asset) {
        return (!withFilms && kindByName(asset) == FileKind::film) || visit(asset);
    });
}

QList<QByteArray> Listing::albums()
{
    const Entries entries = entriesOf(m_root);
    m_isWhole = m_isWhole && entries.areAll;
    return entries.folders;
}

bool Listing::visitFolder(const Descriptor& folder, const QByteArray& path, int depth,
                          const Visitor& visit)
{
    if (!folder.isOpen() || depth > deepest)
        return true;
    const Entries entries = entriesOf(folder.get());
    m_isWhole = m_isWhole && entries.areAll;
    for (const QByteArray& name : entries.files) {
        if (!visit(joined(path, name)))
            return false;
    }
    return std::ranges::all_of(entries.folders, [&](const QByteArray& name) {
        m_progress();
        const Descriptor inner(::openat(folder.get(), name.constData(), readOnly | O_DIRECTORY));
        note(inner.isOpen());
        return visitFolder(inner, joined(path, name), depth + 1, visit);
    });
}

void Listing::note(bool isRead)
{
    m_isWhole = m_isWhole && (isRead || !mayPass());
}
