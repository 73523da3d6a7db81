// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
// What is said at the turns of a game that a game played to its end does not take.
#include "settings/settings_keys.h"
#include "stage/play.h"
#include "stage/stage_platform.h"
#include "ui/card_texts.h"
#include "ui/commentary.h"

#include <QTest>

using namespace Qt::StringLiterals;

class CommentaryTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_platform.useResources(m_platform.home.path());
        makeDeck(m_platform.home.path(), u"Cyberpunk"_s, 6);
        m_platform.defaults->setInteger(SettingsKeys::AmountRounds, 2);
        m_game = std::make_unique<MemoryGame>();
        m_game->setPlayerName(u"Ann"_s);
        m_commentary = std::make_unique<Commentary>(*m_game, nullptr);
    }

    void aGameThatIsRefusedOrEndedIsNoNews()
    {
        m_game->setPlayerName({});
        m_game->startNewGame();
        QCOMPARE(m_commentary->take(), u"Enter your name."_s);
        m_game->setPlayerName(u"Ann"_s);
        makeDeck(m_platform.home.path(), u"Cyberpunk"_s, 5);
        m_game->startNewGame();
        QCOMPARE(m_commentary->take(), QString()); // an alert tells of it
        makeDeck(m_platform.home.path(), u"Cyberpunk"_s, 6);
        m_game->startNewGame();
        miss(*m_game);
        m_game->endGame();
        QVERIFY(m_commentary->take().endsWith(u"Not a pair."_s));
        QCOMPARE(m_commentary->status(), u"No game is running."_s);
    }

    void aFurtherRoundIsSaidOnce()
    {
        m_game->startNewGame();
        QCOMPARE(m_commentary->take(), u"Round 1 of 2. Cards dealt: 3 rows, 4 columns."_s);
        while (m_game->currentRound() == 1)
            findPair(*m_game);
        QVERIFY(
            m_commentary->take().endsWith(u". Round 2 of 2. Cards dealt: 3 rows, 4 columns."_s));
    }

    void picturesWithoutNamesAreNumbered()
    {
        MemoryCards cards(6);
        for (std::size_t i = 0; i < cards.size(); i += 2)
            cards[i].pairID = cards[i + 1].pairID = QUuid::createUuid();
        QStringList names;
        for (const MemoryCard& card : cards)
            names << pictureName(cards, card);
        QCOMPARE(names[0], names[1]);
        names.sort();
        QCOMPARE(names.join(u','),
                 u"picture 1,picture 1,picture 2,picture 2,picture 3,picture 3"_s);
    }

private:
    StagePlatform m_platform{};
    std::unique_ptr<MemoryGame> m_game{};
    std::unique_ptr<Commentary> m_commentary{};
};

QTEST_MAIN(CommentaryTest)
#include "commentary_test.moc"
