// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/commentary.h"

#include "platform/localized_text.h"
#include "ui/card_texts.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace {

/// `texts` one after the other, each closed by a mark of its own or a full stop,
/// so that a voice pauses between them.
QString sentences(const QStringList& texts)
{
    QString all;
    for (const QString& text : texts) {
        if (text.isEmpty())
            continue;
        if (!all.isEmpty())
            all += QLatin1Char(' ');
        all += text;
        if (!QStringLiteral(".!?\u2026").contains(text.back()))
            all += QLatin1Char('.');
    }
    return all;
}

} // namespace

Commentary::Commentary(const MemoryGame& game, QObject* parent)
    : QObject(parent)
    , m_game(game)
    , m_cards(game.cards())
{
    connect(&m_game, &MemoryGame::changed, this, &Commentary::note);
}

QString Commentary::take()
{
    QStringList texts;
    for (const Line& line : std::exchange(m_lines, {}))
        texts << line.text;
    m_isStopped = false;
    return sentences(texts);
}

void Commentary::note(MemoryGame::Member member)
{
    if (member == MemoryGame::Member::cards)
        noteCards();
    else if (member == MemoryGame::Member::headerText)
        noteHeader();
    else if (member == MemoryGame::Member::failedAttempts && m_game.failedAttempts() > 0)
        add(Kind::event, localizedText("said_no_pair"));
    else if (member == MemoryGame::Member::isGameActive && !m_game.isGameActive() &&
             !m_game.gameCompleted())
        noteStop();
}

void Commentary::noteCards()
{
    const MemoryCards before = std::exchange(m_cards, m_game.cards());
    if (!std::ranges::equal(before, m_cards, {}, &MemoryCard::id, &MemoryCard::id)) {
        const auto rows = std::ssize(m_cards) / m_game.cardColumns();
        if (rows > 0)
            add(Kind::dealt, localizedText("said_dealt", {rows, m_game.cardColumns()}));
        return;
    }
    for (std::size_t i = 0; i < m_cards.size(); ++i)
        noteTurn(before[i], m_cards[i]);
}

void Commentary::noteTurn(const MemoryCard& before, const MemoryCard& now)
{
    if (now.isMatched && !before.isMatched) {
        // The first of the two is marked before the second.
        if (std::ranges::count_if(m_cards, &MemoryCard::isMatched) % 2 != 0)
            return;
        // The picture that made the pair is named with it, and not twice.
        if (!m_lines.empty() && m_lines.back().kind == Kind::picture)
            m_lines.pop_back();
        add(Kind::event, localizedText("said_pair", {pictureName(m_cards, now)}));
    } else if (now.isFaceUp && !before.isFaceUp) {
        add(Kind::picture, pictureName(m_cards, now));
    } else if (!now.isFaceUp && before.isFaceUp) {
        const auto liesOpen = [](const MemoryCard& card) {
            return card.isFaceUp && !card.isMatched;
        };
        if (std::ranges::none_of(m_cards, liesOpen))
            add(Kind::event, localizedText("said_back"));
    }
}

void Commentary::noteHeader()
{
    const QString& text = m_game.headerText();
    if (text.isEmpty() || m_isStopped)
        return;
    const auto last =
        std::ranges::find(m_lines.rbegin(), m_lines.rend(), Kind::header, &Line::kind);
    if (last != m_lines.rend()) {
        if (last->text == text)
            return;
        // Of a further round the turn is told first, then overwritten when it is dealt.
        if (m_lines.back().kind == Kind::dealt)
            m_lines.erase(std::next(last).base());
    }
    add(Kind::header, text);
}

void Commentary::noteStop()
{
    // The line above the board goes; an alert tells of a round that could not be dealt.
    std::erase_if(m_lines, [](const Line& line) { return line.kind == Kind::header; });
    m_isStopped = true;
}

QString Commentary::status() const
{
    if (!m_game.isGameActive()) {
        return m_game.gameCompleted() ? sentences({m_game.winnerText()})
                                      : localizedText("status_no_game");
    }
    QStringList texts{m_game.headerText()};
    if (m_game.isVersusMode()) {
        const auto names = m_game.playerNames();
        const auto& scores = m_game.playerScores();
        for (std::size_t i = 0; i < names.size(); ++i)
            texts << names[i] + QStringLiteral(": ") + QString::number(scores[i]);
    } else {
        texts << localizedText("time_label", {m_game.formattedElapsedTime()})
              << localizedText("failed_attempts_label", {m_game.failedAttempts()});
    }
    const auto found = std::ranges::count_if(m_game.cards(), &MemoryCard::isMatched);
    texts << localizedText("status_pairs_left", {(std::ssize(m_game.cards()) - found) / 2});
    return sentences(texts);
}
