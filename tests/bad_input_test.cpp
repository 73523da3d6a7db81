// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The game in a broken world: it starts, is played and ends, and spoils no file.
#include "highscores/highscore_file.h"
#include "platform/user_folders.h"
#include "stage/files.h"
#include "stage/game_window.h"
#include "support/broken_world.h"
#include "support/rows.h"

using namespace Qt::StringLiterals;

namespace {

QByteArray resultsOf(std::size_t count, const QString& name)
{
    const HighscoreEntry entry{
        .gameMode = soloMode, .playerName = name, .amountCards = 1, .amountRounds = 1};
    return encodeHighscores(HighscoreEntries(count, entry));
}

using Preparation = std::function<void(StagePlatform&)>;
constexpr int untouched = -1; ///< what lies there stays as it is

void settings(StagePlatform& platform, const QByteArray& contents)
{
    writeFile(settingsFile(), contents);
    platform.defaults->reread();
}

} // namespace

class BadInputTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aWholeGame_data()
    {
        // How many results are in the file once a game was won, and whether the settings are
        // still those from before.
        const Rows<int, bool, Preparation> row{"results", "settingsStay", "prepare"};
        const auto results = [](StagePlatform& platform) { return platform.highscoreFile(); };
        const auto forbidden = [](mode_t fileMode, mode_t folderMode) {
            return [=](auto& p) {
                p.writeHighscoreFile(resultsOf(3, u"Ben"_s));
                forbid(p.highscoreFile(), fileMode);
                forbid(QFileInfo(p.highscoreFile()).path(), folderMode);
            };
        };
        row("garbage as settings", 1, false,
            [](auto& p) { settings(p, "[[]\n=\n%zz%0\n\xff\xfe[General\nAmountCards\n"); });
        row("a folder of settings that cannot be written", 1, true,
            [](auto&) { forbid(QFileInfo(settingsFile()).path(), 0555); });
        row("a folder of results that cannot be written", untouched, false, forbidden(0644, 0555));
        row("a folder of results that cannot be entered", untouched, false, forbidden(0644, 0));
        row("results that cannot be read", 1, false, forbidden(0, 0755));
        row("write-protected results", 4, false, forbidden(0444, 0755));
        row("a pipe as results", untouched, false, [=](auto& p) { makePipe(results(p)); });
        row("results of 4 TB", untouched, false, [=](auto& p) {
            p.writeHighscoreFile("[");
            QFile::resize(results(p), qint64{1} << 42);
        });
        row("results nested 2,000,000 deep", 1, false,
            [](auto& p) { p.writeHighscoreFile(QByteArray(2'000'000, '[')); });
        row("20,000 results", 20'001, false,
            [](auto& p) { p.writeHighscoreFile(resultsOf(20'000, u"Ben"_s)); });
        row("three names of 5 MB", 4, false,
            [](auto& p) { p.writeHighscoreFile(resultsOf(3, u"日本\n😀"_s.repeated(400'000))); });
    }

    void aWholeGame()
    {
        QFETCH(const int, results);
        QFETCH(const bool, settingsStay);
        QFETCH(const Preparation, prepare);
        std::optional<AsNobody> nobody;
        decltype(identity({})) resultsBefore;
        decltype(identity({})) settingsBefore;
        QElapsedTimer time;
        GameWindow window([&](StagePlatform& platform) {
            QDir().mkpath(QFileInfo(platform.highscoreFile()).path());
            prepare(platform);
            resultsBefore = identity(platform.highscoreFile());
            settingsBefore = identity(settingsFile());
            nobody.emplace(platform.home.path());
            time.start();
        });
        window.startGame();
        QVERIFY(window.game().isGameActive());
        while (window.game().isGameActive())
            window.clickPair();
        QVERIFY(window.game().gameCompleted());
        QCOMPARE(window.text(u"headerText"_s), window.game().winnerText());
        QVERIFY(!window.window().grab().isNull());
        // To lay out megabytes would take seconds at every turn.
        QVERIFY(window.text(u"bestTimes1"_s).size() < 3000);
        QVERIFY2(time.elapsed() < 60'000, qPrintable(QString::number(time.elapsed())));

        nobody.reset();
        QCOMPARE(identity(settingsFile()) == settingsBefore, settingsStay);
        if (results == untouched)
            QVERIFY(identity(window.platform.highscoreFile()) == resultsBefore);
        else
            QCOMPARE(int(readHighscores(window.platform.highscoreFile()).entries.value().size()),
                     results);
        // What is written can be read.
        QVERIFY(results == untouched || !window.text(u"bestTimes1"_s).isEmpty());
    }
};

QTEST_MAIN(BadInputTest)
#include "bad_input_test.moc"
