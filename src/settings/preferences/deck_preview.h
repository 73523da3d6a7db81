// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPixmap>
#include <QString>
#include <QWidget>
#include <vector>

/// A strip of the first pictures of a deck, in order of file name.
///
/// Shows backs for a deck of photos, which it never reads, and for pictures
/// that are not to be had. Its size never changes.
class DeckPreview : public QWidget {
    Q_OBJECT

public:
    explicit DeckPreview(QWidget* parent);

    /// Shows the deck that bears `name` in the settings.
    void setDeck(const QString& name);

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void load();

    QString m_deck{};
    std::vector<QPixmap> m_tiles{};
    qreal m_tilesRatio = 0; ///< The pixel ratio that the tiles were made for.
};
