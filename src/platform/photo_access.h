// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>
#include <optional>

/// How far the user lets the game look at personal photos.
enum class PhotoAuthorization {
    notDetermined = 0, ///< never asked
    restricted = 1,    ///< not to be had on this system, whatever the user says
    denied = 2,
    authorized = 3, ///< everything
    limited = 4,    ///< a part chosen by the user
};

/// Whether pictures may be read under `status`.
[[nodiscard]] constexpr bool allowsReading(PhotoAuthorization status) noexcept
{
    return status == PhotoAuthorization::authorized || status == PhotoAuthorization::limited;
}

/// What the user answered when asked for access to personal photos.
struct PhotoAccess {
    PhotoAuthorization status = PhotoAuthorization::notDetermined;
    QByteArray folder{}; ///< `limited` only: the folder chosen, absolute, in the system's bytes.

    friend bool operator==(const PhotoAccess&, const PhotoAccess&) = default;
};

/// The answer, kept in a file of its own that only the user may read.
///
/// The file holds the answer and nothing else: `status=` and one of "denied",
/// "authorized" and "limited", and under `limited` a second line `folder=` with
/// the path percent-encoded. Whatever else stands there counts as never asked.
class PhotoAccessStore {
public:
    /// The store in `file`, which need not exist yet.
    explicit PhotoAccessStore(QString file);

    /// The answer as the file has it now. Never fails: no answer is `notDetermined`.
    [[nodiscard]] PhotoAccess read() const;

    /// Stores an answer, and whether it will outlive the program. An answer that
    /// could not be saved holds as long as this object; what is none (an
    /// undetermined or restricted status, a folder that is no absolute path) is
    /// refused and changes nothing.
    bool write(const PhotoAccess& answer);

private:
    QString m_file;
    std::optional<PhotoAccess> m_unsaved{};
};
