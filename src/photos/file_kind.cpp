// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "photos/file_kind.h"

#include <QByteArray>
#include <QList>
#include <algorithm>
#include <array>
#include <string_view>

namespace {

using namespace std::string_view_literals;

struct Extension {
    std::string_view name;
    FileKind kind;
};

constexpr std::array extensions = {
    Extension{"jpg", FileKind::jpeg},  Extension{"jpeg", FileKind::jpeg},
    Extension{"jpe", FileKind::jpeg},  Extension{"jfif", FileKind::jpeg},
    Extension{"png", FileKind::png},   Extension{"heic", FileKind::heif},
    Extension{"heif", FileKind::heif}, Extension{"hif", FileKind::heif},
    Extension{"avif", FileKind::heif}, Extension{"webp", FileKind::webp},
    Extension{"gif", FileKind::gif},   Extension{"tif", FileKind::tiff},
    Extension{"tiff", FileKind::tiff}, Extension{"bmp", FileKind::bmp},
    Extension{"mp4", FileKind::film},  Extension{"m4v", FileKind::film},
    Extension{"mov", FileKind::film},  Extension{"3gp", FileKind::film},
    Extension{"webm", FileKind::film}, Extension{"mkv", FileKind::film},
    Extension{"avi", FileKind::film},
};

struct Signature {
    std::size_t offset;
    std::string_view bytes;
    FileKind kind;
};

constexpr std::array signatures = {
    Signature{0, "\xff\xd8\xff"sv, FileKind::jpeg},
    Signature{0, "\x89PNG\r\n\x1a\n"sv, FileKind::png},
    Signature{0, "GIF87a"sv, FileKind::gif},
    Signature{0, "GIF89a"sv, FileKind::gif},
    Signature{8, "WEBP"sv, FileKind::webp},
    Signature{0, "II*\0"sv, FileKind::tiff},
    Signature{0, "MM\0*"sv, FileKind::tiff},
    Signature{0, "BM"sv, FileKind::bmp},
    Signature{8, "AVI "sv, FileKind::film},
    Signature{0, "\x1a\x45\xdf\xa3"sv, FileKind::film}, // Matroska and WebM
    // Films of cameras from before the box that names the format.
    Signature{4, "moov"sv, FileKind::film},
    Signature{4, "mdat"sv, FileKind::film},
    Signature{4, "wide"sv, FileKind::film},
};

// Brands of still pictures; every other file with brands is a film.
constexpr std::array pictureBrands = {"heic"sv, "heix"sv, "heim"sv, "heis"sv,
                                      "mif1"sv, "avif"sv, "avis"sv};

} // namespace

FileKind kindByName(QByteArrayView name)
{
    const qsizetype dot = name.lastIndexOf('.');
    if (dot < 0 || name.size() - dot > 6)
        return FileKind::none;
    const QByteArray extension = name.sliced(dot + 1).toByteArray().toLower();
    const auto* const found = std::ranges::find(
        extensions, std::string_view(extension.constData(), std::size_t(extension.size())),
        &Extension::name);
    return found == extensions.end() ? FileKind::none : found->kind;
}

FileKind kindByContent(QByteArrayView head)
{
    const std::string_view bytes(head.data(), std::size_t(head.size()));
    if (bytes.size() < 12)
        return FileKind::none;
    if (bytes.substr(4, 4) == "ftyp") {
        // The main brand, then, after its version, those the file is compatible with.
        for (std::size_t at = 8; at + 4 <= bytes.size(); at += at == 8 ? 8 : 4) {
            if (std::ranges::find(pictureBrands, bytes.substr(at, 4)) != pictureBrands.end())
                return FileKind::heif;
        }
        return FileKind::film;
    }
    const auto* const found = std::ranges::find_if(signatures, [bytes](const Signature& candidate) {
        return bytes.substr(candidate.offset, candidate.bytes.size()) == candidate.bytes;
    });
    return found == signatures.end() ? FileKind::none : found->kind;
}
