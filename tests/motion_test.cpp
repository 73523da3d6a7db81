// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
// What moves: the turn of a card, the board that leaves, the celebration. The test
// tells the time.
#include "settings/settings_keys.h"
#include "stage/game_window.h"
#include "ui/celebration.h"
#include "ui/leaving_board.h"
#include "ui/turning_card.h"

#include <QPainter>

using namespace Qt::StringLiterals;

class MotionTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        setFrameTimeSource([this] { return m_now; });
    }
    void cleanupTestCase() { setFrameTimeSource({}); }

    void aTurnTakesItsTimeAndCanBeOvertaken()
    {
        TurningCard card{MemoryCard()};
        const MemoryCard turned{.isFaceUp = true};
        QVERIFY(card.show(turned, false));
        QVERIFY(!card.show(turned, false));
        m_now += 0.1;
        QVERIFY(card.look().turn > 0 && card.look().turn < 45); // slow at first
        m_now += 0.125;
        QVERIFY(qAbs(card.look().turn - 90) < 0.1);
        QVERIFY(qAbs(card.look().back - 0.5) < 0.01 && qAbs(card.look().front - 0.5) < 0.01);

        QVERIFY(card.show(MemoryCard(), false));
        QVERIFY(qAbs(card.look().turn - 90) < 0.1); // goes on from where it is
        m_now += 0.449;
        QVERIFY(card.isTurning());
        m_now += 0.002;
        QVERIFY(!card.isTurning() && card.look() == CardLook());
    }

    void aCardPaintsNothingBeyondItsReach()
    {
        const StagePlatform platform; // has the logo
        TurningCard card{MemoryCard()};
        card.standAs({.turn = 60, .back = 0.5, .front = 0.5});
        QImage canvas(400, 400, QImage::Format_ARGB32_Premultiplied);
        canvas.fill(Qt::white);
        const QImage before = canvas;
        const QRectF middle(150, 150, 100, 100);
        QPainter painter(&canvas);
        card.paint(painter, middle);
        QVERIFY(canvas.pixelColor(200, 200) != QColor(Qt::white));
        painter.resetTransform();
        painter.fillRect(card.reach(middle), Qt::white);
        painter.end();
        QCOMPARE(canvas, before);
    }

    void aWonBoardLeavesAndPairsSink()
    {
        GameWindow window;
        window.platform.defaults->setInteger(SettingsKeys::AmountRounds, 2);
        winRound(window);
        QCOMPARE(window.game().currentRound(), 2);
        QVERIFY(isShown<LeavingBoard>(window));
        // The board below can be played at once; a round is not celebrated.
        window.clickCard(0);
        pass(0);
        QVERIFY(!isShown<LeavingBoard>(window) && window.game().cards()[0].isFaceUp);
        pass(1);
        QVERIFY(!isShown<Celebration>(window));
        window.clickCard(otherCard(window.game(), 0, true));
        winRound(window);
        QVERIFY(!window.game().isGameActive() && isShown<LeavingBoard>(window));
        pass(0.44);
        QVERIFY(isShown<LeavingBoard>(window) && !isShown<Celebration>(window));
        pass(0.02);
        QVERIFY(isShown<LeavingBoard>(window) && isShown<Celebration>(window));
        pass(0.25);
        QVERIFY(!isShown<LeavingBoard>(window) && isShown<Celebration>(window));
        // A game that starts sends the celebration away.
        window.press(Qt::Key_Return);
        pass(0);
        QVERIFY(window.game().isGameActive() && !isShown<Celebration>(window));
        // A key ends the leaving board, the celebration ends by itself.
        winRound(window);
        winRound(window);
        window.type(u"a"_s);
        pass(0);
        QVERIFY(!isShown<LeavingBoard>(window) && isShown<Celebration>(window));
        pass(1.2);
        QVERIFY(!isShown<Celebration>(window));
    }

private:
    template <class Widget>
    static bool isShown(GameWindow& window)
    {
        const auto* const found = window.window().findChild<Widget*>();
        return found != nullptr && found->isVisible();
    }

    /// Lets a frame come, time pass, another come and deferred deletions be done.
    void pass(double seconds)
    {
        QTest::qWait(seconds > 0 ? 60 : 0);
        m_now += seconds;
        QTest::qWait(60);
    }

    /// Finds the pairs that are left, having started a game if none is running.
    static void winRound(GameWindow& window)
    {
        if (!window.game().isGameActive())
            window.startGame();
        const auto round = window.game().currentRound();
        while (window.game().isGameActive() && window.game().currentRound() == round)
            window.clickPair();
    }

    double m_now = 100;
};

QTEST_MAIN(MotionTest)
#include "motion_test.moc"
