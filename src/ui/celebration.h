// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "decks/deck_look.h"
#include "ui/frame_clock.h"

#include <QWidget>

/// A won game: pairs of small cards sink behind the form for about a second.
/// A picture only. Deletes itself.
class Celebration : public QWidget {
    Q_OBJECT

public:
    /// Begins at once, in the colours of `look`, over the area of `parent`
    /// `area`.
    Celebration(const DeckLook& look, const QRect& area, QWidget* parent);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void paintPair(QPainter& painter, int number, double age) const;

    std::array<QRgb, 6> m_colours;
    FrameTimer m_frames;
    double m_begin;
};
