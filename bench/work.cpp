// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Dealing, results and sounds, without a window.
#include "game/memory_game.h"
#include "highscores/highscore_file.h"
#include "highscores/recording.h"
#include "report.h"
#include "settings/settings_keys.h"
#include "stage/stage_platform.h"

#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QImage>
#include <cstdio>
#include <jpeglib.h>

namespace {

constexpr int runs = 15;
constexpr int records = 10000;

QString deckFolder()
{
    return *platform().bundle.resourceFolder() + QStringLiteral("/Cards/Cyberpunk");
}

/// The picture of a file by the codec alone, in the format that the game keeps.
QImage decode(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("a picture is missing");
    const QByteArray bytes = file.readAll();
    jpeg_decompress_struct codec{};
    jpeg_error_mgr errors{};
    codec.err = jpeg_std_error(&errors);
    jpeg_create_decompress(&codec);
    jpeg_mem_src(&codec, reinterpret_cast<const unsigned char*>(bytes.constData()),
                 static_cast<unsigned long>(bytes.size()));
    jpeg_read_header(&codec, TRUE);
    codec.out_color_space = JCS_EXT_BGRX;
    jpeg_start_decompress(&codec);
    QImage image(int(codec.output_width), int(codec.output_height), QImage::Format_RGB32);
    while (codec.output_scanline < codec.output_height) {
        JSAMPROW row = image.scanLine(int(codec.output_scanline));
        jpeg_read_scanlines(&codec, &row, 1);
    }
    jpeg_finish_decompress(&codec);
    jpeg_destroy_decompress(&codec);
    return image;
}

void dealing()
{
    MemoryGame game;
    QStringList files;
    for (const QString& name : QDir(deckFolder()).entryList({QStringLiteral("*.jpg")}))
        files << deckFolder() + u'/' + name;
    if (files.size() != 24)
        qFatal("the deck is not whole");
    Samples dealt;
    Samples decoded;
    for (int i = 0; i < runs; ++i) {
        dealt.push_back(timed(CLOCK_MONOTONIC, [&game] { game.loadRound(1); }));
        decoded.push_back(timed(CLOCK_MONOTONIC, [&files] {
            std::vector<QImage> images;
            for (const QString& file : files)
                images.push_back(decode(file));
        }));
        if (game.cards().size() != 40)
            qFatal("no round was dealt");
    }
    printRow("dealing a round from a deck of 24", median(dealt), "ms", 1.2, median(decoded));
}

void results()
{
    HighscoreEntries entries;
    for (int i = 0; i < records; ++i) {
        const GameFacts facts{.elapsedSeconds = 30 + i * 37 % 600,
                              .failedAttempts = i * 13 % 80,
                              .amountCards = 1 + i % 6,
                              .amountRounds = 1 + i / 6 % 2};
        const QString name = QStringLiteral("Player %1").arg(i % 97);
        entries.push_back(i % 3 == 0
                              ? versusEntry({name, i % 11}, {QStringLiteral("Ben"), i % 7}, facts)
                              : soloEntry(name, facts));
    }
    Samples ranked;
    Samples appended;
    Samples finished;
    Samples reported;
    for (int i = 0; i < runs; ++i) {
        if (!writeHighscores(highscoreFile(), entries))
            qFatal("the results cannot be written");
        MemoryGame game;
        game.setPlayerName(QStringLiteral("Ann"));
        ranked.push_back(
            timed(CLOCK_MONOTONIC, [&game] { game.reloadHighscoresForCurrentSettings(); }));
        if (game.bestTimeScores().size() != MemoryGame::maxHighscoreEntries)
            qFatal("the results are not ranked");
        appended.push_back(timed(CLOCK_MONOTONIC, [] {
            HighscoreEntries all = readHighscores(highscoreFile()).entries.value();
            all.push_back(soloEntry(QStringLiteral("Ann"), {}));
            if (!writeHighscores(highscoreFile(), all))
                qFatal("the result cannot be written");
        }));
        finished.push_back(timed(CLOCK_MONOTONIC, [&game] { game.finishSoloGame(); }));
        reported.push_back(timed(CLOCK_MONOTONIC, [&game] { game.openHighscoresHTML(); }));
        if (readHighscores(highscoreFile()).entries->size() != records + 2)
            qFatal("the results were not appended");
    }
    printRow("10,000 results: read and rank", median(ranked), "ms", 100);
    printRow("10,000 results: append", median(appended), "ms", 100);
    printRow("10,000 results: end of a game, which does both", median(finished), "ms", 200);
    printRow("10,000 results: the page for the browser", median(reported), "ms", 100);
}

void sounds()
{
    platform().defaults.setInteger(SettingsKeys::PlaySounds, 1);
    MemoryGame game;
    const QString path = *platform().bundle.resource(
        QStringLiteral("card_flip"), QStringLiteral("mp3"), QStringLiteral("Sounds"));
    const auto trigger = [&game] { game.playCardFlipSound(); };
    // The device is still closed: nothing was prepared.
    const double first = timed(CLOCK_MONOTONIC, trigger);
    Samples triggered;
    Samples opened;
    for (int i = 0; i < 100; ++i) {
        triggered.push_back(timed(CLOCK_MONOTONIC, trigger));
        opened.push_back(timed(CLOCK_MONOTONIC, [&path] {
            QFile file(path);
            if (!file.open(QIODevice::ReadOnly))
                qFatal("the sound is missing");
        }));
    }
    const double floor = median(opened);
    printRow("a sound's trigger, beyond opening its file", median(triggered) - floor, "ms", 1);
    printRow("the very first, with the device closed, beyond the same", first - floor, "ms", 1);
}

} // namespace

int main(int argc, char* argv[])
{
    const QGuiApplication application(argc, argv);
    const StagePlatform services;
    services.defaults->setInteger(SettingsKeys::AmountCards, 6);
    dealing();
    results();
    sounds();
    return 0;
}
