// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
// What moves: the turn of a card, the board that leaves, the fan above the form,
// the celebration. The test tells the time.
#include "platform/widgets/appearance.h"
#include "settings/settings_keys.h"
#include "stage/game_window.h"
#include "ui/card_faces.h"
#include "ui/celebration.h"
#include "ui/invitation.h"
#include "ui/leaving_board.h"
#include "ui/turning_card.h"

#include <QPainter>
#include <numbers>

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

    void theTurnIsATruePerspective()
    {
        const QRectF place(0, 0, 100, 100);
        const QTransform turned = turnProjection(place, 60);
        // The side that comes nearer grows, the other shrinks; the axis stays.
        const double sine = std::sin(std::numbers::pi / 3);
        QCOMPARE(turned.map(QPointF(50, 0)), QPointF(50, 0));
        QVERIFY(qAbs(turned.map(QPointF(100, 0)).y() - (50 - 50 / (1 - 0.5 * sine))) < 0.001);
        QVERIFY(qAbs(turned.map(QPointF(0, 0)).y() - (50 - 50 / (1 + 0.5 * sine))) < 0.001);
        // A card paints nothing beyond what it says.
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

    void noFarSideOfAPictureShowsAtItsEdge()
    {
        QImage picture(8, 8, QImage::Format_RGB32);
        picture.fill(Qt::red);
        QPainter(&picture).fillRect(1, 1, 7, 7, Qt::blue);
        // The frame ends at two thirds of the pixels 164.
        const QImage face = CardFaces::frontSide(picture, 500.0 / 3, 1).toImage();
        QVERIFY(face.pixelColor(164, 90).blue() > 5 * face.pixelColor(164, 90).red());
        QVERIFY(face.pixelColor(90, 164).blue() > 5 * face.pixelColor(90, 164).red());
    }

    void aWonBoardLeavesAndPairsSink()
    {
        GameWindow window;
        winRound(window);
        QVERIFY(!window.game().isGameActive() && isShown<LeavingBoard>(window));
        QVERIFY(window.child<QWidget>(u"playerName"_s).isVisible());
        pass(0.44);
        QVERIFY(isShown<LeavingBoard>(window) && !isShown<Celebration>(window));
        pass(0.02);
        QVERIFY(isShown<LeavingBoard>(window) && isShown<Celebration>(window));
        pass(0.25);
        QVERIFY(!isShown<LeavingBoard>(window) && isShown<Celebration>(window));
        pass(1);
        QVERIFY(!isShown<Celebration>(window));

        // A key ends the leaving board, and is passed on.
        winRound(window);
        QVERIFY(isShown<LeavingBoard>(window));
        window.type(u"a"_s);
        pass(0);
        QVERIFY(!isShown<LeavingBoard>(window) && isShown<Celebration>(window));
        QCOMPARE(window.game().playerName(), u"AnnAnna"_s);
        // A game that starts sends the celebration away.
        window.press(Qt::Key_Return);
        pass(0);
        QVERIFY(window.game().isGameActive() && !isShown<Celebration>(window));
    }

    void wonRoundsAndEndedGamesAreNotCelebrated()
    {
        GameWindow window;
        window.platform.defaults->setInteger(SettingsKeys::AmountRounds, 2);
        winRound(window);
        QCOMPARE(window.game().currentRound(), 2);
        QVERIFY(isShown<LeavingBoard>(window));
        // The board below can be played at once.
        window.clickCard(0);
        pass(0);
        QVERIFY(!isShown<LeavingBoard>(window) && window.game().cards()[0].isFaceUp);
        pass(1);
        QVERIFY(!isShown<Celebration>(window));
        window.click(u"endButton"_s);
        QVERIFY(!isShown<LeavingBoard>(window));
        pass(1);
        QVERIFY(!isShown<Celebration>(window));
    }

    void theFanAnswersANameAndFollowsItsDeck()
    {
        GameWindow window([](StagePlatform& platform) { platform.useBuiltResources(); });
        auto& fan = window.child<Invitation>(u"invitation"_s);
        QVERIFY(fan.isVisible() && fan.testAttribute(Qt::WA_TransparentForMouseEvents));
        const QWidget& field = window.child<QWidget>(u"playerName"_s);
        const QPoint form = field.pos();
        pass(2); // all pictures have turned
        const QImage atRest = fan.grab().toImage();
        window.type(u"A"_s);
        pass(0.5);
        QVERIFY(yellowPixels(atRest) < yellowPixels(fan.grab().toImage()) - 500);
        window.press(Qt::Key_Backspace);
        pass(0.5);
        QCOMPARE(fan.grab().toImage(), atRest);

        window.platform.defaults->setString(SettingsKeys::CardDeck, u"Kids"_s);
        pass(2);
        QVERIFY(fan.grab().toImage() != atRest);
        QCOMPARE(field.pos(), form);
        window.startGame();
        QVERIFY(!fan.isVisible());
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

    static void winRound(GameWindow& window)
    {
        window.startGame();
        for (int pair = 0; pair < 6; ++pair)
            window.clickPair();
    }

    static int yellowPixels(const QImage& image)
    {
        int count = 0;
        for (int i = 0; i < image.width() * image.height(); ++i) {
            const QColor colour = image.pixelColor(i % image.width(), i / image.width());
            count += colour.red() > 245 && qAbs(colour.green() - 205) < 8 && colour.blue() < 25;
        }
        return count;
    }

    double m_now = 100;
};

QTEST_MAIN(MotionTest)
#include "motion_test.moc"
