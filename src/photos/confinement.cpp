// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "photos/confinement.h"

#include <QtGlobal>
#include <algorithm>
#include <csignal>
#include <sys/prctl.h>
#include <sys/resource.h>

namespace {

constexpr rlim_t mostData = rlim_t{512} << 20; // bytes
constexpr rlim_t mostTime = 30;                // seconds of processor time
constexpr rlim_t mostPictureTime = 4;          // the same, for one picture
constexpr rlim_t mostFiles = 256;

void limit(__rlimit_resource_t resource, rlim_t most)
{
    rlimit bounds{};
    ::getrlimit(resource, &bounds);
    bounds.rlim_max = std::min(bounds.rlim_max, most);
    bounds.rlim_cur = std::min(bounds.rlim_cur, bounds.rlim_max);
    ::setrlimit(resource, &bounds);
}

} // namespace

void limitResources()
{
// The address sanitizer's shadow memory alone is larger.
#ifndef __SANITIZE_ADDRESS__
    limit(RLIMIT_DATA, mostData);
#endif
    limit(RLIMIT_CPU, mostTime);
    limit(RLIMIT_CORE, 0);
    limit(RLIMIT_FSIZE, 0);
    limit(RLIMIT_NOFILE, mostFiles);
    // A complaint on an error output that is a file is no reason to end.
    ::signal(SIGXFSZ, SIG_IGN);
    // Waiting for a dead file system, it would not notice that the game has gone.
    ::prctl(PR_SET_PDEATHSIG, SIGKILL, 0, 0, 0);
}

void limitPictureTime()
{
    rusage used{};
    ::getrusage(RUSAGE_SELF, &used);
    const auto seconds = rlim_t(used.ru_utime.tv_sec + used.ru_stime.tv_sec + 1);
    rlimit bounds{};
    ::getrlimit(RLIMIT_CPU, &bounds);
    bounds.rlim_cur = std::min(bounds.rlim_max, seconds + mostPictureTime);
    ::setrlimit(RLIMIT_CPU, &bounds);
}

void confine(const QByteArray& library)
{
    ::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0);
    // The files first: laying down their rules takes calls that are gone after.
    confineFiles(library);
    confineSystemCalls();
}
