// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/application_bundle.h"
#include "platform/clock_text.h"
#include "platform/format_text.h"
#include "platform/notification_center.h"
#include "platform/trim.h"
#include "platform/user_defaults.h"
#include "settings/default_settings.h"
#include "stage/files.h"
#include "support/rows.h"

#include <QDir>
#include <QLocale>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <map>

using namespace Qt::StringLiterals;

namespace {

constexpr QLatin1String key{"Key"};
constexpr QLatin1String deckKey{"Deck"};

/// What a program of its own would find in the settings file `path`: QSettings
/// shares what it keeps of one path among all its objects.
std::map<QString, QString> stored(const QString& path)
{
    const QTemporaryDir elsewhere;
    const QString copy = elsewhere.filePath(u"copy.conf"_s);
    QFile::copy(path, copy);
    const QSettings settings(copy, QSettings::IniFormat);
    std::map<QString, QString> values;
    for (const QString& name : settings.allKeys())
        values[name] = settings.value(name).toString();
    return values;
}

} // namespace

class PlatformTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany)); // groups digits
    }

    void init()
    {
        m_home.emplace();
        m_file = m_home->filePath(u"Paircade.conf"_s);
    }

    void fillsFormatsInOnePass()
    {
        const std::map<QString, QString> filled{
            {u"%4 and %9"_s, u"%4 and %9"_s}, // no argument
            {u"%0 %1"_s, u"%0 %2"_s},
            {u"100 %"_s, u"100 %"_s},
            {u"%% %%1"_s, u"%% %%2"_s}, // no escape
            {u"%1 has %2"_s, u"%2 has -1234567"_s},
            {u"%3%2%1%3"_s, u"c%d-1234567%2c%d"_s},
            {u"%12"_s, u"%22"_s}, // one digit makes a place
            {u"„%2“ – 日本"_s, u"„-1234567“ – 日本"_s},
        };
        for (const auto& [format, text] : filled)
            QCOMPARE(fillFormat(format, {u"%2"_s, -1234567, u"c%d"_s}), text);
    }

    void trimsWhiteSpaceAtTheEndsOnly()
    {
        const QString inner = u"a \t\u00a0\n b"_s;
        for (const QChar c :
             u"\t\n\v\f\r \u0085\u00a0\u1680\u2000\u2001\u2002\u2003\u2004\u2005\u2006"
             u"\u2007\u2008\u2009\u200a\u2028\u2029\u202f\u205f\u3000"_s) {
            QCOMPARE(trimmedText(QString(3, c) + inner + c), inner);
            QCOMPARE(trimmedText(QString(3, c)), QString());
        }
        for (const QChar c : u"\0\u001f\u180e\u200b\u2060\ufeff"_s)
            QCOMPARE(trimmedText(c + inner + c), c + inner + c);
    }

    void clockTextHasTwoDigitsAtLeast()
    {
        const QStringList texts{clockText(INT64_MIN), clockText(59), clockText(60), clockText(6000),
                                clockText(INT64_MAX)};
        QCOMPARE(texts.join(u' '),
                 u"-153722867280912930:-8 00:59 01:00 100:00 153722867280912930:07"_s);
    }

    void readsWhateverTheFileHolds_data()
    {
        const Rows<qint64, double, QString> row{"integer", "floating", "string"};
        row("", 0, 0, u""_s);
        row("@Invalid()", 0, 0, u""_s);
        row("70s", 0, 0, u"70s"_s);
        row("nan", 0, 0, u"nan"_s);
        row("-inf", 0, 0, u"-inf"_s);
        row("5, 6", 0, 0, u"5, 6"_s);
        row("\"iPhoto: Rome,2019\"", 0, 0, u"iPhoto: Rome,2019"_s);
        row("\" 7\\n\"", 7, 7, u" 7\n"_s);
        row("-1.5", -1, -1.5, u"-1.5"_s);
        row("1e3", 1000, 1000, u"1e3"_s);
        row("9007199254740993", 9007199254740993, 9007199254740992.0, u"9007199254740993"_s);
        row("9223372036854775807", INT64_MAX, 0x1p63, u"9223372036854775807"_s);
        row("-99999999999999999999", INT64_MIN, -1e20, u"-99999999999999999999"_s);
    }

    void readsWhateverTheFileHolds()
    {
        const QByteArray value = QTest::currentDataTag();
        writeFile(m_file, "[Other]\nMissing=7\n[General]\nKey=" + value + "\n");
        const UserDefaults defaults(m_file);
        QTEST(qint64{defaults.integer(key)}, "integer");
        QTEST(defaults.floating(key), "floating");
        QTEST(defaults.string(key).value_or(u"none"_s), "string");
        QVERIFY(defaults.contains(key));

        constexpr QLatin1String missing{"Missing"};
        QVERIFY(!defaults.contains(missing) && !defaults.string(missing));
        QCOMPARE(defaults.integer(missing), 0);
        QCOMPARE(defaults.floating(missing), 0.0);
    }

    void everyWriteIsInTheFileAtOnceAndAnnounced()
    {
        const QString nested = m_home->filePath(u"not/there/yet/Paircade.conf"_s);
        UserDefaults defaults(nested);
        QSignalSpy written(&defaults, &UserDefaults::written);
        const QString deck = u" Käfer, \"\\%\n"_s;
        defaults.setInteger(key, INT64_MIN);
        QCOMPARE(stored(nested)[key], QString::number(INT64_MIN));
        QCOMPARE(defaults.integer(key), INT64_MIN);
        defaults.setString(deckKey, deck);
        QCOMPARE(stored(nested)[deckKey], deck);
        QCOMPARE(defaults.string(deckKey), std::optional(deck));
        defaults.setInteger(key, 50);
        defaults.setInteger(key, 50);
        QCOMPARE(defaults.floating(key), 50.0);
        defaults.reread();
        QCOMPARE(written.count(), 4);
        QCOMPARE(written.at(1).at(0).toString(), QString(deckKey));
    }

    void rereadingTakesOverWhatOthersWrote()
    {
        UserDefaults defaults(m_file);
        defaults.setInteger(key, 1);
        writeFile(m_file, "[General]\nKey=1234\nDeck=Kids\n");
        defaults.reread();
        QCOMPARE(defaults.integer(key), 1234);
        defaults.setInteger(key, 5);
        QCOMPARE(stored(m_file)[u"Deck"_s], u"Kids"_s);
        QFile::remove(m_file);
        defaults.reread();
        QVERIFY(!defaults.contains(key));
    }

    void withoutAFolderValuesLiveInTheProcess()
    {
        writeFile(m_home->filePath(u"file"_s), "not a folder");
        UserDefaults defaults(m_home->filePath(u"file/Paircade.conf"_s));
        defaults.setInteger(key, 4);
        defaults.reread();
        QCOMPARE(defaults.integer(key), 4);
    }

    void aLockThatCannotBeHadIsNotWaitedFor()
    {
        writeFile(m_file, "[General]\nKey=1\n");
        QVERIFY(QFile::link(u"nowhere"_s, m_file + u".lock"_s));
        UserDefaults defaults(m_file);
        QCOMPARE(defaults.integer(key), 1);
        defaults.setInteger(key, 2);
        QCOMPARE(defaults.integer(key), 2);
        QCOMPARE(stored(m_file)[u"Key"_s], u"1"_s);
        // Once it is gone, the next write stores what has waited.
        QVERIFY(QFile::remove(m_file + u".lock"_s));
        defaults.setString(QLatin1String("Deck"), u"Kids"_s);
        QCOMPARE(stored(m_file)[u"Key"_s], u"2"_s);
    }

    void defaultsFillGapsOnly()
    {
        const std::map<QString, QString> defaultValues{
            {u"PlaySounds"_s, u"1"_s},         {u"VolumeSound"_s, u"50"_s},
            {u"LaunchInFullscreen"_s, u"0"_s}, {u"AmountCards"_s, u"1"_s},
            {u"RemoveMatch"_s, u"0"_s},        {u"PaircadeAlbum"_s, u"0"_s},
            {u"AmountRounds"_s, u"1"_s},       {u"CardDeck"_s, u"Cyberpunk"_s},
        };
        // Chosen values, 0 among them, stay, and so do unusable ones and others' keys.
        for (const QString& lines :
             {u""_s, u"AmountCards=4\nPlaySounds=0\nCardDeck=Kids"_s,
              u"AmountCards=9\nAmountRounds=many\nCardDeck="_s, u"GameIsActive=1"_s}) {
            auto expected = defaultValues;
            for (const QString& line : lines.split(u'\n', Qt::SkipEmptyParts))
                expected[line.section(u'=', 0, 0)] = line.section(u'=', 1);
            writeFile(m_file, "[General]\n" + lines.toUtf8() + '\n');
            UserDefaults defaults(m_file);
            createDefaultSettings(defaults);
            QCOMPARE(stored(m_file), expected);
        }
    }

    void postsAreDeliveredAtOnceInOrderToTheLiving()
    {
        NotificationCenter center;
        QByteArray log;
        QObject here;
        std::optional<QObject> leaving(std::in_place);
        center.observe(u"b"_s, &here, [&] { log += "other"; });
        center.observe(u"a"_s, &*leaving, [&] { log += '1'; });
        center.observe(u"a"_s, &here, [&] { log += '2'; });
        center.post(u"a"_s);
        center.post(u"A"_s);
        leaving.reset();
        center.post(u"a"_s);
        QCOMPARE(log, QByteArray("122"));
    }

    void bundleFindsFilesAndNothingElse()
    {
        const QString folder = m_home->filePath(u"share"_s);
        QDir().mkpath(folder + u"/Sounds/folder.mp3"_s);
        writeFile(folder + u"/logo.png"_s, "x");
        writeFile(folder + u"/Sounds/done.mp3"_s, "x");
        const ApplicationBundle bundle(folder);
        QCOMPARE(bundle.resourceFolder(), std::optional(folder));
        QCOMPARE(bundle.resource(u"logo"_s, u"png"_s), std::optional(folder + u"/logo.png"_s));
        QCOMPARE(bundle.resource(u"done"_s, u"mp3"_s, u"Sounds"_s),
                 std::optional(folder + u"/Sounds/done.mp3"_s));
        QVERIFY(!bundle.resource(u"folder"_s, u"mp3"_s, u"Sounds"_s));
        QVERIFY(!bundle.resource(u"done"_s, u"mp3"_s));
        for (const QString& none : {folder + u"/missing"_s, folder + u"/logo.png"_s, QString()})
            QVERIFY(!ApplicationBundle(none).resourceFolder());
        QVERIFY(ApplicationBundle::ofRunningProgram().resource(u"logo"_s, u"png"_s));
    }

private:
    std::optional<QTemporaryDir> m_home{};
    QString m_file{};
};

QTEST_GUILESS_MAIN(PlatformTest)
#include "platform_test.moc"
