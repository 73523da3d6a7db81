// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "decks/bundle_deck.h"
#include "decks/deck_name.h"
#include "platform/application_bundle.h"
#include "stage/files.h"
#include "support/rows.h"

#include <QColorSpace>
#include <QDirIterator>
#include <QMatrix4x4>
#include <QRegularExpression>
#include <QVector3D>
#include <QXmlStreamReader>
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

/// What in a drawing is not a shape of its own; empty if there is nothing.
QString faultIn(const QByteArray& svg)
{
    static const QStringList shapes =
        u"svg g defs use path rect circle ellipse line polyline polygon linearGradient "
        "radialGradient stop clipPath mask pattern"_s.split(u' ');
    static const QRegularExpression outward(u"url\\(\\s*+['\"]?+(?!#)|\\\\"_s,
                                            QRegularExpression::CaseInsensitiveOption);
    QXmlStreamReader xml(svg);
    for (; !xml.atEnd(); xml.readNext()) {
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
            if (deck == photoLibraryDeck())
                continue;
            m_decks[deck] = loadBundleDeck(ApplicationBundle::ofRunningProgram(), deck);
            QCOMPARE(m_decks[deck].size(), std::size_t{24});
            for (const CardPicture& picture : m_decks[deck]) {
                QCOMPARE(picture.image.width(), picture.image.height());
                QVERIFY2(!picture.image.hasAlphaChannel(), qPrintable(picture.name));
                m_lights[deck].push_back(lightOf(picture.image));
            }
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
        int drawings = 0;
        const QString decks = QStringLiteral(PAIRCADE_SOURCE_DIR "/resources/Cards");
        QDirIterator drawing(decks, {u"*.svg"_s}, QDir::Files, QDirIterator::Subdirectories);
        for (; drawing.hasNext(); ++drawings) {
            const QString path = drawing.next();
            const QString fault = faultIn(contentsOf(path));
            QVERIFY2(fault.isEmpty(), qPrintable(path + u": "_s + fault));
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
