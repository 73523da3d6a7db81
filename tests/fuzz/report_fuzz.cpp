// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
// What a browser makes of the page of the results: each cell is the text that it should
// be and nothing but text, and nothing was added to what the template holds.
#include "fuzz.h"
#include "highscores/html_report.h"

#include <QList>
#include <gumbo.h>
#include <memory>
#include <span>
#include <vector>

namespace {

/// The input cut at each "|" into texts and numbers. A "~" stands for half of a
/// surrogate pair, which UTF-8 cannot hold.
class Pieces {
public:
    explicit Pieces(const QByteArray& input)
        : m_pieces(input.split('|'))
    {
    }
    [[nodiscard]] bool areLeft() const { return m_next < m_pieces.size(); }
    QByteArray bytes() { return m_pieces.value(m_next++); }
    QString text() { return QString::fromUtf8(bytes()).replace(u'~', QChar(0xd83d)); }
    std::int64_t number() { return bytes().toLongLong(); }

private:
    QList<QByteArray> m_pieces;
    qsizetype m_next = 0;
};

/// Records of what is left. An optional field is absent where its piece is empty,
/// else it follows a first letter that is dropped.
HighscoreEntries entriesFrom(Pieces pieces)
{
    HighscoreEntries entries;
    while (pieces.areLeft()) {
        HighscoreEntry& entry = entries.emplace_back();
        entry.gameMode = pieces.text();
        entry.playerName = pieces.text();
        for (auto field : {&HighscoreEntry::secondPlayerName, &HighscoreEntry::winnerName}) {
            if (const QString text = pieces.text(); !text.isEmpty())
                entry.*field = text.sliced(1);
        }
        entry.elapsedSeconds = pieces.number();
        entry.failedAttempts = pieces.number();
        for (auto field : {&HighscoreEntry::firstPlayerScore, &HighscoreEntry::secondPlayerScore}) {
            if (const QByteArray number = pieces.bytes(); !number.isEmpty())
                entry.*field = number.sliced(1).toLongLong();
        }
        entry.amountCards = pieces.number();
        entry.amountRounds = pieces.number();
        entry.id = QUuid::createUuidV5(QUuid(), entry.playerName);
    }
    return entries;
}

using Nodes = std::vector<const GumboNode*>;

std::span<void* const> inside(const GumboNode& node)
{
    const GumboVector& children = node.v.element.children;
    return {children.data, children.length};
}

Nodes allElements(const GumboNode& node, GumboTag tag)
{
    Nodes found;
    if (node.type != GUMBO_NODE_ELEMENT)
        return found;
    if (node.v.element.tag == tag)
        found.push_back(&node);
    for (void* const child : inside(node)) {
        const Nodes inner = allElements(*static_cast<const GumboNode*>(child), tag);
        found.insert(found.end(), inner.begin(), inner.end());
    }
    return found;
}

/// Without what a parser of HTML drops or replaces, and with its one kind of line break.
QString plain(QString text)
{
    QString kept;
    text = QString::fromUtf8(text.toUtf8());
    text.replace(QLatin1String("\r\n"), QLatin1String("\n")).replace(u'\r', u'\n');
    for (const char32_t c : text.toUcs4()) {
        const bool isBreak = c == U'\t' || c == U'\n' || c == U'\f';
        if (isBreak || (QChar::category(c) != QChar::Other_Control && !QChar::isNonCharacter(c) &&
                        c != QChar::ReplacementCharacter))
            kept += QString::fromUcs4(&c, 1);
    }
    return kept;
}

QString textIn(const GumboNode& element)
{
    QString text;
    for (void* const child : inside(element)) {
        const auto& node = *static_cast<const GumboNode*>(child);
        require(node.type == GUMBO_NODE_TEXT || node.type == GUMBO_NODE_WHITESPACE,
                "a cell holds text alone");
        text += QString::fromUtf8(node.v.text.text);
    }
    return plain(text);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    Pieces pieces(bytesOf(data, size));
    ReportTexts texts{.language = QStringLiteral("en")};
    for (auto text : {&ReportTexts::title, &ReportTexts::subtitle, &ReportTexts::playerColumn,
                      &ReportTexts::soloMode, &ReportTexts::versusMode})
        texts.*text = pieces.text();
    const HighscoreEntries entries = entriesFrom(pieces);

    const QByteArray page = buildReport(entries, texts).toUtf8();
    const std::unique_ptr<GumboOutput, void (*)(GumboOutput*)> parsed(
        gumbo_parse_with_options(&kGumboDefaultOptions, page.constData(), std::size_t(page.size())),
        [](GumboOutput* output) { gumbo_destroy_output(&kGumboDefaultOptions, output); });
    const auto elements = [&parsed](GumboTag tag) { return allElements(*parsed->root, tag); };
    require(elements(GUMBO_TAG_SCRIPT).size() == 2 && elements(GUMBO_TAG_STYLE).size() == 1 &&
                elements(GUMBO_TAG_BUTTON).size() == 1 && elements(GUMBO_TAG_P).size() == 2,
            "no element is added");
    require(textIn(*elements(GUMBO_TAG_H1).at(0)) == plain(texts.title), "the title is a text");

    const Nodes cells = elements(GUMBO_TAG_TD);
    const Nodes rows = elements(GUMBO_TAG_TR);
    require(entries.empty() ||
                (cells.size() == 6 * entries.size() && rows.size() == 1 + entries.size()),
            "each result is a row of six cells");
    for (std::size_t i = 0; i < entries.size(); ++i) {
        const bool isVersus = entries[i].gameMode == versusMode;
        const QString player =
            entries[i].playerName +
            (isVersus ? QStringLiteral(" vs ") + entries[i].secondPlayerName.value_or(QString())
                      : QString());
        require(textIn(*cells[6 * i]) == plain(player), "the names are shown letter by letter");
        require(textIn(*cells[6 * i + 5]) == plain(isVersus ? texts.versusMode : texts.soloMode),
                "the mode is shown");
        const GumboAttribute* const sortedBy =
            gumbo_get_attribute(&rows[i + 1]->v.element.attributes, "data-player");
        require(sortedBy != nullptr && rows[i + 1]->v.element.attributes.length == 6 &&
                    plain(QString::fromUtf8(sortedBy->value)) == plain(player.toLower()),
                "a row has its six attributes");
    }
    return 0;
}
