// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFile>
#include <csignal>
#include <filesystem>
#include <sys/resource.h>
#include <sys/stat.h>
#include <tuple>
#include <unistd.h>

inline void makePipe(const QString& path)
{
    if (::mkfifo(QFile::encodeName(path), 0666) != 0)
        qFatal("the test cannot make its pipe");
}

inline void forbid(const QString& path, mode_t mode = 0)
{
    if (::chmod(QFile::encodeName(path), mode) != 0)
        qFatal("the test cannot change a mode");
}

/// What tells a file from another in its place, and from itself once written or
/// renamed; all zeros where nothing is.
[[nodiscard]] inline auto identity(const QString& path)
{
    struct stat status {};
    (void)::lstat(QFile::encodeName(path), &status);
    return std::tuple(status.st_ino, status.st_mode, status.st_size, status.st_mtim.tv_sec,
                      status.st_mtim.tv_nsec);
}

/// Root passes every check of permissions; while this lives, root is nobody, and so are
/// the processes that it starts. Any other user stays who it is.
class AsNobody {
public:
    /// Hands `home` over to nobody.
    explicit AsNobody(const QString& home)
    {
        if (!m_isRoot)
            return;
        constexpr uid_t nobody = 65534;
        const std::filesystem::path path(QFile::encodeName(home).toStdString());
        (void)::lchown(path.c_str(), nobody, nobody);
        for (const auto& entry : std::filesystem::recursive_directory_iterator(path))
            (void)::lchown(entry.path().c_str(), nobody, nobody);
        if (::setresuid(nobody, nobody, 0) != 0)
            qFatal("root cannot become nobody");
    }
    ~AsNobody()
    {
        if (m_isRoot && ::setresuid(0, 0, 0) != 0)
            qFatal("nobody cannot become root again");
    }
    Q_DISABLE_COPY_MOVE(AsNobody)

private:
    const bool m_isRoot = ::geteuid() == 0;
};

/// While this lives, the process has no more than `most` of a resource; a file that would
/// grow beyond RLIMIT_FSIZE fails as on a full disk.
class Limit {
public:
    Limit(__rlimit_resource_t resource, rlim_t most)
        : m_resource(resource)
    {
        std::signal(SIGXFSZ, SIG_IGN);
        ::getrlimit(m_resource, &m_before);
        const rlimit lower{most, m_before.rlim_max};
        ::setrlimit(m_resource, &lower);
    }
    ~Limit() { ::setrlimit(m_resource, &m_before); }
    Q_DISABLE_COPY_MOVE(Limit)

private:
    const __rlimit_resource_t m_resource;
    rlimit m_before{};
};
