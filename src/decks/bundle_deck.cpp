// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "decks/bundle_deck.h"

#include "platform/application_bundle.h"
#include "platform/collation.h"
#include "platform/debug_log.h"

#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <algorithm>
#include <array>
#include <fcntl.h>
#include <filesystem>
#include <optional>
#include <utility>
#include <vector>

namespace {

// More than a card shows on any screen. A deck of pictures as large as the decoder
// allows would take gigabytes.
constexpr int longestEdge = 2048;

/// A file of a deck. A name need not be UTF-8, and only the path as it is opens such a
/// file; the text is what its name is sorted and shown by.
struct PictureFile {
    std::filesystem::path path{};
    QString name{};
};

/// The files in `folder` that can be pictures, in the order of the listing; none if
/// the folder cannot be listed.
std::optional<std::vector<PictureFile>> pictureFiles(const QString& folder)
{
    static constexpr std::array extensions{QLatin1String("png"), QLatin1String("jpg"),
                                           QLatin1String("jpeg")};
    // The system would take a name for ending there.
    if (folder.contains(QChar::Null))
        return std::nullopt;
    // QDir would answer a missing folder with an empty list.
    const std::filesystem::path path(QFile::encodeName(folder).toStdString());
    std::error_code error;
    std::filesystem::directory_iterator entry(path, error);
    std::vector<PictureFile> files;
    for (; !error && entry != std::filesystem::directory_iterator(); entry.increment(error)) {
        const QString name = QFile::decodeName(entry->path().filename().c_str());
        const QString extension = QFileInfo(name).suffix().toLower();
        if (!name.startsWith(QLatin1Char('.')) &&
            std::ranges::find(extensions, extension) != extensions.end())
            files.push_back({entry->path(), name});
    }
    if (error)
        return std::nullopt;
    return files;
}

/// The reader for the content of `file`, whatever its name says; none for what is
/// neither PNG nor JPEG. Named, no plugin for another format is even loaded.
QByteArray readerFor(QFile& file)
{
    constexpr QByteArrayView png("\x89PNG\r\n\x1a\n");
    const QByteArray head = file.peek(png.size());
    if (head == png)
        return "png";
    return head.startsWith("\xff\xd8\xff") ? "jpeg" : QByteArray();
}

/// The picture in the file `path`; null if there is none, or one too large to decode.
QImage decodedPicture(const std::filesystem::path& path)
{
    // Opening a pipe waits for whoever writes into it, and a device may never end.
    std::error_code error;
    if (!std::filesystem::is_regular_file(path, error))
        return {};
    QFile file;
    const int descriptor = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
    if (descriptor < 0 || !file.open(descriptor, QIODevice::ReadOnly, QFile::AutoCloseHandle))
        return {};
    const QByteArray format = readerFor(file);
    if (format.isEmpty())
        return {};
    QImageReader reader(&file, format);
    reader.setAutoDetectImageFormat(false);
    QImage image = reader.read();
    if (image.width() > longestEdge || image.height() > longestEdge)
        image =
            image.scaled(longestEdge, longestEdge, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    return image;
}

QString folderOf(const QString& resources, const QString& deck)
{
    return resources + QStringLiteral("/Cards/") + deck;
}

/// Reads `files` in order of name, until `most` of them have turned out to be pictures.
CardPictures readPictures(std::vector<PictureFile> files, std::size_t most)
{
    std::ranges::stable_sort(files, sortsBefore, &PictureFile::name);
    CardPictures pictures;
    for (const PictureFile& file : files) {
        if (pictures.size() >= most)
            break;
        QImage image = decodedPicture(file.path);
        if (!image.isNull())
            pictures.push_back({std::move(image), QFileInfo(file.name).completeBaseName()});
    }
    return pictures;
}

} // namespace

CardPictures loadBundleDeck(const ApplicationBundle& bundle, const QString& deck)
{
    if (deck.isEmpty()) {
        logLine(QStringLiteral("CardDeck ist leer"));
        return {};
    }
    const auto resources = bundle.resourceFolder();
    if (!resources) {
        logLine(QStringLiteral("Bundle-Ordner Cards/") + deck + QStringLiteral(" nicht gefunden"));
        return {};
    }
    const QString folder = folderOf(*resources, deck);
    const auto files = pictureFiles(folder);
    if (!files) {
        logLine(QStringLiteral("Ordnerinhalt konnte nicht gelesen werden: ") + folder);
        return {};
    }
    return readPictures(*files, files->size());
}

CardPictures firstBundlePictures(const ApplicationBundle& bundle, const QString& deck,
                                 std::size_t count)
{
    const auto resources = bundle.resourceFolder();
    if (deck.isEmpty() || !resources)
        return {};
    const auto files = pictureFiles(folderOf(*resources, deck));
    return files ? readPictures(*files, count) : CardPictures();
}
