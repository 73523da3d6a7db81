// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
// What is said at the turns of a game that a game played to its end does not take.
#include "stage/play.h"
#include "stage/stage_platform.h"
#include "ui/card_texts.h"
#include "ui/commentary.h"

#include <QTest>

using namespace Qt::StringLiterals;

class CommentaryTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aGameThatIsRefusedOrEndedIsNoNews()
    {
        StagePlatform platform;
        platform.useResources(platform.home.path());
        MemoryGame game;
        Commentary commentary(game, nullptr);
        game.startNewGame();
        QCOMPARE(commentary.take(), u"Enter your name."_s);
        game.setPlayerName(u"Ann"_s);
        makeDeck(platform.home.path(), u"Cyberpunk"_s, 5);
        game.startNewGame();
        QCOMPARE(commentary.take(), QString()); // an alert tells of it
        makeDeck(platform.home.path(), u"Cyberpunk"_s, 6);
        game.startNewGame();
        QVERIFY(commentary.take().startsWith(u"Round 1 of 1."_s));
        miss(game);
        game.endGame();
        QVERIFY(commentary.take().endsWith(u"Not a pair."_s));
        QCOMPARE(commentary.status(), u"No game is running."_s);
    }

    void picturesWithoutNamesAreNumbered()
    {
        const StagePlatform platform;
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
};

QTEST_MAIN(CommentaryTest)
#include "commentary_test.moc"
