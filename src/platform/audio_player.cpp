// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/audio_player.h"

#include "platform/sound_device.h"

#include <QCoreApplication>
#include <QFile>
#include <QLibrary>

#include <condition_variable>
#include <deque>
#include <mutex>
#include <system_error>
#include <thread>
#include <utility>

namespace {

using Clock = std::chrono::steady_clock;

// What quitting waits for; a thread stuck in a dead sound server is left behind.
constexpr std::chrono::milliseconds goodbye{300};

/// The module of the sound device: lib/paircade beside the program's folder.
QString modulePath()
{
    return QCoreApplication::applicationDirPath() +
           QStringLiteral("/../lib/paircade/sdl_sound_device.so");
}

} // namespace

/// The player's thread and what it works on; shared with it, so that a thread
/// that does not come back outlives the player without harm.
class AudioPlayer::Performer {
public:
    struct Sound {
        QString file{}; ///< empty: only open the device
        double volume = 0;
        Failure failure{};
    };

    explicit Performer(std::chrono::milliseconds closesAfter)
        : m_closesAfter(closesAfter)
    {
    }

    static void request(const std::shared_ptr<Performer>& performer, Sound sound)
    {
        const std::scoped_lock lock(performer->m_mutex);
        performer->m_requests.push_back(std::move(sound));
        try {
            if (!performer->m_thread.joinable())
                performer->m_thread = std::thread([performer] { performer->run(); });
        } catch (const std::system_error& error) { // a system full of threads stays silent
            const Sound lost = std::move(performer->m_requests.back());
            performer->m_requests.clear();
            if (lost.failure)
                lost.failure(QString::fromLocal8Bit(error.what()));
        }
        performer->m_changed.notify_all();
    }

    void stop()
    {
        std::unique_lock lock(m_mutex);
        if (!m_thread.joinable())
            return;
        m_isStopping = true;
        m_changed.notify_all();
        const bool ended = m_changed.wait_for(lock, goodbye, [this] { return m_hasEnded; });
        lock.unlock();
        if (ended)
            m_thread.join();
        else
            m_thread.detach();
    }

private:
    void run()
    {
        std::unique_lock lock(m_mutex);
        while (awaitRequest(lock)) {
            const Sound sound = std::move(m_requests.front());
            m_requests.pop_front();
            lock.unlock();
            perform(sound);
            lock.lock();
        }
        lock.unlock();
        m_device.reset();
        lock.lock();
        m_hasEnded = true;
        m_changed.notify_all();
    }

    /// Waits for the next request, and closes the device if that takes long.
    /// False once the player ends.
    bool awaitRequest(std::unique_lock<std::mutex>& lock)
    {
        const auto isCalled = [this] { return m_isStopping || !m_requests.empty(); };
        if (m_device && !m_changed.wait_until(lock, m_silentFrom + m_closesAfter, isCalled)) {
            lock.unlock();
            m_device.reset();
            lock.lock();
        }
        m_changed.wait(lock, isCalled);
        return !m_isStopping;
    }

    void perform(const Sound& sound)
    {
        QString failure;
        if (!m_device)
            failure = openDevice();
        SoundDevice::Start start;
        if (m_device && !sound.file.isEmpty()) {
            start = m_device->play(QFile::encodeName(sound.file).toStdString(), sound.volume);
            failure = QString::fromStdString(start.failure);
        }
        m_silentFrom = std::max(m_silentFrom, Clock::now() + start.length);
        if (!failure.isEmpty() && sound.failure)
            sound.failure(failure);
    }

    /// Says what went wrong, if the installation is not whole.
    QString openDevice()
    {
        QLibrary module(m_modulePath);
        // Its threads may outlive the player.
        module.setLoadHints(QLibrary::PreventUnloadHint);
        const auto open = reinterpret_cast<OpenSoundDevice*>(module.resolve("openSoundDevice"));
        if (open == nullptr)
            return module.errorString();
        m_device.reset(open());
        return {};
    }

    std::mutex m_mutex{};
    std::condition_variable m_changed{};
    std::deque<Sound> m_requests{};
    bool m_isStopping = false;
    bool m_hasEnded = false;
    std::thread m_thread{};
    const std::chrono::milliseconds m_closesAfter;
    const QString m_modulePath = modulePath();
    std::unique_ptr<SoundDevice> m_device{}; // used by the player's thread only, as is what follows
    Clock::time_point m_silentFrom{};
};

AudioPlayer::AudioPlayer(std::chrono::milliseconds closesAfter)
    : m_performer(std::make_shared<Performer>(closesAfter))
{
}

AudioPlayer::~AudioPlayer()
{
    m_performer->stop();
}

void AudioPlayer::prepare()
{
    Performer::request(m_performer, {});
}

void AudioPlayer::play(const QString& file, double volume, Failure failure)
{
    Performer::request(m_performer, {file, volume, std::move(failure)});
}
