// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/user_defaults.h"
#include "platform/workspace.h"
#include "settings/default_settings.h"
#include "stage/files.h"
#include "support/rows.h"

#include <QDesktopServices>
#include <QLocale>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QUrl>
#include <map>

using namespace Qt::StringLiterals;

namespace {

constexpr QLatin1String key{"Key"};
constexpr QLatin1String deckKey{"Deck"};

} // namespace

class PlatformTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany)); // has a comma in numbers
    }

    void init()
    {
        m_home.emplace();
        m_file = m_home->filePath(u"Paircade.conf"_s);
    }

    void readsWhateverTheFileHolds_data()
    {
        const Rows<qint64, double, QString> row{"integer", "floating", "string"};
        row("", 0, 0, u""_s);
        row("70s", 0, 0, u"70s"_s);
        row("nan", 0, 0, u"nan"_s);
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
        QCOMPARE(contentsOf(nested), "[General]\nKey=-9223372036854775808\n");
        QCOMPARE(defaults.integer(key), INT64_MIN);
        defaults.setString(deckKey, deck);
        QCOMPARE(defaults.string(deckKey), std::optional(deck));
        // Elsewhere, since QSettings shares what it keeps of one path among all its objects.
        QVERIFY(QFile::copy(nested, m_file));
        QCOMPARE(UserDefaults(m_file).string(deckKey), std::optional(deck));
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
        QCOMPARE(contentsOf(m_file), "[General]\nDeck=Kids\nKey=5\n");
        QFile::remove(m_file);
        defaults.reread();
        QVERIFY(!defaults.contains(key));
    }

    void whatCannotBeStoredHoldsUntilItCan()
    {
        writeFile(m_file, "[General]\nKey=1\n");
        QVERIFY(QFile::link(u"nowhere"_s, m_file + u".lock"_s)); // which nobody holds
        UserDefaults defaults(m_file);
        defaults.setInteger(key, 2);
        defaults.reread();
        QCOMPARE(defaults.integer(key), 2);
        QCOMPARE(contentsOf(m_file), "[General]\nKey=1\n");
        QVERIFY(QFile::remove(m_file + u".lock"_s));
        defaults.setString(deckKey, u"Kids"_s);
        QCOMPARE(contentsOf(m_file), "[General]\nDeck=Kids\nKey=2\n");
    }

    void defaultsFillGapsOnly()
    {
        // Chosen values, 0 among them, stay, and so do unusable ones and others' keys.
        const std::map<QByteArray, QByteArray> files{
            {"", "AmountCards=1\nAmountRounds=1\nCardDeck=Cyberpunk\nLaunchInFullscreen=0\n"
                 "PaircadeAlbum=0\nPlaySounds=1\nRemoveMatch=0\nVolumeSound=50\n"},
            {"AmountCards=9\nAmountRounds=many\nCardDeck=\nGameIsActive=1\nPlaySounds=0\n",
             "AmountCards=9\nAmountRounds=many\nCardDeck=\nGameIsActive=1\nLaunchInFullscreen=0\n"
             "PaircadeAlbum=0\nPlaySounds=0\nRemoveMatch=0\nVolumeSound=50\n"}};
        for (const auto& [before, after] : files) {
            writeFile(m_file, "[General]\n" + before);
            UserDefaults defaults(m_file);
            QByteArray firstWrite;
            connect(&defaults, &UserDefaults::written, this,
                    [&] { firstWrite = firstWrite.isEmpty() ? contentsOf(m_file) : firstWrite; });
            createDefaultSettings(defaults);
            QCOMPARE(contentsOf(m_file), "[General]\n" + after);
            QCOMPARE(firstWrite, contentsOf(m_file)); // and the only one
        }
    }

    void aFileIsOpenedByItsPath()
    {
        QDesktopServices::setUrlHandler(u"file"_s, this, "noteUrl");
        const QString path = m_home->filePath(u"Zoë's #1 100%.html"_s);
        Workspace().openFile(path);
        QDesktopServices::unsetUrlHandler(u"file"_s);
        QCOMPARE(m_opened.toLocalFile(), path);
    }

public Q_SLOTS:
    void noteUrl(const QUrl& url) { m_opened = url; }

private:
    QUrl m_opened{};
    std::optional<QTemporaryDir> m_home{};
    QString m_file{};
};

QTEST_GUILESS_MAIN(PlatformTest)
#include "platform_test.moc"
