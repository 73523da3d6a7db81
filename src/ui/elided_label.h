// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLabel>
#include <QStringList>
#include <vector>

/// One line of plain text; what does not fit ends in an ellipsis and shows
/// whole in a tooltip. The text itself, also for a screen reader, stays whole,
/// unless it is longer than any line could be.
///
/// Names in it give way before the rest, so that the value behind a long name
/// can be read, and each keeps its own direction of writing to itself: one from
/// right to left would else take the numbers beside it along.
class ElidedLabel : public QLabel {
    Q_OBJECT

public:
    /// An empty line.
    explicit ElidedLabel(const QString& objectName, QWidget* parent);

    /// Shows `text`. `names` are what it quotes, in the order in which they stand
    /// there; one that does not is passed over.
    ///
    /// Takes the first 2000 characters of each name and of what lies between: to
    /// lay out more takes seconds, and an edited file of results may hold names of
    /// megabytes.
    void setText(const QString& text, const QStringList& names = {});

    /// Lets the letters of a line that is too long stand closer, before anything is
    /// left out: down to `percent` of their distance, from 1 to 100, which is the
    /// default.
    void setTightest(int percent);

    /// What is drawn in the label's present width.
    [[nodiscard]] QString shownText() const;

    [[nodiscard]] QSize minimumSizeHint() const override;
    /// Returns the size of the text on one line, line breaks in it included.
    [[nodiscard]] QSize sizeHint() const override;

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    struct Piece {
        QString text{};
        bool isName = false;

        bool operator==(const Piece&) const = default;
    };

    /// Every character of the text, as it is drawn where there is room.
    [[nodiscard]] QString wholeText() const;
    /// The label's font, as tight as the present width asks for.
    [[nodiscard]] QFont shownFont() const;
    std::vector<Piece> m_pieces{};
    int m_tightest = 100;
};
