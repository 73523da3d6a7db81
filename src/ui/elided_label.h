// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLabel>

/// One line of plain text; what does not fit ends in an ellipsis and shows
/// whole in a tooltip. The text itself, also for a screen reader, stays whole.
class ElidedLabel : public QLabel {
    Q_OBJECT

public:
    explicit ElidedLabel(const QString& objectName, QWidget* parent);

    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    [[nodiscard]] QString shownText() const;
};
