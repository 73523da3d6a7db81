// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Plays the game in its own window until one pair is left, where PROBE_PLAYS is
// set; otherwise lets the start form come to rest.
#include "game/memory_game.h"
#include "probe.h"
#include "ui/content_view.h"

#include <QAbstractButton>
#include <QApplication>
#include <QKeyEvent>
#include <QTimer>

namespace {

constexpr int turnMilliseconds = 250;

void press(int key, const QString& text)
{
    QWidget* const focused = QApplication::focusWidget();
    if (focused == nullptr)
        qFatal("nothing has the focus");
    QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier, text);
    QCoreApplication::sendEvent(focused, &event);
}

ContentView& contentView()
{
    for (const QWidget* const window : QApplication::topLevelWidgets()) {
        if (auto* const view = window->findChild<ContentView*>())
            return *view;
    }
    qFatal("the window is missing");
}

/// Finds the next pair, and all but the last of those after it.
void findPairs()
{
    ContentView& view = contentView();
    const MemoryCards& cards = view.game().cards();
    if (std::ranges::count_if(cards, &MemoryCard::isMatched) + 2 >= std::ssize(cards))
        return;
    const auto first = std::ranges::find_if_not(cards, &MemoryCard::isMatched);
    const QUuid pair = first->pairID;
    for (std::size_t i = 0; i < cards.size(); ++i) {
        if (cards[i].pairID == pair)
            view.findChild<QAbstractButton*>(QStringLiteral("card%1").arg(i))->click();
    }
    QTimer::singleShot(turnMilliseconds, findPairs);
}

} // namespace

double prepareRest()
{
    if (!qEnvironmentVariableIsSet("PROBE_PLAYS"))
        return 2;
    press(Qt::Key_A, QStringLiteral("A"));
    press(Qt::Key_Return, QString());
    if (!contentView().game().isGameActive())
        qFatal("the game does not start");
    QTimer::singleShot(turnMilliseconds, findPairs);
    return 2 + contentView().game().pairsPerRound() * turnMilliseconds * 1e-3;
}
