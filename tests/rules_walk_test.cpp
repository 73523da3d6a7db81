// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The game against a second, plain copy of its rules, over random steps, legal or not.
//
// PAIRCADE_STEPS sets how many (a simulated minute is 60,000), PAIRCADE_SEED where to
// begin: it repeats a walk, since cards are chosen by what they pair with, not by place.
#include "highscores/highscore_file.h"
#include "settings/settings_keys.h"
#include "stage/play.h"
#include "stage/stage_platform.h"
#include "support/reference_game.h"

#include <QRandomGenerator>
#include <QSet>
#include <QTest>
#include <map>

using namespace Qt::StringLiterals;

namespace {

using Game = MemoryGame;
using Rules = ReferenceGame;
using Member = Game::Member;

/// A game, the rules beside it, and what befalls both.
class Walk {
public:
    /// Counts in `counts` what the walk comes by.
    Walk(quint32 seed, std::map<QString, int>& counts)
        : m_happened(counts)
        , m_random(seed)
    {
        m_platform.useResources(m_platform.home.path());
        for (const auto& [deck, size] : m_rules.deckSizes.asKeyValueRange())
            makeDeck(m_platform.home.path(), deck, size);
        m_game = std::make_unique<Game>();
        QObject::connect(m_game.get(), &Game::changed, m_game.get(),
                         [this](Member member) { m_changes.push_back(member); });
    }

    /// Goes `steps` steps, or to the first difference; that is returned, else nothing.
    QString go(int steps)
    {
        QString fault;
        for (int i = 0; (fault = compare()).isEmpty() && i < steps; ++i)
            step();
        const QStringList last = m_trail.mid(m_trail.size() - 25);
        return fault.isEmpty() ? fault : fault + u"\nafter "_s + last.join(u", "_s);
    }

private:
    int draw(int bound) { return int(m_random.bounded(bound)); }
    template <class Value>
    Value oneOf(std::initializer_list<Value> values)
    {
        return values.begin()[draw(int(values.size()))];
    }

    /// What may happen next, and how often it does out of 10,000 times.
    struct Step {
        int weight;
        const char* name;
        void (Walk::*take)();
    };

    void step()
    {
        static const std::array steps{
            Step{6200, "tap", &Walk::tap},
            Step{700, "tick", &Walk::tick},
            Step{1600, "miss over", &Walk::fallDue},
            Step{1100, "turn of the loop", &Walk::runQueue},
            Step{20, "start", &Walk::start},
            Step{15, "end", &Walk::both<&Game::endGame, &Rules::endGame>},
            Step{150, "name", &Walk::rename},
            Step{15, "mode", &Walk::setMode},
            Step{130, "setting", &Walk::set},
            Step{20, "reset", &Walk::both<&Game::resetHighscores, &Rules::resetHighscores>},
            Step{15, "restore", &Walk::both<&Game::restoreHighscores, &Rules::restoreHighscores>},
            Step{35, "reload",
                 &Walk::both<&Game::reloadHighscoresForCurrentSettings, &Rules::updateLists>},
        };
        // A game at rest is soon started, so that most of the walk is play.
        if (!m_rules.isGameActive && draw(m_rules.mayStart() ? 3 : 15) == 0)
            return take({0, "start", &Walk::start});
        if (!m_rules.mayStart() && draw(4) == 0)
            return take({0, "name", &Walk::rename});
        int dice = draw(10'000);
        take(*std::ranges::find_if(steps,
                                   [&](const Step& step) { return (dice -= step.weight) < 0; }));
    }

    void take(const Step& step)
    {
        m_trail << QString::fromLatin1(step.name);
        m_changes.clear();
        m_rules.assignments.clear();
        (this->*step.take)();
    }

    template <void (Game::*real)(), void (Rules::*rule)()>
    void both()
    {
        (m_game.get()->*real)();
        (m_rules.*rule)();
        takeOverBoard();
    }

    void start()
    {
        both<&Game::startNewGame, &Rules::startNewGame>();
        if (m_rules.isGameActive)
            return;
        ++m_happened[u"not started"_s];
        if (draw(3) == 0)
            setDeck(u" Cyberpunk"_s);
    }

    /// The card to tap: mostly one that lies hidden, often the partner of the first.
    MemoryCard chosenCard()
    {
        const MemoryCards& cards = m_game->cards();
        if (cards.empty() || draw(30) == 0)
            return MemoryCard{};
        const auto first = m_rules.firstSelectedIndex;
        if (first && draw(2) == 0) {
            const std::size_t partner = otherCard(*m_game, *first, true);
            return cards[partner < cards.size() ? partner : *first];
        }
        // Cards by pair, so that a choice means the same on every board.
        MemoryCards order = cards;
        std::ranges::stable_sort(order, {}, [&cards](const MemoryCard& card) {
            return std::ranges::find(cards, card.pairID, &MemoryCard::pairID) - cards.begin();
        });
        auto place = std::size_t(draw(int(order.size())));
        for (std::size_t i = 0; i < order.size() && order[place].isFaceUp && draw(8); ++i)
            place = (place + 1) % order.size();
        return order[place];
    }

    void tap()
    {
        MemoryCard card = chosenCard();
        card.isFaceUp = draw(2) == 0; // a copy may be out of date
        const bool wasActive = m_rules.isGameActive;
        m_game->flipCard(card);
        m_rules.flipCard(card.id);
        if (takeOverBoard())
            ++m_happened[u"another round"_s];
        if (wasActive && !m_rules.isGameActive) {
            ++m_happened[!m_rules.gameCompleted ? u"no further round"_s
                         : m_rules.isVersusMode ? u"won by two"_s
                                                : u"won alone"_s];
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
        const QString name = oneOf({u""_s, u" \t"_s, u"Ann"_s, u" Ann \n B "_s, u"%2"_s, u"Zoë"_s});
        using Set = void (Game::*)(const QString&);
        using Name = QString Rules::*;
        const auto [set, rule, member] = oneOf<std::tuple<Set, Name, Member>>({
            {&Game::setPlayerName, &Rules::playerName, Member::playerName},
            {&Game::setPlayerOneName, &Rules::playerOneName, Member::playerOneName},
            {&Game::setPlayerTwoName, &Rules::playerTwoName, Member::playerTwoName},
        });
        (m_game.get()->*set)(name);
        m_rules.assign(m_rules.*rule, name, member);
    }

    void setMode()
    {
        const bool isVersus = draw(2) == 0;
        m_game->setIsVersusMode(isVersus);
        m_rules.assign(m_rules.isVersusMode, isVersus, Member::isVersusMode);
    }

    void set()
    {
        if (draw(3) == 0)
            return setDeck(oneOf({u" Cyberpunk"_s, u"Kids\n"_s, u"iPhoto"_s, u"iPhoto: Sea"_s,
                                  u"iPhoto:Sea"_s, u"iphoto: Sea"_s, u""_s}));
        // From below the range to beyond it.
        const auto [key, number] = draw(2) == 0
                                       ? std::pair(SettingsKeys::AmountCards, draw(9) - 1)
                                       : std::pair(SettingsKeys::AmountRounds, draw(5) - 1);
        m_platform.defaults->setInteger(key, number);
        m_rules.settings[key] = number;
    }

    void setDeck(const QString& deck)
    {
        m_rules.deckSetting = deck;
        m_platform.defaults->setString(SettingsKeys::CardDeck, deck);
    }

    /// Gives the rules the board that the game has just dealt; true if it has.
    bool takeOverBoard()
    {
        if (m_rules.dealtPairs == 0)
            return false;
        m_rules.cards = m_game->cards();
        const auto count = std::exchange(m_rules.dealtPairs, 0);
        QMap<std::pair<QUuid, QString>, int> pairs;
        QSet<QString> pictures;
        for (const MemoryCard& card : m_rules.cards) {
            ++pairs[{card.pairID, card.image.name}];
            pictures << card.image.name;
            m_isDealtWell &= !card.image.image.isNull() && !card.isFaceUp && !card.isMatched;
        }
        m_isDealtWell &= pictures.size() == count && pairs.values() == QList<int>(count, 2);
        // A fair deal has these with a probability of at least 10/11, and of 3/10 (large deck).
        m_happened[u"parted pair"_s] += m_rules.cards[0].pairID != m_rules.cards[1].pairID;
        m_happened[u"later picture"_s] +=
            pictures.contains(u"picture%1"_s.arg(count, 2, 10, QChar(u'0')));
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

    /// Where the game differs from the rules; empty if nowhere.
    QString compare()
    {
        QString all;
        const auto same = [&all](const char* what, const auto& real, const auto& rule) {
            if (real == rule)
                return;
            if constexpr (QTypeTraits::has_ostream_operator_v<QDebug, decltype(real)>)
                QDebug(&all) << what << "is" << real << "and not" << rule << '\n';
            else
                QDebug(&all) << what << "differs\n";
        };
        same("assignments", m_changes, m_rules.assignments);
        same("playerName", m_game->playerName(), m_rules.playerName);
        same("headerText", m_game->headerText(), m_rules.headerText);
        same("winnerText", m_game->winnerText(), m_rules.winnerText);
        same("currentRound", m_game->currentRound(), m_rules.currentRound);
        same("elapsedSeconds", m_game->elapsedSeconds(), m_rules.elapsedSeconds);
        same("failedAttempts", m_game->failedAttempts(), m_rules.failedAttempts);
        same("gameCompleted", m_game->gameCompleted(), m_rules.gameCompleted);
        same("isGameActive", m_game->isGameActive(), m_rules.isGameActive);
        same("currentPlayerIndex", m_game->currentPlayerIndex(), m_rules.currentPlayerIndex);
        same("playerScores", m_game->playerScores(), m_rules.playerScores);
        same("firstSelectedIndex", m_game->firstSelectedIndex(), m_rules.firstSelectedIndex);
        same("isCheckingPair", m_game->isCheckingPair(), m_rules.isCheckingPair);
        const QTimer* const clock = m_game->timer();
        same("timer", clock && clock->isActive() ? clock->interval() : 0, m_rules.timer ? 1000 : 0);
        same("precise timer", !clock || clock->timerType() == Qt::PreciseTimer, true);
        same("timerStarted", m_game->timerStarted(), m_rules.timerStarted);
        same("delayed steps", int(waitingTimers().size()), int(m_rules.delayed.has_value()));
        for (const QTimer* const timer : waitingTimers())
            same("delay", timer->interval(), 1000);
        same("alerts", m_platform.alertLog.shown, m_rules.alerts);
        same("dealt well", m_isDealtWell, true);
        const auto sides = [](const MemoryCard& card) {
            return std::tuple(card.id, card.isFaceUp, card.isMatched);
        };
        same("equality of cards",
             std::ranges::equal(m_game->cards(), m_rules.cards, {}, sides, sides), true);
        if (m_changes.empty())
            return all;
        const auto sameRecords = [&](const char* what, HighscoreEntries real,
                                     const HighscoreEntries& rule) {
            for (HighscoreEntry& entry : real)
                entry.id = {};
            same(what, encodeHighscores(real), encodeHighscores(rule));
        };
        sameRecords("bestTimeScores", m_game->bestTimeScores(), m_rules.bestTimeScores);
        sameRecords("bestFailureScores", m_game->bestFailureScores(), m_rules.bestFailureScores);
        sameRecords("bestVersusScores", m_game->bestVersusScores(), m_rules.bestVersusScores);
        const auto file = readHighscores(m_platform.highscoreFile()).entries;
        sameRecords("the file", file.value_or(HighscoreEntries()), m_rules.file);
        return all;
    }

    std::map<QString, int>& m_happened;
    QRandomGenerator m_random;
    StagePlatform m_platform{};
    std::unique_ptr<Game> m_game{};
    Rules m_rules{};
    std::vector<Member> m_changes{};
    bool m_isDealtWell = true;
    QStringList m_trail{};
};

} // namespace

class RulesWalkTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theGameKeepsTheRules()
    {
        // The rules are the subject, not the disk, which thousands of writes would wait for.
        if (QFileInfo(u"/dev/shm"_s).isWritable())
            qputenv("TMPDIR", "/dev/shm");
        constexpr int stepsOfAWalk = 5000;
        const int steps = qEnvironmentVariable("PAIRCADE_STEPS", u"20000"_s).toInt();
        const int walks = (steps + stepsOfAWalk - 1) / stepsOfAWalk;
        quint32 seed = qEnvironmentVariable("PAIRCADE_SEED", u"1"_s).toUInt();
        std::map<QString, int> happened;
        for (int i = 0; i < walks; ++i) {
            const QString fault = Walk(seed, happened).go(stepsOfAWalk);
            QVERIFY2(fault.isEmpty(), qPrintable(u"PAIRCADE_SEED=%1: "_s.arg(seed) + fault));
            seed = QRandomGenerator::global()->generate();
        }
        qInfo() << happened << walks * stepsOfAWalk << "steps";
        // Otherwise it would prove little. Over 100 boards chance misses none of these.
        for (const auto& what :
             {u"won alone"_s, u"won by two"_s, u"another round"_s, u"no further round"_s,
              u"not started"_s, u"parted pair"_s, u"later picture"_s})
            QVERIFY2(happened[what] > 0, qPrintable(what));
    }
};

QTEST_GUILESS_MAIN(RulesWalkTest)
#include "rules_walk_test.moc"
