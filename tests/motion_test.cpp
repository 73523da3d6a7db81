// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Cards, how they are drawn and turn; removed pairs, the board that fades out, the
// celebration. The test sets the time.
#include "platform/widgets/appearance.h"
#include "settings/settings_keys.h"
#include "stage/game_window.h"
#include "support/rows.h"
#include "ui/celebration.h"
#include "ui/game_board.h"
#include "ui/leaving_board.h"
#include "ui/memory_card_view.h"

#include <QPainter>
#include <QPixmapCache>
#include <QProxyStyle>

using namespace Qt::StringLiterals;

/// A style that animates nothing.
class StillStyle : public QProxyStyle {
    int styleHint(StyleHint, const QStyleOption*, const QWidget*, QStyleHintReturn*) const override
    {
        return 0;
    }
};

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
        m_now += 0.225;
        QVERIFY(qAbs(card.look().turn - 90) < 0.1);
        QVERIFY(qAbs(card.look().back - 0.5) < 0.01 && qAbs(card.look().front - 0.5) < 0.01);

        QVERIFY(card.show(MemoryCard(), false));
        QVERIFY(qAbs(card.look().turn - 90) < 0.1); // goes on from where it is
        m_now += 0.449;
        QVERIFY(card.isTurning());
        m_now += 0.002;
        QVERIFY(!card.isTurning() && card.look() == CardLook());

        // A quick second tap that finds the pair changes the outline, not the turn.
        for (const double degrees : {0.0, 4.4, 18.3, 41.7, 72.9, 107.1, 138.3, 161.7, 175.6}) {
            card.show({.isFaceUp = true, .isMatched = degrees > 40}, false);
            QVERIFY(qAbs(card.look().turn - degrees) < 1);
            m_now += 0.0501;
        }
        QVERIFY(!card.isTurning() && card.look().turn == 180 && card.look().found < 0.8);
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

    void facesHaveTheirGradientLogoPictureAndOutline()
    {
        GameWindow window([](StagePlatform& platform) { platform.useBuiltResources(); });
        QPixmapCache::clear(); // other tests have no logo
        QImage shown(100, 100, QImage::Format_RGB32);
        const auto draw = [&shown](const QImage& picture, const CardLook& look) {
            TurningCard card({.image = {picture, {}}});
            card.standAs(look);
            shown.fill(Qt::white);
            QPainter painter(&shown);
            card.paint(painter, shown.rect());
        };
        const auto isAt = [&shown](int x, int y, const QColor& colour) {
            const QColor seen = shown.pixelColor(x, y);
            return qAbs(seen.red() - colour.red()) < 4 && qAbs(seen.green() - colour.green()) < 4;
        };
        draw({}, cardLook(false, false, false));
        QVERIFY(isAt(10, 10, {19, 162, 184}) && isAt(89, 89, {9, 113, 143}));
        QVERIFY(isAt(50, 30, {15, 144, 168}) && !isAt(50, 50, {14, 138, 164}));

        QImage wide(90, 30, QImage::Format_RGB32);
        wide.fill(Qt::red);
        QPainter(&wide).fillRect(30, 0, 30, 30, Qt::green);
        for (const bool isFound : {false, true}) {
            draw(wide, cardLook(true, isFound, false));
            QVERIFY(isAt(12, 50, Qt::green) && isAt(87, 50, Qt::green));
            QVERIFY(isAt(0, 50, isFound ? QColor(255, 206, 0) : QColor(202, 202, 204)));
        }

        shown = window.window().grab().toImage();
        const QPoint corner = window.child<QWidget>(u"logo"_s).mapTo(&window.window(), QPoint());
        QVERIFY(shown.pixel(corner) != shown.pixel(corner + QPoint(90, 90)));

        // The fan turns a card once both names are there.
        const auto& fan = *window.child<QWidget>(u"invitation"_s).findChild<FrameTimer*>();
        window.click(u"versusCheckbox"_s);
        pass(2);
        for (const QString& field : {u"playerOneName"_s, u"playerTwoName"_s}) {
            QTRY_VERIFY(!fan.isRunning());
            window.click(field);
            window.type(u"Ann"_s);
            QCoreApplication::processEvents();
        }
        QVERIFY(fan.isRunning());
    }

    void pairsAreSeenBeforeTheyAreRemoved_data()
    {
        const Rows<int, int, bool> row{"removeMatch", "meanwhile", "isMotionReduced"};
        row("switched on", 1, 1, false);
        row("only 1 is on", 2, 2, false);
        row("switched off while the pair is seen", 1, 0, false);
        row("switched on takes effect at the next change", 0, 1, false);
        row("reduced motion", 1, 1, true);
    }

    void pairsAreSeenBeforeTheyAreRemoved()
    {
        QFETCH(const int, removeMatch);
        QFETCH(const int, meanwhile);
        QFETCH(const bool, isMotionReduced);
        if (isMotionReduced)
            QApplication::setStyle(new StillStyle);
        const Appearance appearance;
        GameWindow window;
        window.platform.defaults->setInteger(SettingsKeys::RemoveMatch, removeMatch);
        window.startGame();
        const std::size_t second = otherCard(window.game(), 0, true);
        const auto areBoth = [&](const CardLook& look, const QString& name) {
            return std::ranges::all_of(std::array{std::size_t(0), second}, [&](std::size_t i) {
                auto& card = static_cast<MemoryCardView&>(window.card(i));
                return card.face().look() == look && card.accessibleName().endsWith(name);
            });
        };
        const CardLook front = cardLook(true, removeMatch != 1, false);
        window.clickCard(0);
        pass(0.15);
        window.clickCard(second);
        pass(0.46);
        QVERIFY(areBoth(front, u"pair found"_s));
        // Both are painted whole, though no frame showed the end of their turn.
        QScreen& screen = *window.window().screen();
        QCOMPARE(screen.grabWindow(window.window().winId()).toImage(),
                 window.window().grab().toImage().convertToFormat(QImage::Format_RGB32));
        window.platform.defaults->setInteger(SettingsKeys::RemoveMatch, meanwhile);
        pass(isMotionReduced ? 0.13 : 0.33);
        QVERIFY(areBoth(front, u"pair found"_s));
        pass(0.02);
        const bool isRemoved = removeMatch == 1 && meanwhile == 1;
        QCOMPARE(window.card(0).accessibleName().endsWith(u"empty"_s), isRemoved);
        pass(0.46);
        QVERIFY(areBoth(cardLook(true, true, isRemoved), isRemoved ? u"empty"_s : u"found"_s));
        QVERIFY(!window.child<QWidget>(u"gameBoard"_s).findChild<FrameTimer*>()->isRunning());
        const std::size_t open = hiddenCard(window.game());
        window.clickCard(open);
        pass(0.46);
        QVERIFY(areBoth(cardLook(true, true, meanwhile == 1), {}));
        window.clickCard(otherCard(window.game(), open, true));
        winRound(window);
        window.press(Qt::Key_Escape);
        QCOMPARE(isShown<Celebration>(window), !isMotionReduced);
        QApplication::setStyle(u"fusion"_s);
    }

    void inputOnTheLeavingBoardStartsNoGame()
    {
        GameWindow window;
        for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Space, Qt::Key_Escape, Qt::Key_unknown}) {
            winRound(window);
            window.type(u"b"_s);
            const QString name = window.game().playerName();
            QVERIFY(isShown<LeavingBoard>(window) && name.endsWith(u'b'));
            QVERIFY(!isShown<Celebration>(window)); // of the game before
            if (key == Qt::Key_unknown) {
                clickTwice(window, window.child<QWidget>(u"startButton"_s));
            } else {
                window.press(key);
                window.repeat(key, u" "_s);
            }
            QVERIFY(!isShown<LeavingBoard>(window) && isShown<Celebration>(window));
            QVERIFY(!window.game().isGameActive());
            QCOMPARE(window.game().playerName(), name);
        }
        winRound(window);
        window.click(u"versusCheckbox"_s);
        QVERIFY(isShown<LeavingBoard>(window) && window.game().isVersusMode());
        window.press(Qt::Key_Space); // the box has the focus
        QVERIFY(isShown<LeavingBoard>(window) && !window.game().isVersusMode());
    }

    void aWonBoardLeavesAndPairsSink()
    {
        GameWindow window;
        window.platform.defaults->setInteger(SettingsKeys::AmountRounds, 2);
        window.platform.defaults->setInteger(SettingsKeys::RemoveMatch, 1);
        window.startGame();
        const MemoryCards cards = window.game().cards();
        const auto isSeen = [&](std::size_t position) {
            const QPoint place = window.card(position).mapTo(&window.window(), QPoint(40, 40));
            const QRgb seen = window.window().grab().toImage().pixel(place);
            return qAbs(qGray(seen) - qGray(cards[position].image.image.pixel(8, 8))) < 4;
        };
        window.clickPair();
        pass(0.5);
        std::size_t last = 0;
        while (window.game().currentRound() == 1) {
            last = hiddenCard(window.game());
            window.clickCard(otherCard(window.game(), last, true));
            clickTwice(window, window.card(last)); // its second half acts on nothing
        }
        // The last pair is seen, the first one goes, and a round is not celebrated.
        pass(0.31);
        pass(0.13);
        QVERIFY(isSeen(last) && !isSeen(0));
        QVERIFY(isShown<LeavingBoard>(window) && !isShown<Celebration>(window));
        window.clickCard(0);
        QVERIFY(!isShown<LeavingBoard>(window) && faceUpCards(window.game()) == 0);
        winRound(window);
        QVERIFY(!window.game().isGameActive() && isShown<LeavingBoard>(window));
        pass(0.44);
        QVERIFY(isShown<LeavingBoard>(window) && !isShown<Celebration>(window));
        pass(0.02);
        QVERIFY(isShown<LeavingBoard>(window) && isShown<Celebration>(window));
        pass(0.25);
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

    static void clickTwice(GameWindow& window, const QWidget& widget)
    {
        QTest::mouseDClick(window.window().windowHandle(), Qt::LeftButton, {},
                           widget.mapTo(&window.window(), widget.rect().center()));
        QCoreApplication::processEvents();
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
