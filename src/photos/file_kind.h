// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArrayView>

/// What a file may be. Everything else (SVG, PDF, playlists ...) is refused.
enum class FileKind { none, jpeg, png, gif, webp, tiff, bmp, heif, film };

/// By the extension of its name, in whatever case: this decides what is listed.
[[nodiscard]] FileKind kindByName(QByteArrayView name);

/// By the first bytes of its content, `headBytes` of them if there are as many:
/// this decides how a file is read, whatever its name says.
[[nodiscard]] FileKind kindByContent(QByteArrayView head);
inline constexpr qsizetype headBytes = 64;
