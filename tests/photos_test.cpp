// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/termination.h"
#include "decks/photo_deck.h"
#include "platform/localized_text.h"
#include "settings/settings_keys.h"
#include "stage/game_window.h"
#include "support/broken_world.h"
#include "support/photo_files.h"
#include "support/rows.h"

#include <QElapsedTimer>
#include <QProcess>
#include <fcntl.h>
#include <sys/mount.h>
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

QString words(const PhotoAssets& assets)
{
    return QString::fromLatin1(QByteArrayList(assets.begin(), assets.end()).join(' '));
}

} // namespace

/// The encoder that makes the HEIC files of this test keeps some memory for good.
extern "C" const char* __lsan_default_suppressions() // NOLINT(bugprone-reserved-identifier)
{
    return "leak:libx265";
}

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
        // The same colours to the eye, in other numbers.
        QImage wide(m_made.filePath(u"good/plain.png"_s));
        wide.setColorSpace(QColorSpace::SRgb);
        wide.convertToColorSpace(QColorSpace::DisplayP3);
        QVERIFY(wide.save(m_made.filePath(u"good/wide.jpg"_s), "JPG", 95));
        QVERIFY(wide.save(m_made.filePath(u"good/wide.png"_s)));
        writeHeif(m_made.filePath(u"good/wide.heic"_s), wide, 1, heif_compression_HEVC);
        for (int turned = 1; turned <= 8; ++turned)
            writeHeif(m_made.filePath(u"good/turned%1.heic"_s.arg(turned)),
                      QImage(m_made.filePath(u"good/turned%1.png"_s.arg(turned))), turned,
                      heif_compression_HEVC);
        writeHeif(m_made.filePath(u"good/turned6.avif"_s),
                  QImage(m_made.filePath(u"good/turned6.png"_s)), 6, heif_compression_AV1);
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
        const QImage image = fetch(m_made.filePath(u"good"_s)).image(QFile::encodeName(file));
        QCOMPARE(image.size(), QSize(2 * half, 2 * half));
        QVERIFY(!image.hasAlphaChannel());
        for (std::size_t i = 0; i < quarters.size(); ++i)
            QVERIFY2(isLike(quarterOf(image, int(i)), quarters.at(i)),
                     qPrintable(quarterOf(image, int(i)).name()));
    }

    void transparencyIsKept()
    {
        QImage glass(20, 20, QImage::Format_ARGB32);
        glass.fill(QColor(200, 100, 0, 128));
        QVERIFY(glass.save(m_made.filePath(u"glass.png"_s)));
        const QImage image = fetch(m_made.path()).image("glass.png");
        QCOMPARE(image.format(), QImage::Format_ARGB32_Premultiplied);
        QCOMPARE(image.pixelColor(half, half).alpha(), 128);
        QVERIFY(isLike(image.pixelColor(half, half), QColor(200, 100, 0)));
    }

    void badFilesYieldNoPictureAndNoHarm()
    {
        PhotoFetch files = fetch(m_made.path());
        makePipe(m_made.filePath(u"bad/pipe.jpg"_s));
        QFile::link(u"/"_s, m_made.filePath(u"bad/became-a-link"_s));
        QFile::link(u"../good/plain.jpg"_s, m_made.filePath(u"bad/link.jpg"_s));
        PhotoAssets paths{"good/../good/plain.jpg", "bad/vanished.jpg", "bad", "",
                          "bad/became-a-link" + QFile::encodeName(m_made.path()) +
                              "/good/plain.jpg"};
        for (const QString& file :
             QDir(m_made.filePath(u"bad"_s)).entryList(QDir::Files | QDir::System))
            paths.push_back("bad/" + QFile::encodeName(file));
        QVERIFY(paths.size() > 20);
        for (const PhotoAsset& path : paths)
            QVERIFY2(files.image(path).isNull(), path.constData());
        QVERIFY(!files.image("good/plain.jpg").isNull());
    }

    void whatIsListed()
    {
        const QString home = m_made.filePath(u"tree"_s); // its names are no longer text
        const QByteArray root = QFile::encodeName(home) + "/Pictures/";
        for (const char* const file :
             {"b.jpg", "A.PNG", "film.mp4", "notes.txt", "jpg", ".hidden.jpg", "Trip/z.JPEG",
              "Trip/y/deep.webp", "Trip/a.BMP", "Trip/.git/x.jpg", "Trip/clip.webm", "trip/h.heic",
              "Films/v.mkv", "No pictures/a.svg", " Blanks /s.gif", "\xff\xfe/\xfd.tif",
              "../out.jpg"})
            writeFile(root + file);
        makePipe(home + u"/Pictures/pipe.jpg"_s);
        for (const auto& [to, name] : std::initializer_list<std::pair<const char*, const char*>>{
                 {"/", "Everything"},
                 {"../out.jpg", "out.jpg"},
                 {"../..", "Trip/circle"},
                 {"..", "Trip/y/circle"},
                 {"Trip/y", "Linked"},
                 {"../b.jpg", "trip/b again.jpg"},
                 {"../Trip/y", "trip/linked"},
                 {"../Trip/y/deep.webp", "trip/deep.webp"},
                 {"nowhere.jpg", "dangling.jpg"}})
            QCOMPARE(::symlink(to, (root + name).constData()), 0);

        const QString folder = home + u"/Pictures"_s;
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
        QCOMPARE(
            found.join(u'|'),
            u" Blanks :1: Blanks /s.gif|Films:1:Films/v.mkv|Linked:1:Trip/y/deep.webp|"
            "No pictures:0:|Trip:1:Trip/a.BMP Trip/clip.webm Trip/z.JPEG Trip/y/deep.webp|"
            "trip:1:trip/h.heic b.jpg Trip/y/deep.webp Trip/a.BMP Trip/clip.webm Trip/z.JPEG|\uFFFD\uFFFD:1:ÿþ/ý.tif"_s);
        QVERIFY(albumTitled(albums.albums(), u"Blanks"_s));
        QVERIFY(!albumTitled(albums.albums(), u"films"_s));
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
        using Time = std::chrono::seconds;
        const Rows<Time, Time, int> row{"silence", "round", "leastTime"};
        row("no sign of progress, twice", 3s, 100s, 3000);
        row("the round's time is over", 100s, 1s, 900);
        row("the game is to end", 100s, 100s, 0);
    }

    void aStalledDecoderIsGivenUp()
    {
        QFETCH(const std::chrono::seconds, silence);
        QFETCH(const std::chrono::seconds, round);
        QFETCH(const int, leastTime);
        const Termination termination;
        if (leastTime == 0)
            ::raise(SIGTERM);
        PhotoFetch fetch = faulty("sleep", {.silence = silence, .round = round});
        QElapsedTimer time;
        time.start();
        QVERIFY(fetch.image("faulty.jpg").isNull());
        QCOMPARE(!fetch.image("fine.jpg").isNull(), silence < round);
        QVERIFY(fetch.image("faulty.jpg").isNull());
        QVERIFY(fetch.image("fine.jpg").isNull());
        QVERIFY(time.elapsed() >= leastTime && time.elapsed() < 50'000);
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

    void aDeadMountIsGivenUpAndTheRestIsPlayed()
    {
        const QTemporaryDir home;
        makeDeck(home.path(), u"Alive"_s, 1);
        QDir(home.path()).mkdir(u"dead"_s);
        const QByteArray mount = QFile::encodeName(home.filePath(u"dead"_s));
        const int driver = ::open("/dev/fuse", O_RDWR | O_CLOEXEC);
        const QByteArray options =
            "fd=" + QByteArray::number(driver) + ",rootmode=40000,user_id=0,group_id=0";
        if (driver < 0 || ::mount("dead", mount.constData(), "fuse", 0, options.constData()) != 0)
            QSKIP("mounting takes an administrator");
        PhotoFetch living = fetch(home.path(), {.silence = 3s});
        const PhotoAssets assets = living.images();
        const bool isRead = assets.size() == 1 && !living.image(assets.front()).isNull();
        const auto isTold = [&] {
            PhotoFetch later = fetch(home.path(), {.silence = 3s});
            return !later.albums(PhotoFetch::Counted::upToOne).isComplete;
        };
        const bool isSilenceTold = isTold();
        ::close(driver); // from now on every call fails at once
        const bool isFailureTold = isTold();
        ::umount2(mount.constData(), MNT_DETACH);
        QVERIFY(isRead && isSilenceTold && isFailureTold && !isTold());
    }

    void roundsFromPhotosAndTheirAlerts_data()
    {
        const Rows<QString, PhotoAccess, QByteArray, int> row{"deck", "answer", "alert",
                                                              "pictures"};
        const PhotoAccess all{PhotoAuthorization::authorized};
        const auto part = [this](const QString& folder) {
            return PhotoAccess{PhotoAuthorization::limited,
                               QFile::encodeName(m_made.filePath(folder))};
        };
        row("no answer", u"iPhoto"_s, {}, "iphoto_access_denied", 0);
        row("refused", u"iPhoto"_s, {PhotoAuthorization::denied}, "iphoto_access_denied", 0);
        row("everything", u"iPhoto"_s, all, "", 6);
        row("an album, a film in it", u"iPhoto: Rome "_s, all, "", 3);
        row("case matters", u"iPhoto: rome"_s, all, "iphoto_album_not_found", 0);
        row("an empty album", u"iPhoto: Empty"_s, all, "iphoto_no_images_found", 0);
        row("a part", u"iPhoto"_s, part(u"good"_s), "", 6);
        row("a part that is gone", u"iPhoto"_s, part(u"gone"_s), "iphoto_no_images_found", 0);
    }

    void roundsFromPhotosAndTheirAlerts()
    {
        QFETCH(const QString, deck);
        QFETCH(const PhotoAccess, answer);
        QFETCH(const QByteArray, alert);
        QFETCH(const int, pictures);
        StagePlatform services(nullptr, u"en"_s);
        preparePhotos(services, 10);
        if (answer.status != PhotoAuthorization::notDetermined)
            services.prompt.answer = answer;
        services.defaults->setString(SettingsKeys::CardDeck, deck);
        MemoryGame game;
        QCOMPARE(int(game.loadImagesFromPhotoLibrary().size()), pictures);
        QCoreApplication::processEvents();
        const QStringList& shown = services.alertLog.shown;
        QCOMPARE(shown.size(), alert.isEmpty() ? 0 : 1);
        QCOMPARE(shown.join(u'|').section(u'|', 0, 0), localizedText(alert.constData()));
        // An answer is kept, none is asked for again.
        QCOMPARE(int(game.loadImagesFromPhotoLibrary().size()), pictures);
        QCOMPARE(services.prompt.asked, services.prompt.answer ? 1 : 2);
    }

    void withoutTheHelperPhotosAreRestricted()
    {
        const QTemporaryDir home;
        PhotoAccessStore store(home.filePath(u"access"_s));
        store.write({PhotoAuthorization::authorized});
        const QString helper = PhotoLibrary::helperOfRunningProgram();
        const auto status = [&](const QString& folder, const QString& program) {
            return PhotoLibrary(store, nullptr, folder, program).authorizationStatus();
        };
        QCOMPARE(status(home.path(), helper), PhotoAuthorization::authorized);
        QCOMPARE(status(home.path(), helper + u"x"_s), PhotoAuthorization::restricted);
        QCOMPARE(status(QString(), helper), PhotoAuthorization::restricted);

        // What could not be listed is not tried again at once.
        PhotoLibrary library(store, nullptr, home.filePath(u"gone"_s), helper);
        QVERIFY(!library.albums().isComplete);
        QDir(home.path()).mkdir(u"gone"_s);
        QVERIFY(!library.albums().isComplete);
    }

    void photosArePlayedInTheWindow()
    {
        GameWindow window([&](StagePlatform& services) {
            preparePhotos(services, 25);
            services.prompt.answer = {PhotoAuthorization::authorized};
            services.defaults->setInteger(SettingsKeys::AmountCards, 6);
            services.defaults->setString(SettingsKeys::CardDeck, u"iPhoto: Many"_s);
        });
        window.startGame();
        QSet<QRgb> colours;
        for (const MemoryCard& card : window.game().cards())
            colours << card.image.image.pixel(half, half);
        QCOMPARE(colours.size(), 20);
        while (window.game().isGameActive())
            window.clickPair();
        QVERIFY(window.game().gameCompleted());
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

    /// Fills the pictures folder: `count` pictures in the album Many, two and a film
    /// in Rome, none in Empty; access is asked for.
    void preparePhotos(StagePlatform& services, int count) const
    {
        makeDeck(services.home.path(), u"Many"_s, count);
        makeDeck(services.home.path(), u"Rome"_s, 2);
        QDir home(services.home.path());
        QVERIFY(home.mkdir(u"Cards/Empty"_s) && home.rename(u"Cards"_s, u"Pictures"_s));
        QVERIFY(QFile::copy(m_made.filePath(u"good/film.mp4"_s),
                            home.filePath(u"Pictures/Rome/c.mp4"_s)));
        services.photos.status.reset();
    }

    QTemporaryDir m_made{};
};

QTEST_MAIN(PhotosTest)
#include "photos_test.moc"
