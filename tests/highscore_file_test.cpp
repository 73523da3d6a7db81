// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "highscores/highscore_file.h"
#include "support/files.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>
#include <memory>
#include <sys/resource.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

constexpr int unreadable = -1;

const QByteArray solo = R"({"id":"0E984725-C51C-4BF4-9960-E1C80E27ABA0","gameMode":"solo",)"
                        R"("playerName":"Anna","elapsedSeconds":67,"failedAttempts":3,)"
                        R"("amountCards":1,"amountRounds":2})";

/// A file of one record: the one above with `from` replaced.
QByteArray fileWith(const QByteArray& from, const QByteArray& to)
{
    QByteArray record = solo;
    if (!record.contains(from))
        qFatal("nothing to replace");
    return '[' + record.replace(from, to) + ']';
}

/// A file of one record with a further member.
QByteArray fileAnd(const QByteArray& member)
{
    return fileWith("2}", "2," + member + '}');
}

} // namespace

/// Else the address sanitizer ends a process that asks for more memory than it gets.
extern "C" const char* __asan_default_options() // NOLINT(bugprone-reserved-identifier)
{
    return "allocator_may_return_null=1";
}

class HighscoreFileTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_home = std::make_unique<QTemporaryDir>();
        qputenv("XDG_DATA_HOME", QFile::encodeName(m_home->filePath(u"not/yet"_s)));
    }

    void readsAllOrNothing_data()
    {
        QTest::addColumn<QByteArray>("json");
        QTest::addColumn<int>("count");
        const auto row = [](const char* name, const QByteArray& json, int count) {
            QTest::newRow(name) << json << count;
        };
        const QByteArray one = '[' + solo + ']';
        row("empty", "", unreadable);
        row("garbage",
            "\x7f"
            "ELF",
            unreadable);
        row("cut short", one.chopped(1), unreadable);
        row("something after the end", one + ",", unreadable);
        row("a NUL after the end", one + QByteArray(1, '\0'), unreadable);
        row("a NUL in between", '[' + solo + QByteArray(1, '\0') + ']', unreadable);
        row("an object", solo, unreadable);
        row("null", "null", unreadable);
        row("a million empty records", "[{}" + QByteArray(",{}").repeated(1'000'000) + ']',
            unreadable);
        row("nested 100,000 deep", QByteArray(100'000, '[') + QByteArray(100'000, ']'), unreadable);
        row("one bad record among good ones", '[' + solo + ",[]," + solo + ']', unreadable);
        for (const char* const member : {"id", "gameMode", "playerName", "elapsedSeconds",
                                         "failedAttempts", "amountCards", "amountRounds"}) {
            const QByteArray quoted = QByteArray("\"").append(member).append('"');
            QTest::addRow("without %s", member) << fileWith(quoted, "\"x\"") << unreadable;
            QTest::addRow("null as %s", member) << fileAnd(quoted + ":null") << unreadable;
            QTest::addRow("a list as %s", member) << fileAnd(quoted + ":[1]") << unreadable;
        }
        row("a number as a name", fileWith("\"Anna\"", "7"), unreadable);
        row("a text as a number", fileWith("67", "\"67\""), unreadable);
        row("a truth value as a number", fileWith("67", "true"), unreadable);
        row("an optional name of another type", fileAnd(R"("winnerName":7)"), unreadable);
        row("an optional number of another type", fileAnd(R"("firstPlayerScore":"7")"), unreadable);

        row("empty list", " [ ]\n", 0);
        row("byte-order mark", "\xef\xbb\xbf" + one, 1);
        row("null in all that is optional",
            fileAnd(R"("secondPlayerName":null,"winnerName":null,)"
                    R"("firstPlayerScore":null,"secondPlayerScore":null)"),
            1);
        row("unknown members", fileAnd(R"("Id":1,"date":{"a":[null]})"), 1);
        row("an unknown member nested 100,000 deep",
            fileAnd("\"x\":" + QByteArray(100'000, '[') + QByteArray(100'000, ']')), 1);
        row("an unknown game mode", fileWith("solo", "chess"), 1);
        row("two records of one id", '[' + solo + ',' + solo + ']', 2);
        row("20,000 records", '[' + (solo + ",\n").repeated(19'999) + solo + ']', 20'000);
    }

    void readsAllOrNothing()
    {
        QFETCH(const QByteArray, json);
        writeFile(highscoreFile(), json);
        const auto entries = readHighscores(highscoreFile()).entries;
        QTEST(entries ? static_cast<int>(entries->size()) : unreadable, "count");
    }

    void wholeNumbersWithin64Bits_data()
    {
        QTest::addColumn<QByteArray>("json");
        QTest::addColumn<qint64>("number");
        QTest::addColumn<bool>("isWhole");
        const auto row = [](const char* json, qint64 number, bool isWhole = true) {
            QTest::newRow(json) << QByteArray(json) << number << isWhole;
        };
        for (const char* const json :
             {"1.5", "-0.1", "1e-1", "9223372036854775808", "18446744073709551615", "1e19", "1e400",
              "-9223372036854777856", "-1e19", "01", "+1", "0x1", "NaN"})
            row(json, 0, false);
        row("-0", 0);
        row("1.0", 1);
        row("1e3", 1000);
        row("1500e-2", 15);
        row("9007199254740993", 9007199254740993);
        row("9223372036854775807", INT64_MAX);
        row("-9223372036854775808", INT64_MIN);
    }

    void wholeNumbersWithin64Bits()
    {
        QFETCH(const QByteArray, json);
        QFETCH(const qint64, number);
        QFETCH(const bool, isWhole);
        const auto required = decodeHighscores(fileWith("67", json));
        const auto optional = decodeHighscores(fileAnd("\"firstPlayerScore\":" + json));
        QCOMPARE(required.has_value(), isWhole);
        QCOMPARE(optional.has_value(), isWhole);
        if (isWhole) {
            QCOMPARE(required->front().elapsedSeconds, number);
            QCOMPARE(optional->front().firstPlayerScore, std::optional<std::int64_t>(number));
        }
    }

    void idsAre36Characters()
    {
        const QByteArray good = "0E984725-C51C-4BF4-9960-E1C80E27ABA0";
        const auto idFrom = [&good](const QByteArray& id) {
            const auto entries = decodeHighscores(fileWith(good, id));
            return entries ? std::optional(entries->front().id) : std::nullopt;
        };
        for (const QByteArray& bad :
             {QByteArray(), '{' + good + '}', '{' + good.chopped(2) + '}', good.chopped(1),
              good + '0', good.chopped(1) + ' ', good.chopped(1) + 'g', good.chopped(1) + "\uff10",
              QByteArray("0E9847250C51C-4BF4-9960-E1C80E27ABA0")})
            QVERIFY2(!idFrom(bad), bad);
        QCOMPARE(idFrom(good), std::optional(QUuid(QString::fromLatin1(good))));
        QCOMPARE(idFrom(good.toLower()), idFrom(good));
        QCOMPARE(idFrom("00000000-0000-0000-0000-000000000000"), std::optional(QUuid()));
    }

    void textsAreStrictUtf8_data()
    {
        QTest::addColumn<QByteArray>("json");
        QTest::addColumn<QString>("name"); // null: unreadable
        const auto row = [](const char* name, const QByteArray& json, const QString& text = {}) {
            QTest::newRow(name) << json << text;
        };
        row("a stray byte", "Anna\xff");
        row("an overlong form", "\xc0\x80");
        row("an encoded surrogate", "\xed\xa0\x80");
        row("a character cut short", "\xe2\x82");
        row("a leading surrogate alone", "\\ud83dx");
        row("a trailing surrogate alone", "\\ude00");
        row("two leading surrogates", "\\ud83d\\ud83d");
        row("an unknown escape", "\\x41");
        row("a line break", "An\nna");
        row("a NUL", QByteArray("An\0na", 5));
        row("the last of equal members holds", "Ben\",\"playerName\":\"Cleo", u"Cleo"_s);
        row("escapes", R"(\"\\\/\n\u0041)", u"\"\\/\nA"_s);
        row("an escaped NUL", R"(\u0000)", QString(QChar::Null));
        row("a pair of surrogates", R"(\uD83D\ude00)", u"😀"_s);
        row("beyond ASCII", "Zoë 日本 😀", u"Zoë 日本 😀"_s);
        row("5 MB", QByteArray(5'000'000, 'x'), QString(5'000'000, u'x'));
    }

    void textsAreStrictUtf8()
    {
        QFETCH(const QByteArray, json);
        QFETCH(const QString, name);
        const auto entries = decodeHighscores(fileWith("Anna", json));
        QCOMPARE(entries.has_value(), !name.isNull());
        if (entries)
            QVERIFY(entries->front().playerName == name); // no comparison prints 5 MB
    }

    void writesMembersInOrderAndLeavesAbsentOnesOut()
    {
        HighscoreEntry entry;
        entry.id = QUuid(u"{0e984725-c51c-4bf4-9960-e1c80e27aba0}"_s);
        entry.gameMode = u"solo"_s;
        entry.playerName = u"Zoë \"Z\"\n"_s;
        entry.elapsedSeconds = INT64_MAX;
        entry.failedAttempts = INT64_MIN;
        entry.amountCards = 1;
        entry.amountRounds = 2;
        HighscoreEntry won = entry;
        won.gameMode = u"versus"_s;
        won.secondPlayerName = u""_s;
        won.winnerName = u"😀"_s;
        won.firstPlayerScore = 5;
        won.secondPlayerScore = 4;

        // With apostrophes for quotation marks.
        const QByteArray expected =
            QByteArray("[\n"
                       "    {\n"
                       "        'id': '0E984725-C51C-4BF4-9960-E1C80E27ABA0',\n"
                       "        'gameMode': 'solo',\n"
                       "        'playerName': 'Zoë \\'Z\\'\\n',\n"
                       "        'elapsedSeconds': 9223372036854775807,\n"
                       "        'failedAttempts': -9223372036854775808,\n"
                       "        'amountCards': 1,\n"
                       "        'amountRounds': 2\n"
                       "    },\n"
                       "    {\n"
                       "        'id': '0E984725-C51C-4BF4-9960-E1C80E27ABA0',\n"
                       "        'gameMode': 'versus',\n"
                       "        'playerName': 'Zoë \\'Z\\'\\n',\n"
                       "        'secondPlayerName': '',\n"
                       "        'winnerName': '😀',\n"
                       "        'elapsedSeconds': 9223372036854775807,\n"
                       "        'failedAttempts': -9223372036854775808,\n"
                       "        'firstPlayerScore': 5,\n"
                       "        'secondPlayerScore': 4,\n"
                       "        'amountCards': 1,\n"
                       "        'amountRounds': 2\n"
                       "    }\n"
                       "]\n")
                .replace('\'', '"');
        QVERIFY(writeHighscores(highscoreFile(), {entry, won}));
        QCOMPARE(contentsOf(highscoreFile()), expected);
        const auto reread = readHighscores(highscoreFile()).entries;
        QVERIFY(reread && !reread->front().secondPlayerName);
        QCOMPARE(reread->front().playerName, entry.playerName);
        QCOMPARE(encodeHighscores(*reread), expected);
        won.winnerName.reset(); // a draw
        QVERIFY(!encodeHighscores({won}).contains("winnerName"));
        QCOMPARE(encodeHighscores({}), QByteArray("[]\n"));
    }

    void theFolderIsMadeOnUse()
    {
        QVERIFY(!readHighscores(highscoreFolder() + u"/none.json"_s).entries);
        QCOMPARE(highscoreFolder(), m_home->filePath(u"not/yet/Paircade"_s));
        QCOMPARE(highscoreFile(), highscoreFolder() + u"/highscores.json"_s);
        QVERIFY(QDir(highscoreFolder()).exists());
        QVERIFY(!readHighscores(highscoreFile()).entries);
        QVERIFY(!readHighscores(QString()).entries && !writeHighscores(QString(), {}));
    }

    void whereNothingCanBeWrittenNothingIs()
    {
        // In the way stand: a file for the user's folder, one for ours, a folder.
        for (const QString& file : {u"not"_s, u"not/yet/Paircade"_s}) {
            init();
            QDir().mkpath(QFileInfo(m_home->filePath(file)).path());
            writeFile(m_home->filePath(file), "mine");
            QVERIFY(!readHighscores(highscoreFile()).entries);
            QVERIFY(!writeHighscores(highscoreFile(), {HighscoreEntry{}}));
            QCOMPARE(contentsOf(m_home->filePath(file)), QByteArray("mine"));
        }
        init();
        QDir().mkpath(highscoreFile() + u"/inside"_s);
        QVERIFY(!readHighscores(highscoreFile()).entries);
        QVERIFY(!writeHighscores(highscoreFile(), {HighscoreEntry{}}));
        QVERIFY(QDir(highscoreFile() + u"/inside"_s).exists());
    }

    void theFileIsReplacedInOneStep()
    {
        const QByteArray old = '[' + solo + ']';
        writeFile(highscoreFile(), old);
        // Whoever has opened the old file reads it to its end.
        QFile reader(highscoreFile());
        QVERIFY(reader.open(QIODevice::ReadOnly));

        QVERIFY(writeHighscores(highscoreFile(), HighscoreEntries(10'000)));
        QCOMPARE(readHighscores(highscoreFile()).entries->size(), std::size_t{10'000});
        QCOMPARE(reader.readAll(), old);
        QCOMPARE(QDir(highscoreFolder()).entryList(QDir::Files | QDir::Hidden).size(), 1);
    }

    void wantOfMemoryHandlesOrADiskIsNoFaultOfTheFile()
    {
        QVERIFY(!readHighscores(highscoreFile()).mustStay);
        writeFile(highscoreFile(), "{");
        QVERIFY(!readHighscores(highscoreFile()).mustStay);

        // Half as much as the file is long, and it is no list of results.
        constexpr qint64 length = qint64{300} << 20;
        QVERIFY(QFile::resize(highscoreFile(), length));
        rlimit before{};
        ::getrlimit(RLIMIT_AS, &before);
        const auto used = contentsOf(u"/proc/self/statm"_s).split(' ')[0].toULongLong() *
                          static_cast<rlim_t>(::sysconf(_SC_PAGESIZE));
        const rlimit little{used + length / 2, before.rlim_max};
        ::setrlimit(RLIMIT_AS, &little);
        const StoredHighscores stored = readHighscores(highscoreFile());
        ::setrlimit(RLIMIT_AS, &before);
        QVERIFY(stored.mustStay && !stored.entries);
        QVERIFY(!readHighscores(highscoreFile()).mustStay);

        QVERIFY(readHighscores(u"/proc/self/mem"_s).mustStay); // can be opened, not read
        ::getrlimit(RLIMIT_NOFILE, &before);
        const rlimit none{0, before.rlim_max};
        ::setrlimit(RLIMIT_NOFILE, &none);
        const bool mustStay = readHighscores(highscoreFile()).mustStay;
        ::setrlimit(RLIMIT_NOFILE, &before);
        QVERIFY(mustStay);
    }

private:
    std::unique_ptr<QTemporaryDir> m_home{};
};

QTEST_GUILESS_MAIN(HighscoreFileTest)
#include "highscore_file_test.moc"
