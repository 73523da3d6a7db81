// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The sounds of a game, as SDL's disk driver hears them, and what the log says of
// those that cannot be played. Each case is a process of its own, since SDL
// takes its driver once.
#include "game/memory_game.h"
#include "settings/settings_keys.h"
#include "support/play.h"
#include "support/test_platform.h"

#include <QCoreApplication>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <cstdlib>

namespace {

/// Turns a card of a real game with the settings PlaySounds and VolumeSound.
void turnACard(const QString& playSounds, const QString& volume)
{
    TestPlatform platform;
    platform.defaults->setString(SettingsKeys::PlaySounds, playSounds);
    platform.defaults->setString(SettingsKeys::VolumeSound, volume);
    MemoryGame game;
    game.setPlayerName(QStringLiteral("Ann"));
    game.startNewGame();
    flip(game, 0);
    QTest::qWait(500);
}

/// Asks for all four sounds of the resource folder `resources`.
void playAll(const QString& resources, const QString& playSounds)
{
    TestPlatform platform;
    platform.useResources(resources);
    platform.defaults->setString(SettingsKeys::PlaySounds, playSounds);
    MemoryGame game;
    game.playCardFlipSound();
    game.playCardDoneSound();
    game.playCardResetSound();
    game.playDoneSound();
    QTest::qWait(300);
}

} // namespace

class SoundEffectsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void volumeIsAShareBetweenNothingAndAll_data()
    {
        QTest::addColumn<QString>("volume");
        QTest::addColumn<double>("share");
        QTest::newRow("half") << "50" << 0.5;
        QTest::newRow("all") << "100" << 1.0;
        QTest::newRow("above all is all") << "150" << 1.0;
        QTest::newRow("below nothing is silence") << "-5" << 0.0;
        QTest::newRow("no number is silence") << "nan" << 0.0;
    }

    void volumeIsAShareBetweenNothingAndAll()
    {
        QFETCH(QString, volume);
        QFETCH(double, share);
        static const int full = peakAt(QStringLiteral("1"), QStringLiteral("100"));
        QVERIFY(full > 5000);
        const int peak = peakAt(QStringLiteral("1"), volume);
        QVERIFY2(qAbs(peak - share * full) < 0.03 * full, qPrintable(QString::number(peak)));
    }

    void onlyExactlyOneTurnsSoundsOn_data()
    {
        QTest::addColumn<QString>("playSounds");
        QTest::newRow("off") << "0";
        QTest::newRow("any other number") << "2";
        QTest::newRow("a text") << "true";
    }

    void onlyExactlyOneTurnsSoundsOn()
    {
        QFETCH(QString, playSounds);
        // The device is not even opened.
        QCOMPARE(peakAt(playSounds, QStringLiteral("100")), -1);
        QTemporaryDir empty;
        QCOMPARE(run({QStringLiteral("--play-all"), empty.path(), playSounds}), QByteArray());
    }

    void whatCannotBePlayedIsLogged_data()
    {
        QTest::addColumn<bool>("areThere");
        QTest::newRow("no sound files") << false;
        QTest::newRow("files that are no sounds") << true;
    }

    void whatCannotBePlayedIsLogged()
    {
        QFETCH(bool, areThere);
        QTemporaryDir resources;
        QVERIFY(QDir(resources.path()).mkpath(QStringLiteral("Sounds")));
        const QByteArrayList names{"card_flip", "card_done", "card_reset", "done"};
        for (const QByteArray& name : names) {
            QFile file(resources.filePath(QStringLiteral("Sounds/") + QString::fromLatin1(name) +
                                          QStringLiteral(".mp3")));
            QVERIFY(!areThere || (file.open(QIODevice::WriteOnly) && file.write("no sound") > 0));
        }
        const QByteArrayList lines =
            run({QStringLiteral("--play-all"), resources.path(), QStringLiteral("1")}).split('\n');
        QCOMPARE(lines.size(), 5);
        for (int i = 0; i < 4; ++i) {
            if (areThere)
                QVERIFY(
                    lines[i].startsWith("Fehler beim Abspielen von Sounds/" + names[i] + ".mp3: "));
            else
                QCOMPARE(lines[i], "Sounddatei Sounds/" + names[i] + ".mp3 nicht gefunden");
        }
    }

private:
    /// The loudest sample that a turned card leaves; -1 if no device was opened.
    int peakAt(const QString& playSounds, const QString& volume)
    {
        QTemporaryDir folder;
        const QString heard = folder.filePath(QStringLiteral("heard.raw"));
        qputenv("SDL_DISKAUDIOFILE", QFile::encodeName(heard));
        run({QStringLiteral("--turn"), playSounds, volume});
        QFile file(heard);
        if (!file.open(QIODevice::ReadOnly))
            return -1;
        const QByteArray bytes = file.readAll();
        const auto* const samples = reinterpret_cast<const std::int16_t*>(bytes.constData());
        int peak = 0;
        for (qsizetype i = 0; i < bytes.size() / 2; ++i)
            peak = std::max(peak, std::abs(int(samples[i])));
        return peak;
    }

    /// What this program prints when it runs with `arguments`.
    static QByteArray run(const QStringList& arguments)
    {
        QProcess child;
        auto environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("SDL_AUDIODRIVER"), QStringLiteral("disk"));
        child.setProcessEnvironment(environment);
        child.start(QCoreApplication::applicationFilePath(), arguments);
        if (!child.waitForFinished(20'000) || child.exitCode() != 0)
            return "the child failed: " + child.readAllStandardError();
        return child.readAllStandardOutput();
    }
};

int main(int argc, char* argv[])
{
    QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == QLatin1String("--turn")) {
        turnACard(arguments.value(2), arguments.value(3));
        return 0;
    }
    if (arguments.value(1) == QLatin1String("--play-all")) {
        playAll(arguments.value(2), arguments.value(3));
        return 0;
    }
    SoundEffectsTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "sound_effects_test.moc"
