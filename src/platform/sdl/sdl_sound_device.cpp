// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The sound device of SDL_mixer; a module, see platform/sound_device.h.
#include "platform/sound_device.h"

#include <SDL.h>
#include <SDL_mixer.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <utility>

namespace {

constexpr int sampleRate = 44100;
constexpr int frameBytes = 4; // 16 bit stereo
constexpr int bufferFrames = 1024;
// Long enough that the cut does not click, too short to be heard.
constexpr int fadeFrames = sampleRate * 5 / 1000;

/// A sound that plays, or one that is being cut off.
struct Channel {
    Mix_Chunk* chunk = nullptr;
    int fadedFrames = 0;
};

/// Runs on SDL's audio thread once the channel's sound was cut off: lets it
/// sink to silence. The stream is always 16 bit stereo, see openDriver().
void fadeOut(int, void* stream, int bytes, void* channel)
{
    auto* const samples = static_cast<std::int16_t*>(stream);
    int& faded = static_cast<Channel*>(channel)->fadedFrames;
    for (int frame = 0; frame < bytes / frameBytes; ++frame, ++faded) {
        const int left = std::max(0, fadeFrames - faded);
        for (int side = 0; side < 2; ++side) {
            std::int16_t& sample = samples[2 * frame + side];
            sample = static_cast<std::int16_t>(sample * left / fadeFrames);
        }
        faded = std::min(faded, fadeFrames);
    }
}

/// Opens the device of the driver that is set.
bool openDriver()
{
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

class SdlSoundDevice : public SoundDevice {
public:
    SdlSoundDevice()
    {
        // Interrupting the game is the game's business.
        SDL_SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1");
        // The device may be there again.
        SDL_ResetHint(SDL_HINT_AUDIODRIVER);
        if (openDriver())
            return;
        SDL_SetHintWithPriority(SDL_HINT_AUDIODRIVER, "dummy", SDL_HINT_OVERRIDE);
        openDriver();
    }

    ~SdlSoundDevice() override
    {
        for (int number = 0; number < int(m_channels.size()); ++number)
            release(number);
        Mix_FreeChunk(m_loaded);
        Mix_CloseAudio();
        SDL_QuitSubSystem(SDL_INIT_AUDIO);
        // SDL clears what it keeps of a thread for threads of its own only.
        SDL_TLSCleanup();
    }

    SdlSoundDevice(const SdlSoundDevice&) = delete;
    SdlSoundDevice& operator=(const SdlSoundDevice&) = delete;

    std::optional<std::string> load(const std::string& path) override
    {
        // Closed here: a file of unknown kind is not closed by SDL_mixer 2.6.
        SDL_RWops* const file = SDL_RWFromFile(path.c_str(), "rb");
        Mix_Chunk* const chunk = file == nullptr ? nullptr : Mix_LoadWAV_RW(file, 0);
        if (chunk == nullptr) {
            std::string error = Mix_GetError();
            closeFile(file);
            return error;
        }
        closeFile(file);
        Mix_FreeChunk(std::exchange(m_loaded, chunk));
        return std::nullopt;
    }

    std::chrono::milliseconds start(double volume) override
    {
        Mix_RegisterEffect(m_current, fadeOut, nullptr, &m_channels[std::size_t(m_current)]);
        m_current = (m_current + 1) % int(m_channels.size());
        release(m_current);
        Mix_Chunk* const chunk = std::exchange(m_loaded, nullptr);
        m_channels[std::size_t(m_current)].chunk = chunk;
        Mix_Volume(m_current, static_cast<int>(std::lround(volume * MIX_MAX_VOLUME)));
        Mix_PlayChannel(m_current, chunk, 0);
        constexpr unsigned bytesPerSecond = sampleRate * frameBytes;
        return std::chrono::milliseconds(1000ULL * chunk->alen / bytesPerSecond);
    }

private:
    void release(int number)
    {
        Channel& channel = m_channels[std::size_t(number)];
        Mix_HaltChannel(number);
        Mix_UnregisterAllEffects(number);
        Mix_FreeChunk(channel.chunk);
        channel = {};
    }

    std::array<Channel, 4> m_channels{};
    int m_current = 0;
    Mix_Chunk* m_loaded = nullptr; ///< Not started yet.
};

} // namespace

extern "C" SoundDevice* openSoundDevice();

SoundDevice* openSoundDevice()
{
    return new SdlSoundDevice;
}
