// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "decks/bundle_deck.h"
#include "decks/deck_name.h"
#include "platform/application_bundle.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTest>
#include <QVector3D>
#include <QXmlStreamReader>
#include <algorithm>
#include <cmath>
#include <map>

using namespace Qt::StringLiterals;

namespace {

constexpr int edge = 70; ///< Pixels; near the smallest picture on a board.

/// A picture's points in linear RGB, or as an eye sees them in CIELAB.
using Points = std::vector<QVector3D>;

/// How an eye takes in colours, and what must lie between two pictures for it.
struct Vision {
    const char* name;
    double least;               ///< Mean colour difference over all points, CIE76.
    QVector3D red, green, blue; ///< What it sees, each as shares of linear RGB.
};

constexpr QVector3D luminance(0.2126F, 0.7152F, 0.0722F); ///< Shares of linear RGB.

/// The colour-blind see by the matrices of Machado, Oliveira and Fernandes, "A
/// Physiologically-based Model for Simulation of Color Vision Deficiency", IEEE
/// Transactions on Visualization and Computer Graphics 15(6), 2009, severity 1.0.
///
/// Between two even surfaces a difference of 2.3 is just seen. The nearest pairs
/// of the decks measure 24.1 (normal), 10.1 (grey), 19.6, 19.0 and 20.0, a picture
/// under a veil at most 5.8. The bounds lie about 5 % below the nearest pairs: no
/// new picture comes nearer, another version of the renderer may do its rounding.
const std::vector<Vision> visions{
    {"normal", 23, {1, 0, 0}, {0, 1, 0}, {0, 0, 1}},
    {"grey", 9.5, luminance, luminance, luminance},
    {"protanopia",
     18.5,
     {0.152286F, 1.052583F, -0.204868F},
     {0.114503F, 0.786281F, 0.099216F},
     {-0.003882F, -0.048116F, 1.051998F}},
    {"deuteranopia",
     18,
     {0.367322F, 0.860646F, -0.227968F},
     {0.280085F, 0.672501F, 0.047413F},
     {-0.011820F, 0.042940F, 0.968881F}},
    {"tritanopia",
     19,
     {1.255528F, -0.076749F, -0.178779F},
     {-0.078411F, 0.930809F, 0.147602F},
     {0.004733F, 0.691367F, 0.303900F}},
};

/// The light of the picture on a small card, a little out of focus.
Points lightOf(const QImage& picture)
{
    static const auto linear = [](int channel) {
        const float c = float(channel) / 255;
        return c <= 0.04045F ? c / 12.92F : std::pow((c + 0.055F) / 1.055F, 2.4F);
    };
    const QImage small =
        picture.scaled(edge, edge, Qt::KeepAspectRatioByExpanding, Qt::SmoothTransformation);
    Points light;
    for (int i = 0; i < edge * edge; ++i) {
        const QRgb pixel = small.pixel(i % edge, i / edge);
        light.emplace_back(linear(qRed(pixel)), linear(qGreen(pixel)), linear(qBlue(pixel)));
    }
    // Binomial over five pixels, along the rows and then along the columns.
    for (const int step : {1, edge}) {
        const Points sharp = light;
        for (int i = 0; i < edge * edge; ++i) {
            const int place = i / step % edge;
            const auto at = [&](int offset) {
                const int other = std::clamp(place + offset, 0, edge - 1);
                const int there = i + (other - place) * step;
                return sharp[std::size_t(there)];
            };
            light[std::size_t(i)] = (at(-2) + 4 * at(-1) + 6 * at(0) + 4 * at(1) + at(2)) / 16;
        }
    }
    return light;
}

Points seenBy(const Vision& vision, const Points& light)
{
    static const auto f = [](float t) {
        return t > 216.0F / 24389 ? std::cbrt(t) : (24389.0F / 27 * t + 16) / 116;
    };
    Points seen;
    for (const QVector3D& point : light) {
        const auto shareOf = [&point](const QVector3D& shares) {
            return std::clamp(QVector3D::dotProduct(shares, point), 0.0F, 1.0F);
        };
        const QVector3D rgb(shareOf(vision.red), shareOf(vision.green), shareOf(vision.blue));
        // sRGB's primaries in XYZ, each over its value for white (D65).
        const float x = f(QVector3D::dotProduct(rgb, {0.43388F, 0.37622F, 0.18990F}));
        const float y = f(QVector3D::dotProduct(rgb, luminance));
        const float z = f(QVector3D::dotProduct(rgb, {0.01772F, 0.10946F, 0.87282F}));
        seen.emplace_back(116 * y - 16, 500 * (x - y), 200 * (y - z));
    }
    return seen;
}

double difference(const Points& one, const Points& other)
{
    double sum = 0;
    for (std::size_t i = 0; i < one.size(); ++i)
        sum += double((one[i] - other[i]).length());
    return sum / double(one.size());
}

/// What in a drawing is not a shape of its own; empty if there is nothing.
QString faultIn(const QByteArray& svg)
{
    static const QStringList shapes =
        u"svg g defs use path rect circle ellipse line polyline polygon linearGradient "
        "radialGradient stop clipPath mask pattern"_s.split(u' ');
    static const QRegularExpression outward(u"url\\(\\s*+['\"]?+(?!#)|\\\\"_s,
                                            QRegularExpression::CaseInsensitiveOption);
    QXmlStreamReader xml(svg);
    while (!xml.atEnd()) {
        xml.readNext();
        if (xml.isDTD() || xml.isProcessingInstruction())
            return xml.tokenString();
        if (!xml.isStartElement())
            continue;
        if (!shapes.contains(xml.name()) || xml.namespaceUri() != u"http://www.w3.org/2000/svg")
            return xml.qualifiedName().toString();
        for (const QXmlStreamAttribute& attribute : xml.attributes()) {
            const auto name = attribute.name();
            if (name.startsWith(u"on", Qt::CaseInsensitive) || name == u"base" ||
                (name == u"href" && !attribute.value().startsWith(u'#')) ||
                outward.match(attribute.value().toString()).hasMatch())
                return attribute.qualifiedName().toString();
        }
    }
    return xml.errorString();
}

} // namespace

/// Looks at the pictures of the build with other eyes, and at their sources.
class DecksTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        for (const QString& deck : baseCardDecks()) {
            if (deck != photoLibraryDeck())
                m_decks[deck] = loadBundleDeck(ApplicationBundle::ofRunningProgram(), deck);
        }
        QCOMPARE(m_decks.size(), std::size_t{4});
        for (const auto& [deck, pictures] : m_decks) {
            QCOMPARE(pictures.size(), std::size_t{24});
            for (const CardPicture& picture : pictures) {
                QCOMPARE(picture.image.width(), picture.image.height());
                QVERIFY2(!picture.image.hasAlphaChannel(), qPrintable(picture.name));
                m_lights[deck].push_back(lightOf(picture.image));
            }
        }
    }

    void everyEyeTellsThePicturesApart()
    {
        for (const auto& [deck, lights] : m_lights) {
            for (const Vision& vision : visions) {
                std::vector<Points> seen;
                for (const Points& light : lights)
                    seen.push_back(seenBy(vision, light));
                for (std::size_t i = 0; i < seen.size(); ++i) {
                    for (std::size_t j = 0; j < i; ++j) {
                        const double between = difference(seen[i], seen[j]);
                        const QString found = u"%1, %2: %3 between %4 and %5"_s.arg(
                            deck, QLatin1String(vision.name), QString::number(between),
                            m_decks[deck][j].name, m_decks[deck][i].name);
                        QVERIFY2(between >= vision.least, qPrintable(found));
                    }
                }
            }
        }
    }

    void sourcesAreShapesAlone()
    {
        int drawings = 0;
        for (const auto& [deck, pictures] : m_decks) {
            const QDir folder(QStringLiteral(PAIRCADE_SOURCE_DIR "/resources/Cards/") + deck);
            for (const QString& name : folder.entryList({u"*.svg"_s})) {
                QFile file(folder.filePath(name));
                QVERIFY(file.open(QIODevice::ReadOnly));
                const QString fault = faultIn(file.readAll());
                QVERIFY2(fault.isEmpty(), qPrintable(deck + u'/' + name + u": "_s + fault));
                ++drawings;
            }
        }
        QCOMPARE(drawings, 96);
    }

    void otherSourcesAreFound()
    {
        const std::map<QByteArray, QString> faults{
            {"<text>2</text>", u"text"_s},
            {"<g><image x:href='#a'/></g>", u"image"_s},
            {"<h:path xmlns:h='http://www.w3.org/1999/xhtml'/>", u"h:path"_s},
            {"<g onclick='f()'/>", u"onclick"_s},
            {"<use x:href='https://example.org/#b'/>", u"x:href"_s},
            {"<g fill='url( \"a.svg#b\")'/>", u"fill"_s},
            {"<g style='fill:url(#a);mask:URL(//a)'/>", u"style"_s},
            {"<g xml:base='a.svg'/>", u"xml:base"_s},
            {"<g fill='u\\72l(a)'/>", u"fill"_s},
            {"<?xml-stylesheet href='a.css'?>", u"ProcessingInstruction"_s},
            {"<g fill='url(\"#a\")'><use x:href='#b'/></g>", QString()},
        };
        for (const auto& [body, fault] : faults)
            QCOMPARE(faultIn("<svg xmlns='http://www.w3.org/2000/svg' "
                             "xmlns:x='http://www.w3.org/1999/xlink'>" +
                             body + "</svg>"),
                     fault);
    }

private:
    std::map<QString, CardPictures> m_decks{};
    std::map<QString, std::vector<Points>> m_lights{}; ///< Of the pictures, in their order.
};

QTEST_GUILESS_MAIN(DecksTest)
#include "decks_test.moc"
