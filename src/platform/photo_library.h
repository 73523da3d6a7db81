// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/photo_access.h"
#include "platform/photo_fetch.h"

#include <memory>

class AccessPrompt;

/// The user's photo library: the pictures folder, or the part of it (or elsewhere)
/// that the user chose. Its direct subfolders are the albums.
class PhotoLibrary {
public:
    /// `store` keeps what the user has answered, `prompt` asks (nullptr: nobody
    /// does, which is no answer). `picturesFolder` is the library as a whole, empty
    /// where the system names none; `helperProgram` is the path of paircade-photos.
    PhotoLibrary(PhotoAccessStore& store, AccessPrompt* prompt, QString picturesFolder,
                 QString helperProgram);
    virtual ~PhotoLibrary() = default;
    PhotoLibrary(const PhotoLibrary&) = delete;
    PhotoLibrary& operator=(const PhotoLibrary&) = delete;

    /// The helper's path beside the running program.
    [[nodiscard]] static QString helperOfRunningProgram();

    /// The current status; never asks the user. `restricted` without a helper or a
    /// pictures folder.
    [[nodiscard]] virtual PhotoAuthorization authorizationStatus() const;

    /// Asks the user, stores the answer and gives the new status; `denied` where
    /// there was no answer, which is not stored. Blocks meanwhile.
    virtual PhotoAuthorization requestAuthorization();

    /// Returns the user's albums, in the library's order, counted. Titles may be equal.
    /// Empty where reading is not allowed. Blocks up to PhotoPatience::round.
    [[nodiscard]] virtual PhotoAlbums albums();

    /// The folder that may be read, in the system's bytes; empty if none.
    [[nodiscard]] QByteArray readableFolder() const;

    /// The name of the part that may be read under `limited`.
    [[nodiscard]] virtual QString limitedTo() const;

    /// Begins to read for one round. An empty library where reading is not allowed.
    [[nodiscard]] virtual std::unique_ptr<PhotoFetch> startFetch() const;

private:
    PhotoAccessStore& m_store;
    AccessPrompt* m_prompt;
    QString m_picturesFolder;
    QString m_helperProgram;
};
