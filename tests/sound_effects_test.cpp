// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The sounds of a game, as SDL's disk driver hears them, and what the log says of
// those that cannot be played.
#include "game/memory_game.h"
#include "platform/debug_log.h"
#include "settings/settings_keys.h"
#include "stage/play.h"
#include "stage/stage_platform.h"
#include "support/run_again.h"

#include <QRegularExpression>
#include <QSemaphore>

using namespace Qt::StringLiterals;

namespace {

/// Plays a real game of two rounds, a miss and ignored taps first, with the settings PlaySounds
/// and VolumeSound. A third argument is the folder of the sounds; "versus" may follow.
int play(const QStringList& arguments)
{
    const QString resources = arguments.value(2);
    StagePlatform platform;
    if (!resources.isEmpty()) {
        platform.useResources(resources);
        makeDeck(resources, u"Cyberpunk"_s, 6);
    }
    platform.defaults->setInteger(SettingsKeys::AmountRounds, 2);
    platform.defaults->setString(SettingsKeys::PlaySounds, arguments[0]);
    platform.defaults->setString(SettingsKeys::VolumeSound, arguments[1]);
    MemoryGame game;
    if (arguments[0] == u"off"_s) { // while a sound waits
        QSemaphore gate;
        platform.defaults->setInteger(SettingsKeys::PlaySounds, 1);
        platform.audio.report([&gate] { gate.acquire(); });
        game.playCardDoneSound();
        platform.defaults->setInteger(SettingsKeys::PlaySounds, 0);
        gate.release();
        QTest::qWait(500);
        return 0;
    }
    game.setIsVersusMode(arguments.size() > 3);
    game.setPlayerName(u"Ann"_s);
    game.setPlayerOneName(u"Ann"_s);
    game.setPlayerTwoName(u"Bea"_s);
    game.startNewGame();
    miss(game);
    flip(game, hiddenCard(game));
    if (!resources.isEmpty())
        platform.audio.report([] { logLine(u"missed"_s); });
    (void)QTest::qWaitFor([&game] { return !game.isCheckingPair(); });
    flip(game, 0);
    flip(game, 0);
    flip(game, otherCard(game, 0, true));
    while (game.isGameActive())
        findPair(game);
    if (resources.isEmpty())
        QTest::qWait(500); // the last sound; log lines need no time
    return (game.audioPlayer() == nullptr) == (arguments[0] != u"1"_s || !resources.isEmpty()) ? 0
                                                                                               : 1;
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
        for (const QString& playSounds : {u"0"_s, u"2"_s, u"true"_s})
            QCOMPARE(peakAt(playSounds, u"100"_s), -1); // the device is not even opened
        QCOMPARE(peakAt(u"off"_s, u"100"_s), 0);
    }

    void everySoundComesInItsTurn()
    {
        const QTemporaryDir resources;
        const QByteArray pair = "Sounds/card_flip.mp3\nSounds/card_flip.mp3\n";
        const QByteArray game = pair + "missed\nSounds/card_reset.mp3\n" +
                                (pair + "Sounds/card_done.mp3\n").repeated(12) + "Sounds/done.mp3";
        const auto log = [&](const QStringList& mode = {}) {
            return QString::fromUtf8(
                runAgain(QStringList{u"1"_s, u"100"_s, resources.path()} + mode).lines.join('\n'));
        };
        QString missing = QString::fromUtf8(game);
        missing.replace(QRegularExpression(u"(S.*)"_s), u"Sounddatei \\1 nicht gefunden"_s);
        QCOMPARE(log(), missing);

        // Files that do not load among missing ones, in a game of two.
        QVERIFY(QDir(resources.path()).mkdir(u"Sounds"_s));
        for (const QString& name : {u"card_flip"_s, u"done"_s})
            writeFile(resources.filePath(u"Sounds/"_s + name + u".mp3"_s), "no sound");
        missing.replace(QRegularExpression(u"Sounddatei (\\S+/(card_flip|done).mp3) .*"_s),
                        u"Fehler beim Abspielen von \\1: "_s);
        QCOMPARE(log({u"versus"_s}).replace(QRegularExpression(u"(mp3: ).+"_s), u"\\1"_s), missing);
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
