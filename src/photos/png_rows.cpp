// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "photos/png_rows.h"

#include "photos/exif_orientation.h"
#include "photos/image_files.h"
#include "photos/protocol/messages.h"

#include <QColorSpace>
#include <algorithm>
#include <csetjmp>
#include <png.h>
#include <unistd.h>
#include <vector>

namespace {

/// Averages squares of `factor` x `factor` pixels of the rows that it is given.
class Shrinking {
public:
    /// Rows begin at the pixel `left`; `edge` pixels of them are taken.
    Shrinking(int edge, int left, int factor, bool hasAlpha)
        : m_left(left)
        , m_factor(factor)
        , m_hasAlpha(hasAlpha)
        , m_image(edge / factor, edge / factor,
                  hasAlpha ? QImage::Format_ARGB32 : QImage::Format_RGB32)
        , m_sums(std::size_t(m_image.width()) * 4)
    {
    }

    [[nodiscard]] bool isFull() const { return m_rows == m_image.height() * m_factor; }
    [[nodiscard]] const QImage& image() const { return m_image; }

    /// The next row, four bytes a pixel: blue, green, red, alpha.
    void addRow(const png_byte* row)
    {
        const png_byte* pixel = row + std::ptrdiff_t{4} * m_left;
        for (std::size_t to = 0; to < m_sums.size(); to += 4) {
            for (int i = 0; i < m_factor; ++i, pixel += 4) {
                // What cannot be seen lends no colour to what can.
                const std::uint64_t weight = m_hasAlpha ? pixel[3] : 255;
                m_sums[to] += pixel[0] * weight;
                m_sums[to + 1] += pixel[1] * weight;
                m_sums[to + 2] += pixel[2] * weight;
                m_sums[to + 3] += weight;
            }
        }
        ++m_rows;
        if (m_rows % m_factor == 0)
            finishRow();
    }

private:
    void finishRow()
    {
        png_byte* pixel = m_image.scanLine(m_rows / m_factor - 1);
        const auto count = std::uint64_t(m_factor) * std::uint64_t(m_factor);
        for (std::size_t from = 0; from < m_sums.size(); from += 4, pixel += 4) {
            const std::uint64_t weight = std::max<std::uint64_t>(m_sums[from + 3], 1);
            for (std::size_t channel = 0; channel < 3; ++channel)
                pixel[channel] = png_byte((m_sums[from + channel] + weight / 2) / weight);
            pixel[3] = png_byte((m_sums[from + 3] + count / 2) / count);
        }
        std::ranges::fill(m_sums, 0);
    }

    int m_left;
    int m_factor;
    bool m_hasAlpha;
    QImage m_image;
    std::vector<std::uint64_t> m_sums;
    int m_rows = 0;
};

/// The picture being read. All that libpng's way of failing, a jump back, leaves
/// behind is here and is cleared by the destructor.
struct Reading {
    explicit Reading(int descriptor)
        : file(descriptor)
    {
    }
    ~Reading() { png_destroy_read_struct(&png, &info, nullptr); }
    Reading(const Reading&) = delete;
    Reading& operator=(const Reading&) = delete;

    int file;
    off_t position = 0;
    png_structp png = nullptr;
    png_infop info = nullptr;
    std::vector<png_byte> row{};
    std::unique_ptr<Shrinking> shrinking{};
    QColorSpace colours{};
    int orientation = 1;
};

void readBytes(png_structp png, png_bytep to, std::size_t count)
{
    auto& reading = *static_cast<Reading*>(png_get_io_ptr(png));
    while (count > 0) {
        const ssize_t length = ::pread(reading.file, to, count, reading.position);
        if (length <= 0)
            png_error(png, "cut short");
        reading.position += length;
        to += length;
        count -= std::size_t(length);
    }
}

void sayNothing(png_structp, png_const_charp) {}

QColorSpace colourSpaceOf(png_structp png, png_infop info)
{
    png_charp name = nullptr;
    int compression = 0;
    png_bytep profile = nullptr;
    png_uint_32 length = 0;
    if (png_get_iCCP(png, info, &name, &compression, &profile, &length) != 0)
        return QColorSpace::fromIccProfile(
            QByteArray(reinterpret_cast<const char*>(profile), qsizetype(length)));
    double gamma = 0;
    if (png_get_valid(png, info, PNG_INFO_sRGB) == 0 && png_get_gAMA(png, info, &gamma) != 0 &&
        gamma > 0.01)
        return {QColorSpace::Primaries::SRgb, float(1 / gamma)};
    return {};
}

int orientationOf([[maybe_unused]] png_structp png, [[maybe_unused]] png_infop info)
{
#ifdef PNG_eXIf_SUPPORTED
    png_bytep exif = nullptr;
    png_uint_32 length = 0;
    if (png_get_eXIf_1(png, info, &length, &exif) != 0)
        return exifOrientation(
            QByteArrayView(reinterpret_cast<const char*>(exif), qsizetype(length)));
#endif
    return 1;
}

/// Prepares for the rows; false if they do not come one after the other, or are
/// too many.
bool readHeader(Reading& reading)
{
    png_structp const png = reading.png;
    png_infop const info = reading.info;
    png_set_read_fn(png, &reading, readBytes);
    png_set_user_limits(png, 1'000'000, 1'000'000);
    png_read_info(png, info);
    const auto width = int(png_get_image_width(png, info));
    const auto height = int(png_get_image_height(png, info));
    if (png_get_interlace_type(png, info) != PNG_INTERLACE_NONE ||
        qint64{width} * height > mostPixelsScaled)
        return false;
    const bool hasAlpha = (png_get_color_type(png, info) & PNG_COLOR_MASK_ALPHA) != 0 ||
                          png_get_valid(png, info, PNG_INFO_tRNS) != 0;
    reading.colours = colourSpaceOf(png, info);
    reading.orientation = orientationOf(png, info);

    png_set_expand(png);
    png_set_scale_16(png);
    png_set_gray_to_rgb(png);
    if (QSysInfo::ByteOrder == QSysInfo::LittleEndian)
        png_set_bgr(png);
    png_set_filler(png, 0xff, PNG_FILLER_AFTER);
    png_read_update_info(png, info);
    const int edge = std::min(width, height);
    reading.shrinking = std::make_unique<Shrinking>(
        edge, (width - edge) / 2, std::max(edge / PhotoMessages::pictureEdge, 1), hasAlpha);
    reading.row.resize(png_get_rowbytes(png, info));
    return !reading.shrinking->image().isNull();
}

void readRows(Reading& reading)
{
    const int height = int(png_get_image_height(reading.png, reading.info));
    const int edge = std::min(int(png_get_image_width(reading.png, reading.info)), height);
    const int top = (height - edge) / 2;
    for (int y = 0; !reading.shrinking->isFull(); ++y) {
        png_read_row(reading.png, reading.row.data(), nullptr);
        if (y >= top)
            reading.shrinking->addRow(reading.row.data());
    }
}

} // namespace

QImage readPngRows(int file)
{
    Reading reading(file);
    reading.png = png_create_read_struct(PNG_LIBPNG_VER_STRING, nullptr, nullptr, sayNothing);
    reading.info = reading.png == nullptr ? nullptr : png_create_info_struct(reading.png);
    if (reading.info == nullptr)
        return {};
    // No object with a destructor lives between here and the calls of libpng.
    if (setjmp(png_jmpbuf(reading.png)) != 0)
        return {};
    if (!readHeader(reading))
        return {};
    readRows(reading);
    QImage image = reading.shrinking->image();
    image.setColorSpace(reading.colours);
    return upright(image, reading.orientation);
}
