// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/leaving_board.h"

#include "platform/widgets/appearance.h"
#include "ui/device_pixels.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QWindow>
#include <algorithm>
#include <array>
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
    connect(&m_frames, &FrameTimer::frame, this, &LeavingBoard::followTime);
    m_frames.start();
    window()->windowHandle()->installEventFilter(this); // where keys arrive first
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
    window()->windowHandle()->removeEventFilter(this);
    hide();
    if (!std::exchange(m_hasTurned, true))
        Q_EMIT turned();
    deleteLater();
}

void LeavingBoard::dismiss()
{
    end();
    Q_EMIT dismissed();
}

bool LeavingBoard::isDismissedBy(const QKeyEvent& key) const
{
    constexpr std::array keys{Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space, Qt::Key_Escape};
    const QWidget* const focus = window()->focusWidget();
    return std::ranges::find(keys, key.key()) != keys.end() && !key.isAutoRepeat() &&
           (key.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier &&
           QApplication::activePopupWidget() == nullptr &&
           (focus == nullptr ||
            rect().intersects({mapFromGlobal(focus->mapToGlobal(QPoint())), focus->size()}));
}

bool LeavingBoard::eventFilter(QObject*, QEvent* event)
{
    const bool isDismissed =
        event->type() == QEvent::KeyPress && isDismissedBy(static_cast<const QKeyEvent&>(*event));
    if (isDismissed)
        dismiss();
    return isDismissed;
}

void LeavingBoard::mousePressEvent(QMouseEvent*)
{
    dismiss();
}

void LeavingBoard::mouseDoubleClickEvent(QMouseEvent*)
{
    // The first half turned the last card. It would be gone before it was seen.
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
