// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLabel>

/// One line of plain text; what does not fit ends in an ellipsis and shows
/// whole in a tooltip. The text itself, also for a screen reader, stays whole,
/// unless it is longer than any line could be.
class ElidedLabel : public QLabel {
    Q_OBJECT

public:
    explicit ElidedLabel(const QString& objectName, QWidget* parent);

    /// Takes the first 2000 characters of `text`: to lay out more takes seconds,
    /// and an edited file of results may hold names of megabytes.
    void setText(const QString& text);

    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    [[nodiscard]] QString shownText() const;
};
