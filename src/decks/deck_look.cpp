// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "decks/deck_look.h"

#include "platform/application_bundle.h"

#include <QImage>
#include <algorithm>
#include <utility>

namespace {

using NamedLook = std::pair<QString, DeckLook>;

const std::array<NamedLook, 4>& bundleLooks()
{
    static const auto names = [](const char* a, const char* b, const char* c, const char* d) {
        return std::array{QString::fromLatin1(a), QString::fromLatin1(b), QString::fromLatin1(c),
                          QString::fromLatin1(d)};
    };
    static const std::array<NamedLook, 4> looks{{
        {QStringLiteral("Cyberpunk"),
         {names("robot", "cat", "noodle_bowl", "jellyfish"),
          {0xFF2E93, 0x19E3F5, 0xFFE14D, 0x8F6BFF, 0xD9107F, 0x0CAFD3}}},
        {QStringLiteral("Kids"),
         {names("whale", "fox", "lion", "balloon"),
          {0xF5735C, 0xF79440, 0xFFC940, 0x6FBE94, 0x5079BD, 0xC24A62}}},
        {QStringLiteral("70s"),
         {names("disco_ball", "camper_van", "owl", "television"),
          {0xE8752A, 0xF0B32E, 0xBF3B22, 0x2A8C86, 0x8C9A35, 0x7E3557}}},
        {QStringLiteral("80s"),
         {names("cassette_tape", "flamingo", "boombox", "skateboard"),
          {0xFF3D8F, 0x19B8E8, 0xFFD21F, 0x5B2BC4, 0x4FDCAE, 0xFF7A1F}}},
    }};
    return looks;
}

} // namespace

const DeckLook& deckLook(const QString& deck)
{
    // The colours of the mark.
    static const DeckLook otherwise{{},
                                    {0xFF6250, 0xFFC62E, 0x1CB6CA, 0x086B8A, 0xF3A012, 0xE0453B}};
    const auto named = std::ranges::find(bundleLooks(), deck, &NamedLook::first);
    return named == bundleLooks().end() ? otherwise : named->second;
}

QImage deckPicture(const ApplicationBundle& bundle, const QString& deck, const QString& name)
{
    const auto file = bundle.resource(name, QStringLiteral("jpg"), QStringLiteral("Cards/") + deck);
    return file ? QImage(*file) : QImage();
}
