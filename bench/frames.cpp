// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Two cards that turn on the board of 8 x 5, frame by frame at 120 Hz, in turn with
// a board that draws everything anew. The pixel ratio is the application's.
#include "report.h"
#include "settings/settings_keys.h"
#include "stage/game_window.h"
#include "ui/frame_clock.h"
#include "ui/game_board.h"
#include "ui/transition.h"
#include "vector_board.h"

namespace {

constexpr double frameSeconds = 1.0 / 120;
constexpr int framesPerTurn = 54;  ///< The last shows the card at rest.
constexpr int misses = 10;         ///< Two turns of two cards each.
constexpr int vectorFrameStep = 6; ///< They take long: every sixth will do.

double now = 100;

/// Tells whether a widget was painted.
class PaintWatch : public QObject {
public:
    explicit PaintWatch(QWidget& widget) { widget.installEventFilter(this); }
    bool isPainted = false;

protected:
    bool eventFilter(QObject*, QEvent* event) override
    {
        isPainted = isPainted || event->type() == QEvent::Paint;
        return false;
    }
};

struct Frames {
    Samples wall{};
    Samples cpu{};
};

/// Paints and flushes what of `widget` was marked for it.
void measureFrame(QWidget& widget, PaintWatch& watch, Frames& frames)
{
    watch.isPainted = false;
    const double wall = milliseconds(CLOCK_MONOTONIC);
    // Of all threads: Qt has others paint as well.
    frames.cpu.push_back(timed(CLOCK_PROCESS_CPUTIME_ID, [&widget] {
        QCoreApplication::sendPostedEvents(widget.window(), QEvent::UpdateRequest);
    }));
    frames.wall.push_back(milliseconds(CLOCK_MONOTONIC) - wall);
    if (!watch.isPainted)
        qFatal("a frame was not painted");
}

void turnOnGameBoard(GameBoard& board, PaintWatch& watch, Frames& frames)
{
    auto* const timer = board.findChild<FrameTimer*>();
    for (int i = 0; i < framesPerTurn; ++i) {
        now += frameSeconds;
        Q_EMIT timer->frame();
        measureFrame(board, watch, frames);
    }
    now += 1; // the pointer's traces too
    QCoreApplication::processEvents();
}

void turnOnVectorBoard(VectorBoard& board, std::size_t first, std::size_t second, PaintWatch& watch,
                       Frames& frames)
{
    const CardLook back = cardLook(false, false, false);
    const CardLook front = cardLook(true, false, false);
    for (int i = 1; i < framesPerTurn; i += vectorFrameStep) {
        const double share = easeInOut(i * frameSeconds / cardTurnSeconds);
        CardLook look;
        for (const auto value : cardLookValues)
            look.*value = mix(back.*value, front.*value, share);
        board.cards[first].look = board.cards[second].look = look;
        board.update();
        measureFrame(board, watch, frames);
    }
    board.cards[first].look = board.cards[second].look = back;
}

} // namespace

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    setFrameTimeSource([] { return now; });
    GameWindow shown([](StagePlatform& platform) {
        platform.useBuiltResources();
        platform.defaults->setInteger(SettingsKeys::AmountCards, 6);
    });
    shown.startGame();
    now += 1;
    auto& board = shown.child<GameBoard>(QStringLiteral("gameBoard"));
    PaintWatch boardWatch(board);

    const MemoryGame& game = shown.game();
    std::vector<VectorBoard::Card> cards;
    for (const MemoryCard& card : game.cards())
        cards.push_back({card.image.image, {}});
    VectorBoard vectors(
        std::move(cards), game.cardColumns(),
        shown.delegate.contentView()->calculateCardSize(shown.delegate.contentView()->size()));
    vectors.resize(shown.window().size());
    vectors.show();
    if (!QTest::qWaitForWindowExposed(&vectors))
        qFatal("the second window does not come up");
    QTest::qWait(200);
    PaintWatch vectorWatch(vectors);

    Frames turning;
    Frames drawn;
    for (std::size_t i = 0; i < misses; ++i) {
        const std::size_t second = otherCard(game, i, false, i + 8);
        shown.clickCard(i);
        shown.clickCard(second);
        turnOnGameBoard(board, boardWatch, turning);
        turnOnVectorBoard(vectors, i, second, vectorWatch, drawn);
        if (!QTest::qWaitFor([&] { return faceUpCards(game) == 0; }, 5000))
            qFatal("a missed pair does not turn back");
        QCoreApplication::processEvents();
        turnOnGameBoard(board, boardWatch, turning);
    }

    const qreal ratio = board.devicePixelRatioF();
    const std::string where = "two cards turning, pixel ratio " + number(ratio) + ", ";
    const double target = ratio > 1 ? 8.3 : 3;
    printRow(where + "frame's p99", percentile(turning.wall, 0.99), "ms", target);
    printRow(where + "p99 of processor time", percentile(turning.cpu, 0.99), "ms", target);
    printRow(where + "slowest frame's processor time", percentile(turning.cpu, 1), "ms", 8.3);
    printRow(where + "frame's median against vectors", median(turning.wall), "ms", 0.10,
             median(drawn.wall));
    return 0;
}
