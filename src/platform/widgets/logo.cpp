// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/widgets/logo.h"

#include "platform/application_bundle.h"
#include "platform/platform.h"

#include <QPainter>
#include <QPixmapCache>

QPixmap logoPixmap(qreal edge, qreal devicePixelRatio)
{
    const int pixels = qRound(edge * devicePixelRatio);
    const QString key = QStringLiteral("logo ") + QString::number(pixels);
    QPixmap pixmap;
    if (!QPixmapCache::find(key, &pixmap)) {
        const auto file = platform().bundle.resource(QStringLiteral("logo"), QStringLiteral("png"));
        QPixmap logo(file.value_or(QString()));
        if (!logo.isNull())
            pixmap = logo.scaled(pixels, pixels, Qt::KeepAspectRatio, Qt::SmoothTransformation);
        QPixmapCache::insert(key, pixmap);
    }
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
