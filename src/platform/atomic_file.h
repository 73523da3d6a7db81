// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QFileDevice>
#include <QString>
#include <optional>

/// Makes `contents` those of the file `path`, which is replaced in one step:
/// whoever reads it finds all of the old or all of the new.
///
/// None on success. Otherwise the file is as it was, and the answer is the
/// system's words for what failed. An empty path is a failure. Without
/// `permissions` the file keeps those it had, or gets the user's default.
[[nodiscard]] std::optional<QString>
writeAtomically(const QString& path, const QByteArray& contents,
                std::optional<QFileDevice::Permissions> permissions = std::nullopt);
