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
#include <optional>
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

/// The playback thread and its requests. The thread shares it, so that a thread
/// that is left behind may outlive the player.
class AudioPlayer::Performer {
public:
    enum class Action { openDevice, play, report, silence };

    struct Request {
        Action action = Action::openDevice;
        QString file{};
        double volume = 0;
        Failure failure{};
    };

    explicit Performer(std::chrono::milliseconds closesAfter)
        : m_closesAfter(closesAfter)
    {
    }

    static void request(const std::shared_ptr<Performer>& performer, Request request)
    {
        const std::scoped_lock lock(performer->m_mutex);
        if (request.action == Action::silence && !performer->m_thread.joinable())
            return;
        performer->m_requests.push_back(std::move(request));
        try {
            if (!performer->m_thread.joinable())
                performer->m_thread = std::thread([performer] { performer->run(); });
        } catch (const std::system_error& error) { // a system full of threads stays silent
            const Request lost = std::move(performer->m_requests.back());
            performer->m_requests.clear();
            if (lost.failure)
                lost.failure(QString::fromLocal8Bit(error.what()));
        }
        performer->m_changed.notify_all();
    }

    [[nodiscard]] QString loadedFile()
    {
        const std::scoped_lock lock(m_mutex);
        return m_loadedFile;
    }

    void stop()
    {
        std::unique_lock lock(m_mutex);
        if (!m_thread.joinable())
            return;
        m_isStopping = true;
        m_changed.notify_all();
        // The thread wakes this up after every request, so the timeout is one without progress.
        while (!m_hasEnded && m_changed.wait_for(lock, goodbye) == std::cv_status::no_timeout) {
        }
        const bool hasEnded = m_hasEnded;
        const std::deque<Request> left = std::exchange(m_requests, {});
        lock.unlock();
        if (hasEnded) {
            m_thread.join();
            return;
        }
        m_thread.detach();
        for (const Request& request : left) {
            if (request.action == Action::report)
                request.failure({});
        }
    }

private:
    void run()
    {
        while (const std::optional<Request> request = nextRequest()) {
            perform(*request);
            std::chrono::milliseconds length{};
            if (m_loadedVolume && isNewest())
                length = m_device->start(*std::exchange(m_loadedVolume, {}));
            m_silentFrom = std::max(m_silentFrom, Clock::now() + length);
        }
        m_device.reset();
        const std::scoped_lock lock(m_mutex);
        m_hasEnded = true;
        m_changed.notify_all();
    }

    /// Waits for the next request; closes the device if that takes long. None once the
    /// player ends and every request was performed.
    std::optional<Request> nextRequest()
    {
        std::unique_lock lock(m_mutex);
        m_changed.notify_all(); // for stop()
        const auto isCalled = [this] { return m_isStopping || !m_requests.empty(); };
        if (m_device && !m_changed.wait_until(lock, m_silentFrom + m_closesAfter, isCalled)) {
            lock.unlock();
            m_device.reset();
            lock.lock();
        }
        m_changed.wait(lock, isCalled);
        if (m_requests.empty())
            return std::nullopt;
        std::optional<Request> next(std::move(m_requests.front()));
        m_requests.pop_front();
        return next;
    }

    /// True if no later request is waiting.
    bool isNewest()
    {
        const std::scoped_lock lock(m_mutex);
        return m_requests.empty() && !m_isStopping;
    }

    void perform(const Request& request)
    {
        switch (request.action) {
        case Action::openDevice:
            (void)openDevice();
            break;
        case Action::play:
            if (const std::optional<QString> error = load(request))
                request.failure(*error);
            break;
        case Action::report:
            request.failure({});
            break;
        case Action::silence:
            m_loadedVolume.reset();
            break;
        }
    }

    /// Returns the error if the sound does not load; none if it does.
    std::optional<QString> load(const Request& request)
    {
        if (QString error = openDevice(); !m_device)
            return error;
        if (const auto error = m_device->load(QFile::encodeName(request.file).toStdString()))
            return QString::fromStdString(*error);
        m_loadedVolume = request.volume;
        const std::scoped_lock lock(m_mutex);
        m_loadedFile = request.file;
        return std::nullopt;
    }

    /// Opens the device unless it is open. If its module is missing, there is no device
    /// afterwards; returns the error then.
    QString openDevice()
    {
        if (m_device)
            return {};
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
    std::deque<Request> m_requests{};
    QString m_loadedFile{};
    bool m_isStopping = false;
    bool m_hasEnded = false;
    std::thread m_thread{};
    const std::chrono::milliseconds m_closesAfter;
    const QString m_modulePath = modulePath();
    // The members below are used by the playback thread only.
    std::unique_ptr<SoundDevice> m_device{};
    std::optional<double> m_loadedVolume{}; ///< Of a sound that is loaded, but not started.
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
    Performer::request(m_performer, {.action = Performer::Action::openDevice});
}

void AudioPlayer::play(const QString& file, double volume, Failure failure)
{
    Performer::request(m_performer, {Performer::Action::play, file, volume, std::move(failure)});
}

void AudioPlayer::report(std::function<void()> task)
{
    Performer::request(m_performer,
                       {.action = Performer::Action::report,
                        .failure = [task = std::move(task)](const QString&) { task(); }});
}

void AudioPlayer::silenceWaiting()
{
    Performer::request(m_performer, {.action = Performer::Action::silence});
}

QString AudioPlayer::loadedFile() const
{
    return m_performer->loadedFile();
}
