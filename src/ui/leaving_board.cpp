// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/leaving_board.h"

#include "platform/widgets/appearance.h"
#include "platform/widgets/held_input.h"
#include "ui/device_pixels.h"

#include <QCoreApplication>
#include <QEvent>
#include <QPaintEvent>
#include <QPainter>
#include <algorithm>
#include <utility>

namespace {

constexpr double fadeSeconds = 0.25;
constexpr double stillSeconds = 0.6; ///< Its whole stay where motion is reduced.

} // namespace

LeavingBoard::LeavingBoard(std::vector<Card> cards, QWidget* parent)
    : QWidget(parent)
    , m_cards(std::move(cards))
    , m_frames(this)
    , m_begin(frameTime())
{
    setObjectName(QStringLiteral("leavingBoard"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    connect(&m_frames, &FrameTimer::frame, this, &LeavingBoard::followTime);
    m_frames.start();
    QCoreApplication::instance()->installEventFilter(this);
}

void LeavingBoard::followTime()
{
    const double age = frameTime() - m_begin;
    const bool isStill = Appearance::isMotionReduced();
    const double stay = isStill ? stillSeconds : cardTurnSeconds;
    if (age >= stay && !std::exchange(m_hasTurned, true))
        Q_EMIT turned();
    if (age >= stay + (isStill ? 0 : fadeSeconds))
        end();
    else
        update();
    removePairs();
}

void LeavingBoard::removePairs()
{
    for (Card& card : m_cards) {
        if (!card.removalTime || frameTime() < *card.removalTime)
            continue;
        card.removalTime.reset();
        MemoryCard found = card.face.card();
        found.isMatched = true;
        card.face.show(found, true);
    }
}

void LeavingBoard::end()
{
    m_frames.stop();
    QCoreApplication::instance()->removeEventFilter(this);
    hide();
    if (!std::exchange(m_hasTurned, true))
        Q_EMIT turned();
    deleteLater();
}

bool LeavingBoard::eventFilter(QObject*, QEvent* event)
{
    if (isMousePress(*event) || isKeyPress(*event))
        end();
    return false;
}

void LeavingBoard::paintEvent(QPaintEvent*)
{
    const double age = frameTime() - m_begin;
    const double fade = std::clamp((age - cardTurnSeconds) / fadeSeconds, 0.0, 1.0);
    const bool isFading = fade > 0 && !Appearance::isMotionReduced();

    // On the window's pixels, as the board's were.
    const QPointF corner = DevicePixels::nearest(*this, QPointF());
    QPixmap picture(size() * devicePixelRatioF() + QSize(1, 1));
    picture.setDevicePixelRatio(devicePixelRatioF());
    picture.fill(palette().color(QPalette::Window));
    {
        QPainter painter(&picture);
        painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
        painter.translate(-corner);
        for (const bool areTurning : {false, true}) {
            for (Card& card : m_cards) {
                if (card.face.isTurning() == areTurning)
                    card.face.paint(painter, card.place);
            }
        }
    }
    QPainter painter(this);
    painter.setOpacity(isFading ? 1 - fade : 1);
    painter.drawPixmap(corner, picture);
}
