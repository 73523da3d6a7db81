// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "decks/bundle_deck.h"
#include "decks/deck_look.h"
#include "decks/deck_name.h"
#include "platform/application_bundle.h"
#include "stage/files.h"
#include "support/output_of.h"
#include "support/rows.h"

#include <QColorSpace>
#include <QDirIterator>
#include <QLocale>
#include <QMatrix4x4>
#include <QRegularExpression>
#include <QVector3D>
#include <algorithm>
#include <cmath>
#include <map>

using namespace Qt::StringLiterals;

namespace {

constexpr int edge = 70; ///< Pixels; near the smallest picture on a board.

/// A picture's points in linear RGB, or as an eye sees them in CIELAB.
using Points = QList<QVector3D>;

/// The light of the picture on a small card, a little out of focus.
Points lightOf(const QImage& picture)
{
    QImage small =
        picture.scaled(edge, edge, Qt::KeepAspectRatioByExpanding, Qt::SmoothTransformation);
    small.convertTo(QImage::Format_RGBX64);
    small.setColorSpace(QColorSpace::SRgb);
    small.convertToColorSpace(QColorSpace::SRgbLinear);
    Points light;
    for (int i = 0; i < edge * edge; ++i) {
        const QColor point = small.pixelColor(i % edge, i / edge);
        light.emplace_back(point.redF(), point.greenF(), point.blueF());
    }
    // Binomial over five pixels, along the rows and then along the columns.
    for (const int step : {1, 1, edge, edge}) {
        const Points sharp = light;
        for (int i = 0; i < edge * edge; ++i) {
            const int place = i / step % edge;
            const QVector3D before = sharp[place > 0 ? i - step : i];
            const QVector3D after = sharp[place < edge - 1 ? i + step : i];
            light[i] = (before + 2 * sharp[i] + after) / 4;
        }
    }
    return light;
}

/// `light` for an eye that sees as red, green and blue what the rows of `shares` make of it.
Points seenBy(const QMatrix3x3& shares, const Points& light)
{
    // sRGB's primaries in XYZ, each over its value for white (D65).
    static const QMatrix4x4 xyz(0.43388F, 0.37622F, 0.18990F, 0, 0.2126F, 0.7152F, 0.0722F, 0,
                                0.01772F, 0.10946F, 0.87282F, 0, 0, 0, 0, 1);
    static const auto f = [](float t) {
        return t > 216.0F / 24389 ? std::cbrt(t) : (24389.0F / 27 * t + 16) / 116;
    };
    const QMatrix4x4 rgb(shares);
    Points seen;
    for (const QVector3D& point : light) {
        QVector3D colour = rgb.mapVector(point);
        for (const int i : {0, 1, 2})
            colour[i] = std::clamp(colour[i], 0.0F, 1.0F);
        colour = xyz.mapVector(colour);
        const float y = f(colour.y());
        seen.emplace_back(116 * y - 16, 500 * (f(colour.x()) - y), 200 * (y - f(colour.z())));
    }
    return seen;
}

/// The mean colour difference over all points, CIE76.
double difference(const Points& one, const Points& other)
{
    double sum = 0;
    for (qsizetype i = 0; i < one.size(); ++i)
        sum += double(one[i].distanceToPoint(other[i]));
    return sum / double(one.size());
}

} // namespace

/// Looks at the pictures of the build with other eyes, and at their sources; and reads
/// another deck.
class DecksTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QLocale::setDefault(QLocale(QLocale::German)); // sorts Ä beside A, unlike their codes
        for (const QString& deck : baseCardDecks()) {
            if (deck == photoLibraryDeck())
                continue;
            m_decks[deck] = loadBundleDeck(ApplicationBundle::ofRunningProgram(), deck);
            QVERIFY(m_decks[deck].size() >= 24);
            for (const CardPicture& picture : m_decks[deck]) {
                QCOMPARE(picture.image.width(), picture.image.height());
                QVERIFY2(!picture.image.hasAlphaChannel(), qPrintable(picture.name));
                m_lights[deck].push_back(lightOf(picture.image));
            }
            for (const QString& name : deckLook(deck).fanPictures)
                QVERIFY2(std::ranges::count(m_decks[deck], name, &CardPicture::name) == 1,
                         qPrintable(deck + u": "_s + name));
        }
        QCOMPARE(m_decks.size(), std::size_t{4});
    }

    // The colour-blind see by the matrices of Machado, Oliveira and Fernandes, "A
    // Physiologically-based Model for Simulation of Color Vision Deficiency", IEEE
    // Transactions on Visualization and Computer Graphics 15(6), 2009, severity 1.0.
    //
    // Between two even surfaces a difference of 2.3 is just seen. The nearest pairs
    // of the decks measure 24.1 (normal), 10.1 (grey), 19.6, 19.0 and 20.0, a picture
    // under a veil at most 5.8. The bounds lie about 5 % below the nearest pairs: no
    // new picture comes nearer, another version of the renderer may do its rounding.
    void everyEyeTellsThePicturesApart_data()
    {
        const Rows<double, QList<float>> row{"least", "shares"};
        row("normal", 23, {1, 0, 0, 0, 1, 0, 0, 0, 1});
        row("grey", 9.5,
            {0.2126F, 0.7152F, 0.0722F, 0.2126F, 0.7152F, 0.0722F, 0.2126F, 0.7152F, 0.0722F});
        row("protanopia", 18.5,
            {0.152286F, 1.052583F, -0.204868F, 0.114503F, 0.786281F, 0.099216F, -0.003882F,
             -0.048116F, 1.051998F});
        row("deuteranopia", 18,
            {0.367322F, 0.860646F, -0.227968F, 0.280085F, 0.672501F, 0.047413F, -0.011820F,
             0.042940F, 0.968881F});
        row("tritanopia", 19,
            {1.255528F, -0.076749F, -0.178779F, -0.078411F, 0.930809F, 0.147602F, 0.004733F,
             0.691367F, 0.303900F});
    }

    void everyEyeTellsThePicturesApart()
    {
        QFETCH(const double, least);
        QFETCH(const QList<float>, shares);
        for (const auto& [deck, lights] : m_lights) {
            std::vector<Points> seen;
            for (const Points& light : lights)
                seen.push_back(seenBy(QMatrix3x3(shares.data()), light));
            for (std::size_t i = 0; i < seen.size(); ++i) {
                for (std::size_t j = 0; j < i; ++j) {
                    const double between = difference(seen[i], seen[j]);
                    QVERIFY2(between >= least, qPrintable(u"%1: %2 between %3 and %4"_s.arg(
                                                   deck, QString::number(between),
                                                   m_decks[deck][j].name, m_decks[deck][i].name)));
                }
            }
        }
    }

    void sourcesAreShapesAlone()
    {
        static const QRegularExpression foreign(
            u"<(text|image|style|script|foreignObject|[?!](?!--))|href=\"(?!#)|url\\((?!#)"
            "|\\bon\\w+="_s);
        int drawings = 0;
        const QString decks = QStringLiteral(PAIRCADE_SOURCE_DIR "/resources/Cards");
        QDirIterator drawing(decks, {u"*.svg"_s}, QDir::Files, QDirIterator::Subdirectories);
        for (; drawing.hasNext(); ++drawings) {
            const QString path = drawing.next();
            const auto found = foreign.match(QString::fromUtf8(contentsOf(path)));
            QVERIFY2(!found.hasMatch(), qPrintable(path + u": "_s + found.captured()));
        }
        QVERIFY(drawings >= 96);
    }

    void aDeckIsItsPicturesInOrderOfTheirNames()
    {
        const QTemporaryDir home;
        const QString deck = home.filePath(u"Cards/Kids/"_s);
        QDir().mkpath(deck + u"folder.png"_s);
        const QImage picture = m_decks[u"Kids"_s].front().image.scaled(3, 2);
        for (const QString& name : {u"b.png"_s, u"A.jpg"_s, u"c.JPEG"_s, u"D.PNG"_s, u"c.d.Jpg"_s,
                                    u"9.png"_s, u"10.png"_s, u"Ä.png"_s, u".hidden.png"_s,
                                    u"e.png.txt"_s, u"png"_s, u"picture.gif"_s})
            QVERIFY(picture.save(deck + name, "PNG"));
        // By content: a picture of the one kind may bear the name of the other.
        QVERIFY(picture.save(deck + u"e.png"_s, "JPG") && picture.save(deck + u"f.png"_s, "BMP"));
        writeFile(deck + u"garbage.jpg"_s, QByteArray(5000, '\xff'));
        writeFile(deck + u"cut.png"_s, "\x89PNG\r\n\x1a\n");
        QFile::link(u"nowhere.png"_s, deck + u"dangling.png"_s);
        QFile::link(deck + u"e.png.txt"_s, deck + u"linked.png"_s);

        const ApplicationBundle bundle(home.path());
        QStringList names;
        const QByteArray said = outputOf([&] {
            for (const CardPicture& card : loadBundleDeck(bundle, u"Kids"_s))
                names << card.name;
        });
        QCOMPARE(names.join(u' '), u"10 9 A Ä b c.d c D e linked"_s);
        QCOMPARE(said, QByteArray());
        QCOMPARE(outputOf([&] { QVERIFY(loadBundleDeck(bundle, u""_s).empty()); }),
                 "CardDeck ist leer\n");
        // Whatever the name, one line.
        QCOMPARE(
            outputOf([&] { QVERIFY(loadBundleDeck(bundle, u"a\nb\r%s"_s).empty()); }),
            u"Ordnerinhalt konnte nicht gelesen werden: %1/Cards/a\\nb\\r%s\n"_s.arg(home.path())
                .toUtf8());
    }

private:
    std::map<QString, CardPictures> m_decks{};
    std::map<QString, std::vector<Points>> m_lights{}; ///< Of the pictures, in their order.
};

QTEST_GUILESS_MAIN(DecksTest)
#include "decks_test.moc"
