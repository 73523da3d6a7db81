// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "highscores/highscore_file.h"
#include "stage/files.h"
#include "support/broken_world.h"
#include "support/rows.h"

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>
#include <map>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

using Number = std::optional<std::int64_t>;
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
        m_home.emplace();
        qputenv("XDG_DATA_HOME", QFile::encodeName(m_home->filePath(u"not/yet"_s)));
    }

    void readsAllOrNothing_data()
    {
        const Rows<QByteArray, int> row{"json", "count"};
        const QByteArray one = '[' + solo + ']';
        row("empty", "", unreadable);
        row("cut short", one.chopped(1), unreadable);
        row("something after the end", one + ",", unreadable);
        row("a NUL after the end", one + QByteArray(1, '\0'), unreadable);
        row("an object", solo, unreadable);
        row("null", "null", unreadable);
        row("a million empty records", "[{}" + QByteArray(",{}").repeated(1'000'000) + ']',
            unreadable);
        row("nested 100,000 deep", QByteArray(100'000, '[') + QByteArray(100'000, ']'), unreadable);
        row("one empty record among good ones", '[' + solo + ",{}," + solo + ']', unreadable);
        for (const QByteArray member : {"id", "gameMode", "playerName", "elapsedSeconds",
                                        "failedAttempts", "amountCards", "amountRounds"}) {
            row("without " + member, fileWith('"' + member + '"', "\"x\""), unreadable);
            for (const QByteArray value : {"null", "[1]"})
                row(value + " as " + member, fileAnd('"' + member + "\":" + value), unreadable);
        }
        row("a truth value as a number", fileWith("67", "true"), unreadable);
        row("an optional name of another type", fileAnd(R"("winnerName":7)"), unreadable);
        row("an optional number of another type", fileAnd(R"("firstPlayerScore":"7")"), unreadable);
        row("a byte that is not UTF-8", fileWith("Anna", "Anna\xff"), unreadable);
        row("half of a surrogate pair", fileWith("Anna", R"(\ud83dx)"), unreadable);
        row("a line break in a name", fileWith("Anna", "An\nna"), unreadable);

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

    void numbersAreWholeAndWithin64Bits()
    {
        std::map<QByteArray, Number> numbers{{"-0", 0},
                                             {"1500e-2", 15},
                                             {"9007199254740993", 9007199254740993},
                                             {"9223372036854775807", INT64_MAX},
                                             {"-9223372036854775808", INT64_MIN}};
        for (const char* const bad :
             {"1.5", "1e-1", "9223372036854775808", "18446744073709551615", "9223372036854775808.0",
              "1e400", "-9223372036854777856", "-1e19"})
            numbers[bad].reset();
        for (const auto& [json, number] : numbers) {
            const auto required = decodeHighscores(fileWith("67", json));
            const auto optional = decodeHighscores(fileAnd("\"firstPlayerScore\":" + json));
            QVERIFY2((required ? Number(required->front().elapsedSeconds) : Number()) == number,
                     json);
            QVERIFY2((optional ? optional->front().firstPlayerScore : Number()) == number, json);
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
             {'{' + good + '}', '{' + good.chopped(2) + '}', good.chopped(1), good + '0',
              good.chopped(1) + 'g', good.chopped(1) + 'G', "0E9847250C51" + good.mid(12)})
            QVERIFY2(!idFrom(bad), bad);
        QCOMPARE(idFrom(good), std::optional(QUuid(QString::fromLatin1(good))));
        QCOMPARE(idFrom(good.toLower()), idFrom(good));
    }

    void textsAreTakenLetterByLetter()
    {
        const std::map<QByteArray, QString> texts{
            {R"(Ben","playerName":"Cleo)", u"Cleo"_s}, // the last of equal members holds
            {R"(\"\\\/\n\u0041\u0000)", u"\"\\/\nA"_s + QChar::Null},
            {R"(\uD83D\ude00)", u"😀"_s},
            {"Zoë 日本 😀", u"Zoë 日本 😀"_s},
            {QByteArray(5'000'000, 'x'), QString(5'000'000, u'x')},
        };
        for (const auto& [json, text] : texts) {
            const auto entries = decodeHighscores(fileWith("Anna", json));
            QVERIFY2(entries && entries->front().playerName == text, json.left(20));
        }
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
        QVERIFY(writeHighscores(highscoreFile(), {entry}));
        QCOMPARE(contentsOf(highscoreFile()), expected);
        QCOMPARE(encodeHighscores(*readHighscores(highscoreFile()).entries), expected);
        // Half of a pair, which UTF-8 cannot hold.
        const QByteArray least = encodeHighscores({{.playerName = QChar(0xd83d)}});
        QCOMPARE(least.count(':'), 7);
        QCOMPARE(decodeHighscores(least)->front().playerName, u"?"_s);
        QCOMPARE(encodeHighscores({}), QByteArray("[]\n"));
        // A file that is written anew leaves nothing beside it.
        QVERIFY(writeHighscores(highscoreFile(), {}));
        QCOMPARE(QDir(highscoreFolder()).entryList(QDir::Files | QDir::Hidden).size(), 1);
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
        // In the way stand: a file for the user's folder, one for ours, a folder for the file.
        for (const QString& file :
             {u"not"_s, u"not/yet/Paircade"_s, u"not/yet/Paircade/highscores.json/inside"_s}) {
            init();
            QDir().mkpath(QFileInfo(m_home->filePath(file)).path());
            writeFile(m_home->filePath(file), "mine");
            QVERIFY(!readHighscores(highscoreFile()).entries);
            QVERIFY(!writeHighscores(highscoreFile(), {HighscoreEntry{}}));
            QCOMPARE(contentsOf(m_home->filePath(file)), QByteArray("mine"));
        }
    }

    void wantOfMemoryHandlesOrADiskIsNoFaultOfTheFile()
    {
        QVERIFY(!readHighscores(highscoreFile()).mustStay);
        writeFile(highscoreFile(), "{");
        QVERIFY(!readHighscores(highscoreFile()).mustStay);

        // Half as much as the file is long, and it is no list of results.
        constexpr qint64 length = qint64{300} << 20;
        QVERIFY(QFile::resize(highscoreFile(), length));
        const auto used = contentsOf(u"/proc/self/statm"_s).split(' ')[0].toULongLong() *
                          static_cast<rlim_t>(::sysconf(_SC_PAGESIZE));
        std::optional<Limit> limit(std::in_place, RLIMIT_AS, used + length / 2);
        const StoredHighscores stored = readHighscores(highscoreFile());
        limit.reset();
        QVERIFY(stored.mustStay && !stored.entries);
        QVERIFY(!readHighscores(highscoreFile()).mustStay);
        QVERIFY(readHighscores(u"/proc/self/mem"_s).mustStay); // can be opened, not read
        limit.emplace(RLIMIT_NOFILE, 0);
        const bool mustStay = readHighscores(highscoreFile()).mustStay;
        limit.reset();
        QVERIFY(mustStay);
    }

private:
    std::optional<QTemporaryDir> m_home{};
};

QTEST_GUILESS_MAIN(HighscoreFileTest)
#include "highscore_file_test.moc"
