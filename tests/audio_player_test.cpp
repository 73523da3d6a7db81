// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/audio_player.h"
#include "support/run_again.h"

#include <QDataStream>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QLocalServer>
#include <QThread>
#include <cmath>
#include <numbers>
#include <optional>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

using Samples = std::vector<int>;

constexpr int rate = 44100;
constexpr int flatPeak = 16000;
constexpr int tonePeak = 8000;
constexpr double toneSeconds = 0.3;
constexpr double flatSeconds = 1.2;
constexpr auto flatWhole =
    std::ptrdiff_t(qRound64((flatSeconds - 0.02) * rate)) + 1; ///< at its peak

/// A run whose lines are failures, but for the last two: how many milliseconds things took.
struct Performance : Run {
    double farewell = lines.takeLast().toDouble(); ///< To destroy the player.
    double slowestCall = lines.takeLast().toDouble();
};

/// The child's part. Each step of `script` is a number of milliseconds to wait, "prepare",
/// "silence", "report", "answer" or a file. The first step may be "hasty", which closes an
/// idle device early, or a path at which a sound server hangs until "answer".
int perform(const QStringList& script)
{
    const bool isHasty = script.value(0) == u"hasty"_s;
    QLocalServer server; // the system accepts connections for it
    if (script.value(0).endsWith(u"server"_s)) {
        qputenv("PULSE_SERVER", "unix:" + QFile::encodeName(script[0]));
        if (!server.listen(script[0]))
            return 1;
    }
    std::optional<AudioPlayer> player(std::in_place, isHasty ? 500ms : AudioPlayer::idleTime);
    QElapsedTimer clock;
    qint64 slowest = 0;
    for (const QString& step : script.mid(isHasty || server.isListening() ? 1 : 0)) {
        QThread::msleep(step.toULong()); // of what is no number nothing
        clock.start();
        if (step == u"prepare"_s)
            player->prepare();
        else if (step == u"silence"_s)
            player->silenceWaiting();
        else if (step == u"report"_s)
            player->report([] {
                QThread::msleep(50); // in which an older sound would be heard
                std::puts("report");
            });
        else if (step == u"answer"_s)
            server.close();
        else if (step.toULong() == 0)
            player->play(step, 1, [step](const QString& text) {
                std::puts(text.isEmpty() ? "" : qPrintable(QFileInfo(step).fileName()));
            });
        slowest = std::max(slowest, clock.nsecsElapsed());
    }
    if (server.isListening() && !server.waitForNewConnection(0))
        return 1; // SDL does not know PulseAudio
    clock.start();
    player.reset();
    std::printf("%g\n%g\n", double(slowest) / 1e6, double(clock.nsecsElapsed()) / 1e6);
    return 0;
}

/// Writes a sound of one channel, `seconds` long.
void writeSound(const QString& path, double seconds, const std::function<double(double)>& sample)
{
    QByteArray file;
    QDataStream out(&file, QIODevice::WriteOnly);
    out.setByteOrder(QDataStream::LittleEndian);
    const auto count = static_cast<quint32>(seconds * rate);
    out.writeRawData("RIFF", 4);
    out << 36 + 2 * count;
    out.writeRawData("WAVEfmt \x10\0\0\0\1\0\1\0", 16); // numbers, one channel
    out << quint32{rate} << quint32{2 * rate};
    out.writeRawData("\2\0\x10\0data", 8); // of 16 bits
    out << 2 * count;
    for (quint32 i = 0; i < count; ++i) {
        // 10 ms to come and go, so that the sound itself does not click.
        const double time = double(i) / rate;
        const double edge = std::min({1.0, time / 0.01, (seconds - time) / 0.01});
        out << static_cast<qint16>(std::lround(edge * sample(time)));
    }
    writeFile(path, file);
}

/// Place of the first sample from `begin` on that is louder than `level`.
std::size_t onset(const Samples& samples, std::size_t begin, int level)
{
    while (begin < samples.size() && std::abs(samples[begin]) <= level)
        ++begin;
    return begin;
}

/// Place behind the last sample louder than `level`.
std::size_t lastAbove(const Samples& samples, int level)
{
    std::size_t end = samples.size();
    while (end > 0 && std::abs(samples[end - 1]) <= level)
        --end;
    return end;
}

} // namespace

/// Plays in a process of its own and listens through SDL's disk driver.
class AudioPlayerTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        writeSound(m_flat, flatSeconds, [](double) { return flatPeak; });
        writeSound(m_tone, toneSeconds, [](double time) {
            return tonePeak * std::sin(2 * std::numbers::pi * 1000 * time);
        });
    }

    // As when a pair is found while an earlier sound is heard: the flip is
    // followed by the pair's own sound in the same turn.
    void aSoundCutsOffTheOneBefore()
    {
        const Performance run =
            listen({u"prepare"_s, u"200"_s, m_flat, u"400"_s, m_tone, m_tone, u"600"_s});
        QCOMPARE(run.lines, QByteArrayList());
        // What is louder than the tone can only be the flat sound.
        const std::size_t begin = onset(run.heard, 0, 0);
        const std::size_t cut = lastAbove(run.heard, tonePeak + 100);
        QVERIFY(cut > begin + rate / 5 && cut < begin + rate);
        const double toneLeft = double(lastAbove(run.heard, 0) - cut) / rate;
        QVERIFY2(toneLeft > toneSeconds - 0.05 && toneLeft < toneSeconds + 0.05,
                 qPrintable(QString::number(toneLeft)));
        // The tone's own steps reach 1140; a cut without a fade makes one of 16000.
        int step = 0;
        for (std::size_t i = 1; i < run.heard.size(); ++i)
            step = std::max(step, std::abs(run.heard[i] - run.heard[i - 1]));
        QVERIFY2(step < 1500, qPrintable(QString::number(step)));
    }

    void aFileThatDoesNotLoadCutsNothingOff()
    {
        writeFile(path("empty.mp3"), "");
        writeFile(path("garbage.mp3"), "no sound");
        writeFile(path("cut.wav"), "RIFF\x24\0\0\0WAVE");
        const Performance run =
            listen({m_flat, u"200"_s, path("empty.mp3"), path("garbage.mp3"), path("cut.wav"),
                    path("missing.mp3"), m_home.path(), u"3000"_s});
        QCOMPARE(run.lines.size(), 5);
        QVERIFY(!run.lines.contains(QByteArray()));
        // Heard whole, up to its last sample, for which a busy machine takes its time.
        QCOMPARE(std::count(run.heard.begin(), run.heard.end(), flatPeak), flatWhole);
    }

    // Each opening begins the recording anew.
    void anIdleDeviceIsClosedAndOpenedAgain()
    {
        const auto secondsAfter = [this](const QStringList& script) {
            const Performance run =
                listen(QStringList{u"hasty"_s} + script + QStringList{m_flat, u"1400"_s});
            // Nothing of it is lost by the opening.
            const auto whole = std::count(run.heard.begin(), run.heard.end(), flatPeak);
            return whole < flatWhole ? 0 : double(run.heard.size()) / rate;
        };
        const auto isReopened = [](double seconds) { return seconds > 0 && seconds < 1.9; };
        QVERIFY(isReopened(secondsAfter({m_tone, u"1200"_s})));
        QVERIFY(isReopened(secondsAfter({u"prepare"_s, u"900"_s}))); // for no sound
        QVERIFY(secondsAfter({m_flat, u"1000"_s}) >= 1.9);           // while it plays
    }

    void neverWaitsForASoundServer()
    {
        const Performance run = listen(
            {path("server"), u"prepare"_s, path("missing.mp3"), u"report"_s, m_tone, u"500"_s},
            u"pulseaudio"_s);
        QCOMPARE(run.lines, {"report"}); // at the end, without the thread, which hangs
        QVERIFY2(run.slowestCall < 100, qPrintable(QString::number(run.slowestCall)));
        QVERIFY2(run.farewell < 2000, qPrintable(QString::number(run.farewell)));
    }

    void onlyTheNewestSoundThatWaitsIsPlayed()
    {
        const auto hear = [this](const QStringList& waiting) {
            const QStringList answer{u"answer"_s, u"1000"_s};
            return listen(QStringList{path("server"), u"prepare"_s} + waiting + answer,
                          u"pulseaudio,disk"_s);
        };
        const auto peak = [](const Run& run) {
            return run.heard.empty() ? -1 : std::abs(*std::ranges::max_element(run.heard));
        };
        const Performance last =
            hear({path("missing.mp3"), m_flat, u"report"_s, m_tone, path("lost.mp3"), u"report"_s});
        QCOMPARE(last.lines, QByteArrayList({"missing.mp3", "report", "lost.mp3", "report"}));
        QVERIFY(std::abs(peak(last) - tonePeak) < 100);

        const Performance none = hear({m_flat, path("missing.mp3"), u"silence"_s});
        QCOMPARE(none.lines.size(), 1);
        QCOMPARE(peak(none), 0); // opened, and silent
    }

    void withoutADeviceFilesAreStillChecked()
    {
        const QStringList script{path("missing.mp3"), m_tone, m_home.path()}; // ends at once
        QCOMPARE(listen(script, u"nosuchdriver"_s).lines.size(), 2);
    }

private:
    [[nodiscard]] QString path(const char* name) const
    {
        return m_home.filePath(QString::fromLatin1(name));
    }

    /// Lets a child perform `script`, see perform(), and listens.
    static Performance listen(const QStringList& script, const QString& driver = u"disk"_s)
    {
        return Performance{runAgain(script, driver)};
    }

    QTemporaryDir m_home{};
    const QString m_flat = path("flat.wav");
    const QString m_tone = path("tone.wav");
};

int main(int argc, char* argv[])
{
    return runTests<QCoreApplication, AudioPlayerTest>(argc, argv, perform);
}
#include "audio_player_test.moc"
