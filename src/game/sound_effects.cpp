// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The four sounds of play; a sound that cannot be had is skipped.
#include "game/sound_effects.h"

#include "game/memory_game.h"
#include "platform/application_bundle.h"
#include "platform/audio_player.h"
#include "platform/debug_log.h"
#include "platform/platform.h"
#include "platform/user_defaults.h"
#include "settings/settings_keys.h"

#include <algorithm>

void MemoryGame::playCardFlipSound()
{
    playSoundEffect(QStringLiteral("card_flip"));
}

void MemoryGame::playCardDoneSound()
{
    playSoundEffect(QStringLiteral("card_done"));
}

void MemoryGame::playCardResetSound()
{
    playSoundEffect(QStringLiteral("card_reset"));
}

void MemoryGame::playDoneSound()
{
    playSoundEffect(QStringLiteral("done"));
}

const AudioPlayer* MemoryGame::audioPlayer() const
{
    const AudioPlayer& player = platform().audio;
    return player.loadedFile().isEmpty() ? nullptr : &player;
}

void MemoryGame::followSoundSetting()
{
    if (platform().defaults.integer(SettingsKeys::PlaySounds) == 1)
        platform().audio.prepare();
    else
        platform().audio.silenceWaiting();
}

void playSoundEffect(const QString& name)
{
    if (platform().defaults.integer(SettingsKeys::PlaySounds) != 1)
        return;
    const QString resource = QStringLiteral("Sounds/") + name + QStringLiteral(".mp3");
    const auto file =
        platform().bundle.resource(name, QStringLiteral("mp3"), QStringLiteral("Sounds"));
    if (!file) {
        platform().audio.report([resource] {
            logLine(QStringLiteral("Sounddatei ") + resource + QStringLiteral(" nicht gefunden"));
        });
        return;
    }
    const double percent = platform().defaults.floating(SettingsKeys::VolumeSound);
    platform().audio.play(*file, std::clamp(percent / 100.0, 0.0, 1.0),
                          [resource](const QString& description) {
                              logLine(QStringLiteral("Fehler beim Abspielen von ") + resource +
                                      QStringLiteral(": ") + description);
                          });
}
