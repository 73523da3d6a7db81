// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
// What any window costs: one with a menu and a label, of the size of the game's
// window for the layout of that number.
#include "game/rules/card_layout.h"
#include "probe.h"

#include <QApplication>
#include <QLabel>
#include <QMainWindow>
#include <QMenuBar>
#include <cstdlib>

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    const CardLayout& layout = windowLayout(argc > 1 ? std::atoi(argv[1]) : 1);
    QMainWindow window;
    window.menuBar()->addMenu(QStringLiteral("Game"))->addAction(QStringLiteral("Quit"));
    window.setCentralWidget(new QLabel(QStringLiteral("Paircade")));
    window.setFixedSize(layout.windowWidth,
                        layout.windowHeight + window.menuBar()->sizeHint().height());
    window.show();
    return QApplication::exec();
}

double prepareRest()
{
    return 2;
}
