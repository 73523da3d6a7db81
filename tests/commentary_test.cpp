// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
// What is said at the turns of a game that a game played to its end does not take.
#include "settings/settings_keys.h"
#include "stage/play.h"
#include "stage/stage_platform.h"
#include "ui/card_texts.h"
#include "ui/commentary.h"

#include <QTest>
#include <set>

using namespace Qt::StringLiterals;

class CommentaryTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_platform = std::make_unique<StagePlatform>();
        m_platform->useResources(m_platform->home.path());
        makeDeck(m_platform->home.path(), u"Cyberpunk"_s, 6);
        m_platform->defaults->setInteger(SettingsKeys::AmountRounds, 2);
        m_game = std::make_unique<MemoryGame>();
        m_game->setPlayerName(u"Ann"_s);
        m_commentary = std::make_unique<Commentary>(*m_game, nullptr);
    }

    void aRefusedStartIsSaidAndAGameEndedByThePlayerIsNot()
    {
        m_game->setPlayerName({});
        m_game->startNewGame();
        QCOMPARE(m_commentary->take(), u"Enter your name."_s);
        QCOMPARE(m_commentary->take(), QString());
        m_game->setPlayerName(u"Ann"_s);
        m_game->startNewGame();
        miss(*m_game);
        m_game->endGame();
        QVERIFY(m_commentary->take().endsWith(u"Not a pair."_s));
        QCOMPARE(m_commentary->status(), u"No game is running."_s);
    }

    void aRoundThatCannotBeDealtIsToldByItsAlert()
    {
        m_game->startNewGame();
        makeDeck(m_platform->home.path(), u"Cyberpunk"_s, 5);
        for (int pair = 0; pair < 5; ++pair)
            findPair(*m_game);
        QVERIFY(!m_commentary->take().isEmpty());
        findPair(*m_game);
        QVERIFY(!m_game->isGameActive());
        const QString said = m_commentary->take();
        QVERIFY2(said.contains(u"A pair: picture"_s) && said.count(u'.') == 2, qPrintable(said));
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
        MemoryCards cards(12);
        QStringList names;
        for (std::size_t i = 0; i < cards.size(); i += 2)
            cards[i].pairID = cards[i + 1].pairID = QUuid::createUuid();
        for (std::size_t i = 0; i < cards.size(); i += 2) {
            names << pictureName(cards, cards[i]);
            QCOMPARE(pictureName(cards, cards[i + 1]), names.constLast());
        }
        names.sort();
        QCOMPARE(names.join(u' '),
                 u"picture 1 picture 2 picture 3 picture 4 picture 5 picture 6"_s);
    }

private:
    std::unique_ptr<StagePlatform> m_platform{};
    std::unique_ptr<MemoryGame> m_game{};
    std::unique_ptr<Commentary> m_commentary{};
};

QTEST_MAIN(CommentaryTest)
#include "commentary_test.moc"
