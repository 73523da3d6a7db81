// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// Hands files to other programs of the user's desktop.
class Workspace {
public:
    virtual ~Workspace() = default;

    /// Opens the file `path`, an absolute path of any characters, with the user's
    /// default application for its type. Does not wait for that application;
    /// where nothing can open the file, nothing happens.
    virtual void openFile(const QString& path) const;
};
