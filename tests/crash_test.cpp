// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Killed at every step, on full disks and without handles: what was stored before stays.
#include "game/memory_game.h"
#include "highscores/highscore_file.h"
#include "platform/user_folders.h"
#include "settings/default_settings.h"
#include "settings/settings_keys.h"
#include "stage/files.h"
#include "stage/play.h"
#include "stage/stage_platform.h"
#include "support/broken_world.h"

#include <QTest>
#include <fcntl.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/ptrace.h>
#include <sys/statvfs.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

static int syncError = 0;

/// The system's own, but while it is told to fail.
extern "C" int fdatasync(int file)
{
    if (syncError == 0)
        return int(::syscall(SYS_fdatasync, file));
    errno = syncError;
    return -1;
}

namespace {

/// A running game of two players, whose end stores a result and a setting.
class Game {
public:
    explicit Game(std::size_t results)
    {
        HighscoreEntries entries(results,
                                 {.gameMode = versusMode, .amountCards = 1, .amountRounds = 1});
        for (HighscoreEntry& entry : entries)
            entry.playerName = QString::number(&entry - entries.data());
        platform.writeHighscoreFile(encodeHighscores(entries));
        platform.useResources(platform.home.path());
        makeDeck(platform.home.path(), u"Cyberpunk"_s, 6);
        game.setIsVersusMode(true);
        game.setPlayerOneName(u"Ann"_s);
        game.setPlayerTwoName(u"Ben"_s);
        game.startNewGame();
        m_results = platform.readHighscoreFile();
        m_settings = contentsOf(settingsFile());
    }

    /// Lays the files as they were before the end.
    void rewind() const
    {
        platform.writeHighscoreFile(m_results);
        writeFile(settingsFile(), m_settings);
    }

    /// Whether settings and results are the old or the new whole, after an end that
    /// something came into. Counts in `stored` the new results.
    [[nodiscard]] bool isWhole(int& stored) const
    {
        const QByteArray settings = contentsOf(settingsFile());
        const QByteArray results = platform.readHighscoreFile();
        const bool isNew = results != m_results;
        stored += isNew ? 1 : 0;
        // All that was there, letter by letter, and one more.
        const auto entries = decodeHighscores(results);
        return (settings == m_settings ||
                settings == QByteArray(m_settings).replace("GameIsActive=1", "GameIsActive=0")) &&
               (!isNew || (entries && entries->back().playerName == u"Ann"_s &&
                           entries->size() == decodeHighscores(m_results)->size() + 1 &&
                           results.startsWith(m_results.chopped(3))));
    }

    /// Whether the lists show the file, as they do after every reload.
    [[nodiscard]] bool isShown() const
    {
        const auto entries = decodeHighscores(platform.readHighscoreFile());
        return entries && game.bestVersusScores().size() ==
                              std::min(entries->size(), MemoryGame::maxHighscoreEntries);
    }

    StagePlatform platform{};
    MemoryGame game{};

private:
    QByteArray m_results{};
    QByteArray m_settings{};
};

/// The limit under which the process may open `free` files more.
rlim_t limitFor(int free)
{
    rlim_t limit = 0;
    for (; free > 0 || ::fcntl(int(limit), F_GETFD) != -1; ++limit)
        free -= ::fcntl(int(limit), F_GETFD) == -1 ? 1 : 0;
    return limit;
}

/// A disk of its own of 1 MB in the place of `folder`; unmounted at the end.
class SmallDisk {
public:
    explicit SmallDisk(const QString& folder)
        : m_folder(QFile::encodeName(folder))
    {
        isThere = ::unshare(CLONE_NEWNS) == 0 &&
                  ::mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0 &&
                  ::mount("none", m_folder.constData(), "tmpfs", 0, "size=1m") == 0;
    }
    ~SmallDisk()
    {
        if (isThere)
            ::umount2(m_folder.constData(), MNT_DETACH);
    }
    Q_DISABLE_COPY_MOVE(SmallDisk)

    /// Leaves so many pages free; `flags` are those of mount().
    void leave(fsblkcnt_t pages, unsigned long flags = 0) const
    {
        struct statvfs disk {};
        ::statvfs(m_folder.constData(), &disk);
        const auto size = QByteArray::number(disk.f_blocks - disk.f_bfree + pages);
        ::mount(nullptr, m_folder.constData(), nullptr, MS_REMOUNT | flags,
                ("nr_blocks=" + size).constData());
    }

    bool isThere = false;

private:
    QByteArray m_folder;
};

} // namespace

class CrashTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    /// The kernel stops the process before and after each of its calls.
    void killedAtAnyStepNothingIsLost()
    {
        Game game(30);
        int stored = 0;
        int step = 0;
        for (bool isOver = false; !isOver; ++step) {
            game.rewind();
            const pid_t child = ::fork();
            if (child == 0) {
                (void)(::ptrace(PTRACE_TRACEME, 0, nullptr, nullptr) + std::raise(SIGSTOP));
                game.game.endGame();
                ::_exit(0);
            }
            int status = 0;
            ::waitpid(child, &status, 0);
            for (int i = 0; i < step && WIFSTOPPED(status); ++i) {
                ::ptrace(PTRACE_SYSCALL, child, nullptr, nullptr);
                ::waitpid(child, &status, 0);
            }
            isOver = WIFEXITED(status);
            if (isOver)
                QCOMPARE(WEXITSTATUS(status), 0);
            else
                QVERIFY(::kill(child, SIGKILL) == 0 && ::waitpid(child, nullptr, 0) == child);
            QVERIFY2(game.isWhole(stored), qPrintable(QString::number(step)));
            // Another start can write.
            UserDefaults(settingsFile()).setInteger(SettingsKeys::VolumeSound, 7);
            QVERIFY(contentsOf(settingsFile()).contains("\nVolumeSound=7\n"));
        }
        QVERIFY2(step > 50 && stored > 1 && stored < step, "the steps were not taken one by one");
        const QDir folder = QFileInfo(game.platform.highscoreFile()).dir();
        qInfo("%d steps, %d of them after the result was stored; files left over: %d", step, stored,
              int(folder.entryList(QDir::Files).size()) - 1);
    }

    void aFullDiskLosesNothing()
    {
        Game game(30);
        const SmallDisk disk(game.platform.home.path());
        if (!disk.isThere)
            QSKIP("no disk can be mounted here");
        QDir().mkpath(QFileInfo(settingsFile()).path());
        int stored = 0;
        for (fsblkcnt_t pages = 0; pages < 24; ++pages) {
            game.rewind();
            disk.leave(pages);
            game.game.endGame();
            QVERIFY2(game.isShown(), qPrintable(QString::number(pages)));
            QVERIFY(game.isWhole(stored));
        }
        QVERIFY(stored > 1 && stored < 24);

        game.rewind();
        disk.leave(24, MS_RDONLY);
        game.game.endGame();
        disk.leave(24);
        stored = 0;
        QVERIFY(game.isWhole(stored));
        QCOMPARE(stored, 0);
    }

    /// A network folder takes what it has no room for, and says so when asked to keep it.
    void aDiskThatIsFullTooLateLosesNothing()
    {
        Game game(30);
        for (const int error : {EDQUOT, EIO, EINVAL}) { // the last: it cannot be asked
            game.rewind();
            syncError = error;
            game.game.endGame();
            syncError = 0;
            int stored = 0;
            QVERIFY(game.isWhole(stored));
            QCOMPARE(stored, error == EINVAL ? 1 : 0);
        }
    }

    void withoutHandlesNothingIsLost()
    {
        Game game(30);
        int stored = 0;
        for (int free = 0; free < 8; ++free) {
            game.rewind();
            {
                const Limit few(RLIMIT_NOFILE, limitFor(free));
                game.game.endGame();
            }
            QVERIFY(game.isWhole(stored));
            game.game.reloadHighscoresForCurrentSettings();
            QVERIFY(game.isShown());
        }
        QVERIFY(stored > 0 && stored < 8);

        // Settings that could not be read are not missing ones, to be stored anew.
        const QString settings = game.platform.home.filePath(u"settings"_s);
        writeFile(settings, "[General]\nAmountCards=4\n");
        std::optional<Limit> none(std::in_place, RLIMIT_NOFILE, limitFor(0));
        UserDefaults unread(settings);
        none.reset();
        createDefaultSettings(unread);
        QCOMPARE(contentsOf(settings), "[General]\nAmountCards=4\n");
    }
};

int main(int argc, char* argv[])
{
    // Whoever is not root becomes it in a namespace of its own, where disks can be mounted.
    const auto mapped = [](auto id) { return "0 " + QByteArray::number(id) + " 1"; };
    const QByteArray users = mapped(::geteuid());
    const QByteArray groups = mapped(::getegid());
    if (::geteuid() != 0 && ::unshare(CLONE_NEWUSER) == 0) {
        writeFile(u"/proc/self/setgroups"_s, "deny");
        writeFile(u"/proc/self/uid_map"_s, users);
        writeFile(u"/proc/self/gid_map"_s, groups);
    }
    QCoreApplication application(argc, argv);
    CrashTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "crash_test.moc"
