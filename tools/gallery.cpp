// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Writes pictures of every screen that a player can meet, taken of the real
// window: gallery FOLDER LANGUAGE light|dark. See tools/gallery.
#include "platform/localized_text.h"
#include "platform/widgets/access_question.h"
#include "platform/widgets/palettes.h"
#include "settings/preferences/preferences.h"
#include "settings/settings_keys.h"
#include "support/game_window.h"
#include "ui/frame_clock.h"

#include <QAction>
#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>

namespace {

double now = 100;

/// Lets `seconds` of motion pass.
void wait(double seconds)
{
    now += seconds;
    QTest::qWait(60);
}

class Gallery {
public:
    Gallery(QString folder, QString language)
        : m_folder(std::move(folder))
        , m_language(std::move(language))
    {
    }

    void paintAll()
    {
        startForms();
        for (int layout = 1; layout <= 6; ++layout)
            board(layout);
        turnsAndEnds();
        alertsAndBoxes();
        preferences();
        photos();
    }

private:
    using Prepare = std::function<void(TestPlatform&)>;

    [[nodiscard]] std::unique_ptr<GameWindow> window(
        const QString& deck, int layout, const Prepare& prepare = [](TestPlatform&) {}) const
    {
        return std::make_unique<GameWindow>(
            [&](TestPlatform& platform) {
                platform.useBuiltResources();
                platform.defaults->setString(SettingsKeys::CardDeck, deck);
                platform.defaults->setInteger(SettingsKeys::AmountCards, layout);
                platform.defaults->setInteger(SettingsKeys::AmountRounds, 3);
                writeResults(platform, layout);
                prepare(platform);
            },
            m_language);
    }

    static void writeResults(const TestPlatform& platform, int layout)
    {
        QByteArrayList records;
        const QStringList names{QStringLiteral("Anna"), QStringLiteral("Mia"),
                                QStringLiteral("Jonas"), QStringLiteral("Maximilian-Alexander"),
                                QStringLiteral("Ben")};
        for (int i = 0; i < 10; ++i) {
            const bool isVersus = i % 2 == 1;
            records
                << fillFormat(
                       uR"({"id": "%1", "gameMode": "%2", "playerName": "%3", "secondPlayerName": "%4",
                                "elapsedSeconds": %5, "failedAttempts": %6, "firstPlayerScore": %7,
                                "secondPlayerScore": 3, "amountCards": %8, "amountRounds": 3})",
                       {QUuid::createUuid().toString(QUuid::WithoutBraces),
                        isVersus ? QStringLiteral("versus") : QStringLiteral("solo"), names[i / 2],
                        names[(i / 2 + 1) % 5], 58 + 9 * i, 4 + i, i, layout})
                       .toUtf8();
        }
        platform.writeHighscoreFile('[' + records.join(',') + ']');
    }

    void keep(GameWindow& window, const QString& name) const
    {
        QTest::qWait(30);
        window.window().grab().save(m_folder + u'/' + name + QStringLiteral(".png"));
    }

    void startForms() const
    {
        const QStringList decks{QStringLiteral("Cyberpunk"), QStringLiteral("Kids"),
                                QStringLiteral("70s"), QStringLiteral("80s"),
                                QStringLiteral("iPhoto")};
        for (const QString& deck : decks) {
            const auto shown = window(deck, deck == decks[2] ? 6 : 1);
            wait(2);
            keep(*shown, QStringLiteral("start-solo-") + deck);
            shown->type(QStringLiteral("Anna"));
            wait(1);
            keep(*shown, QStringLiteral("start-named-") + deck);
            shown->click(shown->child<QCheckBox>(QStringLiteral("versusCheckbox")));
            shown->click(shown->child<QLineEdit>(QStringLiteral("playerOneName")));
            shown->type(QStringLiteral("Anna"));
            wait(1);
            keep(*shown, QStringLiteral("start-versus-") + deck);
        }
    }

    void board(int layout) const
    {
        const QStringList decks{QStringLiteral("Kids"), QStringLiteral("Cyberpunk"),
                                QStringLiteral("70s"), QStringLiteral("80s")};
        const auto shown = window(decks[layout % 4], layout, [layout](TestPlatform& platform) {
            platform.defaults->setInteger(SettingsKeys::RemoveMatch, layout == 3 ? 1 : 0);
        });
        shown->startGame();
        for (int pair = 0; pair < 2 + layout / 2; ++pair)
            shown->clickPair();
        const std::size_t first = hiddenCard(shown->game());
        shown->clickCard(first);
        shown->clickCard(otherCard(shown->game(), first, false));
        shown->press(Qt::Key_Down);
        wait(1);
        keep(*shown, QStringLiteral("board-%1").arg(layout));
    }

    void turnsAndEnds() const
    {
        const auto shown = window(QStringLiteral("Cyberpunk"), 1, [](TestPlatform& platform) {
            platform.defaults->setInteger(SettingsKeys::AmountRounds, 1);
        });
        shown->startGame();
        const std::size_t first = hiddenCard(shown->game());
        shown->clickCard(first);
        for (int step = 1; step < 10; ++step) {
            wait(0.045);
            keep(*shown, QStringLiteral("turn-%1").arg(step));
        }
        shown->clickCard(otherCard(shown->game(), first, true));
        wait(1);
        for (int pair = 0; pair < 5; ++pair) {
            wait(1);
            shown->clickPair();
        }
        wait(0.2);
        keep(*shown, QStringLiteral("leaving-1"));
        wait(0.38);
        keep(*shown, QStringLiteral("leaving-2"));
        for (int step = 1; step < 5; ++step) {
            wait(0.22);
            keep(*shown, QStringLiteral("celebration-%1").arg(step));
        }
        wait(1);
        keep(*shown, QStringLiteral("result"));
    }

    void alertsAndBoxes() const
    {
        const auto shown = window(QStringLiteral("Unknown"), 1);
        const auto photograph = [this](const QString& name) {
            whenAlerted([this, name](QMessageBox& box) {
                box.grab().save(m_folder + u'/' + name + QStringLiteral(".png"));
            });
        };
        photograph(QStringLiteral("alert-too-few"));
        shown->startGame();
        for (const char* const item : {"menu_keyboard", "menu_about"}) {
            photograph(QString::fromLatin1(item));
            shown->child<QAction>(QString::fromLatin1(item)).trigger();
        }
    }

    void preferences() const
    {
        for (const QString& deck : {QStringLiteral("Kids"), QStringLiteral("iPhoto")}) {
            const auto shown = window(deck, 4);
            for (const QString& state : {QStringLiteral("open"), QStringLiteral("locked")}) {
                shown->child<QAction>(QStringLiteral("menu_preferences")).trigger();
                QTest::qWait(60);
                auto& pane = shown->child<Preferences>(QString());
                pane.grab().save(m_folder + QStringLiteral("/preferences-") + deck + u'-' + state +
                                 QStringLiteral(".png"));
                pane.close();
                QTest::qWait(30);
                if (deck == QLatin1String("iPhoto"))
                    break; // no game can start with it
                shown->startGame();
            }
        }
    }

    void photos() const
    {
        const auto shown = window(QStringLiteral("Kids"), 1);
        QTimer::singleShot(100, qApp, [this, &shown] {
            QWidget* const question = QApplication::activeModalWidget();
            question->grab().save(m_folder + QStringLiteral("/question.png"));
            keep(*shown, QStringLiteral("under-the-question"));
            question->close();
        });
        (void)AccessQuestion(shown->resources()).askForPhotoAccess();
    }

    QString m_folder;
    QString m_language;
};

} // namespace

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    if (argc != 4)
        qFatal("usage: gallery FOLDER LANGUAGE light|dark");
    setFrameTimeSource([] { return now; });
    QApplication::setPalette(qstrcmp(argv[3], "dark") == 0 ? Palettes::dark() : Palettes::light());
    Gallery(QString::fromLocal8Bit(argv[1]), QString::fromLocal8Bit(argv[2])).paintAll();
    return 0;
}
