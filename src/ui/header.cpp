// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/header.h"

#include "game/memory_game.h"
#include "platform/localized_text.h"
#include "platform/trim.h"
#include "ui/elided_label.h"
#include "ui/fonts.h"
#include "ui/screen_metrics.h"

#include <QHBoxLayout>
#include <utility>

Header::Header(const MemoryGame& game, QWidget* parent)
    : QWidget(parent)
    , m_game(game)
    , m_line(new ElidedLabel(QStringLiteral("headerText"), this))
{
    m_line->setFont(systemFont(30, QFont::Bold));
    m_line->setAlignment(Qt::AlignCenter);
    m_line->setAccessibleDescription(localizedText("title_accessible_name"));
    auto* const row = new QHBoxLayout(this);
    row->setContentsMargins(ScreenMetrics::dividerX, 0, ScreenMetrics::leadingPadding, 0);
    row->addWidget(m_line);
}

void Header::refresh()
{
    const bool isVersus = m_game.isVersusMode();
    QString text;
    if (m_game.isGameActive()) {
        m_wasVersus = isVersus;
        text = m_game.headerText();
    } else if (m_game.gameCompleted() && m_wasVersus == isVersus) {
        text = m_game.winnerText();
    }
    // Behind a result other names may be typed: it keeps those that it was given.
    if (std::exchange(m_text, text) == text)
        return;
    const auto [first, second] = m_game.playerNames();
    m_line->setText(text, isVersus ? QStringList{first, second}
                                   : QStringList{trimmedText(m_game.playerName())});
}
