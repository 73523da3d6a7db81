// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/focus_ring.h"

#include "ui/colours.h"
#include "ui/memory_card_view.h"

#include <QApplication>
#include <QEvent>
#include <QMenuBar>
#include <QPainter>

namespace {

constexpr qreal ringWidth = 2; ///< As wide as the frame that Qt lays around a control.
constexpr qreal ringRadius = 3;

class Frame : public QFocusFrame {
public:
    using QFocusFrame::QFocusFrame;

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(Colours::focusRing(palette()), ringWidth));
        const qreal inset = ringWidth / 2;
        painter.drawRoundedRect(QRectF(rect()).adjusted(inset, inset, -inset, -inset), ringRadius,
                                ringRadius);
    }
};

bool needsRing(const QWidget* control)
{
    return control != nullptr && !control->isWindow() &&
           control->window()->windowType() != Qt::Popup &&
           qobject_cast<const QMenuBar*>(control) == nullptr &&
           qobject_cast<const MemoryCardView*>(control) == nullptr;
}

} // namespace

FocusRing::FocusRing()
{
    connect(qApp, &QApplication::focusChanged, this, &FocusRing::follow);
    qApp->installEventFilter(this);
}

bool FocusRing::eventFilter(QObject* watched, QEvent* event)
{
    const bool isKey = event->type() == QEvent::KeyPress;
    if ((isKey || event->type() == QEvent::MouseButtonPress) && isKey != m_isShown) {
        m_isShown = isKey;
        follow();
    }
    return QObject::eventFilter(watched, event);
}

void FocusRing::follow()
{
    QWidget* const control = QApplication::focusWidget();
    if (!m_isShown || !needsRing(control)) {
        if (m_frame)
            m_frame->setWidget(nullptr);
        return;
    }
    if (!m_frame)
        m_frame = new Frame;
    m_frame->setWidget(control);
}
