// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
// In place of the decoders: does what a bad file could make one do. The file's
// first word says what; the picture that comes back is white if all is well.
#include "photos/card_photo.h"
#include "photos/protocol/messages.h"

#include <QColor>
#include <array>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <string_view>
#include <sys/mman.h>
#include <sys/socket.h>
#include <unistd.h>

namespace {

constexpr QRgb well = 0xffff'ffff;

/// White less a bit for each thing that worked but must not.
QRgb tryToBreakOut()
{
    const auto works = [](int result) { return result >= 0 ? 1U : 0U; };
    std::array<char, 5> name{"true"};
    std::array<char*, 2> arguments{name.data(), nullptr};
    pid_t process = -1;
    const void* const shared = ::mmap(nullptr, 4096, PROT_READ, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
    const bool isStarted =
        ::posix_spawn(&process, "/bin/true", nullptr, nullptr, arguments.data(), environ) == 0;
    return well - (works(::open("/etc/passwd", O_RDONLY)) |
                   works(::open("/dev/null", O_WRONLY)) << 1U |
                   works(::open("/tmp/paircade-breaks-out", O_CREAT | O_RDONLY, 0600)) << 2U |
                   works(::socket(AF_INET, SOCK_STREAM, 0)) << 3U |
                   works(::kill(::getppid(), 0)) << 4U | works(::fork()) << 5U |
                   (isStarted ? 1U : 0U) << 6U | (shared != MAP_FAILED ? 1U : 0U) << 7U |
                   works(::fcntl(STDIN_FILENO, F_SETOWN, ::getppid())) << 8U |
                   works(::fcntl(STDIN_FILENO, F_SETSIG, SIGURG)) << 9U |
                   works(::fcntl(STDIN_FILENO, F_SETFL, O_ASYNC)) << 10U |
                   works(::fcntl(100, F_GETFD)) << 11U);
}

/// Tells of no picture, and in advance of what was not asked yet: files without names.
void lie()
{
    const QByteArray words =
        PhotoMessages::encoded(PhotoMessages::Kind::pixels) +
        PhotoMessages::encoded(PhotoMessages::Kind::paths, QByteArray(32'000, '\0'));
    (void)!::write(STDOUT_FILENO, words.constData(), std::size_t(words.size()));
}

QRgb misbehave(std::string_view how)
{
    if (how.starts_with("crash"))
        std::abort();
    if (how.starts_with("lie"))
        lie();
    for (volatile int i = 0; how.starts_with("spin");)
        i = i + 1;
    while (how.starts_with("sleep"))
        ::poll(nullptr, 0, 1000);
    // Far beyond the limit, but not without end: it might be missing.
    for (int i = 0; how.starts_with("hog") && i < 128; ++i) {
        volatile char* const piece = static_cast<char*>(std::malloc(std::size_t{32} << 20));
        piece[0] = 1; // A null pointer crashes, as in a decoder that does not check.
    }
    return how.starts_with("break out") ? tryToBreakOut() : well;
}

} // namespace

QImage cardPhoto(int file)
{
    std::array<char, 16> how{};
    (void)::pread(file, how.data(), how.size() - 1, 0);
    const QRgb colour = misbehave(how.data());
    QImage image(PhotoMessages::pictureEdge, PhotoMessages::pictureEdge, QImage::Format_RGB32);
    image.fill(QColor(colour));
    return image;
}
