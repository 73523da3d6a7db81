// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

/// A small drawing of a card layout among the places of the largest one.
///
/// Drawn only: the label beside it says the same in words. Pale while disabled.
class LayoutPicture : public QWidget {
    Q_OBJECT

public:
    explicit LayoutPicture(QWidget* parent);

    /// Shows the layout of the setting `AmountCards`, the nearest for a value
    /// outside.
    void setAmountCards(int amountCards);

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    int m_amountCards = 1;
};
