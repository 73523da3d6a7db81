// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
// What a browser makes of the page of the results: whatever the texts and names are, it is
// the page that harmless ones make, but for them, and they are nothing but text.
#include "fuzz.h"
#include "highscores/html_report.h"
#include "records.h"

#include <QHash>
#include <QRegularExpression>
#include <gumbo.h>
#include <memory>
#include <span>

namespace {

/// Without what a parser of HTML drops or replaces, and with its one kind of line break.
QString plain(const QString& text)
{
    static const QRegularExpression lineBreak(QStringLiteral("\r\n?"));
    static const QRegularExpression dropped(
        QStringLiteral("(?![\\t\\n\\f])[\\p{Cc}\\p{Cn}\\x{fffd}]"));
    return QString::fromUtf8(text.toUtf8())
        .replace(lineBreak, QStringLiteral("\n"))
        .remove(dropped);
}

/// Of an element and all below it: the tag, the attributes, and the text right in it.
QStringList contents(const GumboElement& element)
{
    QStringList found{QString::fromUtf8(gumbo_normalized_tagname(element.tag))};
    for (void* const item : std::span(element.attributes.data, element.attributes.length)) {
        const auto& attribute = *static_cast<const GumboAttribute*>(item);
        found << QString::fromUtf8(attribute.name) << plain(QString::fromUtf8(attribute.value));
    }
    QString text;
    QStringList below;
    for (void* const item : std::span(element.children.data, element.children.length)) {
        const auto& node = *static_cast<const GumboNode*>(item);
        if (node.type == GUMBO_NODE_ELEMENT || node.type == GUMBO_NODE_TEMPLATE)
            below << contents(node.v.element);
        else
            text += QString::fromUtf8(node.v.text.text);
    }
    return found << plain(text) << below;
}

QStringList contentsOfPage(const HighscoreEntries& entries, const ReportTexts& texts)
{
    const QByteArray page = buildReport(entries, texts).toUtf8();
    const std::unique_ptr<GumboOutput, void (*)(GumboOutput*)> parsed(
        gumbo_parse_with_options(&kGumboDefaultOptions, page.constData(), std::size_t(page.size())),
        [](GumboOutput* output) { gumbo_destroy_output(&kGumboDefaultOptions, output); });
    return contents(parsed->root->v.element);
}

} // namespace

void tryInput(const QByteArray& input)
{
    Pieces pieces(input);
    ReportTexts texts{.language = QStringLiteral("en")};
    ReportTexts harmless = texts;
    QHash<QString, QString> meant; // by the harmless text in its place
    for (auto text : {&ReportTexts::title, &ReportTexts::subtitle, &ReportTexts::playerColumn,
                      &ReportTexts::soloMode, &ReportTexts::versusMode, &ReportTexts::secondPlayer,
                      &ReportTexts::empty}) {
        texts.*text = pieces.text();
        harmless.*text = QStringLiteral("Text %1").arg(meant.size());
        meant[harmless.*text] = texts.*text;
    }
    const HighscoreEntries entries = entriesFrom(pieces);
    HighscoreEntries harmlessEntries = entries;
    for (HighscoreEntry& entry : harmlessEntries) {
        QString player = entry.playerName;
        entry.playerName = QStringLiteral("Player %1").arg(meant.size());
        QString shown = entry.playerName;
        if (entry.gameMode == versusMode) {
            player += QStringLiteral(" vs ") + entry.secondPlayerName.value_or(texts.secondPlayer);
            entry.secondPlayerName = QStringLiteral("Eve");
            shown += QStringLiteral(" vs Eve");
        }
        meant[shown] = player;
        meant[shown.toLower()] = player.toLower();
    }

    QStringList expected = contentsOfPage(harmlessEntries, harmless);
    for (QString& text : expected)
        text = plain(meant.value(text, text));
    require(contentsOfPage(entries, texts) == expected, "names and texts stay text");
}
