// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
// FUZZ_TARGET FOLDER: tries every file in FOLDER, where there is no fuzzer to do it.
#include "fuzz.h"

#include <QDirIterator>
#include <QFile>

int main(int argc, char* argv[])
{
    int tried = 0;
    QDirIterator files(QString::fromLocal8Bit(argc == 2 ? argv[1] : ""), QDir::Files);
    while (files.hasNext()) {
        QFile file(files.next());
        require(file.open(QIODevice::ReadOnly), "a stored input can be read");
        // Without the fuzzer nothing else tells which one it was.
        (void)std::fprintf(stderr, "%s\n", qPrintable(file.fileName()));
        tryInput(file.readAll());
        ++tried;
    }
    return tried > 0 ? 0 : 1;
}
