// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/header.h"

#include "game/memory_game.h"
#include "platform/localized_text.h"
#include "ui/elided_label.h"
#include "ui/fonts.h"
#include "ui/screen_metrics.h"

#include <QHBoxLayout>

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
    if (m_game.isGameActive())
        m_line->setText(m_game.headerText());
    else if (m_game.gameCompleted())
        m_line->setText(m_game.winnerText());
    else
        m_line->clear();
}
