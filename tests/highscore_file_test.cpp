// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
// What is written, and what cannot be read. What a file may hold is tested in tests/fuzz.
#include "highscores/highscore_file.h"
#include "highscores/recording.h"
#include "stage/files.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

class HighscoreFileTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        qputenv("XDG_DATA_HOME", QFile::encodeName(m_home.filePath(u"not/yet"_s)));
    }

    void writesMembersInOrderAndLeavesAbsentOnesOut()
    {
        const HighscoreEntry entry{.id = QUuid(u"{0e984725-c51c-4bf4-9960-e1c80e27aba0}"_s),
                                   .gameMode = u"versus"_s,
                                   .playerName = u"Zoë \"Z\"\n"_s,
                                   .secondPlayerName = u""_s,
                                   .winnerName = u"😀"_s,
                                   .elapsedSeconds = INT64_MAX,
                                   .failedAttempts = INT64_MIN,
                                   .firstPlayerScore = 5,
                                   .secondPlayerScore = 4,
                                   .amountCards = 1,
                                   .amountRounds = 2};
        // With apostrophes for escaped quotation marks.
        const QByteArray expected = QByteArray(R"([
    {
        "id": "0E984725-C51C-4BF4-9960-E1C80E27ABA0",
        "gameMode": "versus",
        "playerName": "Zoë 'Z'\n",
        "secondPlayerName": "",
        "winnerName": "😀",
        "elapsedSeconds": 9223372036854775807,
        "failedAttempts": -9223372036854775808,
        "firstPlayerScore": 5,
        "secondPlayerScore": 4,
        "amountCards": 1,
        "amountRounds": 2
    }
]
)")
                                        .replace("'", "\\\"");
        QCOMPARE(highscoreFile(), m_home.filePath(u"not/yet/Paircade/highscores.json"_s));
        QVERIFY(writeHighscores(highscoreFile(), {entry}));
        QCOMPARE(contentsOf(highscoreFile()), expected);
        QCOMPARE(encodeHighscores(*readHighscores(highscoreFile()).entries), expected);
        QVERIFY(soloEntry({}, {}).id != soloEntry({}, {}).id);
        QCOMPARE(encodeHighscores({{}}).count(':'), 7);
        // A file that is written anew leaves nothing beside it.
        QVERIFY(writeHighscores(highscoreFile(), {}));
        QCOMPARE(QDir(highscoreFolder()).entryList(QDir::Files | QDir::Hidden).size(), 1);
        // A link to a file stays, and that file is replaced.
        QVERIFY(QFile::rename(highscoreFile(), m_home.filePath(u"kept"_s)));
        QVERIFY(QFile::link(m_home.filePath(u"kept"_s), highscoreFile()));
        QVERIFY(writeHighscores(highscoreFile(), {{}}));
        QVERIFY(contentsOf(m_home.filePath(u"kept"_s)).contains("playerName"));
    }

    void aFileThatTheDiskDoesNotGiveIsNoFaultyOne()
    {
        QVERIFY(!readHighscores(highscoreFolder() + u"/none.json"_s).mustStay);
        writeFile(highscoreFile(), "{");
        QVERIFY(!readHighscores(highscoreFile()).mustStay);
        QVERIFY(readHighscores(u"/proc/self/mem"_s).mustStay); // can be opened, not read
    }

private:
    QTemporaryDir m_home{};
};

QTEST_GUILESS_MAIN(HighscoreFileTest)
#include "highscore_file_test.moc"
