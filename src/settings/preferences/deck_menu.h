// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QComboBox>

/// A menu of decks. The selected title ends in an ellipsis where it is longer
/// than the menu, and shows whole in a tooltip.
class DeckMenu : public QComboBox {
    Q_OBJECT

public:
    using QComboBox::QComboBox;

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    [[nodiscard]] QString shownTitle(const QStyleOptionComboBox& option) const;
};
