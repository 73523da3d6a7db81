// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>

/// A still of the film in the open file: the first that is not black of a few
/// taken along its length, upright and at its own size. Null if it cannot be read.
///
/// What decodes films is a module beside the program, loaded with the first of
/// them: it brings a hundred libraries with it, which pictures do without. Where
/// the module is missing films have no stills.
[[nodiscard]] QImage filmStill(int file);

/// What the module offers, under the name of `stillFunctionName`: fills `still`
/// with the frame at `percent` of the film at `path`.
struct FilmStill {
    int width = 0;
    int height = 0;
    QByteArray pixels{}; ///< Red, green, blue; rows without gaps. Empty if there is none.
};
using StillFunction = void (*)(const char* path, int percent, FilmStill& still);
inline constexpr const char* stillFunctionName = "paircadeFilmStill";
