// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/album_folder.h"

#include <filesystem>
#include <system_error>

std::optional<QByteArray> albumFolder(const QByteArray& libraryFolder, const QByteArray& title)
{
    if (libraryFolder.isEmpty())
        return std::nullopt;
    const QByteArray folder = libraryFolder + '/' + title;
    const std::filesystem::path path(folder.constData());
    std::error_code error;
    std::filesystem::create_directory(path, error);
    // A link is no album, wherever it leads.
    if (!std::filesystem::is_directory(std::filesystem::symlink_status(path, error)))
        return std::nullopt;
    return folder;
}
