// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/preferences/deck_preview.h"

#include "decks/bundle_deck.h"
#include "decks/deck_name.h"
#include "platform/localized_text.h"
#include "platform/platform.h"
#include "platform/widgets/logo.h"
#include "ui/card_faces.h"
#include "ui/card_texts.h"
#include "ui/colours.h"

#include <QAccessibleWidget>
#include <QPainter>

namespace {

constexpr int tileCount = 5;
constexpr int tileEdge = 60;
constexpr int gap = 10;
constexpr qreal cornerRadius = 7;
constexpr qreal innerRadius = cornerRadius - 0.5;

/// Where a line of one point runs just inside the edge of `tile`.
QRectF innerLine(const QRectF& tile)
{
    return tile.adjusted(0.5, 0.5, -0.5, -0.5);
}

/// A pixmap of one tile, empty but for what `paint` draws on it.
template <class Paint>
QPixmap makeTile(qreal pixelRatio, Paint paint)
{
    QPixmap tile(QSize(tileEdge, tileEdge) * pixelRatio);
    tile.setDevicePixelRatio(pixelRatio);
    tile.fill(Qt::transparent);
    QPainter painter(&tile);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    paint(painter, QRectF(0, 0, tileEdge, tileEdge));
    return tile;
}

QPixmap pictureTile(const QImage& picture, qreal pixelRatio)
{
    QImage scaled = CardFaces::filling(picture, QSize(tileEdge, tileEdge) * pixelRatio);
    scaled.setDevicePixelRatio(pixelRatio);
    return makeTile(pixelRatio, [&](QPainter& painter, const QRectF& tile) {
        // Filling with a brush cuts the corners smoothly; a clip would not.
        painter.setBrush(QBrush(scaled));
        painter.drawRoundedRect(tile, cornerRadius, cornerRadius);
    });
}

QPixmap backTile(qreal pixelRatio)
{
    return makeTile(pixelRatio, [&](QPainter& painter, const QRectF& tile) {
        painter.setBrush(Colours::cardBack(tile));
        painter.drawRoundedRect(tile, cornerRadius, cornerRadius);
        const QPixmap logo = logoPixmap(0.35 * tileEdge, pixelRatio);
        const QSizeF size = logo.deviceIndependentSize();
        painter.drawPixmap(tile.center() - QPointF(size.width() / 2, size.height() / 2), logo);
        painter.setPen(Colours::withOpacity(Qt::white, 0.25));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(innerLine(tile), innerRadius, innerRadius);
    });
}

/// To a screen reader the strip is one picture; it skips plain widgets.
QAccessibleInterface* makeAccessible(const QString&, QObject* object)
{
    auto* const preview = qobject_cast<DeckPreview*>(object);
    return preview == nullptr ? nullptr : new QAccessibleWidget(preview, QAccessible::Graphic);
}

} // namespace

DeckPreview::DeckPreview(QWidget* parent)
    : QWidget(parent)
{
    QAccessible::installFactory(makeAccessible);
    setFixedSize(DeckPreview::sizeHint());
}

QSize DeckPreview::sizeHint() const
{
    return {tileCount * (tileEdge + gap) - gap, tileEdge};
}

void DeckPreview::setDeck(const QString& name)
{
    if (name == m_deck && !m_tiles.empty())
        return;
    m_deck = name;
    load();
    update();
}

void DeckPreview::load()
{
    m_tilesRatio = devicePixelRatioF();
    m_tiles.clear();
    CardPictures pictures;
    if (m_deck != photoLibraryDeck() && !photoAlbumTitle(m_deck))
        pictures = firstBundlePictures(platform().bundle, m_deck, tileCount);

    QStringList names;
    for (const CardPicture& picture : pictures) {
        m_tiles.push_back(pictureTile(picture.image, m_tilesRatio));
        names << pictureName(picture.name);
    }
    m_tiles.resize(tileCount, backTile(m_tilesRatio));
    setAccessibleName(
        names.isEmpty() ? localizedText("preferences_no_preview")
                        : localizedText("preferences_preview", {names.join(QStringLiteral(", "))}));
}

void DeckPreview::paintEvent(QPaintEvent*)
{
    // The window may have come to another screen.
    if (m_tilesRatio != devicePixelRatioF())
        load();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Colours::isDark(palette()) ? Colours::withOpacity(Qt::white, 0.16)
                                              : Colours::withOpacity(Qt::black, 0.14));
    int x = 0;
    for (const QPixmap& tile : m_tiles) {
        painter.drawPixmap(x, 0, tile);
        painter.drawRoundedRect(innerLine(QRectF(x, 0, tileEdge, tileEdge)), innerRadius,
                                innerRadius);
        x += tileEdge + gap;
    }
}
