// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Writes the page of the results under $XDG_DATA_HOME as the game does, in the language
// of the environment, and says where it is.
#include "game/memory_game.h"
#include "platform/localized_text.h"
#include "stage/stage_platform.h"

#include <QCoreApplication>
#include <QLocale>
#include <cstdio>

int main(int argc, char* argv[])
{
    QCoreApplication application(argc, argv);
    const QByteArray home = qgetenv("XDG_DATA_HOME");
    StagePlatform platform;
    qputenv("XDG_DATA_HOME", home);
    QTranslator texts;
    if (!loadCatalogue(texts,
                       ApplicationBundle::ofRunningProgram().resourceFolder().value() +
                           QStringLiteral("/translations"),
                       QLocale::system().uiLanguages()))
        return 1;
    QCoreApplication::installTranslator(&texts);

    MemoryGame().openHighscoresHTML();
    std::fputs(qUtf8Printable(platform.openedFiles.paths.join(u' ')), stdout);
    return platform.openedFiles.paths.size() == 1 ? 0 : 1;
}
