// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/invitation.h"

#include "decks/deck_look.h"
#include "game/memory_game.h"
#include "platform/application_bundle.h"
#include "platform/platform.h"
#include "platform/user_defaults.h"
#include "settings/settings_keys.h"
#include "ui/device_pixels.h"
#include "ui/screen_metrics.h"

#include <QEvent>
#include <QPainter>
#include <QTimer>
#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <utility>

namespace {

constexpr double degreesApart = 7;
constexpr double smallestEdge = 84;
constexpr double largestEdge = 168;
constexpr double secondsApart = 0.07; ///< Between the turns of two cards at arrival.
constexpr double fanWidth = 4.31;     ///< In edges.
constexpr double fanHeight = 1.296;

double circleRadius(double edge)
{
    return 0.78 * edge / std::sin(degreesApart * std::numbers::pi / 180);
}

} // namespace

Invitation::Invitation(const MemoryGame& game, QWidget* parent)
    : QWidget(parent)
    , m_game(game)
    , m_frames(this)
{
    setObjectName(QStringLiteral("invitation"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    connect(&m_frames, &FrameTimer::frame, this, &Invitation::followFrame);
    connect(&platform().defaults, &UserDefaults::written, this, [this](const QString& key) {
        if (key == SettingsKeys::CardDeck && m_game.cardDeck() != m_deck)
            arrive();
    });
    arrive();
}

void Invitation::arrange(const QRect& area, int formTop)
{
    const double room = formTop - 16 - ScreenMetrics::headerHeight;
    double edge = std::clamp(std::round(0.5 * room), smallestEdge, largestEdge);
    edge = std::min(edge, std::floor((area.width() - 48) / fanWidth));
    const bool hasRoom = room >= 168 && edge >= smallestEdge;
    m_edge = hasRoom ? edge : 0;
    // Whole area, since a turning card reaches beyond the fan.
    setGeometry(area);
    const double gap = std::max(32.0, std::rint(0.15 * room));
    m_middleY = formTop - gap - std::round(fanHeight * edge) + edge / 2 - area.top();
    update();
}

void Invitation::dropPictures()
{
    m_deck = m_game.cardDeck();
    m_pictures.clear();
    const auto& names = deckLook(m_deck).fanPictures;
    const bool isFanOfPictures = !names.front().isEmpty();
    m_namesToLoad.clear();
    if (isFanOfPictures)
        m_namesToLoad.assign(names.begin(), names.end());
    m_cards.assign(isFanOfPictures ? 5 : 3, TurningCard(MemoryCard()));
    update();
}

void Invitation::arrive()
{
    dropPictures();
    m_comesByTurning = true;
    scheduleLoad();
}

void Invitation::standReady()
{
    m_comesByTurning = false;
    if (m_deck != m_game.cardDeck())
        dropPictures();
    if (hasPictures())
        layPictures();
    else
        scheduleLoad();
}

void Invitation::scheduleLoad()
{
    // Not before the first paint, which thus reads no picture (a display may ask
    // for it long after the window is shown), and one a turn of the event loop, so
    // that a key never waits for all of them.
    if (!m_isPainted || m_namesToLoad.empty() || !isVisible() ||
        std::exchange(m_isLoadScheduled, true))
        return;
    QTimer::singleShot(0, this, &Invitation::loadNextPicture);
}

void Invitation::showEvent(QShowEvent*)
{
    scheduleLoad();
}

void Invitation::loadNextPicture()
{
    m_isLoadScheduled = false;
    if (m_namesToLoad.empty() || !isVisible())
        return;
    const QString name = m_namesToLoad.front();
    m_namesToLoad.pop_front();
    QImage picture = deckPicture(platform().bundle, m_deck, name);
    if (picture.isNull()) {
        // Never an empty frame: short of a picture it is three backs.
        m_namesToLoad.clear();
        m_pictures.clear();
        m_cards.assign(3, TurningCard(MemoryCard()));
        update();
        return;
    }
    m_pictures.push_back({std::move(picture), name});
    if (hasPictures())
        layPictures();
    else
        scheduleLoad();
}

void Invitation::layPictures()
{
    // The middle card, a back so far, is the partner of the one left of it.
    static constexpr std::array<std::size_t, 5> pictureOf{0, 1, 1, 2, 3};
    constexpr std::size_t middle = 2;
    const bool isAnswered = m_game.canStart() && !m_comesByTurning;
    int order = 0;
    for (std::size_t i = 0; i < m_cards.size(); ++i) {
        MemoryCard card;
        card.image = m_pictures[pictureOf[i]];
        m_cards[i] = TurningCard(card);
        const bool isOfThePair = i == middle || i == middle - 1;
        if (m_comesByTurning && i != middle)
            m_cards[i].turnTo(cardLook(true, false, false), secondsApart * order++);
        else
            m_cards[i].standAs(
                cardLook(i != middle || isAnswered, isOfThePair && isAnswered, false));
    }
    m_comesByTurning = false;
    refresh();
}

void Invitation::refresh()
{
    if (!hasPictures())
        return;
    const bool isAnswered = m_game.canStart();
    m_cards[1].turnTo(cardLook(true, isAnswered, false));
    m_cards[2].turnTo(cardLook(isAnswered, isAnswered, false));
    followFrame();
}

void Invitation::followFrame()
{
    update();
    if (std::ranges::any_of(m_cards, &TurningCard::isMoving))
        m_frames.start();
    else
        m_frames.stop();
}

void Invitation::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        update();
}

void Invitation::paintEvent(QPaintEvent*)
{
    m_isPainted = true;
    scheduleLoad();
    if (m_edge <= 0)
        return;
    QPainter painter(this);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    // The middle card stands upright and lies on whole pixels.
    const double edge = DevicePixels::whole(m_edge, devicePixelRatioF());
    const QPointF half(edge / 2, edge / 2);
    const QPointF middle =
        DevicePixels::nearest(*this, QPointF(width() / 2.0, m_middleY) - half) + half;
    const double radius = circleRadius(m_edge);
    const int reach = static_cast<int>(m_cards.size()) / 2;
    // From the outside in, so that the middle card lies on top.
    for (int distance = reach; distance >= 0; --distance) {
        for (const int place : {-distance, distance}) {
            const double angle = place * degreesApart;
            const double radians = angle * std::numbers::pi / 180;
            painter.save();
            painter.translate(middle.x() + radius * std::sin(radians),
                              middle.y() + radius * (1 - std::cos(radians)));
            painter.rotate(angle);
            const int number = place + reach;
            TurningCard& card = m_cards[static_cast<std::size_t>(number)];
            card.setGround(palette().color(QPalette::Window));
            card.paint(painter, QRectF(-half, half));
            painter.restore();
            if (distance == 0)
                break;
        }
    }
}
