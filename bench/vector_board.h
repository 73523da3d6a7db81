// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "game/memory_card.h"
#include "ui/card_look.h"

#include <QWidget>
#include <vector>

/// What the board is compared with: it keeps no picture of a face, and draws all
/// cards anew in every frame.
class VectorBoard : public QWidget {
public:
    struct Card {
        QImage picture{};
        CardLook look{};
    };

    VectorBoard(std::vector<Card> cards, int columns, double cardSize);

    std::vector<Card> cards{}; ///< Row by row.

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    int m_columns;
    double m_cardSize;
};
