// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <optional>

/// The folder of the album `title` in the photo library `libraryFolder`, made empty
/// where there was none; in the system's bytes, like `libraryFolder`.
///
/// None where it cannot be made, or where something that is no folder bears the
/// name. The library's own folder is not made.
[[nodiscard]] std::optional<QByteArray> albumFolder(const QByteArray& libraryFolder,
                                                    const QByteArray& title);
