// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The half of the confinement that concerns files, by Landlock. Called by number:
// the C library has no functions for it, and older headers not all its names.
#include "photos/confinement.h"

#include "photos/protocol/descriptor.h"

#include <QCoreApplication>
#include <QFile>
#include <QLibraryInfo>
#include <QStringList>
#include <cstdint>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace {

constexpr long createRuleset = 444; // the same on every architecture
constexpr long addRule = 445;
constexpr long restrictSelf = 446;

constexpr std::uint64_t readFile = 1U << 2U;
constexpr std::uint64_t readFolder = 1U << 3U;

struct Ruleset {
    std::uint64_t files = 0;   ///< Rights that nobody has but by a rule.
    std::uint64_t network = 0; ///< The same for TCP; from version 4 on.
    std::uint64_t scoped = 0;  ///< Sockets and signals of others; from version 6 on.
};

struct __attribute__((packed)) PathRule {
    std::uint64_t allowed;
    std::int32_t folder;
};

/// All that a kernel of this version can forbid, and the size of that.
std::pair<Ruleset, std::size_t> everything(long version)
{
    int fileRights = 13;
    if (version >= 2)
        ++fileRights; // linking from folder to folder
    if (version >= 3)
        ++fileRights; // cutting short
    if (version >= 5)
        ++fileRights; // commands to devices
    Ruleset rules{.files = (std::uint64_t{1} << unsigned(fileRights)) - 1};
    if (version < 4)
        return {rules, sizeof rules.files};
    rules.network = 3; // listening, connecting
    if (version < 6)
        return {rules, sizeof rules.files + sizeof rules.network};
    rules.scoped = 3;
    return {rules, sizeof rules};
}

void allowReading(int ruleset, const QByteArray& path)
{
    const Descriptor place(::open(path.constData(), O_PATH | O_CLOEXEC));
    struct stat status {};
    if (!place.isOpen() || ::fstat(place.get(), &status) != 0)
        return;
    const PathRule rule{S_ISDIR(status.st_mode) ? readFile | readFolder : readFile, place.get()};
    ::syscall(addRule, ruleset, 1, &rule, 0);
}

} // namespace

bool confineFiles(const QByteArray& library)
{
    const long version = ::syscall(createRuleset, nullptr, 0, 1);
    if (version < 1)
        return false;
    const auto [rules, size] = everything(version);
    const Descriptor ruleset(int(::syscall(createRuleset, &rules, size, 0)));
    if (!ruleset.isOpen())
        return false;
    // Decoders are loaded, and their libraries with them, when they are needed first.
    QList<QByteArray> readable = {library,     "/usr", "/lib", "/lib64", "/etc/ld.so.cache",
                                  "/proc/self"};
    // The helper may have its libraries beside it, outside /usr.
    for (const QString& folder :
         {QCoreApplication::applicationDirPath(),
          QCoreApplication::applicationDirPath() + QStringLiteral("/../../lib"),
          QLibraryInfo::path(QLibraryInfo::PluginsPath),
          QLibraryInfo::path(QLibraryInfo::LibrariesPath)})
        readable << QFile::encodeName(folder);
    for (const QByteArray& path : readable)
        allowReading(ruleset.get(), path);
    return ::syscall(restrictSelf, ruleset.get(), 0) == 0;
}
