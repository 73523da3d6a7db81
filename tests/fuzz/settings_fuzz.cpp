// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
// A settings file and a stored answer about photos with any content.
#include "decks/deck_name.h"
#include "fuzz.h"
#include "game/rules/card_layout.h"
#include "platform/photo_access.h"
#include "platform/user_defaults.h"
#include "settings/default_settings.h"
#include "settings/settings_keys.h"
#include "stage/files.h"

#include <cmath>

void tryInput(const QByteArray& input)
{
    using namespace SettingsKeys;
    static const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("Paircade.conf"));
    writeFile(path, input);
    const PhotoAccess answer = PhotoAccessStore(path).read(); // the defaults will stand there

    UserDefaults defaults(path);
    const bool hadRounds = defaults.contains(AmountRounds);
    const std::int64_t roundsBefore = defaults.integer(AmountRounds);
    createDefaultSettings(defaults);
    require(defaults.integer(AmountRounds) == (hadRounds ? roundsBefore : 1),
            "what is there is not overwritten");
    require(roundCount(defaults.integer(AmountRounds)) >= 1, "a game has a round");
    for (const QLatin1String key :
         {AmountCards, AmountRounds, CardDeck, GameIsActive, VolumeSound}) {
        const std::int64_t number = defaults.integer(key);
        const int layout = cardLayoutNumber(number);
        require(layout >= 1 && layout <= 6 && cardLayout(number).pairs() >= 6, "there is a layout");
        require(std::isfinite(defaults.floating(key)), "a number is finite");
        require(key == GameIsActive || defaults.string(key).has_value(), "every default is there");
    }
    const QString deck = storedDeckName(defaults);
    require(deck == deck.trimmed() && photoAlbumTitle(deck).value_or(deck) != QString(u' '),
            "the name of the deck is trimmed");

    PhotoAccessStore copy(path);
    require(answer == PhotoAccess{} || (copy.write(answer) && copy.read() == answer),
            "an answer that was read can be kept");
}
