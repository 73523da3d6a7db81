// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "highscores/highscore_entry.h"

#include <QList>

/// The input cut at each "|" into texts and numbers. A "~" stands for half of a
/// surrogate pair, which UTF-8 cannot hold.
class Pieces {
public:
    explicit Pieces(const QByteArray& input)
        : m_pieces(input.split('|'))
    {
    }
    [[nodiscard]] bool areLeft() const { return m_next < m_pieces.size(); }
    QByteArray bytes() { return m_pieces.value(m_next++); }
    QString text() { return QString::fromUtf8(bytes()).replace(u'~', QChar(0xd83d)); }
    std::int64_t number() { return bytes().toLongLong(); }

private:
    QList<QByteArray> m_pieces;
    qsizetype m_next = 0;
};

/// Records of what is left. An optional field is absent where its piece is empty,
/// else it follows a first letter that is dropped.
inline HighscoreEntries entriesFrom(Pieces pieces)
{
    HighscoreEntries entries;
    while (pieces.areLeft()) {
        HighscoreEntry& entry = entries.emplace_back();
        entry.gameMode = pieces.text();
        entry.playerName = pieces.text();
        for (auto field : {&HighscoreEntry::secondPlayerName, &HighscoreEntry::winnerName}) {
            if (const QString text = pieces.text(); !text.isEmpty())
                entry.*field = text.sliced(1);
        }
        entry.elapsedSeconds = pieces.number();
        entry.failedAttempts = pieces.number();
        for (auto field : {&HighscoreEntry::firstPlayerScore, &HighscoreEntry::secondPlayerScore}) {
            if (const QByteArray number = pieces.bytes(); !number.isEmpty())
                entry.*field = number.sliced(1).toLongLong();
        }
        entry.amountCards = pieces.number();
        entry.amountRounds = pieces.number();
        entry.id = QUuid::createUuidV5(QUuid(), entry.playerName);
    }
    return entries;
}
