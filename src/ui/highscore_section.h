// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "highscores/highscore_entry.h"

#include <QString>
#include <QStringList>
#include <array>
#include <functional>
#include <vector>

class ElidedLabel;
class MemoryGame;
class QWidget;

/// The best results of the current settings, as lines for the sidebar's column.
class HighscoreSection {
public:
    /// How many results of a list are shown.
    static constexpr std::size_t shownEntries = 5;

    /// Makes the lines as children of `column`.
    HighscoreSection(const MemoryGame& game, QWidget* column);

    /// Fills the lines with the game's lists and hides those that are left over.
    void refresh();

    /// Every heading and line, shown or not, from top to bottom.
    [[nodiscard]] const std::vector<ElidedLabel*>& rows() const { return m_rows; }

    /// The room above the row in addition to the column's gap, in points.
    [[nodiscard]] int paddingAbove(const ElidedLabel* row) const;

private:
    struct List {
        ElidedLabel* heading = nullptr;
        std::array<ElidedLabel*, shownEntries> lines{};
    };
    struct Line {
        QString text{};
        QStringList names{}; ///< As they stand in it.
    };
    using LineOf = std::function<Line(std::size_t rank, const HighscoreEntry& entry)>;

    // Each fills its headings and lines, or hides them.
    void soloHighscoresSection(bool isShown);
    void versusHighscoresSection(bool isShown);
    [[nodiscard]] List makeList(const char* headingKey, const char* name, QWidget* column);
    static void fill(const List& list, bool isShown, const HighscoreEntries& entries,
                     const LineOf& lineOf);

    const MemoryGame& m_game;
    std::vector<ElidedLabel*> m_rows{};
    List m_times;
    List m_failures;
    List m_versus;
};
