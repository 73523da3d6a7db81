// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/widgets/logo.h"

#include "platform/application_bundle.h"
#include "platform/platform.h"

#include <QPainter>
#include <QPixmapCache>

namespace {

/// The pixmap of the cache, or else the one that `make` makes.
template <class Make>
QPixmap kept(const QString& key, Make make)
{
    QPixmap pixmap;
    if (!QPixmapCache::find(key, &pixmap)) {
        pixmap = make();
        QPixmapCache::insert(key, pixmap);
    }
    return pixmap;
}

/// The logo as it is in its file, of which there is one of 180 and one of 360 pixels.
QPixmap sourceFor(int pixels)
{
    const QString name = pixels <= 180 ? QStringLiteral("Paircade") : QStringLiteral("Paircade@2x");
    return kept(name, [&name] {
        const auto file = platform().bundle.resource(name, QStringLiteral("png"));
        return QPixmap(file.value_or(QString()));
    });
}

} // namespace

QPixmap logoPixmap(qreal edge, qreal devicePixelRatio)
{
    const int pixels = qRound(edge * devicePixelRatio);
    QPixmap pixmap = kept(QStringLiteral("logo ") + QString::number(pixels), [pixels] {
        const QPixmap source = sourceFor(pixels);
        return source.isNull()
                   ? source
                   : source.scaled(pixels, pixels, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    });
    pixmap.setDevicePixelRatio(devicePixelRatio);
    return pixmap;
}

LogoView::LogoView(QWidget* parent)
    : QWidget(parent)
{
    setObjectName(QStringLiteral("logo"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

void LogoView::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.drawPixmap(0, 0, logoPixmap(width(), devicePixelRatioF()));
}
