// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QFileDevice>
#include <QString>
#include <optional>

/// Replaces the file `path` by one with `contents`, in one step: a reader finds
/// all of the old or all of the new.
///
/// None on success. Otherwise the file is as it was, and the result is the
/// system's description of the error. An empty path is a failure, so is a pipe, a
/// device or a directory. A write-protected or foreign file is replaced if its
/// folder allows it. Without `permissions` the new file has those of the old, and
/// its owner may read and write it; or the user's default.
[[nodiscard]] std::optional<QString>
writeAtomically(const QString& path, const QByteArray& contents,
                std::optional<QFileDevice::Permissions> permissions = std::nullopt);
