// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTemporaryFile>
#include <cstdio>
#include <functional>
#include <unistd.h>

/// What `action` writes to standard output.
inline QByteArray outputOf(const std::function<void()>& action)
{
    QTemporaryFile file;
    if (!file.open())
        qFatal("the test cannot write its file");
    std::fflush(stdout);
    const int terminal = ::dup(STDOUT_FILENO);
    ::dup2(file.handle(), STDOUT_FILENO);
    action();
    std::fflush(stdout);
    ::dup2(terminal, STDOUT_FILENO);
    ::close(terminal);
    file.seek(0);
    return file.readAll();
}
