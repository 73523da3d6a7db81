// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The game in a broken world: it starts, is played and ends, and spoils no file.
#include "decks/bundle_deck.h"
#include "highscores/highscore_file.h"
#include "platform/user_folders.h"
#include "settings/settings_keys.h"
#include "stage/files.h"
#include "stage/game_window.h"
#include "support/broken_world.h"
#include "support/output_of.h"
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

void setAll(StagePlatform& platform, const QByteArray& number, const QByteArray& rounds)
{
    settings(platform, QByteArray("[General]\nAmountCards=#\nGameIsActive=#\nRemoveMatch=#\n"
                                  "LaunchInFullscreen=#\nPlaySounds=#\nVolumeSound=#\n"
                                  "PaircadeAlbum=#\nAmountRounds=")
                               .replace('#', number) +
                           rounds + '\n');
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
        const auto folder = [](StagePlatform& platform) {
            return QFileInfo(platform.highscoreFile()).path();
        };
        row("garbage as settings", 1, false,
            [](auto& p) { settings(p, "[[]\n=\n%zz%0\n\xff\xfe[General\nAmountCards\n"); });
        row("binary settings of 5 MB", 1, false,
            [](auto& p) { settings(p, QByteArray("\x7f\0=\n\\x\xff@", 7).repeated(700'000)); });
        row("each setting of a wrong type", 1, false, [](auto& p) {
            settings(p, "[General]\nAmountCards=@Variant(x)\nAmountRounds=one, two\n"
                        "CardDeck=\" Cyberpunk\\n\"\nGameIsActive=maybe\nRemoveMatch=@Size(1 1)\n"
                        "LaunchInFullscreen=true\nPlaySounds=yes\nVolumeSound=nan\n"
                        "PaircadeAlbum=@ByteArray(1)\n");
        });
        row("each setting far below its range", 1, false,
            [](auto& p) { setAll(p, "-99999999999999999999", "-99999999999999999999"); });
        row("each setting far above its range, but the rounds, which have no end", 1, false,
            [](auto& p) { setAll(p, "99999999999999999999", "1"); });
        row("a folder of settings that cannot be written", 1, true,
            [](auto&) { forbid(QFileInfo(settingsFile()).path(), 0555); });
        row("a folder of results that cannot be written", untouched, false, [=](auto& p) {
            p.writeHighscoreFile(resultsOf(3, u"Ben"_s));
            forbid(folder(p), 0555);
        });
        row("a folder of results that cannot be entered", untouched, false,
            [=](auto& p) { forbid(folder(p)); });
        row("results that cannot be read", untouched, false, [=](auto& p) {
            p.writeHighscoreFile("[]");
            forbid(results(p));
        });
        row("a pipe as results", untouched, false, [=](auto& p) { makePipe(results(p)); });
        row("a device as results", untouched, false,
            [=](auto& p) { QFile::link(u"/dev/zero"_s, results(p)); });
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
    }

    void aFullDiskCostsNoSettingAndNoResult()
    {
        GameWindow window([](StagePlatform& platform) {
            settings(platform, "[General]\nAmountRounds=2\nMore=" + QByteArray(1000, 'x') + '\n');
            platform.writeHighscoreFile(resultsOf(3, u"Ben"_s));
        });
        const QByteArray settingsBefore = contentsOf(settingsFile());
        const QByteArray resultsBefore = window.platform.readHighscoreFile();
        UserDefaults& defaults = *window.platform.defaults;
        {
            // The lock of the settings still fits, the settings do not.
            const Limit disk(RLIMIT_FSIZE, 500);
            window.startGame();
            QCOMPARE(defaults.integer(SettingsKeys::GameIsActive), 1);
            while (window.game().isGameActive())
                window.clickPair();
            defaults.setInteger(SettingsKeys::VolumeSound, 7);
        }
        QVERIFY(window.game().gameCompleted());
        QCOMPARE(window.game().currentRound(), 2);
        QCOMPARE(contentsOf(settingsFile()), settingsBefore);
        QCOMPARE(window.platform.readHighscoreFile(), resultsBefore);

        // What was set meanwhile holds, and is stored with the next write.
        defaults.reread();
        QCOMPARE(defaults.integer(SettingsKeys::VolumeSound), 7);
        defaults.setInteger(SettingsKeys::PlaySounds, 2);
        const QByteArray stored = contentsOf(settingsFile());
        QVERIFY(stored.contains("\nVolumeSound=7\n") && stored.contains("\nPlaySounds=2\n"));
    }

    void aDeckGivesWhatCanBeDecoded()
    {
        const QTemporaryDir home;
        const QString deck = home.filePath(u"Cards/Kids/"_s);
        makeDeck(home.path(), u"Kids"_s, 1);
        QImage(3000, 30, QImage::Format_RGB32).save(deck + u"wide.png"_s);
        QImage(20'000, 20'000, QImage::Format_Mono).save(deck + u"enormous.png"_s);
        QVERIFY(QFileInfo(deck + u"enormous.png"_s).size() < 100'000);
        makePipe(deck + u"pipe.png"_s);
        QFile::link(u"/dev/zero"_s, deck + u"device.jpg"_s);
        QFile::copy(deck + u"picture00.png"_s, deck + u"secret.png"_s);
        forbid(deck + u"secret.png"_s);

        const ApplicationBundle bundle(home.path());
        const AsNobody nobody(home.path());
        const CardPictures pictures = loadBundleDeck(bundle, u"Kids"_s);
        QCOMPARE(pictures.size(), std::size_t{2});
        QCOMPARE(pictures[0].name, u"picture00"_s);
        QCOMPARE(pictures[1].image.size(), QSize(2048, 20));

        forbid(deck);
        QCOMPARE(outputOf([&] { QVERIFY(loadBundleDeck(bundle, u"Kids"_s).empty()); }),
                 "Ordnerinhalt konnte nicht gelesen werden: " + deck.chopped(1).toUtf8() + '\n');
        forbid(deck, 0700);
    }
};

QTEST_MAIN(BadInputTest)
#include "bad_input_test.moc"
