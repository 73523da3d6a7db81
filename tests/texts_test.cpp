// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "game/rules/card_layout.h"
#include "platform/application_bundle.h"
#include "platform/localized_text.h"
#include "stage/files.h"

#include <QCoreApplication>
#include <QDirIterator>
#include <QMap>
#include <QRegularExpression>
#include <QTest>
#include <QXmlStreamReader>
#include <map>

using namespace Qt::StringLiterals;

namespace {

/// Returns what `pattern` finds in `text`, in order.
QStringList allOf(const QString& pattern, const QString& text)
{
    QStringList all;
    for (const auto& match : QRegularExpression(pattern).globalMatch(text))
        all << match.captured();
    return all;
}

} // namespace

/// Reads the catalogues of the build, against their sources.
class TextsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        const QDir sources(QStringLiteral(PAIRCADE_SOURCE_DIR "/resources/translations"));
        for (const QString& source : sources.entryList({u"*.ts"_s})) {
            const QString language = source.section(u'_', 1).chopped(3);
            QTranslator translator;
            QVERIFY2(translator.load(m_folder + u"/paircade_"_s + language + u".qm"_s),
                     qPrintable(language));
            QString message;
            for (QXmlStreamReader xml(contentsOf(sources.filePath(source))); !xml.atEnd();
                 xml.readNext()) {
                // The English comments explain each placeholder.
                if (language == u"en"_s && xml.isStartElement() && xml.name() == u"extracomment"_s)
                    m_places[message] = allOf(u"%\\d"_s, xml.readElementText());
                const QString id = xml.attributes().value(u"id"_s).toString();
                if (id.isEmpty())
                    continue;
                message = id;
                // Numbers that ask for each form that a language can have.
                const bool isCounted = xml.attributes().hasAttribute(u"numerus"_s);
                for (const int count : isCounted ? QList{0, 1, 2, 5, 11, 21, 22} : QList{-1})
                    m_texts[language][id] << translator.translate("", id.toUtf8(), nullptr, count);
            }
        }
        QVERIFY(m_texts.contains(u"en"_s) && m_texts.contains(u"de"_s));
    }

    void everyLanguageHasEveryTextWithItsPlaces()
    {
        auto& english = m_texts[u"en"_s];
        QStringList needed;
        const QString decks = QStringLiteral(PAIRCADE_SOURCE_DIR "/resources/Cards");
        for (QDirIterator deck(decks, {u"*.svg"_s}, QDir::Files, QDirIterator::Subdirectories);
             deck.hasNext();)
            needed << u"card_"_s + deck.nextFileInfo().baseName();
        needed << english.keys();
        // Ids stand in the code as plain literals, other names with a prefix.
        const QRegularExpression plain(u"(?<!Literal\\()(?<!String\\()\"([a-z]+_[a-z0-9_]+)\""_s);
        const QString sources = QStringLiteral(PAIRCADE_SOURCE_DIR "/src");
        for (QDirIterator code(sources, {u"*.cpp"_s}, QDir::Files, QDirIterator::Subdirectories);
             code.hasNext();) {
            for (const auto& id : plain.globalMatch(QString::fromUtf8(contentsOf(code.next()))))
                needed << id.captured(1);
        }
        for (const auto& [language, texts] : m_texts) {
            for (const QString& id : needed)
                QVERIFY2(texts.contains(id) || texts.contains(u"card_"_s + id),
                         qPrintable(language + u": "_s + id));
            for (int number = 1; const CardLayout& layout : cardLayouts)
                QCOMPARE(allOf(u"\\d+"_s, texts[u"card_layout_%1"_s.arg(number++)][0]),
                         (QStringList{QString::number(layout.columns), QString::number(layout.rows),
                                      QString::number(layout.pairs())}));
            for (auto text = texts.begin(); text != texts.end(); ++text) {
                for (const QString& form : *text) {
                    QVERIFY2(!form.trimmed().isEmpty() && !form.contains(u'&') &&
                                 english.contains(text.key()) &&
                                 allOf(u"%\\d"_s, form) == m_places[text.key()],
                             qPrintable(language + u": "_s + text.key()));
                }
            }
        }
    }

    void loadsTheFirstLanguageThatThereIs()
    {
        const std::map<QStringList, QString> choices{
            {{}, u"en"_s},
            {{u"tlh"_s, u"C"_s, QString()}, u"en"_s},
            {{u"de-Latn-CH"_s}, u"de"_s},
            {{u"fy-NL"_s, u"fy"_s, u"de"_s}, u"de"_s},
            {{u"pt-PT"_s}, u"pt"_s},
            {{u"zh-CN"_s, u"zh-Hans-CN"_s}, u"zh_Hans"_s},
            {{u"zh-TW"_s, u"zh-Hant-TW"_s}, u"en"_s}, // a script that is not read there
            {{u"en-GB"_s, u"de"_s}, u"en"_s},
        };
        QCOMPARE(localizedText("end_game"), u"end_game"_s);
        QVERIFY(!Catalogues().install(m_folder + u"/missing"_s, {u"de"_s}));
        for (const auto& [languages, loaded] : choices) {
            Catalogues catalogues;
            QVERIFY(catalogues.install(m_folder, languages));
            QCOMPARE(localizedText("end_game"), m_texts[loaded][u"end_game"_s][0]);
            QCOMPARE(localizedText("no_such_key"), u"no_such_key"_s);
            QCOMPARE(QCoreApplication::translate("QPlatformTheme", "Cancel") == u"Abbrechen",
                     loaded == u"de");
        }
    }

private:
    const QString m_folder =
        ApplicationBundle::ofRunningProgram().resourceFolder().value() + u"/translations"_s;
    std::map<QString, QMap<QString, QStringList>> m_texts{}; ///< by language, by id
    QMap<QString, QStringList> m_places{};                   ///< by id
};

QTEST_GUILESS_MAIN(TextsTest)
#include "texts_test.moc"
