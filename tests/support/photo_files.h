// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDir>
#include <QFileInfo>
#include <QImage>
#include <filesystem>
#include <fstream>
#include <string_view>

/// Writes a file whose name need not be text, in a folder that it makes.
inline void writeFile(const QByteArray& path, std::string_view contents = {})
{
    const std::filesystem::path file(path.toStdString());
    std::filesystem::create_directories(file.parent_path());
    std::ofstream(file) << contents;
}

/// A picture of one colour, which differs with `number`.
inline void writePicture(const QString& path, int number)
{
    QDir().mkpath(QFileInfo(path).path());
    QImage picture(40, 30, QImage::Format_RGB32);
    picture.fill(QColor::fromHsv(number * 11 % 360, 200, 200));
    if (!picture.save(path))
        qFatal("the test cannot write its picture");
}
