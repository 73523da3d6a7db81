// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The game in a broken world: it starts, is played and ends, and spoils no file.
#include "decks/bundle_deck.h"
#include "highscores/highscore_file.h"
#include "platform/user_folders.h"
#include "settings/settings_keys.h"
#include "support/game_window.h"
#include "support/output_of.h"
#include "support/program.h"

#include <QProcess>
#include <csignal>
#include <filesystem>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

void writeFile(const QString& path, const QByteArray& contents)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(contents) != contents.size())
        qFatal("the test cannot write its file");
}

QByteArray contentsOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void makePipe(const QString& path)
{
    if (::mkfifo(QFile::encodeName(path), 0666) != 0)
        qFatal("the test cannot make its pipe");
}

void forbid(const QString& path, mode_t mode = 0)
{
    if (::chmod(QFile::encodeName(path), mode) != 0)
        qFatal("the test cannot change a mode");
}

/// What tells a file from another in its place.
std::pair<ino_t, off_t> identity(const QString& path)
{
    struct stat status {};
    return ::lstat(QFile::encodeName(path), &status) == 0 ? std::pair(status.st_ino, status.st_size)
                                                          : std::pair(ino_t{0}, off_t{0});
}

/// Root passes every check of permissions; while this lives, root is nobody. Any other
/// user stays who it is.
class AsNobody {
public:
    /// Hands `home` over to nobody.
    explicit AsNobody(const QString& home)
    {
        if (!m_isRoot)
            return;
        constexpr uid_t nobody = 65534;
        const std::filesystem::path path(QFile::encodeName(home).toStdString());
        (void)::lchown(path.c_str(), nobody, nobody);
        for (const auto& entry : std::filesystem::recursive_directory_iterator(path))
            (void)::lchown(entry.path().c_str(), nobody, nobody);
        if (::setresuid(nobody, nobody, 0) != 0)
            qFatal("root cannot become nobody");
    }
    ~AsNobody()
    {
        if (m_isRoot && ::setresuid(0, 0, 0) != 0)
            qFatal("nobody cannot become root again");
    }
    Q_DISABLE_COPY_MOVE(AsNobody)

private:
    const bool m_isRoot = ::geteuid() == 0;
};

/// While this lives, no file grows beyond `bytes`, as on a full disk.
class FullDisk {
public:
    explicit FullDisk(rlim_t bytes)
    {
        std::signal(SIGXFSZ, SIG_IGN);
        ::getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit full{bytes, m_before.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &full);
    }
    ~FullDisk() { ::setrlimit(RLIMIT_FSIZE, &m_before); }
    Q_DISABLE_COPY_MOVE(FullDisk)

private:
    rlimit m_before{};
};

QByteArray resultsOf(std::size_t count, const QString& name)
{
    HighscoreEntry entry;
    entry.gameMode = u"solo"_s;
    entry.playerName = name;
    entry.amountCards = 1;
    entry.amountRounds = 1;
    return encodeHighscores(HighscoreEntries(count, entry));
}

/// A world, and how many results are in the file once a game was won in it.
struct World {
    const char* name;
    std::function<void(TestPlatform&)> prepare;
    int results;
};
constexpr int untouched = -1; ///< what lies there stays as it is

void settings(TestPlatform& platform, const QByteArray& contents)
{
    writeFile(settingsFile(), contents);
    platform.defaults->reread();
}

const std::vector<World>& worlds()
{
    const auto results = [](TestPlatform& platform) { return platform.highscoreFile(); };
    const auto folder = [](TestPlatform& platform) {
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
         [](auto& p) {
             settings(p, QByteArray("[General]\nAmountCards=#\nAmountRounds=#\nGameIsActive=#\n"
                                    "RemoveMatch=#\nLaunchInFullscreen=#\nPlaySounds=#\n"
                                    "VolumeSound=#\nPaircadeAlbum=#\n")
                             .replace('#', "-99999999999999999999"));
         },
         1},
        {"each setting far above its range, but the rounds, which have no end",
         [](auto& p) {
             settings(p, QByteArray("[General]\nAmountCards=#\nGameIsActive=#\nRemoveMatch=#\n"
                                    "LaunchInFullscreen=#\nPlaySounds=#\nVolumeSound=#\n"
                                    "PaircadeAlbum=#\n")
                             .replace('#', "99999999999999999999"));
         },
         1},
        {"a folder of settings that cannot be written",
         [](auto&) { forbid(QFileInfo(settingsFile()).path(), 0555); }, 1},
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
        {"a pipe as results",
         [=](auto& p) {
             QDir().mkpath(folder(p));
             makePipe(results(p));
         },
         untouched},
        {"a device as results",
         [=](auto& p) {
             QDir().mkpath(folder(p));
             QFile::link(u"/dev/zero"_s, results(p));
         },
         untouched},
        {"results of 64 GB",
         [=](auto& p) {
             p.writeHighscoreFile("[");
             QFile::resize(results(p), qint64{64} << 30);
         },
         1},
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
        std::pair<ino_t, off_t> before;
        QElapsedTimer time;
        GameWindow window([&](TestPlatform& platform) {
            where.prepare(platform);
            before = identity(platform.highscoreFile());
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
        if (where.results == untouched) {
            QCOMPARE(identity(window.platform.highscoreFile()), before);
        } else {
            const auto entries = readHighscores(window.platform.highscoreFile());
            QVERIFY(entries);
            QCOMPARE(int(entries->size()), where.results);
        }
    }

    void aFullDiskCostsNoSettingAndNoResult()
    {
        GameWindow window([](TestPlatform& platform) {
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

    void theProgramStartsAndEnds_data()
    {
        QTest::addColumn<QString>("breakIt"); // shell, in the home
        const auto row = [](const char* name, const char* breakIt) {
            QTest::newRow(name) << QString::fromLatin1(breakIt);
        };
        row("a pipe as settings", "mkfifo config/Paircade/Paircade.conf");
        row("a pipe as the settings' lock", "mkfifo config/Paircade/Paircade.conf.lock");
        row("a folder as the settings' lock", "mkdir config/Paircade/Paircade.conf.lock");
        row("a file as the folder of settings", "rm -r config; echo > config");
        row("a file as the folder of results", "rm -r data; echo > data");
        row("a pipe as results", "mkfifo data/Paircade/highscores.json");
        row("a lock cut short by a crash", ": >data/Paircade/lock");
        row("a lock from before the machine was renamed",
            "printf '1\\npaircade\\nelsewhere\\n' >data/Paircade/lock");
        row("a pipe as the lock", "mkfifo data/Paircade/lock");
        row("a folder as the lock", "mkdir data/Paircade/lock");
        row("a link to nowhere as the lock", "ln -s nowhere data/Paircade/lock");
        row("no runtime folder", "rm -r runtime; echo >runtime");
        row("no resources", "rm -r share");
        row("a pipe as logo and texts",
            "rm share; mkdir -p share/paircade/translations; cd share/paircade;"
            "mkfifo logo.png icon.png translations/paircade_en.qm");
    }

    void theProgramStartsAndEnds()
    {
        QFETCH(const QString, breakIt);
        const QTemporaryDir home;
        QProcess shell;
        shell.setWorkingDirectory(home.path());
        const QString bin = QCoreApplication::applicationDirPath();
        shell.start(u"sh"_s, {u"-ec"_s,
                              u"mkdir -p bin config/Paircade data/Paircade; mkdir -m 700 runtime;"
                              "cp \"$0\"/paircade bin; ln -s \"$0\"/../share .;"_s +
                                  breakIt,
                              bin});
        QVERIFY(shell.waitForFinished() && shell.exitCode() == 0);

        Program game(home.path(), home.filePath(u"bin/paircade"_s));
        QVERIFY2(game.comesUp(), game.process.readAllStandardError());
        game.signal(SIGTERM);
        QVERIFY(game.endsWell());
    }
};

QTEST_MAIN(BadInputTest)
#include "bad_input_test.moc"
