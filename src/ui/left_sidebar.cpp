// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/left_sidebar.h"

#include "game/memory_game.h"
#include "platform/localized_text.h"
#include "platform/trim.h"
#include "platform/widgets/control_text.h"
#include "ui/colours.h"
#include "ui/elided_label.h"
#include "ui/fonts.h"
#include "ui/screen_metrics.h"

#include <QCheckBox>
#include <QEvent>
#include <QPushButton>
#include <algorithm>
#include <iterator>

namespace {

constexpr int gap = 12;
constexpr int endPadding = 12;
constexpr int logoSlot = 130; ///< The logo is higher, and overlaps the strip above.
constexpr int nameWidth = 180;
constexpr int buttonWidth = 180;

void setTextColour(QWidget* widget, QPalette::ColorRole role, const QColor& colour)
{
    QPalette palette = widget->palette();
    palette.setColor(role, colour);
    widget->setPalette(palette);
}

} // namespace

LeftSidebar::LeftSidebar(MemoryGame& game, QWidget* parent)
    : QScrollArea(parent)
    , m_game(game)
    , m_column(new QWidget)
    , m_pairingLine(addLine("pairingLine", nameWidth, systemFont(16, QFont::DemiBold)))
    , m_firstScoreLine(addLine("firstScoreLine", ScreenMetrics::leftPanelWidth,
                               monospacedFont(14, QFont::DemiBold)))
    , m_secondScoreLine(addLine("secondScoreLine", ScreenMetrics::leftPanelWidth,
                                monospacedFont(14, QFont::DemiBold)))
    , m_nameLine(addLine("nameLine", nameWidth, systemFont(18, QFont::DemiBold)))
    , m_timeLine(
          addLine("timeLine", ScreenMetrics::leftPanelWidth, monospacedFont(14, QFont::DemiBold)))
    , m_failuresLine(addLine("failuresLine", ScreenMetrics::leftPanelWidth,
                             monospacedFont(14, QFont::DemiBold)))
    , m_highscores(game, m_column)
{
    setObjectName(QStringLiteral("leftSidebar"));
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFocusPolicy(Qt::NoFocus);

    for (ElidedLabel* const row : m_highscores.rows())
        m_rows.push_back({.widget = row,
                          .width = ScreenMetrics::leftPanelWidth,
                          .above = m_highscores.paddingAbove(row),
                          .isHighscore = true});

    m_resetButton = addButton("reset_highscores", "resetButton", 10);
    connect(m_resetButton, &QPushButton::clicked, &m_game, &MemoryGame::resetHighscores);

    QPushButton* const reportButton = addButton("open_highscores_html", "reportButton", 6);
    connect(reportButton, &QPushButton::clicked, &m_game, &MemoryGame::openHighscoresHTML);

    m_versusCheckbox = new QCheckBox(controlText("versus_mode"), m_column);
    m_versusCheckbox->setObjectName(QStringLiteral("versusCheckbox"));
    m_versusCheckbox->setFont(systemFont(13, QFont::DemiBold));
    m_rows.push_back(
        {.widget = m_versusCheckbox, .width = ScreenMetrics::leftPanelWidth, .below = 8});
    connect(m_versusCheckbox, &QCheckBox::clicked, &m_game, [this](bool isChecked) {
        if (m_game.isGameActive()) {
            m_versusCheckbox->setChecked(m_game.isVersusMode());
            return;
        }
        m_game.setIsVersusMode(isChecked);
        // The lists of the other mode are empty until somebody asks for them.
        m_game.reloadHighscoresForCurrentSettings();
    });

    m_endButton = addButton("end_game", "endButton", 6);
    setTextColour(m_endButton, QPalette::ButtonText, Colours::red);
    // A screen reader may press what is about to go.
    connect(m_endButton, &QPushButton::clicked, &m_game, [this] {
        if (m_game.isGameActive())
            m_game.endGame();
    });

    // One clean column, as wide as its widest text.
    int widest = buttonWidth;
    for (const Row& row : m_rows) {
        if (qobject_cast<QPushButton*>(row.widget) != nullptr)
            widest = std::max(widest, row.widget->sizeHint().width());
    }
    for (Row& row : m_rows) {
        if (qobject_cast<QPushButton*>(row.widget) != nullptr)
            row.width = std::min(widest, ScreenMetrics::leftPanelWidth);
    }

    setWidget(m_column);
    applyColours();
}

ElidedLabel* LeftSidebar::addLine(const char* name, int width, const QFont& font)
{
    auto* const line = new ElidedLabel(QString::fromLatin1(name), m_column);
    line->setFont(font);
    m_rows.push_back({.widget = line, .width = width});
    return line;
}

QPushButton* LeftSidebar::addButton(const char* key, const char* name, int above)
{
    auto* const button = new QPushButton(controlText(key), m_column);
    button->setObjectName(QString::fromLatin1(name));
    button->setFont(systemFont(12, QFont::DemiBold));
    m_rows.push_back({.widget = button, .width = buttonWidth, .above = above});
    return button;
}

void LeftSidebar::refresh()
{
    refreshPlayerLines();
    m_highscores.refresh();
    m_versusCheckbox->setChecked(m_game.isVersusMode());
    m_versusCheckbox->setEnabled(!m_game.isGameActive());
    m_endButton->setVisible(m_game.isGameActive());
    arrange();
}

void LeftSidebar::refreshPlayerLines()
{
    const bool isVersus = m_game.isVersusMode();
    const auto [first, second] = m_game.playerNames();
    const auto [firstScore, secondScore] = m_game.playerScores();
    m_pairingLine->setText(localizedText("%1 vs %2", {first, second}));
    m_firstScoreLine->setText(first + QStringLiteral(": ") + QString::number(firstScore));
    m_secondScoreLine->setText(second + QStringLiteral(": ") + QString::number(secondScore));
    for (QWidget* const line : {m_pairingLine, m_firstScoreLine, m_secondScoreLine})
        line->setVisible(isVersus);

    const QString name = trimmedText(m_game.playerName());
    m_nameLine->setText(name);
    m_nameLine->setVisible(!isVersus && !name.isEmpty());
    m_timeLine->setText(localizedText("time_label", {m_game.formattedElapsedTime()}));
    m_failuresLine->setText(localizedText("failed_attempts_label", {m_game.failedAttempts()}));
    m_timeLine->setVisible(!isVersus);
    m_failuresLine->setVisible(!isVersus);
}

void LeftSidebar::applyColours()
{
    const QColor blue = Colours::withOpacity(Colours::systemBlue(palette()), 0.95);
    setTextColour(m_pairingLine, QPalette::WindowText, blue);
    setTextColour(m_nameLine, QPalette::WindowText, blue);
    for (ElidedLabel* const row : m_highscores.rows()) {
        if (m_highscores.paddingAbove(row) > 0)
            setTextColour(row, QPalette::WindowText, Colours::secondaryText(palette()));
    }
}

void LeftSidebar::arrange()
{
    std::vector<Row> shown;
    std::ranges::copy_if(m_rows, std::back_inserter(shown),
                         [](const Row& row) { return !row.widget->isHidden(); });
    int natural = endPadding + logoSlot + endPadding;
    for (const Row& row : shown)
        natural += gap + row.above + row.widget->sizeHint().height() + row.below;

    // Too high for the room, the highscores move closer together, evenly.
    const auto highscores = static_cast<int>(std::ranges::count_if(shown, &Row::isHighscore));
    const int shrinkable = std::max(0, highscores - 1);
    const int overflow = std::clamp(natural - viewport()->height(), 0, gap * shrinkable);
    const int rest = gap * shrinkable - overflow;
    m_column->resize(viewport()->width(), std::max(viewport()->height(), natural - overflow));

    int y = endPadding + logoSlot;
    int highscore = 0;
    for (const Row& row : shown) {
        int above = gap;
        if (row.isHighscore) {
            if (highscore > 0)
                above = qRound(1.0 * rest * highscore / shrinkable) -
                        qRound(1.0 * rest * (highscore - 1) / shrinkable);
            ++highscore;
        }
        y += above + row.above;
        const int height = row.widget->sizeHint().height();
        row.widget->setGeometry(ScreenMetrics::leadingPadding, y, row.width, height);
        y += height + row.below;
    }
}

void LeftSidebar::changeEvent(QEvent* event)
{
    QScrollArea::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        applyColours();
}

void LeftSidebar::resizeEvent(QResizeEvent* event)
{
    QScrollArea::resizeEvent(event);
    arrange();
}
