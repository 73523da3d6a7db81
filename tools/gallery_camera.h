// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "decks/bundle_deck.h"
#include "platform/application_bundle.h"
#include "ui/frame_clock.h"
#include "ui/turning_card.h"

#include <QApplication>
#include <QPainter>
#include <QPixmap>
#include <QTest>
#include <QWidget>

/// Writes pictures into a folder, of widgets at moments that it decides on: the
/// time by which everything moves stands still but for wait().
class Camera {
public:
    explicit Camera(QString folder)
        : m_folder(std::move(folder))
    {
        setFrameTimeSource([this] { return m_now; });
    }
    ~Camera() { setFrameTimeSource({}); }
    Camera(const Camera&) = delete;
    Camera& operator=(const Camera&) = delete;

    /// Lets `seconds` of motion pass.
    void wait(double seconds)
    {
        m_now += seconds;
        QTest::qWait(40); // a frame or two
    }

    void keep(QWidget& widget, const QString& name) const
    {
        QTest::qWait(20); // a refresh
        save(widget.grab(), name);
    }

    /// `frames` pictures of `area` of `widget`, `step` seconds apart, on one sheet.
    void film(QWidget& widget, const QRect& area, int frames, double step, const QString& name)
    {
        constexpr int columns = 5;
        constexpr int gap = 8;
        const auto place = [&area](int i) {
            return QPoint(i % columns * (area.width() + gap), i / columns * (area.height() + gap));
        };
        QPixmap sheet =
            ground({place(columns - 1).x() + area.width(), place(frames - 1).y() + area.height()});
        QPainter painter(&sheet);
        for (int i = 0; i < frames; ++i) {
            if (i > 0)
                wait(step);
            painter.drawPixmap(place(i), widget.grab(area));
        }
        painter.end();
        save(sheet, name);
    }

    /// Every picture of `deck` on a card of `edge`, turned by `turn` degrees; every
    /// other one is found.
    void keepDeck(const QString& deck, double edge, double turn, const QString& name) const
    {
        constexpr int columns = 6;
        constexpr double gap = 20;
        const CardPictures pictures = loadBundleDeck(ApplicationBundle::ofRunningProgram(), deck);
        const int count = static_cast<int>(pictures.size());
        const int rows = (count + columns - 1) / columns;
        QPixmap sheet = ground((QSizeF(columns, rows) * (edge + gap) + QSizeF(gap, gap)).toSize());
        QPainter painter(&sheet);
        painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
        for (int i = 0; i < count; ++i) {
            TurningCard card({.image = pictures[static_cast<std::size_t>(i)]});
            card.standAs({.turn = turn, .back = 0, .front = 1, .found = i % 2 == 0 ? 0.0 : 1.0});
            const QPoint place(i % columns, i / columns);
            card.paint(painter,
                       {QPointF(gap, gap) + QPointF(place) * (edge + gap), QSizeF(edge, edge)});
        }
        painter.end();
        save(sheet, name);
    }

    void save(const QPixmap& picture, const QString& name) const
    {
        if (!picture.save(m_folder + u'/' + name + QStringLiteral(".png")))
            qFatal("%s cannot be written", qPrintable(name));
    }

private:
    /// A sheet of bare window.
    static QPixmap ground(QSize size)
    {
        QPixmap sheet(size * qApp->devicePixelRatio());
        sheet.setDevicePixelRatio(qApp->devicePixelRatio());
        sheet.fill(QApplication::palette().color(QPalette::Window));
        return sheet;
    }

    QString m_folder;
    double m_now = 100;
};
