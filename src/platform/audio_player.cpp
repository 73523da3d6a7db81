// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/audio_player.h"

#include <SDL.h>
#include <SDL_mixer.h>

#include <array>
#include <chrono>
#include <cmath>
#include <condition_variable>
#include <cstdint>
#include <deque>
#include <mutex>
#include <thread>
#include <utility>

namespace {

constexpr int sampleRate = 44100;
constexpr int bufferFrames = 1024;
// Long enough that the cut does not click, too short to be heard.
constexpr int fadeFrames = sampleRate * 5 / 1000;
// What quitting waits for; a thread stuck in a dead sound server is left behind.
constexpr std::chrono::milliseconds goodbye{300};

/// One of the two channels: the sound that begins and the one that it cuts off.
struct Channel {
    Mix_Chunk* chunk = nullptr;
    int fadedFrames = 0;
};

/// Runs on SDL's audio thread once the channel's sound was cut off: lets it
/// sink to silence. The stream is always 16 bit stereo, see openDevice().
void fadeOut(int, void* stream, int bytes, void* channel)
{
    auto* const samples = static_cast<std::int16_t*>(stream);
    int& faded = static_cast<Channel*>(channel)->fadedFrames;
    for (int frame = 0; frame < bytes / 4; ++frame, ++faded) {
        const int left = std::max(0, fadeFrames - faded);
        for (int side = 0; side < 2; ++side) {
            std::int16_t& sample = samples[2 * frame + side];
            sample = static_cast<std::int16_t>(sample * left / fadeFrames);
        }
        faded = std::min(faded, fadeFrames);
    }
}

/// Opens the wanted driver's device, or any if it is null.
bool openDevice(const char* driver)
{
    if (driver != nullptr)
        SDL_SetHintWithPriority(SDL_HINT_AUDIODRIVER, driver, SDL_HINT_OVERRIDE);
    if (SDL_InitSubSystem(SDL_INIT_AUDIO) != 0)
        return false;
    if (Mix_OpenAudioDevice(sampleRate, AUDIO_S16SYS, 2, bufferFrames, nullptr, 0) == 0)
        return true;
    SDL_QuitSubSystem(SDL_INIT_AUDIO);
    return false;
}

void closeFile(SDL_RWops* file)
{
    if (file != nullptr)
        SDL_RWclose(file);
}

} // namespace

/// The player's thread and what it works on; shared with it, so that a thread
/// that does not come back outlives the player without harm.
class AudioPlayer::Mixer {
public:
    struct Sound {
        QByteArray file{}; ///< empty: only open the device
        int volume = 0;    ///< 0 to MIX_MAX_VOLUME
        Failure failure{};
    };

    static void request(const std::shared_ptr<Mixer>& mixer, Sound sound)
    {
        const std::scoped_lock lock(mixer->m_mutex);
        mixer->m_requests.push_back(std::move(sound));
        if (!mixer->m_thread.joinable())
            mixer->m_thread = std::thread([mixer] { mixer->run(); });
        mixer->m_changed.notify_all();
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
        if (!openDevice(nullptr))
            openDevice("dummy");
        std::unique_lock lock(m_mutex);
        while (true) {
            m_changed.wait(lock, [this] { return m_isStopping || !m_requests.empty(); });
            if (m_isStopping)
                break;
            const Sound sound = std::move(m_requests.front());
            m_requests.pop_front();
            lock.unlock();
            if (!sound.file.isEmpty())
                play(sound);
            lock.lock();
        }
        lock.unlock();
        close();
        // SDL clears what it keeps of a thread for threads of its own only.
        SDL_TLSCleanup();
        lock.lock();
        m_hasEnded = true;
        m_changed.notify_all();
    }

    void play(const Sound& sound)
    {
        // Closed here: a file of unknown kind is not closed by SDL_mixer 2.6.
        SDL_RWops* const file = SDL_RWFromFile(sound.file.constData(), "rb");
        Mix_Chunk* const chunk = file == nullptr ? nullptr : Mix_LoadWAV_RW(file, 0);
        if (chunk == nullptr) {
            sound.failure(QString::fromUtf8(Mix_GetError()));
            closeFile(file);
            return;
        }
        closeFile(file);
        Mix_RegisterEffect(m_current, fadeOut, nullptr, &m_channels[std::size_t(m_current)]);
        m_current = (m_current + 1) % int(m_channels.size());
        release(m_current);
        m_channels[std::size_t(m_current)].chunk = chunk;
        Mix_Volume(m_current, sound.volume);
        Mix_PlayChannel(m_current, chunk, 0);
    }

    void release(int number)
    {
        Channel& channel = m_channels[std::size_t(number)];
        Mix_HaltChannel(number);
        Mix_UnregisterAllEffects(number);
        Mix_FreeChunk(channel.chunk);
        channel = {};
    }

    void close()
    {
        for (int number = 0; number < int(m_channels.size()); ++number)
            release(number);
        Mix_CloseAudio();
        SDL_QuitSubSystem(SDL_INIT_AUDIO);
    }

    std::mutex m_mutex{};
    std::condition_variable m_changed{};
    std::deque<Sound> m_requests{};
    bool m_isStopping = false;
    bool m_hasEnded = false;
    std::thread m_thread{};
    std::array<Channel, 4> m_channels{}; // used by the player's thread only
    int m_current = 0;
};

AudioPlayer::AudioPlayer()
    : m_mixer(std::make_shared<Mixer>())
{
    // Interrupting the game is the game's business.
    SDL_SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1");
}

AudioPlayer::~AudioPlayer()
{
    m_mixer->stop();
}

void AudioPlayer::prepare()
{
    Mixer::request(m_mixer, {});
}

void AudioPlayer::play(const QString& file, double volume, Failure failure)
{
    Mixer::request(m_mixer, {file.toUtf8(), static_cast<int>(std::lround(volume * MIX_MAX_VOLUME)),
                             std::move(failure)});
}
