// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The game against a second, plain copy of its rules, over random steps, legal or not.
//
// PAIRCADE_STEPS sets how many (a simulated minute is 60,000), PAIRCADE_SEED where to
// begin: it repeats a walk, since cards are chosen by what they pair with, not by place.
#include "game/game_status.h"
#include "highscores/highscore_file.h"
#include "platform/user_folders.h"
#include "settings/settings_keys.h"
#include "support/output_of.h"
#include "support/play.h"
#include "support/reference_game.h"
#include "support/test_platform.h"

#include <QRandomGenerator>
#include <QSet>
#include <QTest>
#include <map>

using namespace Qt::StringLiterals;

namespace {

/// A game, the rules beside it, and what befalls both.
class Walk {
public:
    explicit Walk(quint32 seed)
        : m_random(seed)
    {
        m_platform.useResources(m_platform.home.path());
        m_rules.deckFolder = QFile::encodeName(m_platform.home.path()) + "/Cards/";
        for (const auto& [deck, size] : {std::pair(u"Cyberpunk"_s, 20), {u"Kids"_s, 9}}) {
            makeDeck(m_platform.home.path(), deck, size);
            m_rules.deckSizes[deck] = size;
        }
        m_platform.notifications.observe(GameStatusChangedNotification, m_platform.defaults.get(),
                                         [this] { ++m_posts; });
        m_game = std::make_unique<MemoryGame>();
        QObject::connect(m_game.get(), &MemoryGame::changed, m_game.get(),
                         [this](MemoryGame::Member member) { m_changes.push_back(member); });
    }

    /// Goes `steps` steps, or to the first difference; that is returned, else nothing.
    QString go(int steps)
    {
        QString difference = compare();
        const QByteArray log = outputOf([&] {
            for (int i = 0; i < steps && difference.isEmpty(); ++i) {
                step();
                difference = compare();
            }
        });
        if (difference.isEmpty() && log != m_rules.log)
            difference = u"the log: "_s + QString::fromUtf8(log);
        return difference.isEmpty() ? difference
                                    : difference + u"\nafter "_s + m_trail.join(u", "_s);
    }

    std::map<QString, int> happened{}; ///< What the walk came by, and how often.

private:
    int draw(int bound) { return int(m_random.bounded(bound)); }
    template <class Value>
    Value oneOf(std::initializer_list<Value> values)
    {
        return values.begin()[draw(int(values.size()))];
    }

    void step()
    {
        // A game at rest is soon started, so that most of the walk is play.
        if (!m_rules.isGameActive && draw(m_rules.mayStart() ? 3 : 15) == 0)
            return apply(u"start"_s, [this] { start(); });
        if (!m_rules.mayStart() && draw(4) == 0)
            return apply(u"name"_s, [this] { rename(); });
        int dice = draw(10'000);
        const auto falls = [&dice](int weight) { return (dice -= weight) < 0; };
        if (falls(6200))
            apply(u"tap"_s, [this] { tap(); });
        else if (falls(700))
            apply(u"tick"_s, [this] { tick(); });
        else if (falls(1600))
            apply(u"miss over"_s, [this] { fallDue(); });
        else if (falls(1100))
            apply(u"turn of the loop"_s, [this] { runQueue(); });
        else if (falls(20))
            apply(u"start"_s, [this] { start(); });
        else if (falls(15))
            apply(u"end"_s, [this] { both(&MemoryGame::endGame, &ReferenceGame::endGame); });
        else if (falls(150))
            apply(u"name"_s, [this] { rename(); });
        else if (falls(15))
            apply(u"mode"_s, [this] { setMode(draw(2) == 0); });
        else if (falls(120))
            apply(u"setting"_s, [this] { set(); });
        else if (falls(10))
            apply(u"setting by another program"_s, [this] { setElsewhere(); });
        else if (falls(6))
            apply(u"round"_s, [this] { dealOutOfTurn(); });
        else if (falls(15))
            apply(u"reset"_s,
                  [this] { both(&MemoryGame::resetHighscores, &ReferenceGame::resetHighscores); });
        else if (falls(15))
            apply(u"restore"_s, [this] {
                both(&MemoryGame::restoreHighscores, &ReferenceGame::restoreHighscores);
            });
        else if (falls(30))
            apply(u"reload"_s, [this] {
                both(&MemoryGame::reloadHighscoresForCurrentSettings, &ReferenceGame::updateLists);
            });
        else
            apply(u"header"_s, [this] {
                both(&MemoryGame::updateHeaderForCurrentTurn,
                     &ReferenceGame::updateHeaderForCurrentTurn);
            });
    }

    void apply(const QString& name, const std::function<void()>& action)
    {
        m_trail << name;
        if (m_trail.size() > 25)
            m_trail.removeFirst();
        m_changes.clear();
        m_rules.assignments.clear();
        m_stored = m_rules.file.size();
        action();
        ++happened[name];
    }

    void both(void (MemoryGame::*real)(), void (ReferenceGame::*rule)())
    {
        const bool wasActive = m_rules.isGameActive;
        (m_game.get()->*real)();
        (m_rules.*rule)();
        takeOverBoard();
        if (wasActive && m_rules.gameCompleted)
            ++happened[u"won"_s];
    }

    void start()
    {
        if (m_rules.mayStart()) {
            for (const auto& [key, value] : std::exchange(m_elsewhere, {}))
                counterpart(key) = value;
        }
        both(&MemoryGame::startNewGame, &ReferenceGame::startNewGame);
        ++happened[m_rules.isGameActive ? u"started"_s : u"not started"_s];
        if (!m_rules.isGameActive && draw(3) == 0)
            setDeck(u" Cyberpunk"_s);
    }

    /// The card to tap: mostly one that lies hidden, often the partner of the first.
    MemoryCard chosenCard()
    {
        const MemoryCards& cards = m_game->cards();
        if (draw(12) == 0 && !m_oldCards.empty())
            return m_oldCards[std::size_t(draw(int(m_oldCards.size())))];
        if (cards.empty() || draw(30) == 0)
            return MemoryCard{};
        const auto first = m_rules.firstSelectedIndex;
        if (first && draw(2) == 0) {
            const std::size_t partner = otherCard(*m_game, *first, true);
            return cards[partner < cards.size() ? partner : *first];
        }
        // Cards by pair, so that a choice means the same on every board.
        std::vector<std::size_t> order;
        for (std::size_t i = 0; i < cards.size(); ++i) {
            for (std::size_t j = i; j < cards.size(); ++j) {
                if (cards[j].pairID == cards[i].pairID && !std::ranges::count(order, j))
                    order.push_back(j);
            }
        }
        auto place = std::size_t(draw(int(order.size())));
        for (std::size_t i = 0; i < order.size() && cards[order[place]].isFaceUp && draw(8); ++i)
            place = (place + 1) % order.size();
        return cards[order[place]];
    }

    void tap()
    {
        MemoryCard card = chosenCard();
        card.isFaceUp = draw(2) == 0; // a copy may be out of date
        const auto oldBoard = m_game->cards();
        const bool wasActive = m_rules.isGameActive;
        m_game->flipCard(card);
        m_rules.flipCard(card.id);
        if (takeOverBoard())
            ++happened[u"another round"_s];
        if (wasActive && !m_rules.isGameActive) {
            const auto [one, two] = m_rules.playerScores;
            ++happened[!m_rules.gameCompleted  ? u"no further round"_s
                       : !m_rules.isVersusMode ? u"won alone"_s
                       : one == two            ? u"drawn"_s
                                               : u"won by one of two"_s];
        }
    }

    void tick()
    {
        if (m_game->timer() != nullptr)
            fire(const_cast<QTimer&>(*m_game->timer()));
        m_rules.tick();
    }

    void fallDue()
    {
        for (QTimer* const timer : waitingTimers())
            fire(*timer);
        m_rules.turnBackFallsDue();
    }

    void runQueue()
    {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        m_rules.runQueue();
    }

    void rename()
    {
        const QString name =
            oneOf({u""_s, u" \t\n"_s, u"Ann"_s, u" Ann "_s, u"Ben B"_s, u"%2"_s, u"Zoë"_s});
        const int which = draw(3);
        using Member = MemoryGame::Member;
        if (which == 0) {
            m_game->setPlayerName(name);
            m_rules.assign(m_rules.playerName, name, Member::playerName);
        } else if (which == 1) {
            m_game->setPlayerOneName(name);
            m_rules.assign(m_rules.playerOneName, name, Member::playerOneName);
        } else {
            m_game->setPlayerTwoName(name);
            m_rules.assign(m_rules.playerTwoName, name, Member::playerTwoName);
        }
    }

    void setMode(bool isVersus)
    {
        m_game->setIsVersusMode(isVersus);
        m_rules.assign(m_rules.isVersusMode, isVersus, MemoryGame::Member::isVersusMode);
    }

    std::int64_t& counterpart(QLatin1String key)
    {
        return key == SettingsKeys::AmountCards ? m_rules.amountCards : m_rules.amountRounds;
    }
    std::int64_t someValue(QLatin1String key)
    {
        return key == SettingsKeys::AmountCards ? draw(9) - 1 : draw(5) - 1;
    }

    void set()
    {
        UserDefaults& defaults = *m_platform.defaults;
        const QLatin1String key =
            oneOf({SettingsKeys::AmountCards, SettingsKeys::AmountRounds, SettingsKeys::CardDeck});
        if (key == SettingsKeys::CardDeck)
            return setDeck(oneOf({u" Cyberpunk"_s, u"Kids\n"_s, u"None"_s, u" "_s, u"iPhoto"_s,
                                  u"iPhoto: Sea"_s, u"iPhoto: "_s}));
        const std::int64_t value = someValue(key);
        counterpart(key) = value;
        defaults.setInteger(key, value);
        std::erase_if(m_elsewhere, [key](const auto& other) { return other.first == key; });
    }

    void setDeck(const QString& deck)
    {
        m_rules.deckSetting = deck;
        m_platform.defaults->setString(SettingsKeys::CardDeck, deck);
    }

    /// Seen from the next start on that is not refused.
    void setElsewhere()
    {
        const QLatin1String key = oneOf({SettingsKeys::AmountCards, SettingsKeys::AmountRounds});
        m_elsewhere.emplace_back(key, someValue(key));
        UserDefaults(settingsFile()).setInteger(key, m_elsewhere.back().second);
    }

    /// Nobody calls for a round while a miss lies open: the last pair was just found.
    void dealOutOfTurn()
    {
        if (m_rules.isCheckingPair)
            return;
        const std::int64_t round = draw(8); // beyond the last one too
        m_game->loadRound(round);
        m_rules.loadRound(round);
        takeOverBoard();
    }

    /// Gives the rules the board that the game has just dealt; true if it has.
    bool takeOverBoard()
    {
        if (m_rules.dealtPairs == 0)
            return false;
        m_oldCards = std::exchange(m_board, m_game->cards());
        m_rules.cards.clear();
        std::map<QUuid, QStringList> pairs;
        QSet<QString> pictures;
        for (const MemoryCard& card : m_board) {
            m_rules.cards.push_back({card.id, card.pairID, false, false});
            pairs[card.pairID] << card.image.name;
            pictures << card.image.name;
            m_isDealtWell &= !card.image.image.isNull() && !m_knownIds.contains(card.id) &&
                             !m_knownIds.contains(card.pairID);
            m_knownIds << card.id;
        }
        const auto count = std::size_t(std::exchange(m_rules.dealtPairs, 0));
        m_isDealtWell &= m_board.size() == 2 * count && pairs.size() == count &&
                         pictures.size() == qsizetype(count);
        for (const auto& [id, names] : pairs) {
            m_isDealtWell &= names.size() == 2 && names[0] == names[1];
            m_knownIds << id;
        }
        return true;
    }

    static void fire(QTimer& timer)
    {
        QTimerEvent event(timer.timerId());
        QCoreApplication::sendEvent(&timer, &event);
    }
    QList<QTimer*> waitingTimers() const
    {
        auto timers = m_platform.mainQueue.findChildren<QTimer*>();
        timers.removeIf([](const QTimer* timer) { return !timer->isActive(); });
        return timers;
    }

    /// All of the records but their ids.
    static QStringList contents(const HighscoreEntries& entries)
    {
        QStringList lines;
        for (const HighscoreEntry& entry : entries)
            lines << QStringList{entry.gameMode,
                                 entry.playerName,
                                 entry.secondPlayerName.value_or(u"-"_s),
                                 entry.winnerName.value_or(u"-"_s),
                                 QString::number(entry.elapsedSeconds),
                                 QString::number(entry.failedAttempts),
                                 QString::number(entry.firstPlayerScore.value_or(-1)),
                                 QString::number(entry.secondPlayerScore.value_or(-1)),
                                 QString::number(entry.amountCards),
                                 QString::number(entry.amountRounds)}
                         .join(u'/');
        return lines;
    }
    static QList<int> numbers(const std::vector<MemoryGame::Member>& members)
    {
        QList<int> result;
        for (const auto member : members)
            result << int(member);
        return result;
    }

    /// Where the game differs from the rules, or from what always holds; empty if nowhere.
    QString compare()
    {
        QString all;
        const auto same = [&all](const char* what, const auto& real, const auto& rule) {
            if (!(real == rule))
                QDebug(&all) << what << "is" << real << "and not" << rule << '\n';
        };
        const MemoryGame& game = *m_game;
        const ReferenceGame& rules = m_rules;
        same("assignments", numbers(m_changes), numbers(rules.assignments));
        same("playerName", game.playerName(), rules.playerName);
        same("first name", game.playerNames()[0], rules.names()[0]);
        same("second name", game.playerNames()[1], rules.names()[1]);
        same("canStart", game.canStart(), rules.mayStart());
        same("headerText", game.headerText(), rules.headerText);
        same("winnerText", game.winnerText(), rules.winnerText);
        same("currentRound", game.currentRound(), rules.currentRound);
        same("elapsedSeconds", game.elapsedSeconds(), rules.elapsedSeconds);
        same("failedAttempts", game.failedAttempts(), rules.failedAttempts);
        same("gameCompleted", game.gameCompleted(), rules.gameCompleted);
        same("isGameActive", game.isGameActive(), rules.isGameActive);
        same("isVersusMode", game.isVersusMode(), rules.isVersusMode);
        same("currentPlayerIndex", game.currentPlayerIndex(), rules.currentPlayerIndex);
        same("first score", game.playerScores()[0], rules.playerScores[0]);
        same("second score", game.playerScores()[1], rules.playerScores[1]);
        same("firstSelectedIndex", int(game.firstSelectedIndex().value_or(99)),
             int(rules.firstSelectedIndex.value_or(99)));
        same("isCheckingPair", game.isCheckingPair(), rules.isCheckingPair);
        same("timer", game.timer() != nullptr, rules.timer);
        same("timerStarted", game.timerStarted(), rules.timerStarted);
        same("delayed steps", int(waitingTimers().size()), int(rules.delayed.has_value()));
        same("alerts", m_platform.alertLog.shown, rules.alerts);
        same("GameIsActive", m_platform.defaults->integer(SettingsKeys::GameIsActive),
             std::int64_t(rules.gameIsActive));
        same("canRestoreHighscores", game.canRestoreHighscores(), !rules.removed.empty());
        same("the grid", game.cardColumns() * game.cardRows(), 2 * rules.pairsPerRound());
        same("posts", m_posts, rules.posts);
        same("dealt well", m_isDealtWell, true);
        same("cards", game.cards().size(), rules.cards.size());
        for (std::size_t i = 0; all.isEmpty() && i < rules.cards.size(); ++i) {
            same("id", game.cards()[i].id, rules.cards[i].id);
            same("isFaceUp", game.cards()[i].isFaceUp, rules.cards[i].isFaceUp);
            same("isMatched", game.cards()[i].isMatched, rules.cards[i].isMatched);
            same("a found card shows its face",
                 !game.cards()[i].isMatched || game.cards()[i].isFaceUp, true);
        }
        same("the first card lies on the board",
             game.firstSelectedIndex().value_or(0) < std::max(game.cards().size(), std::size_t{1}),
             true);
        same("running and won", game.isGameActive() && game.gameCompleted(), false);
        if (m_changes.empty() && m_stored == rules.file.size())
            return all;
        same("bestTimeScores", contents(game.bestTimeScores()), contents(rules.bestTimeScores));
        same("bestFailureScores", contents(game.bestFailureScores()),
             contents(rules.bestFailureScores));
        same("bestVersusScores", contents(game.bestVersusScores()),
             contents(rules.bestVersusScores));
        if (m_stored != rules.file.size())
            same("the file",
                 contents(
                     decodeHighscores(m_platform.readHighscoreFile()).value_or(HighscoreEntries())),
                 contents(rules.file));
        return all;
    }

    QRandomGenerator m_random;
    TestPlatform m_platform{};
    std::unique_ptr<MemoryGame> m_game{};
    ReferenceGame m_rules{};
    std::vector<MemoryGame::Member> m_changes{};
    std::vector<std::pair<QLatin1String, std::int64_t>> m_elsewhere{};
    std::size_t m_stored = 0; ///< Results before the step.
    int m_posts = 0;
    bool m_isDealtWell = true;
    MemoryCards m_board{};
    MemoryCards m_oldCards{}; ///< Of the board before.
    QSet<QUuid> m_knownIds{};
    QStringList m_trail{};
};

} // namespace

class RulesWalkTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        // The rules are the subject, not the disk, which thousands of writes would wait for.
        if (QFileInfo(u"/dev/shm"_s).isWritable())
            qputenv("TMPDIR", "/dev/shm");
    }

    void theGameKeepsTheRules()
    {
        constexpr int stepsOfAWalk = 5000;
        bool isSet = false;
        const int asked = qEnvironmentVariableIntValue("PAIRCADE_STEPS", &isSet);
        const int walks = isSet ? (asked + stepsOfAWalk - 1) / stepsOfAWalk : 4;
        const QByteArray seedSet = qgetenv("PAIRCADE_SEED");
        quint32 seed = seedSet.isEmpty() ? 1 : seedSet.toUInt();
        std::map<QString, int> happened;
        for (int i = 0; i < walks; ++i) {
            Walk walk(seed);
            const QString difference = walk.go(stepsOfAWalk);
            QVERIFY2(difference.isEmpty(),
                     qPrintable(u"PAIRCADE_SEED=%1: "_s.arg(seed) + difference));
            for (const auto& [what, count] : walk.happened)
                happened[what] += count;
            seed = QRandomGenerator::global()->generate();
        }
        QString summary;
        for (const auto& [what, count] : happened)
            summary += u"%1 %2, "_s.arg(what).arg(count);
        qInfo("%s%d steps", qPrintable(summary), walks * stepsOfAWalk);
        // Otherwise it would prove little.
        for (const auto& what : {u"won alone"_s, u"won by one of two"_s, u"another round"_s,
                                 u"no further round"_s, u"not started"_s})
            QVERIFY2(happened[what] > 0, qPrintable(what));
    }
};

QTEST_GUILESS_MAIN(RulesWalkTest)
#include "rules_walk_test.moc"
