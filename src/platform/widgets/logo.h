// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPixmap>
#include <QWidget>

/// The logo fitted into a square of `edge` points at the pixel ratio
/// `devicePixelRatio`; null if its file is missing. Kept for the next call.
[[nodiscard]] QPixmap logoPixmap(qreal edge, qreal devicePixelRatio);

/// The logo as part of the screen: drawn only, no input, no focus.
class LogoView : public QWidget {
    Q_OBJECT

public:
    explicit LogoView(QWidget* parent);

protected:
    void paintEvent(QPaintEvent* event) override;
};
