// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/left_sidebar.h"

#include "game/memory_game.h"
#include "platform/localized_text.h"
#include "platform/trim.h"
#include "platform/widgets/appearance.h"
#include "platform/widgets/control_text.h"
#include "ui/colours.h"
#include "ui/elided_label.h"
#include "ui/fonts.h"
#include "ui/plain_area.h"
#include "ui/screen_metrics.h"

#include <QCheckBox>
#include <QEvent>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalBlocker>
#include <algorithm>
#include <initializer_list>

namespace {

constexpr int gap = 12;
constexpr int endPadding = 12;
constexpr int logoSlot = 130;       ///< The logo is higher, and overlaps the strip above.
constexpr int lowestStill = 480;    ///< Below this height the whole column scrolls.
constexpr int leastHighscores = 40; ///< What of the highscores is always seen.
constexpr int nameWidth = 180;
constexpr int tightestPairing = 93; ///< Per cent; "Player 1" is a long word in many languages.
constexpr int buttonWidth = 180;
constexpr int besideButtonText = 8; ///< Room on each side, beyond the style's own.

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
    , m_highscoreArea(new QScrollArea(m_column))
    , m_highscoreColumn(new QWidget)
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
    , m_highscoreSection(game, m_highscoreColumn)
{
    setObjectName(QStringLiteral("leftSidebar"));
    m_pairingLine->setTightest(tightestPairing);
    m_highscoreArea->setObjectName(QStringLiteral("highscoreArea"));
    for (QScrollArea* const area : std::initializer_list<QScrollArea*>{this, m_highscoreArea})
        area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    makePlain(*m_highscoreArea, m_highscoreColumn);
    connect(verticalScrollBar(), &QScrollBar::valueChanged, this, &LeftSidebar::scrolled);

    for (ElidedLabel* const row : m_highscoreSection.rows())
        m_highscoreRows.push_back({.widget = row,
                                   .width = ScreenMetrics::leftPanelWidth,
                                   .above = m_highscoreSection.paddingAbove(row)});

    m_resetButton = addButton("reset_highscores", "resetButton", 10);
    connect(m_resetButton, &QPushButton::clicked, &m_game, &MemoryGame::resetHighscores);

    QPushButton* const reportButton = addButton("open_highscores_html", "reportButton", 6);
    connect(reportButton, &QPushButton::clicked, &m_game, &MemoryGame::openHighscoresHTML);

    addVersusCheckbox();

    m_endButton = addButton("end_game", "endButton", 6);
    // A screen reader may press what is about to go.
    connect(m_endButton, &QPushButton::clicked, &m_game, [this] {
        if (m_game.isGameActive())
            m_game.endGame();
    });

    // A screen reader reads in this order.
    m_highscoreArea->raise();
    for (const Row& row : m_sidebarActions)
        row.widget->raise();
    alignButtons();
    makePlain(*this, m_column);
    followAppearance();
}

void LeftSidebar::addVersusCheckbox()
{
    m_versusCheckbox = new QCheckBox(controlText("versus_mode"), m_column);
    m_versusCheckbox->setObjectName(QStringLiteral("versusCheckbox"));
    m_versusCheckbox->setFont(systemFont(13, QFont::DemiBold));
    // No wider than its text, or the ring around it would not close within the column.
    m_sidebarActions.push_back(
        {.widget = m_versusCheckbox,
         .width = std::min(m_versusCheckbox->sizeHint().width(), ScreenMetrics::leftPanelWidth),
         .below = 8});
    // Not clicked, which is silent when a screen reader toggles the box.
    connect(m_versusCheckbox, &QCheckBox::toggled, &m_game, [this](bool isChecked) {
        if (m_game.isGameActive()) {
            showMode();
            return;
        }
        m_game.setIsVersusMode(isChecked);
        // The lists of the other mode are empty until somebody asks for them.
        m_game.reloadHighscoresForCurrentSettings();
    });
}

/// One clean column, as wide as its widest text.
void LeftSidebar::alignButtons()
{
    int widest = buttonWidth;
    for (const Row& row : m_sidebarActions) {
        if (qobject_cast<QPushButton*>(row.widget) != nullptr)
            widest = std::max(widest, row.widget->sizeHint().width() + 2 * besideButtonText);
    }
    for (Row& row : m_sidebarActions) {
        if (qobject_cast<QPushButton*>(row.widget) != nullptr)
            row.width = std::min(widest, ScreenMetrics::leftPanelWidth);
    }
}

ElidedLabel* LeftSidebar::addLine(const char* name, int width, const QFont& font)
{
    auto* const line = new ElidedLabel(QString::fromLatin1(name), m_column);
    line->setFont(font);
    m_sidebarHeader.push_back({.widget = line, .width = width});
    return line;
}

QPushButton* LeftSidebar::addButton(const char* key, const char* name, int above)
{
    auto* const button = new QPushButton(controlText(key), m_column);
    button->setObjectName(QString::fromLatin1(name));
    button->setFont(systemFont(12, QFont::DemiBold));
    m_sidebarActions.push_back({.widget = button, .width = buttonWidth, .above = above});
    return button;
}

int LeftSidebar::scrolledBy() const
{
    return verticalScrollBar()->value();
}

void LeftSidebar::refresh()
{
    refreshSidebarHeader();
    m_highscoreSection.refresh();
    refreshSidebarActions();
    arrange();
}

void LeftSidebar::refreshSidebarActions()
{
    showMode();
    m_versusCheckbox->setEnabled(!m_game.isGameActive());
    m_endButton->setVisible(m_game.isGameActive());
}

void LeftSidebar::showMode()
{
    const QSignalBlocker blocker(m_versusCheckbox); // nobody has toggled it
    m_versusCheckbox->setChecked(m_game.isVersusMode());
}

void LeftSidebar::refreshSidebarHeader()
{
    const bool isVersus = m_game.isVersusMode();
    const auto [first, second] = m_game.playerNames();
    const auto [firstScore, secondScore] = m_game.playerScores();
    m_pairingLine->setText(localizedText("%1 vs %2", {first, second}), {first, second});
    m_firstScoreLine->setText(first + QStringLiteral(": ") + QString::number(firstScore), {first});
    m_secondScoreLine->setText(second + QStringLiteral(": ") + QString::number(secondScore),
                               {second});
    for (QWidget* const line : {m_pairingLine, m_firstScoreLine, m_secondScoreLine})
        line->setVisible(isVersus);

    const QString name = trimmedText(m_game.playerName());
    m_nameLine->setText(name, {name});
    m_nameLine->setVisible(!isVersus && !name.isEmpty());
    m_timeLine->setText(localizedText("time_label", {m_game.formattedElapsedTime()}));
    m_failuresLine->setText(localizedText("failed_attempts_label", {m_game.failedAttempts()}));
    m_timeLine->setVisible(!isVersus);
    m_failuresLine->setVisible(!isVersus);
}

void LeftSidebar::followAppearance()
{
    // Under high contrast nothing is left of colours that are hard to read.
    const bool isContrastHigh = Appearance::isContrastHigh();
    const QColor text = palette().color(QPalette::WindowText);
    const QColor blue =
        isContrastHigh ? text : Colours::withOpacity(Colours::systemBlue(palette()), 0.95);
    const QColor heading = isContrastHigh ? text : Colours::secondaryText(palette());
    setTextColour(m_endButton, QPalette::ButtonText,
                  isContrastHigh ? palette().color(QPalette::ButtonText) : Colours::red);
    setTextColour(m_pairingLine, QPalette::WindowText, blue);
    setTextColour(m_nameLine, QPalette::WindowText, blue);
    for (ElidedLabel* const row : m_highscoreSection.rows()) {
        if (m_highscoreSection.paddingAbove(row) > 0)
            setTextColour(row, QPalette::WindowText, heading);
    }
}

LeftSidebar::Rows LeftSidebar::shown(const Rows& rows)
{
    Rows shown = rows;
    std::erase_if(shown, [](const Row& row) { return row.widget->isHidden(); });
    return shown;
}

void LeftSidebar::arrange()
{
    const Rows header = shown(m_sidebarHeader);
    const Rows highscores = shown(m_highscoreRows);
    const Rows actions = shown(m_sidebarActions);
    // What all other rows take, and the gap before the highscores.
    int others = endPadding + logoSlot + endPadding + gap + highscores.front().above;
    for (const Rows* const rows : {&header, &actions}) {
        for (const Row& row : *rows)
            others += gap + row.above + row.widget->sizeHint().height() + row.below;
    }
    const int shrinkable = gap * (static_cast<int>(highscores.size()) - 1);
    int natural = shrinkable - highscores.front().above;
    for (const Row& row : highscores)
        natural += row.above + row.widget->sizeHint().height();

    const int room = height() - others;
    const int closeTogether = natural - std::clamp(natural - room, 0, shrinkable);
    const bool scrollsWhole = height() < lowestStill;
    // A heading alone takes less than the least room.
    const int visible =
        scrollsWhole ? closeTogether : std::min(std::max(room, leastHighscores), closeTogether);
    m_column->resize(viewport()->width(), std::max(height(), others + visible));

    int y = endPadding + logoSlot;
    const auto place = [&y, this](const Row& row) {
        const int height = row.widget->sizeHint().height();
        const int width = std::min(row.width, m_column->width() - ScreenMetrics::leadingPadding);
        y += gap + row.above;
        row.widget->setGeometry(ScreenMetrics::leadingPadding, y, width, height);
        y += height + row.below;
    };
    std::ranges::for_each(header, place);
    y += gap + highscores.front().above;
    m_highscoreArea->move(ScreenMetrics::leadingPadding, y);
    arrangeHighscores(highscores, closeTogether, visible);
    y += visible;
    std::ranges::for_each(actions, place);
}

void LeftSidebar::arrangeHighscores(const Rows& highscores, int height, int visibleHeight)
{
    m_highscoreArea->resize(
        std::min(ScreenMetrics::leftPanelWidth, m_column->width() - ScreenMetrics::leadingPadding),
        visibleHeight);
    // Scrolled by keys as well, but no stop on the way where there is nothing to scroll.
    m_highscoreArea->setFocusPolicy(height > visibleHeight ? Qt::StrongFocus : Qt::NoFocus);
    const int barWidth =
        height > visibleHeight ? m_highscoreArea->verticalScrollBar()->sizeHint().width() : 0;
    m_highscoreColumn->resize(m_highscoreArea->width() - barWidth, height);

    int rows = 0;
    for (const Row& row : highscores)
        rows += row.widget->sizeHint().height() + row.above;
    const int gaps = height - rows + highscores.front().above;
    const auto count = static_cast<int>(highscores.size()) - 1;
    int y = 0;
    for (int i = 0; i <= count; ++i) {
        const Row& row = highscores[static_cast<std::size_t>(i)];
        if (i > 0)
            y += row.above + qRound(1.0 * gaps * i / count) - qRound(1.0 * gaps * (i - 1) / count);
        const int rowHeight = row.widget->sizeHint().height();
        row.widget->setGeometry(0, y, m_highscoreColumn->width(), rowHeight);
        y += rowHeight;
    }
}

void LeftSidebar::changeEvent(QEvent* event)
{
    QScrollArea::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        followAppearance();
}

void LeftSidebar::resizeEvent(QResizeEvent* event)
{
    QScrollArea::resizeEvent(event);
    arrange();
}
