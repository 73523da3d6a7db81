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

using namespace Qt::StringLiterals;

namespace {

QByteArray resultsOf(std::size_t count, const QString& name)
{
    const HighscoreEntry entry{
        .gameMode = soloMode, .playerName = name, .amountCards = 1, .amountRounds = 1};
    return encodeHighscores(HighscoreEntries(count, entry));
}

/// A world, how many results are in the file once a game was won in it, and whether the
/// settings are still those from before.
struct World {
    const char* name;
    std::function<void(StagePlatform&)> prepare;
    int results;
    enum class Settings { change, stay } settings = Settings::change;
};
using Settings = World::Settings;
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

const std::vector<World>& worlds()
{
    const auto results = [](StagePlatform& platform) { return platform.highscoreFile(); };
    const auto folder = [](StagePlatform& platform) {
        return QFileInfo(platform.highscoreFile()).path();
    };
    static const std::vector<World> worlds{
        {"garbage as settings",
         [](auto& p) { settings(p, "[[]\n=\n%zz%0\n\xff\xfe[General\nAmountCards\n"); }, 1},
        {"binary settings of 5 MB",
         [](auto& p) { settings(p, QByteArray("\x7f\0=\n\\x\xff@", 7).repeated(700'000)); }, 1},
        {"each setting of a wrong type",
         [](auto& p) {
             settings(p, "[General]\nAmountCards=@Variant(x)\nAmountRounds=one, two\n"
                         "CardDeck=\" Cyberpunk\\n\"\nGameIsActive=maybe\nRemoveMatch=@Size(1 1)\n"
                         "LaunchInFullscreen=true\nPlaySounds=yes\nVolumeSound=nan\n"
                         "PaircadeAlbum=@ByteArray(1)\n");
         },
         1},
        {"each setting far below its range",
         [](auto& p) { setAll(p, "-99999999999999999999", "-99999999999999999999"); }, 1},
        {"each setting far above its range, but the rounds, which have no end",
         [](auto& p) { setAll(p, "99999999999999999999", "1"); }, 1},
        {"a folder of settings that cannot be written",
         [](auto&) { forbid(QFileInfo(settingsFile()).path(), 0555); }, 1, Settings::stay},
        {"a folder of results that cannot be written",
         [=](auto& p) {
             p.writeHighscoreFile(resultsOf(3, u"Ben"_s));
             forbid(folder(p), 0555);
         },
         untouched},
        {"a folder of results that cannot be entered",
         [=](auto& p) {
             p.writeHighscoreFile("[]");
             forbid(folder(p));
         },
         untouched},
        {"results that cannot be read",
         [=](auto& p) {
             p.writeHighscoreFile("[]");
             forbid(results(p));
         },
         untouched},
        {"a pipe as results", [=](auto& p) { makePipe(results(p)); }, untouched},
        {"a device as results", [=](auto& p) { QFile::link(u"/dev/zero"_s, results(p)); },
         untouched},
        {"results of 4 TB",
         [=](auto& p) {
             p.writeHighscoreFile("[");
             QFile::resize(results(p), qint64{1} << 42);
         },
         untouched},
        {"results nested 2,000,000 deep",
         [](auto& p) { p.writeHighscoreFile(QByteArray(2'000'000, '[')); }, 1},
        {"20,000 results", [=](auto& p) { p.writeHighscoreFile(resultsOf(20'000, u"Ben"_s)); },
         20'001},
        {"three names of 5 MB",
         [=](auto& p) { p.writeHighscoreFile(resultsOf(3, u"日本\n😀"_s.repeated(400'000))); }, 4},
    };
    return worlds;
}

} // namespace

class BadInputTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aWholeGame_data()
    {
        QTest::addColumn<int>("world");
        for (const World& world : worlds())
            QTest::newRow(world.name) << int(&world - worlds().data());
    }

    void aWholeGame()
    {
        QFETCH(const int, world);
        const World& where = worlds().at(std::size_t(world));
        std::unique_ptr<AsNobody> nobody;
        const auto identities = [](const StagePlatform& platform) {
            return std::pair(identity(platform.highscoreFile()), identity(settingsFile()));
        };
        std::invoke_result_t<decltype(identities), StagePlatform&> before;
        QElapsedTimer time;
        GameWindow window([&](StagePlatform& platform) {
            QDir().mkpath(QFileInfo(platform.highscoreFile()).path());
            where.prepare(platform);
            before = identities(platform);
            nobody = std::make_unique<AsNobody>(platform.home.path());
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
        const auto after = identities(window.platform);
        QCOMPARE(after.second == before.second, where.settings == Settings::stay);
        if (where.results == untouched) {
            QVERIFY(after.first == before.first);
        } else {
            const auto entries = readHighscores(window.platform.highscoreFile()).entries;
            QVERIFY(entries);
            QCOMPARE(int(entries->size()), where.results);
        }
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
            const FullDisk disk(500);
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
