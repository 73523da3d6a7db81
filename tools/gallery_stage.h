// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "gallery_camera.h"
#include "gallery_play.h"
#include "platform/localized_text.h"
#include "settings/settings_keys.h"
#include "stage/game_window.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>

/// The real window, played in as far as a picture needs, before a camera.
class GalleryStage {
public:
    GalleryStage(const QString& folder, QString language)
        : m_camera(folder)
        , m_language(std::move(language))
    {
    }

protected:
    static inline const QStringList shortNames{QStringLiteral("Anna"), QStringLiteral("Mia"),
                                               QStringLiteral("Jonas"), QStringLiteral("Lena"),
                                               QStringLiteral("Ben")};

    using Prepare = std::function<void(StagePlatform&)>;
    using Window = std::unique_ptr<GameWindow>;

    Window window(
        const QString& deck, int layout, const QStringList& players = shortNames,
        const Prepare& prepare = [](StagePlatform&) {})
    {
        auto shown = std::make_unique<GameWindow>(
            [&](StagePlatform& platform) {
                platform.useBuiltResources();
                platform.defaults->setString(SettingsKeys::CardDeck, deck);
                platform.defaults->setInteger(SettingsKeys::AmountCards, layout);
                platform.defaults->setInteger(SettingsKeys::AmountRounds, 3);
                prepare(platform);
                const auto rounds = platform.defaults->integer(SettingsKeys::AmountRounds);
                platform.writeHighscoreFile(results(players, layout, rounds));
            },
            m_language);
        QTest::qWait(60); // the fan reads its pictures
        m_camera.wait(2);
        return shown;
    }

    static QByteArray results(const QStringList& players, int layout, qint64 rounds)
    {
        const QString record = QStringLiteral(
            R"({"id": "%1", "gameMode": "%2", "playerName": "%3", "secondPlayerName": "%4",
                "elapsedSeconds": %5, "failedAttempts": %6, "firstPlayerScore": %7,
                "secondPlayerScore": 3, "amountCards": %8, "amountRounds": %9})");
        QByteArrayList records;
        for (int i = 0; i < 2 * players.size(); ++i) {
            const int player = i / 2;
            const QString mode = i % 2 == 1 ? QStringLiteral("versus") : QStringLiteral("solo");
            records << fillFormat(record, {QUuid::createUuid().toString(QUuid::WithoutBraces), mode,
                                           players[player], players[(player + 1) % players.size()],
                                           58 + 9 * i, 4 + i, i, layout, rounds})
                           .toUtf8();
        }
        return '[' + records.join(',') + ']';
    }

    void keep(GameWindow& shown, const QString& name) { m_camera.keep(shown.window(), name); }

    static void startSolo(GameWindow& shown)
    {
        shown.type(shortNames.front());
        shown.press(Qt::Key_Return);
        QCoreApplication::processEvents();
    }
    void nameTwo(GameWindow& shown, const QStringList& names)
    {
        shown.click(shown.child<QCheckBox>(QStringLiteral("versusCheckbox")));
        shown.click(shown.child<QLineEdit>(QStringLiteral("playerOneName")));
        shown.type(names.front());
        shown.click(shown.child<QLineEdit>(QStringLiteral("playerTwoName")));
        shown.type(names.back());
        m_camera.wait(1);
    }
    static void startVersus(GameWindow& shown)
    {
        shown.click(shown.child<QPushButton>(QStringLiteral("startVersusButton")));
    }

    /// Finds `pairs`, spread over the board.
    void findPairs(GameWindow& shown, int pairs)
    {
        for (int pair = 0; pair < pairs; ++pair) {
            shown.press(Qt::Key_Escape); // a board that fades out would take the click
            const std::size_t first = hiddenFrom(shown.game(), std::size_t(pair) * 7 + 1);
            shown.clickCard(first);
            m_camera.wait(1);
            shown.clickCard(otherCard(shown.game(), first, true));
        }
    }
    static void missPair(GameWindow& shown)
    {
        const std::size_t first = hiddenFrom(shown.game(), shown.game().cards().size() / 2);
        shown.clickCard(first);
        shown.clickCard(otherCard(shown.game(), first, false));
    }

    void missAndThink(GameWindow& shown, int seconds)
    {
        missPair(shown);
        m_camera.wait(1);
        const ClockHand hand(seconds);
        if (!QTest::qWaitFor([&shown] { return !shown.game().isCheckingPair(); }, 3000))
            qFatal("the cards do not turn back");
        m_camera.wait(1);
    }

    Camera m_camera;

private:
    QString m_language;
};
