// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/default_settings.h"

#include "platform/user_defaults.h"
#include "settings/settings_keys.h"

#include <array>
#include <utility>

namespace {

constexpr std::array<std::pair<QLatin1String, int>, 7> integerDefaults{{
    {SettingsKeys::PlaySounds, 1},
    {SettingsKeys::VolumeSound, 50},
    {SettingsKeys::LaunchInFullscreen, 0},
    {SettingsKeys::AmountCards, 1},
    {SettingsKeys::RemoveMatch, 0},
    {SettingsKeys::PaircadeAlbum, 0},
    {SettingsKeys::AmountRounds, 1},
}};

} // namespace

void createDefaultSettings(UserDefaults& defaults)
{
    QVariantMap missing;
    for (const auto& [key, value] : integerDefaults) {
        if (!defaults.contains(key))
            missing.insert(QString(key), value);
    }
    if (!defaults.contains(SettingsKeys::CardDeck))
        missing.insert(QString(SettingsKeys::CardDeck), QStringLiteral("Cyberpunk"));
    if (!missing.isEmpty())
        defaults.setAll(missing);
}
