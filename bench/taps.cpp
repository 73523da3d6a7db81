// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
// From the release of the button over a card, which taps it, to the first pixel on
// the screen that differs. Sounds are on.
#include "report.h"
#include "settings/settings_keys.h"
#include "stage/game_window.h"

#include <QScreen>

namespace {

constexpr int games = 6;
constexpr int tapsPerGame = 6;
constexpr double patience = 1000;

/// The card as the screen shows it.
QImage seen(QWidget& card)
{
    const QPoint corner = card.mapTo(card.window(), QPoint());
    return card.screen()
        ->grabWindow(card.window()->winId(), corner.x(), corner.y(), card.width(), card.height())
        .toImage();
}

double tap(QWidget& card)
{
    QWindow* const window = card.window()->windowHandle();
    const QPoint middle = card.mapTo(card.window(), card.rect().center());
    QTest::mouseMove(window, middle);
    QTest::mousePress(window, Qt::LeftButton, {}, middle);
    QTest::qWait(400); // pointer's and press's marks come to rest
    const QImage before = seen(card);
    const double begin = milliseconds(CLOCK_MONOTONIC);
    QTest::mouseRelease(window, Qt::LeftButton, {}, middle);
    while (seen(card) == before) {
        if (milliseconds(CLOCK_MONOTONIC) - begin > patience)
            qFatal("a tap changes nothing");
        QCoreApplication::processEvents();
    }
    return milliseconds(CLOCK_MONOTONIC) - begin;
}

} // namespace

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    Samples first;
    Samples later;
    for (int i = 0; i < games; ++i) {
        GameWindow shown([](StagePlatform& platform) {
            platform.useBuiltResources();
            platform.defaults->setInteger(SettingsKeys::AmountCards, 6);
            platform.defaults->setInteger(SettingsKeys::PlaySounds, 1);
        });
        shown.startGame();
        QTest::qWait(300);
        for (int j = 0; j < tapsPerGame; ++j) {
            // Pairs, so that no miss has to be waited for.
            const std::size_t position =
                shown.game().firstSelectedIndex()
                    ? otherCard(shown.game(), *shown.game().firstSelectedIndex(), true)
                    : hiddenCard(shown.game());
            (j == 0 ? first : later).push_back(tap(shown.card(position)));
            QTest::qWait(500);
        }
    }
    printRow("first tap of a game to its first changed frame, median", median(first), "ms", 16);
    printRow("later taps, median", median(later), "ms", 16);
    printRow("slowest tap", std::max(percentile(first, 1), percentile(later, 1)), "ms", 16);
    return 0;
}
