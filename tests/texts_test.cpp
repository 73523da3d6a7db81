// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
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

/// The texts that the game cannot do without, and the places in them.
const QMap<QString, QString> catalogue = [] {
    QMap<QString, QString> keys;
    const auto add = [&keys](const char* places, const char* names) {
        for (const QString& name : QString::fromLatin1(names).split(u' '))
            keys[name] = QString::fromLatin1(places);
    };
    add("", "ok iphoto_access_denied iphoto_access_denied_info iphoto_album_not_found "
            "iphoto_album_not_found_info iphoto_no_images_found iphoto_no_images_found_info "
            "highscores_export_error_title enter_name enter_player_names player_one player_two "
            "unknown_player card_layout_1 card_layout_2 card_layout_3 card_layout_4 card_layout_5 "
            "card_layout_6 versus_mode start_game start_versus_game end_game reset_highscores "
            "open_highscores_html best_times fewest_failed_attempts highscores_html_title "
            "highscores_html_player highscores_html_time highscores_html_failures "
            "highscores_html_cards highscores_html_rounds highscores_html_mode highscores_empty "
            "highscores_mode_solo highscores_mode_versus");
    add("1", "iphoto_not_enough_images iphoto_not_enough_images_in_album player_turn "
             "player_found_pair player_choose_second_card play_rounds_label_singular "
             "play_rounds_label_plural time_label failed_attempts_label highscores_html_generated");
    add("12", "not_enough_images_for_round round_of_rounds player_starts_round draw_score");
    add("123", "player_wins_score singleplayer_result");
    add("23", "highscores_html_subtitle"); // no count of columns equals its first argument
    return keys;
}();

/// The numbers of the places in `text`, each once, in order.
QString placesIn(const QString& text)
{
    QString places;
    for (const QChar digit : u"0123456789"_s) {
        if (text.contains(u'%' + digit))
            places += digit;
    }
    return places;
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
            for (QXmlStreamReader xml(contentsOf(sources.filePath(source))); !xml.atEnd();
                 xml.readNext()) {
                if (xml.name() != u"message" || !xml.isStartElement())
                    continue;
                const QString id = xml.attributes().value(u"id"_s).toString();
                const QByteArray key = id.toUtf8();
                m_texts[language][id] = translator.translate("", key);
                // Numbers that ask for each form that a language can have.
                const bool isCounted = xml.attributes().hasAttribute(u"numerus"_s);
                for (const int count : isCounted ? QList{0, 1, 2, 5, 11, 21, 22} : QList{-1})
                    m_forms[language].emplace(id, translator.translate("", key, nullptr, count));
            }
        }
        QVERIFY(m_texts.contains(u"en"_s) && m_texts.contains(u"de"_s));
    }

    void everyLanguageHasEveryText()
    {
        QStringList needed = catalogue.keys();
        const QString decks = QStringLiteral(PAIRCADE_SOURCE_DIR "/resources/Cards");
        for (QDirIterator deck(decks, {u"*.svg"_s}, QDir::Files, QDirIterator::Subdirectories);
             deck.hasNext();)
            needed << u"card_"_s + deck.nextFileInfo().baseName();
        QVERIFY(needed.size() > 100);
        for (const auto& [language, texts] : m_texts) {
            for (const QString& id : needed)
                QVERIFY2(texts.contains(id), qPrintable(language + u": "_s + id));
            for (const auto& [id, text] : texts)
                QVERIFY2(!text.trimmed().isEmpty() && m_texts[u"en"_s].contains(id),
                         qPrintable(language + u": "_s + id));
            QCOMPARE(texts.size(), m_texts[u"en"_s].size());
        }
    }

    void placesAreThoseOfTheArguments()
    {
        for (const auto& [language, forms] : m_forms) {
            for (const auto& [id, text] : forms) {
                const QString expected = catalogue.value(id, placesIn(m_texts[u"en"_s][id]));
                QVERIFY2(placesIn(text) == expected && !text.contains(u'&'),
                         qPrintable(language + u": "_s + id));
            }
        }
    }

    void mnemonicsAreFoundInTheirTexts()
    {
        const QString prefix = u"mnemonic_"_s;
        for (auto& [language, texts] : m_texts) {
            for (const auto& [id, letter] : texts) {
                if (!id.startsWith(prefix))
                    continue;
                const QByteArray label = (language + u": "_s + id).toUtf8();
                QVERIFY2(letter.size() == 1 && letter[0].isLetterOrNumber(), label);
                // A text that is not in the keyboard's script gets its letter after it.
                static const QRegularExpression ideographs(
                    u"[\\p{Han}\\p{Hiragana}\\p{Katakana}]"_s);
                const QString& text = texts[id.sliced(prefix.size())];
                QVERIFY2(text.contains(letter) || text.contains(ideographs), label);
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
        QTranslator none;
        QVERIFY(!loadCatalogue(none, m_folder + u"/missing"_s, {u"de"_s}));
        for (const auto& [languages, loaded] : choices) {
            QTranslator translator;
            QVERIFY(loadCatalogue(translator, m_folder, languages));
            QVERIFY(QCoreApplication::installTranslator(&translator));
            QCOMPARE(localizedText("end_game"), m_texts[loaded][u"end_game"_s]);
            QCOMPARE(localizedText(u"end_game"_s), m_texts[loaded][u"end_game"_s]);
            QCOMPARE(localizedText("player_turn", {u"%1"_s}), m_texts[loaded][u"player_turn"_s]);
            QCOMPARE(localizedText("no_such_key"), u"no_such_key"_s);
            QCOMPARE(localizedText("%1. %2 – %3", {1, u"Zoë"_s, 3}), u"1. Zoë – 3"_s);
        }
    }

    void countsAreInTheFormOfTheirNumber()
    {
        QTranslator translator;
        QVERIFY(loadCatalogue(translator, m_folder, {u"uk"_s}));
        QVERIFY(QCoreApplication::installTranslator(&translator));
        QStringList forms;
        for (const std::int64_t count : {1, 3, 5, 11, 21, 22})
            forms << localizedCount("play_rounds_label_plural", count, {count}).section(u' ', 1, 1);
        QCOMPARE(forms.join(u' '), u"раунд раунди раундів раундів раунд раунди"_s);
    }

private:
    const QString m_folder =
        ApplicationBundle::ofRunningProgram().resourceFolder().value() + u"/translations"_s;
    std::map<QString, std::map<QString, QString>> m_texts{};      ///< by language, by id
    std::map<QString, std::multimap<QString, QString>> m_forms{}; ///< the same for all numbers
};

QTEST_GUILESS_MAIN(TextsTest)
#include "texts_test.moc"
