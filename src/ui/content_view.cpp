// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/content_view.h"

#include "decks/deck_look.h"
#include "platform/main_queue.h"
#include "platform/platform.h"
#include "platform/widgets/announcer.h"
#include "platform/widgets/appearance.h"
#include "platform/widgets/held_input.h"
#include "platform/widgets/logo.h"
#include "ui/celebration.h"
#include "ui/colours.h"
#include "ui/commentary.h"
#include "ui/game_board.h"
#include "ui/header.h"
#include "ui/invitation.h"
#include "ui/leaving_board.h"
#include "ui/left_sidebar.h"
#include "ui/plain_area.h"
#include "ui/start_forms.h"

#include <QCoreApplication>
#include <QPainter>
#include <QScrollArea>
#include <algorithm>
#include <initializer_list>
#include <utility>

namespace {

constexpr int logoTop = 22;

/// The line between sidebar and board.
class Divider : public QWidget {
public:
    explicit Divider(QWidget* parent)
        : QWidget(parent)
    {
        setObjectName(QStringLiteral("divider"));
        setAttribute(Qt::WA_TransparentForMouseEvents);
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter(this).fillRect(rect(), Colours::withOpacity(Colours::gray, 0.35));
    }
};

bool isDialogOrMenu(const QObject& object)
{
    const auto* const widget = qobject_cast<const QWidget*>(&object);
    return widget != nullptr &&
           (widget->windowType() == Qt::Dialog || widget->windowType() == Qt::Popup);
}

} // namespace

ContentView::ContentView(std::unique_ptr<MemoryGame> game, QWidget* parent)
    : QWidget(parent)
    , m_game(std::move(game))
    , m_header(new Header(*m_game, this))
    , m_leftSidebar(new LeftSidebar(*m_game, this))
    , m_invitation(new Invitation(*m_game, this))
    , m_singlePlayerStartView(new SinglePlayerStartView(*m_game, this))
    , m_versusStartView(new VersusStartView(*m_game, this))
    , m_boardArea(new QScrollArea(this))
    , m_gameBoard(new GameBoard(*m_game, nullptr))
    , m_divider(new Divider(this))
    , m_logo(new LogoView(this))
    , m_commentary(new Commentary(*m_game, this))
    , m_announcer(new Announcer(this))
{
    m_boardArea->setWidgetResizable(true);
    makePlain(*m_boardArea, m_gameBoard);
    for (QWidget* const above : std::initializer_list<QWidget*>{m_header, m_divider, m_logo})
        above->raise();
    connect(m_gameBoard, &GameBoard::focusMoved, m_boardArea,
            [this](QWidget* tile) { m_boardArea->ensureWidgetVisible(tile, 20, 20); });

    connect(m_gameBoard, &GameBoard::removalDue, this, &ContentView::scheduleRefresh);

    connect(m_leftSidebar, &LeftSidebar::scrolled, m_logo,
            [this](int points) { m_logo->move(m_logo->x(), logoTop - points); });

    connect(m_game.get(), &MemoryGame::changed, this, &ContentView::noteChange);
    connect(&platform().mainQueue, &MainQueue::heldChanged, this, [this](bool isHeld) {
        if (!isHeld && std::exchange(m_isRefreshScheduled, false))
            scheduleRefresh();
    });
    QCoreApplication::instance()->installEventFilter(this);
    refresh();
}

ContentView::~ContentView() = default;

double ContentView::calculateCardSize(QSizeF windowSize) const
{
    return ScreenMetrics::calculateCardSize(windowSize, m_game->cardColumns(), m_game->cardRows());
}

QSize ContentView::minimumSizeHint() const
{
    return {1100, 650};
}

QRect ContentView::mainArea() const
{
    using ScreenMetrics::dividerX;
    return {dividerX, headerHeight, width() - dividerX, height() - headerHeight};
}

void ContentView::layOut()
{
    using namespace ScreenMetrics;
    m_header->setGeometry(0, 0, width(), headerHeight);
    m_leftSidebar->setGeometry(0, headerHeight, dividerX, height() - headerHeight);
    const QRect main = mainArea();
    m_singlePlayerStartView->setGeometry(main);
    m_versusStartView->setGeometry(main);
    arrangeBoard();
    m_invitation->arrange(main, main.top() + (m_game->isVersusMode()
                                                  ? m_versusStartView->controlsTop()
                                                  : m_singlePlayerStartView->controlsTop()));
    m_divider->setGeometry(dividerX, 0, 1, height());
    m_logo->setGeometry(leadingPadding, logoTop - m_leftSidebar->scrolledBy(), 180, 180);
}

void ContentView::arrangeBoard()
{
    m_gameBoard->setGrid(m_game->cardColumns(), calculateCardSize(size()));
    // A card of the first row that turns stands out into the strip. A board that
    // has to scroll stays out of it.
    const QRect main = mainArea();
    const bool fits = m_gameBoard->minimumSizeHint().height() <= main.height();
    m_gameBoard->setTopRoom(fits ? main.top() : 0);
    m_boardArea->setGeometry(fits ? main.adjusted(0, -main.top(), 0, 0) : main);
}

void ContentView::resizeEvent(QResizeEvent*)
{
    layOut();
}

void ContentView::showEvent(QShowEvent*)
{
    layOut();
    refresh();
}

void ContentView::followAppearance()
{
    m_leftSidebar->followAppearance();
    update();
}

void ContentView::tellStatus()
{
    m_announcer->say(m_commentary->status());
}

void ContentView::noteChange(MemoryGame::Member member)
{
    if (member == MemoryGame::Member::isGameActive)
        m_needsFocus = true;
    else if (member == MemoryGame::Member::isVersusMode)
        m_ignoresKeyRepeats = true;
    // By the time of the refresh another board may lie there.
    if (member == MemoryGame::Member::cards && m_game->isGameActive() &&
        std::ranges::all_of(m_game->cards(), &MemoryCard::isMatched))
        m_wonBoard = m_game->cards();
    scheduleRefresh();
}

void ContentView::scheduleRefresh()
{
    if (std::exchange(m_isRefreshScheduled, true))
        return;
    QMetaObject::invokeMethod(this, &ContentView::refreshIfScheduled, Qt::QueuedConnection);
}

void ContentView::refreshIfScheduled()
{
    if (std::exchange(m_isRefreshScheduled, false))
        refresh();
}

void ContentView::refresh()
{
    if (platform().mainQueue.isHeld()) { // what is shown is half of a change
        m_isRefreshScheduled = true;
        return;
    }
    m_singlePlayerStartView->refresh();
    m_versusStartView->refresh();
    showLeavingBoard();
    m_gameBoard->refresh();
    arrangeBoard();
    showMainContent();
    m_leftSidebar->refresh();
    m_header->refresh();
    inviteAgain();
    // Last, since what is said of a new focus cuts off what was said before.
    m_announcer->say(m_commentary->take());
}

void ContentView::showLeavingBoard()
{
    const MemoryCards won = std::exchange(m_wonBoard, {});
    if (won.empty() || !isVisible())
        return;
    auto cards = m_gameBoard->leavingCards(won);
    const QPoint offset = m_gameBoard->mapTo(this, QPoint()) - m_boardArea->pos();
    for (LeavingBoard::Card& card : cards)
        card.place.translate(offset);
    auto* const leaving = new LeavingBoard(std::move(cards), this);
    leaving->setGeometry(m_boardArea->geometry());
    leaving->stackUnder(m_header);
    leaving->show();
    connect(leaving, &LeavingBoard::dismissed, this, [this] { m_ignoresRepeats = true; });
    if (m_game->gameCompleted())
        connect(leaving, &LeavingBoard::turned, this, &ContentView::celebrate);
}

void ContentView::celebrate()
{
    if (Appearance::isMotionReduced() || m_game->isGameActive() || !m_game->gameCompleted())
        return;
    auto* const celebration = new Celebration(deckLook(m_game->cardDeck()), mainArea(), this);
    celebration->stackUnder(m_invitation);
    celebration->show();
}

void ContentView::inviteAgain()
{
    const bool isBoard = m_game->isGameActive();
    const bool isVersusForm = m_game->isVersusMode();
    const bool isOtherView = isBoard != m_showsBoard || isVersusForm != m_showsVersusForm;
    m_showsBoard = isBoard;
    m_showsVersusForm = isVersusForm;
    if (!isOtherView) {
        m_invitation->refresh();
        return;
    }
    m_invitation->setVisible(!isBoard);
    if (isBoard) {
        m_invitation->dropPictures();
        delete findChild<Celebration*>();
    } else {
        layOut();
        m_invitation->standReady();
    }
}

QWidget* ContentView::mainContent() const
{
    if (m_game->isGameActive())
        return m_boardArea;
    if (m_game->isVersusMode())
        return m_versusStartView;
    return m_singlePlayerStartView;
}

void ContentView::showMainContent()
{
    // What comes has the focus before what goes is hidden: else it would pass
    // to the next control in line, which may be the reset button.
    QWidget* const content = mainContent();
    content->show();
    if (m_needsFocus && isVisible()) {
        m_needsFocus = false;
        giveFocus();
        m_ignoresRepeats = true;
    }
    for (QWidget* const other :
         std::initializer_list<QWidget*>{m_boardArea, m_versusStartView, m_singlePlayerStartView}) {
        if (other != content)
            other->hide();
    }
}

void ContentView::giveFocus()
{
    if (m_game->isGameActive())
        m_gameBoard->focusCard(0);
    else if (m_game->isVersusMode())
        m_versusStartView->focusField();
    else
        m_singlePlayerStartView->focusField();
}

bool ContentView::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Hide && isDialogOrMenu(*watched))
        m_ignoresRepeats = true;
    const bool isKey = isKeyPress(*event);
    if (!isKey && !isMousePress(*event))
        return QWidget::eventFilter(watched, event);

    // Input acts on what the game has come to, also if it was not shown yet.
    if (watched->isWindowType())
        refreshIfScheduled();
    m_gameBoard->setFocusRingShown(isKey);
    // A key still held when its view or a dialog went, or the second half of a double click,
    // must not act on the next view.
    if (!isRepeat(*event))
        m_ignoresRepeats = m_ignoresKeyRepeats = false;
    const bool isIgnored = m_ignoresRepeats || (isKey && m_ignoresKeyRepeats);
    if (isIgnored && event->type() == QEvent::ShortcutOverride)
        event->accept(); // else the shortcut would be taken
    return isIgnored;
}
