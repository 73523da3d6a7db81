// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/termination.h"
#include "decks/photo_deck.h"
#include "platform/localized_text.h"
#include "settings/settings_keys.h"
#include "stage/play.h"
#include "stage/stage_platform.h"
#include "support/broken_world.h"
#include "support/rows.h"

#include <QElapsedTimer>
#include <QProcess>
#include <filesystem>
#include <fstream>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr int half = PhotoMessages::pictureEdge / 2;
const std::array quarters{QColor(220, 40, 40), QColor(40, 180, 60), QColor(40, 60, 220),
                          QColor(230, 220, 50)};

QColor quarterOf(const QImage& image, int quarter)
{
    return image.pixelColor(half / 2 + quarter % 2 * half, half / 2 + quarter / 2 * half);
}

/// But for what a lossy format may change.
bool isLike(const QColor& left, const QColor& right)
{
    return std::max({std::abs(left.red() - right.red()), std::abs(left.green() - right.green()),
                     std::abs(left.blue() - right.blue())}) < 24;
}

/// Writes a file whose name need not be text, in a folder that it makes.
void writeFile(const QByteArray& path, std::string_view contents = {})
{
    const std::filesystem::path file(path.toStdString());
    std::filesystem::create_directories(file.parent_path());
    std::ofstream(file) << contents;
}

QString words(const PhotoAssets& assets)
{
    return QString::fromLatin1(QByteArrayList(assets.begin(), assets.end()).join(' '));
}

} // namespace

/// Reads real files with the real helper program; and, where it says so, with one
/// whose decoders misbehave.
class PhotosTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QCOMPARE(QProcess::execute(QStringLiteral(PAIRCADE_PYTHON),
                                   {QStringLiteral(PAIRCADE_MAKE_PHOTOS), m_made.path()}),
                 0);
    }

    void cleanupTestCase() { std::filesystem::remove_all(m_made.path().toStdString()); }

    /// No process lives on.
    void cleanup() { QTRY_COMPARE(::waitpid(-1, nullptr, WNOHANG), -1); }

    void everyFormatComesUprightAndInItsColours_data()
    {
        const Rows<QString> row{"file"};
        for (const QString& file : QDir(m_made.filePath(u"good"_s)).entryList(QDir::Files))
            row(qPrintable(file), file);
    }

    void everyFormatComesUprightAndInItsColours()
    {
        QFETCH(const QString, file);
        const int alpha = file == u"glass.png"_s ? 128 : 255;
        const QImage image = fetch(m_made.filePath(u"good"_s)).image(QFile::encodeName(file));
        QCOMPARE(image.size(), QSize(2 * half, 2 * half));
        QCOMPARE(image.hasAlphaChannel(), alpha < 255);
        for (std::size_t i = 0; i < quarters.size(); ++i) {
            const QColor shown = quarterOf(image, int(i));
            QVERIFY2(isLike(shown, quarters.at(i)), qPrintable(shown.name()));
            QCOMPARE(shown.alpha(), alpha);
        }
    }

    void badFilesYieldNoPictureAndNoHarm()
    {
        PhotoFetch files = fetch(m_made.path());
        makePipe(m_made.filePath(u"bad/pipe.jpg"_s));
        QFile::link(u"/"_s, m_made.filePath(u"bad/became-a-link"_s));
        PhotoAssets paths{"good/../good/plain.jpg",
                          "bad/vanished.jpg",
                          "bad",
                          "",
                          "good/plain.jpg\0"_ba,
                          "bad/became-a-link" + QFile::encodeName(m_made.path()) +
                              "/good/plain.jpg"};
        for (const QString& file :
             QDir(m_made.filePath(u"bad"_s)).entryList(QDir::Files | QDir::System))
            paths.push_back("bad/" + QFile::encodeName(file));
        QVERIFY(paths.size() > 20);
        for (const PhotoAsset& path : paths)
            QVERIFY2(files.image(path).isNull(), path.constData());
        // The first of two is drawn by chance.
        std::size_t shown = 0;
        for (int i = 0; i < 40; ++i)
            shown += loadPhotoDeck(files, {"bad/empty.jpg", "good/plain.jpg"}, 1).size();
        QVERIFY(shown > 0 && shown < 40);
    }

    void whatIsListed()
    {
        const QString home = m_made.filePath(u"tree"_s); // its names are no longer text
        const QByteArray root = QFile::encodeName(home) + "/Pictures/";
        for (const char* const file :
             {"b.jpg", "A.PNG", "film.mp4", "notes.txt", "jpg", ".hidden.jpg", "Trip/z.JPEG",
              "Trip/y/deep.webp", "Trip/a.BMP", "Trip/.git/x.jpg", "Trip/clip.webm", "trip/h.heic",
              "Films/v.mkv", "No pictures/a.svg", " Blanks /s.gif", "\xff\xfe/\xfd.tif"})
            writeFile(root + file);
        makePipe(home + u"/Pictures/pipe.jpg"_s);
        for (const char* const link : {"Linked", "linked.jpg", "trip/linked"})
            QCOMPARE(::symlink((root + "Trip/y").constData(), (root + link).constData()), 0);
        const QString folder = home + u"/library"_s;
        QVERIFY(QFile::link(u"Pictures"_s, folder));

        QCOMPARE(
            words(fetch(folder).images()),
            u"A.PNG b.jpg  Blanks /s.gif Trip/a.BMP Trip/z.JPEG Trip/y/deep.webp trip/h.heic ÿþ/ý.tif"_s);
        PhotoFetch albums = fetch(folder);
        QStringList found;
        for (const PhotoAlbum& album : albums.albums(PhotoFetch::Counted::upToOne).list)
            found << u"%1:%2:%3"_s.arg(*album.localizedTitle)
                         .arg(album.assetCount)
                         .arg(words(albums.assets(album)));
        found.sort();
        QCOMPARE(found.join(u'|'), u" Blanks :1: Blanks /s.gif|Films:1:Films/v.mkv|No pictures:0:|"
                                   "Trip:1:Trip/a.BMP Trip/clip.webm Trip/z.JPEG Trip/y/deep.webp|"
                                   "trip:1:trip/h.heic|\uFFFD\uFFFD:1:ÿþ/ý.tif"_s);
    }

    void aFaultyDecoderCostsOnePicture_data()
    {
        const Rows<QByteArray> row{"fault"};
        row("crash", "crash");
        row("spin", "spin");
        row("lie", "lie");
#ifndef __SANITIZE_ADDRESS__ // which needs more memory than the limit
        row("hog", "hog");
#endif
    }

    void aFaultyDecoderCostsOnePicture()
    {
        QFETCH(const QByteArray, fault);
        // Its processor time may come slowly on a busy machine.
        PhotoFetch fetch = faulty(fault, {.silence = 100s, .round = 100s});
        QVERIFY(fetch.image("faulty.jpg").isNull());
        QCOMPARE(words(fetch.images()), fault == "lie" ? QString() : u"faulty.jpg fine.jpg"_s);
        QCOMPARE(quarterOf(fetch.image("fine.jpg"), 0), QColor(Qt::white));
    }

    void aStalledDecoderIsGivenUp_data()
    {
        const Rows<std::chrono::seconds, std::chrono::seconds> row{"silence", "round"};
        row("no sign of progress, twice", 3s, 100s);
        row("the round's time is over", 100s, 1s);
        row("the game is to end", 100s, 100s);
    }

    void aStalledDecoderIsGivenUp()
    {
        QFETCH(const std::chrono::seconds, silence);
        QFETCH(const std::chrono::seconds, round);
        const Termination termination;
        if (silence == round)
            ::raise(SIGTERM);
        PhotoFetch fetch = faulty("sleep", {.silence = silence, .round = round});
        QElapsedTimer time;
        time.start();
        QVERIFY(fetch.image("faulty.jpg").isNull());
        QCOMPARE(!fetch.image("fine.jpg").isNull(), silence < round);
        QVERIFY(fetch.image("faulty.jpg").isNull());
        QVERIFY(fetch.image("fine.jpg").isNull());
        QVERIFY(!fetch.albums().isComplete);
        QVERIFY(time.elapsed() < 50'000);
    }

    void decodersCannotBreakOut()
    {
        PhotoFetch fetch = faulty("break out");
        const int leftOpen = ::dup2(STDIN_FILENO, 100);
        const unsigned result = quarterOf(fetch.image("faulty.jpg"), 0).rgb();
        QCOMPARE(::close(leftOpen), 0);
        // Without Landlock they can read what the user can.
        const bool hasLandlock = ::syscall(SYS_landlock_create_ruleset, nullptr, 0, 1) > 0;
        QCOMPARE(~(result | (hasLandlock ? 0U : 1U)), 0U);
    }

    void roundsFromPhotosAndTheirAlerts_data()
    {
        using enum PhotoAuthorization;
        const Rows<PhotoAuthorization, QString, QString, int> row{"answer", "deck", "alert",
                                                                  "size"};
        row("everything", authorized, u"iPhoto"_s, {}, 6);
        row("an album, a film in it", authorized, u"iPhoto: Rome "_s, {}, 3);
        row("case matters", authorized, u"iPhoto: rome"_s, u"album_not_found"_s, 0);
        row("the exact title; enough of it read", authorized, u"iPhoto: Trip"_s, {}, 6);
        row("a blank before; empty", authorized, u"iPhoto: Empty"_s, u"no_images_found"_s, 0);
        row("too little of it read", authorized, u"iPhoto: Few"_s, u"album_incomplete"_s, 0);
        row("a part that is gone", limited, u"iPhoto: Trip"_s, u"album_incomplete"_s, 0);
        row("nothing", denied, u"iPhoto"_s, u"access_denied"_s, 0);
    }

    void roundsFromPhotosAndTheirAlerts()
    {
        QFETCH(const PhotoAuthorization, answer);
        QFETCH(const QString, deck);
        QFETCH(const QString, alert);
        QFETCH(const int, size);
        StagePlatform services;
        for (const auto& [album, photos] : QList<std::pair<QString, int>>{
                 {u" Empty"_s, 0}, {u" Trip"_s, 0}, {u"Trip"_s, 10}, {u"Rome"_s, 2}, {u"Few"_s, 3}})
            makeDeck(services.home.path(), album, photos);
        QDir home(services.home.path());
        QVERIFY(home.rename(u"Cards"_s, u"Pictures"_s) && home.cd(u"Pictures"_s));
        QVERIFY(QFile::copy(m_made.filePath(u"good/film.mp4"_s), home.filePath(u"Rome/c.mp4"_s)));
        // A folder at each level is open: too many for the helper.
        const Limit handles(RLIMIT_NOFILE, 40);
        for (const QString& album : {u"Few/"_s, u"Trip/"_s})
            QVERIFY(home.mkpath(album + u"deeper/"_s.repeated(50)));
        services.photos.status.reset();
        services.prompt.answer = {answer, QFile::encodeName(home.filePath(u"Gone"_s))};
        services.defaults->setString(SettingsKeys::CardDeck, deck);
        MemoryGame game;
        QCOMPARE(int(game.loadImagesFromPhotoLibrary().size()), size);
        QCoreApplication::processEvents();
        const QString key = u"iphoto_"_s + alert;
        const QString shown = localizedText(key) + u'|' + localizedText(key + u"_info"_s);
        QCOMPARE(services.alertLog.shown.join(u'|'), alert.isEmpty() ? u""_s : shown + u"|OK"_s);
        // An answer is kept, none is asked for again.
        QCOMPARE(int(game.loadImagesFromPhotoLibrary().size()), size);
        QCOMPARE(services.prompt.asked, 1);
        // Without the helper it is of no use.
        const PhotoLibrary library(services.photoAccess, nullptr, home.path(), u"nowhere"_s);
        QCOMPARE(library.authorizationStatus(), PhotoAuthorization::restricted);
    }

private:
    [[nodiscard]] static PhotoFetch fetch(const QString& folder, PhotoPatience patience = {})
    {
        return {PhotoLibrary::helperOfRunningProgram(), QFile::encodeName(folder), patience};
    }

    /// A fetch by the helper with faulty decoders, from a folder with two files.
    [[nodiscard]] PhotoFetch faulty(const QByteArray& fault, PhotoPatience patience = {})
    {
        const QByteArray folder = QFile::encodeName(m_made.filePath(u"faulty-"_s)) + fault.left(3);
        writeFile(folder + "/faulty.jpg", fault.toStdString());
        writeFile(folder + "/fine.jpg", "fine");
        return {QStringLiteral(PAIRCADE_FAULTY_PHOTOS), folder, patience};
    }

    QTemporaryDir m_made{};
};

QTEST_MAIN(PhotosTest)
#include "photos_test.moc"
