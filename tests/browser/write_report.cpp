// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
// write_report RESULTS PAGE: writes the page of the results as the game does, in the
// language of the environment.
#include "game/memory_game.h"
#include "stage/files.h"
#include "stage/stage_platform.h"

#include <QCoreApplication>
#include <QLocale>

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const StagePlatform platform(nullptr, QLocale::system().uiLanguages().value(0));
    platform.writeHighscoreFile(contentsOf(arguments.at(1)));
    MemoryGame().openHighscoresHTML();
    return QFile::copy(platform.openedFiles.paths.join(u' '), arguments.at(2)) ? 0 : 1;
}
