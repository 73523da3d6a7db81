// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Listing and reading photos, helper's start and transfer included.
#include "platform/photo_library.h"
#include "report.h"

#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>
#include <QVariant>
#include <cstddef>
#include <cstdio> // before jpeglib.h, which needs both
#include <fstream>
#include <jpeglib.h>
#include <string>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

PhotoFetch fetchFrom(const QString& folder)
{
    return {PhotoLibrary::helperOfRunningProgram(), QFile::encodeName(folder)};
}

void listing()
{
    const QTemporaryDir library;
    for (int i = 0; i < 20'000; ++i) {
        const QString folder = library.filePath(u"Album %1"_s.arg(i % 200));
        QDir().mkpath(folder);
        QFile file(folder + u"/IMG_%1.JPG"_s.arg(i));
        if (!file.open(QIODevice::WriteOnly))
            qFatal("the bench cannot write its files");
    }
    Samples listed;
    Samples found;
    for (int i = 0; i < 7; ++i) {
        listed.push_back(timed(CLOCK_MONOTONIC, [&library] {
            if (fetchFrom(library.path()).images().size() != 20'000)
                qFatal("photos are missing");
        }));
        found.push_back(timed(CLOCK_MONOTONIC, [&library] {
            QProcess find;
            find.start(u"find"_s, {library.path(), u"-type"_s, u"f"_s});
            find.waitForFinished();
        }));
    }
    printRow("listing 20,000 photos in 200 folders", median(listed), "ms", 3, median(found));
}

void manyAlbums()
{
    const QTemporaryDir library;
    for (int i = 0; i < 10'000; ++i) {
        QDir().mkpath(library.filePath(u"Album %1"_s.arg(i)));
        QFile file(library.filePath(u"Album %1/a.jpg"_s.arg(i)));
        (void)file.open(QIODevice::WriteOnly);
    }
    printRow(
        "listing 10,000 albums, each looked into",
        timed(CLOCK_MONOTONIC,
              [&library] { (void)fetchFrom(library.path()).albums(PhotoFetch::Counted::upToOne); }),
        "ms", 1000);
}

/// A picture as large and as hard to decode as a camera's.
void writePhoto(const QString& path)
{
    QImage photo(6000, 4000, QImage::Format_RGB32);
    std::uint32_t noise = 1;
    for (int y = 0; y < photo.height(); ++y) {
        auto* const row = reinterpret_cast<QRgb*>(photo.scanLine(y));
        for (int x = 0; x < photo.width(); ++x) {
            noise = noise * 1'664'525 + 1'013'904'223;
            const int grain = int(noise >> 28);
            row[x] =
                qRgb((x / 24 + grain) & 255, (y / 16 + grain) & 255, ((x + y) / 40 + grain) & 255);
        }
    }
    if (!photo.save(path, "JPG", 90))
        qFatal("the bench cannot write its photo");
}

/// Decodes the file at a quarter of its size, and no more.
void decodeByCodec(const QString& path)
{
    std::FILE* const file = std::fopen(QFile::encodeName(path).constData(), "rb");
    jpeg_decompress_struct info{};
    jpeg_error_mgr errors{};
    info.err = jpeg_std_error(&errors);
    jpeg_create_decompress(&info);
    jpeg_stdio_src(&info, file);
    jpeg_read_header(&info, TRUE);
    info.scale_num = 1;
    info.scale_denom = 4;
    jpeg_start_decompress(&info);
    std::vector<JSAMPLE> row(std::size_t(info.output_width) * std::size_t(info.output_components));
    JSAMPROW start = row.data();
    while (info.output_scanline < info.output_height)
        jpeg_read_scanlines(&info, &start, 1);
    jpeg_finish_decompress(&info);
    jpeg_destroy_decompress(&info);
    std::fclose(file);
}

/// The peak memory of this process's only child, in megabytes.
double peakOfHelper()
{
    std::ifstream children("/proc/self/task/" + std::to_string(::getpid()) + "/children");
    std::string child;
    children >> child;
    std::ifstream status("/proc/" + child + "/status");
    for (std::string word; status >> word;) {
        double kilobytes = 0;
        if (word == "VmHWM:" && status >> kilobytes)
            return kilobytes / 1024;
    }
    return std::nan("");
}

void pictures()
{
    const QTemporaryDir library;
    const QString photo = library.filePath(u"photo0.jpg"_s);
    writePhoto(photo);
    for (int i = 1; i < 20; ++i)
        QFile::copy(photo, library.filePath(u"photo%1.jpg"_s.arg(i)));
    Samples fetched;
    Samples decoded;
    Samples peaks;
    for (int i = 0; i < 5; ++i) {
        fetched.push_back(timed(CLOCK_MONOTONIC, [&library, &peaks] {
            PhotoFetch fetch = fetchFrom(library.path());
            for (int number = 0; number < 20; ++number) {
                if (fetch.image("photo" + QByteArray::number(number) + ".jpg").isNull())
                    qFatal("a photo is missing");
            }
            peaks.push_back(peakOfHelper());
        }));
        decoded.push_back(timed(CLOCK_MONOTONIC, [&library] {
            for (int number = 0; number < 20; ++number)
                decodeByCodec(library.filePath(u"photo%1.jpg"_s.arg(number)));
        }));
    }
    printRow("20 pictures from JPEG photos of 24 megapixels", median(fetched), "ms", 1.3,
             median(decoded));
    printRow("peak memory of the helper meanwhile", percentile(peaks, 1), "MB", 60);
}

} // namespace

int main(int argc, char* argv[])
{
    const QGuiApplication application(argc, argv);
    listing();
    manyAlbums();
    pictures();
    return 0;
}
