// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "decks/bundle_deck.h"
#include "decks/deck_name.h"
#include "platform/application_bundle.h"
#include "platform/user_defaults.h"
#include "stage/files.h"
#include "support/output_of.h"

#include <QDir>
#include <QLocale>
#include <QTemporaryDir>
#include <QTest>
#include <filesystem>
#include <map>

using namespace Qt::StringLiterals;

namespace {

/// Saves a picture `width` pixels wide, of the kind that its name tells or else PNG.
void writePicture(const QString& path, int width = 3, const char* kind = nullptr)
{
    QImage image(width, 2, QImage::Format_RGB32);
    image.fill(Qt::red);
    if (!image.save(path, kind) && !image.save(path, "PNG"))
        qFatal("the test cannot write its picture");
}

} // namespace

/// Reads decks from real folders, in a bundle at HOME/share/paircade.
class BundleDeckTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        QLocale::setDefault(QLocale(QLocale::German)); // sorts Ä beside A, unlike their codes
        m_home.emplace();
        m_bundle = m_home->filePath(u"share/paircade"_s);
        m_deck = m_bundle + u"/Cards/Kids/"_s;
        QDir().mkpath(m_deck);
    }

    void aDeckThatCannotBeListedIsLoggedInOneLine()
    {
        writePicture(m_bundle + u"/Cards/file.png"_s);
        const QString cards =
            u"Ordnerinhalt konnte nicht gelesen werden: %1/Cards/"_s.arg(m_bundle);
        const QString nul = u"Kids"_s + QChar::Null + u"x"_s; // part of the name
        const std::map<QString, QString> lines{
            {QString(), u"CardDeck ist leer"_s},
            {u"Unknown"_s, cards + u"Unknown"_s},
            {u"file.png"_s, cards + u"file.png"_s},
            {u"a\nb\r%s"_s, cards + u"a\\nb\\r%s"_s},
            {nul, cards + nul},
        };
        for (const auto& [deck, line] : lines) {
            const QByteArray output =
                outputOf([&, &deck = deck] { QCOMPARE(load(deck), QString()); });
            QCOMPARE(output, line.toUtf8() + '\n');
        }
        m_bundle = m_home->filePath(u"nowhere"_s);
        const QByteArray output = outputOf([&] { load(); });
        QCOMPARE(output, QByteArray("Bundle-Ordner Cards/Kids nicht gefunden\n"));
    }

    void badFilesAreLeftOutWithoutAWord()
    {
        writePicture(m_deck + u"good.png"_s);
        writeFile(m_deck + u"empty.png"_s, "");
        writeFile(m_deck + u"garbage.jpg"_s, QByteArray(5000, '\xff'));
        writeFile(m_deck + u"cut.png"_s, "\x89PNG\r\n\x1a\n");
        writePicture(m_deck + u"other.png"_s, 3, "BMP");
        for (const QString& name : {u".hidden.png"_s, u"e.png.txt"_s, u"png"_s, u"picture.gif"_s})
            writePicture(m_deck + name);
        QDir(m_deck).mkdir(u"x.png"_s);
        writePicture(m_deck + u"x.png/inside.png"_s);
        QFile::link(u"nowhere.png"_s, m_deck + u"dangling.png"_s);
        QString names;
        QCOMPARE(outputOf([&] { names = load(); }), QByteArray());
        QCOMPARE(names, u"good"_s);
    }

    void picturesComeInOrderOfTheirNames()
    {
        // By content: a picture of the one kind may bear the name of the other.
        writePicture(m_deck + u"e.png"_s, 3, "JPG");
        for (const QString& file : {u"b.png"_s, u"A.jpg"_s, u"c.JPEG"_s, u"D.PNG"_s, u"c.d.Jpg"_s,
                                    u"9.png"_s, u"10.png"_s, u"Ä.png"_s})
            writePicture(m_deck + file);
        QCOMPARE(load(), u"10 9 A Ä b c.d c D e"_s);
    }

    void namesThatCompareEqualKeepTheOrderOfTheListing()
    {
        // More than a sort that is not stable happens to leave in order.
        for (int upper = 0; upper < 64; ++upper) {
            QString name = u"abcdef.png"_s;
            for (int i = 0; i < 6; ++i)
                name[i] = upper >> i & 1 ? name[i].toUpper() : name[i];
            writePicture(m_deck + name);
        }
        QStringList listed;
        for (const auto& entry : std::filesystem::directory_iterator(m_deck.toStdString()))
            listed << QString::fromStdString(entry.path().stem().string());
        QCOMPARE(load(), listed.join(u' '));
    }

    void aNameNeedNotBeUtf8()
    {
        writePicture(m_deck + u"b.png"_s);
        writePicture(m_deck + u"c.png"_s);
        const std::filesystem::path deck(m_deck.toStdString());
        std::filesystem::rename(deck / "b.png", deck / "b\xff\xe4.png");
        const QString names = load();
        std::filesystem::remove_all(deck); // QTemporaryDir cannot
        QCOMPARE(names, u"b\ufffd\ufffd c"_s);
    }

    void aLinkCountsByItsOwnName()
    {
        writePicture(m_home->filePath(u"far.dat"_s), 7);
        writePicture(m_deck + u"b.png"_s, 5);
        QFile::link(m_home->filePath(u"far.dat"_s), m_deck + u"a.png"_s);
        QFile::link(m_deck + u"b.png"_s, m_deck + u"c.txt"_s);
        QCOMPARE(load(), u"a b"_s);
        const auto pictures = loadBundleDeck(ApplicationBundle(m_bundle), u"Kids"_s);
        QCOMPARE((QList{pictures[0].image.width(), pictures[1].image.width()}), (QList{7, 5}));
    }

    void aDeckNameIsAPath()
    {
        for (const QString& folder : {m_deck + u"more"_s, m_home->filePath(u"share/etc"_s)}) {
            QDir().mkpath(folder);
            writePicture(folder + u"/deep.png"_s);
        }
        for (const QString& deck : {u"Kids/more"_s, u"../../etc"_s, u"Kids/../Kids/more/"_s})
            QCOMPARE(load(deck), u"deep"_s);
    }

    void deckNames()
    {
        QCOMPARE(storedDeckName(UserDefaults(m_home->filePath(u"Paircade.conf"_s))),
                 u"Cyberpunk"_s);
        for (const QString& deck :
             {u"Kids"_s, u"iPhoto"_s, u"iPhoto: \t"_s, u"iPhoto:Rome"_s, u"iphoto: Rome"_s})
            QVERIFY2(!photoAlbumTitle(deck), qPrintable(deck));
        QCOMPARE(photoAlbumTitle(u"iPhoto:   My  Trip"_s), std::optional(u"My  Trip"_s));
    }

private:
    /// The names of the pictures, in their order.
    QString load(const QString& deck = u"Kids"_s) const
    {
        QStringList names;
        for (const CardPicture& picture : loadBundleDeck(ApplicationBundle(m_bundle), deck))
            names << picture.name;
        return names.join(u' ');
    }

    std::optional<QTemporaryDir> m_home{};
    QString m_bundle{};
    QString m_deck{};
};

QTEST_GUILESS_MAIN(BundleDeckTest)
#include "bundle_deck_test.moc"
