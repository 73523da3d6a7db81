// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "highscores/html_report.h"

#include "game/rules/card_layout.h"
#include "platform/clock_text.h"

#include <QFile>
#include <QMap>
#include <QRegularExpression>

namespace {

/// The ampersand first, so that those of the later steps stay as they are.
QString escaped(QString text)
{
    return text.replace(u'&', QStringLiteral("&amp;"))
        .replace(u'<', QStringLiteral("&lt;"))
        .replace(u'>', QStringLiteral("&gt;"))
        .replace(u'"', QStringLiteral("&quot;"));
}

QString layoutName(std::int64_t amountCards)
{
    if (amountCards != cardLayoutNumber(amountCards))
        return QString::number(amountCards);
    const CardLayout& layout = cardLayout(amountCards);
    return QString::number(layout.columns) + u'x' + QString::number(layout.rows);
}

QString rowOf(const HighscoreEntry& entry, const ReportTexts& texts)
{
    const bool isVersus = entry.gameMode == versusMode;
    QString player = entry.playerName;
    QString failures = QString::number(entry.failedAttempts);
    QString sortedFailures = failures;
    if (isVersus) {
        player += QStringLiteral(" vs ") + entry.secondPlayerName.value_or(texts.secondPlayer);
        failures = QString::number(entry.firstPlayerScore.value_or(0)) + QStringLiteral(" : ") +
                   QString::number(entry.secondPlayerScore.value_or(0));
        sortedFailures = QString::number(scoreMargin(entry));
    }

    QString row = QStringLiteral("<tr\n");
    const auto addAttribute = [&row](QLatin1String name, const QString& value) {
        row += QStringLiteral("    data-") + name + QStringLiteral("=\"") + value +
               QStringLiteral("\"\n");
    };
    addAttribute(QLatin1String("player"), escaped(player.toLower()));
    addAttribute(QLatin1String("time"), QString::number(entry.elapsedSeconds));
    addAttribute(QLatin1String("failures"), sortedFailures);
    addAttribute(QLatin1String("cards"), QString::number(entry.amountCards));
    addAttribute(QLatin1String("rounds"), QString::number(entry.amountRounds));
    addAttribute(QLatin1String("mode"), isVersus ? versusMode : soloMode);
    row += QStringLiteral(">\n");
    for (const QString& cell : {escaped(player), clockText(entry.elapsedSeconds), escaped(failures),
                                layoutName(entry.amountCards), QString::number(entry.amountRounds),
                                escaped(isVersus ? texts.versusMode : texts.soloMode)})
        row += QStringLiteral("    <td>") + cell + QStringLiteral("</td>\n");
    return row + QStringLiteral("</tr>");
}

QString rowsOf(const HighscoreEntries& entries, const ReportTexts& texts)
{
    if (entries.empty())
        return QStringLiteral("<tr>\n    <td colspan=\"6\">") + escaped(texts.empty) +
               QStringLiteral("</td>\n</tr>");
    QString rows;
    for (const HighscoreEntry& entry : entries) {
        if (!rows.isEmpty())
            rows += u'\n';
        rows += rowOf(entry, texts);
    }
    return rows;
}

QString pageTemplate()
{
    QFile file(QStringLiteral(":/report.html"));
    if (!file.open(QIODevice::ReadOnly))
        qFatal("the template of the report was left out of the build");
    const QString text = QString::fromUtf8(file.readAll());
    return text.mid(text.indexOf(QLatin1String("<!DOCTYPE html>")));
}

/// One pass over the template: what a place is filled with is not looked at again.
QString filled(const QString& page, const QMap<QString, QString>& values)
{
    static const QRegularExpression place(QStringLiteral(R"(\{\{(\w+)\}\})"));
    QString text;
    qsizetype end = 0;
    for (const QRegularExpressionMatch& match : place.globalMatch(page)) {
        text += QStringView(page).mid(end, match.capturedStart() - end);
        text += values.value(match.captured(1));
        end = match.capturedEnd();
    }
    text += QStringView(page).mid(end);
    return text;
}

} // namespace

QString buildReport(const HighscoreEntries& entries, const ReportTexts& texts)
{
    return filled(pageTemplate(), {
                                      {QStringLiteral("language"), texts.language},
                                      {QStringLiteral("title"), escaped(texts.title)},
                                      {QStringLiteral("subtitle"), escaped(texts.subtitle)},
                                      {QStringLiteral("generated"), escaped(texts.generated)},
                                      {QStringLiteral("player"), escaped(texts.playerColumn)},
                                      {QStringLiteral("time"), escaped(texts.timeColumn)},
                                      {QStringLiteral("failures"), escaped(texts.failuresColumn)},
                                      {QStringLiteral("cards"), escaped(texts.cardsColumn)},
                                      {QStringLiteral("rounds"), escaped(texts.roundsColumn)},
                                      {QStringLiteral("mode"), escaped(texts.modeColumn)},
                                      {QStringLiteral("rows"), rowsOf(entries, texts)},
                                  });
}
