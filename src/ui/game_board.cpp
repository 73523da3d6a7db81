// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/game_board.h"

#include "game/memory_game.h"
#include "platform/localized_text.h"
#include "platform/platform.h"
#include "platform/user_defaults.h"
#include "platform/widgets/appearance.h"
#include "settings/settings_keys.h"
#include "ui/card_texts.h"
#include "ui/colours.h"
#include "ui/device_pixels.h"
#include "ui/memory_card_view.h"
#include "ui/screen_metrics.h"

#include <QEvent>
#include <QPaintEvent>
#include <QPainter>
#include <algorithm>
#include <utility>

namespace {

constexpr int sidePadding = 24;
constexpr int endPadding = 12;
constexpr int spacerAbove = 10; ///< Least room above the grid.
constexpr int spacerBelow = 20; ///< Least room below it.
constexpr qreal ringDistance = 7.5;
constexpr qreal ringWidth = 3;
constexpr qreal ringRadius = 21.5;
constexpr int ringReach = 10;
constexpr double removalDelaySeconds = 0.35;        ///< After the turn of a removed pair.
constexpr double reducedRemovalDelaySeconds = 0.60; ///< Where motion is reduced.

} // namespace

GameBoard::GameBoard(MemoryGame& game, QWidget* parent)
    : QWidget(parent)
    , m_game(game)
    , m_frames(this)
{
    setObjectName(QStringLiteral("gameBoard"));
    setAccessibleName(localizedText("board_accessible_name"));
    connect(&m_frames, &FrameTimer::frame, this, &GameBoard::nextFrame);
}

void GameBoard::refresh()
{
    showCards(m_game.cards());
}

void GameBoard::showCards(const MemoryCards& cards)
{
    const bool isSameBoard = std::ranges::equal(cards, m_tiles, {}, &MemoryCard::id,
                                                [](const auto* tile) { return tile->card().id; });
    if (!isSameBoard)
        replaceTiles(cards);
    const bool removeMatch = platform().defaults.integer(SettingsKeys::RemoveMatch) == 1;
    const bool awaitsTap = m_game.isGameActive() && !m_game.isCheckingPair();
    for (std::size_t i = 0; i < cards.size(); ++i) {
        const bool canBeTurned = awaitsTap && !cards[i].isFaceUp && !cards[i].isMatched;
        MemoryCard card = cards[i];
        card.isMatched = isMatchedForView(i, card, removeMatch);
        m_tiles[i]->show(card, removeMatch, canBeTurned,
                         cardText(cards, i, m_game.cardColumns(), removeMatch && card.isMatched));
    }
    followFrame();
}

bool GameBoard::isMatchedForView(std::size_t position, const MemoryCard& card, bool removeMatch)
{
    // A view that removes its card turns it back at once, and the second picture of
    // the pair would never be seen.
    const bool isNews = card.isMatched && !m_tiles[position]->card().isMatched;
    std::optional<double>& removalTime = m_removalTimes[position];
    if (isNews && removeMatch && !removalTime)
        removalTime =
            frameTime() + (Appearance::isMotionReduced() ? reducedRemovalDelaySeconds
                                                         : cardTurnSeconds + removalDelaySeconds);
    if (isNews && removeMatch && frameTime() < *removalTime)
        return false;
    removalTime.reset();
    return card.isMatched;
}

std::vector<LeavingBoard::Card> GameBoard::leavingCards(const MemoryCards& cards)
{
    showCards(cards);
    std::vector<LeavingBoard::Card> leaving;
    for (std::size_t i = 0; i < m_tiles.size(); ++i)
        leaving.push_back({m_tiles[i]->face(), place(*m_tiles[i]), m_removalTimes[i]});
    return leaving;
}

void GameBoard::nextFrame()
{
    if (std::ranges::any_of(m_removalTimes,
                            [](const auto& time) { return time && *time <= frameTime(); }))
        Q_EMIT removalDue();
    followFrame();
}

void GameBoard::followFrame()
{
    // Repaint where cards were and where they are now. A card that has come to rest may
    // have skipped frames, and be larger than it was in the last one.
    QRegion moving;
    QRegion rested;
    for (MemoryCardView* const tile : m_tiles) {
        const QRectF square = place(*tile);
        if (tile->face().isMoving())
            moving += tile->face().reach(square);
        else if (m_moved.contains(square.center().toPoint()))
            rested += tile->face().reach(square);
    }
    update(moving + m_moved + rested);
    const bool isPairHeld =
        std::ranges::any_of(m_removalTimes, [](const auto& time) { return time.has_value(); });
    if (moving.isEmpty() && !isPairHeld)
        m_frames.stop();
    else
        m_frames.start();
    m_moved = moving;
}

void GameBoard::replaceTiles(const MemoryCards& cards)
{
    const std::vector<MemoryCardView*> leaving = std::exchange(m_tiles, {});
    const bool hadFocus = std::ranges::any_of(leaving, &QWidget::hasFocus);
    m_removalTimes.assign(cards.size(), std::nullopt);
    for (std::size_t i = 0; i < cards.size(); ++i) {
        auto* const tile = new MemoryCardView(cards[i], i, this);
        tile->setObjectName(QStringLiteral("card%1").arg(i));
        connect(tile, &MemoryCardView::clicked, this,
                [this, tile] { m_game.flipCard(tile->card()); });
        connect(tile, &MemoryCardView::navigated, this,
                [this, tile](int key, Qt::KeyboardModifiers modifiers) {
                    navigate(tile->index(), key, modifiers);
                });
        connect(tile, &MemoryCardView::faceChanged, this, [this, tile] {
            update(tile->face().reach(place(*tile)));
            followFrame();
        });
        tile->installEventFilter(this);
        tile->setVisible(true);
        m_tiles.push_back(tile);
    }
    arrange();
    update();
    if (!m_tiles.empty())
        moveTabStop(std::min(m_focusedPosition, m_tiles.size() - 1));

    // Before the old tiles go: the focus of a hidden one would wander off.
    if (hadFocus)
        focusCard(m_focusedPosition);
    for (MemoryCardView* const tile : leaving) {
        tile->hide();
        tile->deleteLater();
    }
}

void GameBoard::setGrid(int columns, double cardSize)
{
    if (columns == m_columns && cardSize == m_cardSize)
        return;
    m_columns = columns;
    m_cardSize = cardSize;
    updateGeometry();
    arrange();
    update();
}

void GameBoard::setTopRoom(int points)
{
    if (points == m_topRoom)
        return;
    m_topRoom = points;
    arrange();
    update();
}

QSizeF GameBoard::gridSize() const
{
    const auto length = [this](int cards) {
        return cards * m_cardSize + std::max(0, cards - 1) * ScreenMetrics::spacing;
    };
    const int rows = (static_cast<int>(m_tiles.size()) + m_columns - 1) / m_columns;
    return {length(m_columns), length(rows)};
}

QSize GameBoard::minimumSizeHint() const
{
    const QSizeF room =
        gridSize() + QSizeF(2 * sidePadding, 2 * endPadding + 2 * ScreenMetrics::spacing +
                                                 spacerAbove + spacerBelow);
    return {qCeil(room.width()), qCeil(room.height())};
}

void GameBoard::arrange()
{
    // The grid lies between two spacers that share what is left evenly, unless
    // one of them would fall below its least length.
    const QSizeF grid = gridSize();
    const double rest =
        height() - m_topRoom - 2 * endPadding - 2 * ScreenMetrics::spacing - grid.height();
    const double above = std::max<double>(spacerAbove, std::min(rest / 2, rest - spacerBelow));
    const int top = m_topRoom + qRound(endPadding + above + ScreenMetrics::spacing);
    const int left = qRound((width() - grid.width()) / 2);
    const double pitch = m_cardSize + ScreenMetrics::spacing;
    for (std::size_t i = 0; i < m_tiles.size(); ++i) {
        const int column = static_cast<int>(i) % m_columns;
        const int row = static_cast<int>(i) / m_columns;
        m_tiles[i]->setGeometry(left + qRound(column * pitch), top + qRound(row * pitch),
                                qRound(m_cardSize), qRound(m_cardSize));
    }
}

QRectF GameBoard::place(const MemoryCardView& tile) const
{
    const qreal edge = DevicePixels::whole(m_cardSize, devicePixelRatioF());
    return {DevicePixels::nearest(*this, tile.pos()), QSizeF(edge, edge)};
}

void GameBoard::paintEvent(QPaintEvent* event)
{
    QPainter painter(this);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    // A turning card comes before its neighbours, and before the ring.
    for (const bool areTurning : {false, true}) {
        if (areTurning)
            paintFocusRing(painter);
        for (MemoryCardView* const tile : m_tiles) {
            TurningCard& face = tile->face();
            if (face.isTurning() == areTurning &&
                event->region().intersects(face.reach(place(*tile))))
                face.paint(painter, place(*tile));
        }
    }
}

void GameBoard::paintFocusRing(QPainter& painter) const
{
    if (!m_isFocusRingShown || m_focusedPosition >= m_tiles.size() ||
        !m_tiles[m_focusedPosition]->hasFocus())
        return;
    painter.setPen(QPen(Colours::focusRing(palette()),
                        Appearance::isContrastHigh() ? ringWidth + 1 : ringWidth));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(place(*m_tiles[m_focusedPosition])
                                .adjusted(-ringDistance, -ringDistance, ringDistance, ringDistance),
                            ringRadius, ringRadius);
}

void GameBoard::resizeEvent(QResizeEvent*)
{
    arrange();
}

bool GameBoard::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut) {
        const auto tile = std::ranges::find(m_tiles, watched);
        if (tile != m_tiles.end()) {
            if (event->type() == QEvent::FocusIn)
                moveTabStop(static_cast<std::size_t>(tile - m_tiles.begin()));
            update((*tile)->geometry().adjusted(-ringReach, -ringReach, ringReach, ringReach));
        }
    }
    return QWidget::eventFilter(watched, event);
}

void GameBoard::focusCard(std::size_t position)
{
    if (m_tiles.empty())
        return;
    MemoryCardView* const tile = m_tiles[std::min(position, m_tiles.size() - 1)];
    tile->setFocus(Qt::OtherFocusReason);
    Q_EMIT focusMoved(tile);
}

void GameBoard::moveTabStop(std::size_t position)
{
    if (m_focusedPosition < m_tiles.size())
        m_tiles[m_focusedPosition]->setFocusPolicy(Qt::ClickFocus);
    m_tiles[position]->setFocusPolicy(Qt::StrongFocus);
    m_focusedPosition = position;
}

void GameBoard::setFocusRingShown(bool isShown)
{
    if (isShown == m_isFocusRingShown)
        return;
    m_isFocusRingShown = isShown;
    update();
}

void GameBoard::navigate(std::size_t from, int key, Qt::KeyboardModifiers modifiers)
{
    const auto columns = static_cast<std::size_t>(m_columns);
    const std::size_t last = m_tiles.size() - 1;
    const std::size_t rowStart = from - from % columns;
    const bool wholeBoard = modifiers.testFlag(Qt::ControlModifier);
    std::size_t to = from;
    if (key == Qt::Key_Left && from > rowStart)
        to = from - 1;
    else if (key == Qt::Key_Right && from < rowStart + columns - 1)
        to = from + 1;
    else if (key == Qt::Key_Up && from >= columns)
        to = from - columns;
    else if (key == Qt::Key_Down && from + columns <= last)
        to = from + columns;
    else if (key == Qt::Key_Home)
        to = wholeBoard ? 0 : rowStart;
    else if (key == Qt::Key_End)
        to = wholeBoard ? last : rowStart + columns - 1;
    focusCard(to);
}
