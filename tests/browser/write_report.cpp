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
    const StagePlatform platform(nullptr, QLocale::system().uiLanguages().value(0));
    platform.writeHighscoreFile(contentsOf(QCoreApplication::arguments().value(1)));
    MemoryGame().openHighscoresHTML();
    return QFile::copy(platform.openedFiles.paths.join(u' '),
                       QCoreApplication::arguments().value(2))
               ? 0
               : 1;
}
