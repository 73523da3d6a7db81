// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The sounds of a game, as SDL's disk driver hears them, and what the log says of
// those that cannot be played.
#include "game/memory_game.h"
#include "settings/settings_keys.h"
#include "stage/play.h"
#include "stage/stage_platform.h"
#include "support/run_again.h"

using namespace Qt::StringLiterals;

namespace {

/// Plays a real game, a miss first, with the settings PlaySounds and VolumeSound, and with
/// the sounds of the folder that a third argument names.
int play(const QStringList& arguments)
{
    const QString resources = arguments.value(2);
    StagePlatform platform;
    if (!resources.isEmpty()) {
        platform.useResources(resources);
        makeDeck(resources, u"Cyberpunk"_s, 6);
    }
    platform.defaults->setString(SettingsKeys::PlaySounds, arguments[0]);
    platform.defaults->setString(SettingsKeys::VolumeSound, arguments[1]);
    MemoryGame game;
    game.setPlayerName(u"Ann"_s);
    game.startNewGame();
    miss(game);
    (void)QTest::qWaitFor([&game] { return !game.isCheckingPair(); });
    while (game.isGameActive())
        findPair(game);
    QTest::qWait(500);
    return 0;
}

} // namespace

class SoundEffectsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void volumeIsAShareBetweenNothingAndAll()
    {
        const int full = peakAt(u"1"_s, u"100"_s); // of all sounds that there are
        QVERIFY(full > 5000);
        const std::map<QString, double> shares{
            {u"50"_s, 0.5}, {u"150"_s, 1}, {u"-5"_s, 0}, {u"nan"_s, 0}};
        for (const auto& [volume, share] : shares) {
            const int peak = peakAt(u"1"_s, volume);
            QVERIFY2(qAbs(peak - share * full) < 0.03 * full,
                     qPrintable(u"%1: %2"_s.arg(volume).arg(peak)));
        }
    }

    void onlyExactlyOneTurnsSoundsOn()
    {
        for (const QString& playSounds : {u"0"_s, u"2"_s, u"true"_s}) {
            // The device is not even opened.
            QCOMPARE(peakAt(playSounds, u"100"_s), -1);
        }
    }

    void whatCannotBePlayedIsLogged()
    {
        const QTemporaryDir resources;
        const QStringList game{u"1"_s, u"100"_s, resources.path()};
        QByteArrayList names{"card_flip", "card_flip", "card_reset"};
        for (int i = 0; i < 6; ++i)
            names += {"card_flip", "card_flip", "card_done"};
        names += "done";
        QByteArrayList expected;
        for (const QByteArray& name : names)
            expected += "Sounddatei Sounds/" + name + ".mp3 nicht gefunden";
        QCOMPARE(runAgain(game).lines, expected);

        QVERIFY(QDir(resources.path()).mkdir(u"Sounds"_s));
        for (const QByteArray& name : names)
            writeFile(resources.filePath(QString::fromLatin1("Sounds/" + name + ".mp3")),
                      "no sound");
        const QByteArrayList lines = runAgain(game).lines;
        QCOMPARE(lines.size(), names.size());
        for (qsizetype i = 0; i < lines.size(); ++i)
            QVERIFY(lines[i].startsWith("Fehler beim Abspielen von Sounds/" + names[i] + ".mp3: "));
    }

private:
    /// The loudest sample of a game; -1 if no device was opened.
    static int peakAt(const QString& playSounds, const QString& volume)
    {
        const Run run = runAgain({playSounds, volume});
        if (!run.lines.isEmpty())
            QTest::qFail("a sound of the game cannot be played", __FILE__, __LINE__);
        int peak = run.isDeviceOpened ? 0 : -1;
        for (const int sample : run.heard)
            peak = std::max(peak, std::abs(sample));
        return peak;
    }
};

int main(int argc, char* argv[])
{
    return runTests<QCoreApplication, SoundEffectsTest>(argc, argv, play);
}
#include "sound_effects_test.moc"
