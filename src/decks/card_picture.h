// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>
#include <QString>
#include <vector>

/// A picture on a card. Copies share the pixels.
struct CardPicture {
    QImage image{};
    QString name{}; ///< Base name of its file in a deck; empty for a photo.
};

/// What an image source returns. An empty or short list stands for any failure.
using CardPictures = std::vector<CardPicture>;
