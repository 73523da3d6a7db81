// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "highscores/highscore_entry.h"

#include <QByteArray>
#include <QString>
#include <optional>

/// The folder of the results, Paircade in the user's folder for data; made if
/// it is missing. Empty where the system names no such folder, and then, as if
/// it could not be made, nothing can be read or written in it.
[[nodiscard]] QString highscoreFolder();

/// The file of the results in highscoreFolder(), which is made if missing.
[[nodiscard]] QString highscoreFile();

/// What was found in the file of the results.
struct StoredHighscores {
    /// All records, oldest first; none if the file is missing, cannot be read or is
    /// no list of complete records.
    std::optional<HighscoreEntries> entries{};
    /// Whether the file is there for the user to read, and only memory, handles or the
    /// disk did not allow it this time. It may hold every result of its player, and
    /// nobody may replace it by fewer.
    bool mustStay = false;
};

/// Reads the file anew, unless it would take all the memory of this machine before the
/// system says so.
[[nodiscard]] StoredHighscores readHighscores(const QString& file);

/// Replaces the file in one step by `entries`. False, and the old file stays,
/// if that fails. Like the two below it lets std::bad_alloc through.
[[nodiscard]] bool writeHighscores(const QString& file, const HighscoreEntries& entries);

// What follows is in highscore_json.cpp.

/// The records that `json` holds: an array of objects, all or nothing.
///
/// A required member that is missing or null, a member of another type, an id
/// that is no UUID, or anything that is not strict UTF-8 JSON gives none. A
/// number is whole when its value is, within 64 bits; unknown members are
/// ignored; of equal members the last holds. A byte-order mark is skipped.
[[nodiscard]] std::optional<HighscoreEntries> decodeHighscores(const QByteArray& json);

/// `entries` as an indented JSON array, members in the order of the fields,
/// absent optional ones left out, ids in upper case.
[[nodiscard]] QByteArray encodeHighscores(const HighscoreEntries& entries);
