// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/photo_helper.h"

#include <QFile>
#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace {

// Fewer rounds of the pipe for each picture.
constexpr int pipeBytes = 1 << 20;

int interruption = -1;

/// Takes leave of ended processes. One that waits for a dead file system does not
/// end at once; it is asked again whenever the next one is ended.
void reap(pid_t process)
{
    static std::vector<pid_t> unreaped;
    unreaped.push_back(process);
    std::erase_if(unreaped, [](pid_t candidate) {
        constexpr int tries = 50;
        for (int i = 0; i < tries; ++i) {
            if (::waitpid(candidate, nullptr, WNOHANG) != 0)
                return true;
            ::poll(nullptr, 0, 1);
        }
        return false;
    });
}

pid_t spawned(const QString& program, const QByteArray& library, int requests, int replies)
{
    posix_spawn_file_actions_t files;
    ::posix_spawn_file_actions_init(&files);
    ::posix_spawn_file_actions_adddup2(&files, requests, STDIN_FILENO);
    ::posix_spawn_file_actions_adddup2(&files, replies, STDOUT_FILENO);
    // Decoders complain there of what they read, which may be anything.
    ::posix_spawn_file_actions_addopen(&files, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
    // Whoever started the game may have left it something open.
    ::posix_spawn_file_actions_addclosefrom_np(&files, STDERR_FILENO + 1);
    posix_spawnattr_t attributes;
    ::posix_spawnattr_init(&attributes);
    sigset_t all;
    sigset_t none;
    ::sigfillset(&all);
    ::sigemptyset(&none);
    ::posix_spawnattr_setsigdefault(&attributes, &all);
    ::posix_spawnattr_setsigmask(&attributes, &none);
    // A group of its own: Ctrl+C in the terminal is for the game.
    ::posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSIGDEF | POSIX_SPAWN_SETSIGMASK |
                                                POSIX_SPAWN_SETPGROUP);

    QByteArray name = QFile::encodeName(program);
    QByteArray folder = library;
    const std::array<char*, 3> arguments = {name.data(), folder.data(), nullptr};
    pid_t process = -1;
    const int error =
        ::posix_spawn(&process, name.constData(), &files, &attributes, arguments.data(), environ);
    ::posix_spawnattr_destroy(&attributes);
    ::posix_spawn_file_actions_destroy(&files);
    return error == 0 ? process : -1;
}

} // namespace

PhotoHelper::PhotoHelper(const QString& program, const QByteArray& library,
                         std::chrono::seconds silence)
    : m_silence(silence)
{
    std::array<int, 2> requests{-1, -1};
    std::array<int, 2> replies{-1, -1};
    // A socket, because writing to a pipe without a reader is a signal.
    if (::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, requests.data()) != 0)
        return;
    m_requests = Descriptor(requests[0]);
    const Descriptor helperInput(requests[1]);
    if (::pipe2(replies.data(), O_CLOEXEC) != 0)
        return;
    m_replies = Descriptor(replies[0]);
    const Descriptor helperOutput(replies[1]);
    ::fcntl(m_replies.get(), F_SETPIPE_SZ, pipeBytes);
    ::fcntl(m_replies.get(), F_SETFL, O_NONBLOCK);

    m_process = spawned(program, library, helperInput.get(), helperOutput.get());
    if (m_process > 0)
        m_state = State::running;
}

PhotoHelper::~PhotoHelper()
{
    end(State::ended);
}

void PhotoHelper::interruptWhenReadable(int descriptor)
{
    interruption = descriptor;
}

void PhotoHelper::end(State state)
{
    if (m_state != State::running)
        return;
    m_state = state;
    ::kill(m_process, SIGKILL);
    reap(m_process);
}

void PhotoHelper::send(PhotoMessages::Kind request, QByteArrayView content)
{
    const QByteArray frame = PhotoMessages::encoded(request, content);
    // It is far smaller than the buffer, which is empty while no answer is due.
    if (m_state == State::running &&
        ::send(m_requests.get(), frame.constData(), std::size_t(frame.size()),
               MSG_NOSIGNAL | MSG_DONTWAIT) != ssize_t(frame.size()))
        end(State::ended);
}

bool PhotoHelper::takeBytes()
{
    std::array<char, 65'536> bytes; // NOLINT: filled by read()
    // Two pictures, then the time is looked at again: it may write as fast as this reads.
    for (int reads = 0; reads < 32; ++reads) {
        const ssize_t length = ::read(m_replies.get(), bytes.data(), bytes.size());
        if (length > 0)
            m_reader.append(QByteArrayView(bytes.data(), length));
        else if (length == 0 || errno != EINTR)
            return length < 0 && errno == EAGAIN;
    }
    return true;
}

std::optional<PhotoMessages::Frame> PhotoHelper::receive(QDeadlineTimer deadline)
{
    while (m_state == State::running) {
        if (auto frame = m_reader.next())
            return frame;
        if (m_reader.isBroken() || deadline.hasExpired()) {
            end(m_reader.isBroken() ? State::ended : State::stalled);
            break;
        }
        const QDeadlineTimer silence(m_silence);
        std::array<pollfd, 2> awaited{{{m_replies.get(), POLLIN, 0}, {interruption, POLLIN, 0}}};
        int ready = 0;
        do
            ready = ::poll(awaited.data(), awaited.size(),
                           int(std::min(silence, deadline).remainingTime()));
        while (ready < 0 && errno == EINTR);
        if (ready == 0)
            end(State::stalled);
        else if (awaited[1].revents != 0)
            end(State::interrupted);
        else if (!takeBytes())
            end(State::ended);
    }
    return std::nullopt;
}
