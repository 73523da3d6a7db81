// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "game/memory_game.h"
#include "game/rules/card_layout.h"
#include "highscores/highscore_lists.h"
#include "platform/localized_text.h"
#include "settings/settings_keys.h"

#include <QMap>
#include <algorithm>

using namespace Qt::StringLiterals;

/// The rules of the game once more, as plain as can be: no events, files, pictures or
/// time. Written from the rules alone, it is what the real game is held against.
///
/// It is told what the real game leaves to chance, the boards; and when a delayed step
/// falls due. Everything is public, for the comparison.
class ReferenceGame {
public:
    using Member = MemoryGame::Member;
    using Number = std::int64_t;
    using Miss = std::optional<std::pair<std::size_t, std::size_t>>; ///< Places of its cards.

    QMap<QString, Number> settings{{SettingsKeys::AmountCards, 1}, {SettingsKeys::AmountRounds, 1}};
    QString deckSetting = u"Cyberpunk"_s;
    QMap<QString, int> deckSizes{{u"Cyberpunk"_s, 20}, {u"Kids"_s, 9}};
    HighscoreEntries file{}, removed{};
    Miss delayed{}, due{}; ///< Waiting for its time, or in the main queue.
    QStringList queuedAlerts{}, alerts{};
    int dealtPairs = 0;                ///< Of the board that the real game has to show.
    std::vector<Member> assignments{}; ///< Since the last look, in order.

    QString playerName{}, playerOneName{}, playerTwoName{}, winnerText{};
    QString headerText = localizedText("enter_name");
    HighscoreEntries bestTimeScores{}, bestFailureScores{}, bestVersusScores{};
    MemoryCards cards{};
    Number currentRound = 1, elapsedSeconds = 0, failedAttempts = 0;
    bool gameCompleted = false, isGameActive = false, isVersusMode = false;
    int currentPlayerIndex = 0;
    std::array<Number, 2> playerScores{0, 0};
    std::optional<std::size_t> firstSelectedIndex{};
    bool isCheckingPair = false, timer = false, timerStarted = false;

    template <class Value>
    void assign(Value& member, const std::type_identity_t<Value>& value, Member name)
    {
        member = value;
        assignments.push_back(name);
    }

    int pairsPerRound() const { return cardLayouts[std::size_t(layout() - 1)].pairs(); }
    Number layout() const { return std::clamp<Number>(settings[SettingsKeys::AmountCards], 1, 6); }
    Number rounds() const { return std::max<Number>(settings[SettingsKeys::AmountRounds], 1); }
    static QString nameOr(const char* substitute, const QString& typed)
    {
        return typed.trimmed().isEmpty() ? localizedText(substitute) : typed.trimmed();
    }
    std::array<QString, 2> names() const
    {
        return {nameOr("player_one", playerOneName), nameOr("player_two", playerTwoName)};
    }
    QString toMove() const { return names()[std::size_t(currentPlayerIndex)]; }
    bool mayStart() const
    {
        return isVersusMode
                   ? !playerOneName.trimmed().isEmpty() && !playerTwoName.trimmed().isEmpty()
                   : !playerName.trimmed().isEmpty();
    }

    void startNewGame()
    {
        if (!mayStart())
            return header(localizedText(isVersusMode ? "enter_player_names" : "enter_name"));
        withdrawTurnBack();
        if (!isVersusMode)
            assign(playerName, playerName.trimmed(), Member::playerName);
        timer = timerStarted = false;
        assign(elapsedSeconds, 0, Member::elapsedSeconds);
        assign(failedAttempts, 0, Member::failedAttempts);
        assign(currentRound, 1, Member::currentRound);
        assign(gameCompleted, false, Member::gameCompleted);
        assign(winnerText, QString(), Member::winnerText);
        assign(playerScores, {0, 0}, Member::playerScores);
        assign(currentPlayerIndex, 0, Member::currentPlayerIndex);
        assign(isGameActive, true, Member::isGameActive);
        clearAttempt();
        updateHeaderForCurrentTurn();
        loadRound(currentRound);
    }

    void updateHeaderForCurrentTurn()
    {
        header(isVersusMode ? localizedText("player_turn", {toMove()})
                            : localizedText("round_of_rounds", {currentRound, rounds()}));
    }

    void loadRound(Number round)
    {
        clearAttempt();
        assign(currentRound, round, Member::currentRound);
        updateHeaderForCurrentTurn();
        const int pairs = pairsPerRound();
        const QString deck = deckSetting.trimmed();
        const bool isAlbum = deck.startsWith(u"iPhoto: "_s);
        const bool isLibrary = deck == u"iPhoto"_s;
        if (isAlbum || isLibrary)
            queuedAlerts << (localizedText("iphoto_access_denied") + u'|' +
                             localizedText("iphoto_access_denied_info") + u"|OK"_s);
        if (deckSizes.value(deck) < pairs) {
            const QString message =
                isAlbum     ? localizedText("iphoto_not_enough_images_in_album", {pairs})
                : isLibrary ? localizedText("iphoto_not_enough_images", {pairs})
                            : localizedText("not_enough_images_for_round", {pairs, round});
            header(message);
            assign(isGameActive, false, Member::isGameActive);
            assign(cards, {}, Member::cards);
            queuedAlerts << u"Paircade|"_s + message + u"|OK"_s;
            return;
        }
        dealtPairs = pairs;
        assignments.push_back(Member::cards);
    }

    void flipCard(const QUuid& id)
    {
        if (!isGameActive || isCheckingPair)
            return;
        const auto card = std::ranges::find(cards, id, &MemoryCard::id);
        if (card == cards.end() || card->isFaceUp || card->isMatched)
            return;
        const auto position = std::size_t(card - cards.begin());
        if (!timerStarted)
            timer = timerStarted = true;
        turn(card->isFaceUp, true);
        if (!firstSelectedIndex) {
            firstSelectedIndex = position;
            if (isVersusMode)
                header(localizedText("player_choose_second_card", {toMove()}));
            return;
        }
        const std::size_t first = *firstSelectedIndex;
        if (cards[first].pairID != card->pairID) {
            isCheckingPair = true;
            assign(failedAttempts, failedAttempts + 1, Member::failedAttempts);
            delayed = std::pair(first, position);
            return;
        }
        turn(cards[first].isMatched, true);
        turn(cards[position].isMatched, true);
        if (isVersusMode) {
            ++playerScores[std::size_t(currentPlayerIndex)];
            assignments.push_back(Member::playerScores);
            header(localizedText("player_found_pair", {toMove()}));
        }
        clearAttempt();
        if (std::ranges::all_of(cards, &MemoryCard::isMatched))
            advanceToNextRoundIfNeeded();
    }

    void advanceToNextRoundIfNeeded()
    {
        if (currentRound >= rounds())
            return finish();
        assign(currentRound, currentRound + 1, Member::currentRound);
        loadRound(currentRound);
        header(isVersusMode ? localizedText("player_starts_round", {toMove(), currentRound})
                            : localizedText("round_of_rounds", {currentRound, rounds()}));
    }

    void finish()
    {
        assign(gameCompleted, true, Member::gameCompleted);
        assign(isGameActive, false, Member::isGameActive);
        timer = false;
        store();
        updateLists();
        const auto [one, two] = playerScores;
        const auto digits = [](Number n) { return u"%1"_s.arg(n, 2, 10, QChar(u'0')); };
        const QString time = digits(elapsedSeconds / 60) + u':' + digits(elapsedSeconds % 60);
        assign(winnerText,
               !isVersusMode
                   ? localizedText("singleplayer_result", {soloName(), time, failedAttempts})
               : one > two ? localizedText("player_wins_score", {names()[0], one, two})
               : two > one ? localizedText("player_wins_score", {names()[1], two, one})
                           : localizedText("draw_score", {one, two}),
               Member::winnerText);
        header(winnerText);
    }

    void endGame()
    {
        withdrawTurnBack();
        timer = false;
        if (isVersusMode)
            store();
        updateLists();
        assign(gameCompleted, false, Member::gameCompleted);
        assign(winnerText, QString(), Member::winnerText);
        header(QString());
        clearAttempt();
        assign(isGameActive, false, Member::isGameActive);
    }

    /// The clock's timer fires.
    void tick()
    {
        if (timer)
            assign(elapsedSeconds, elapsedSeconds + 1, Member::elapsedSeconds);
    }

    /// The delay after a miss is over: its step joins the queue.
    void turnBackFallsDue()
    {
        if (delayed)
            due = std::exchange(delayed, {});
    }

    /// The main loop comes round.
    void runQueue()
    {
        alerts << std::exchange(queuedAlerts, {});
        turnBack(std::exchange(due, {}));
    }

    /// The lists of the current settings and mode, from the file.
    void updateLists()
    {
        HighscoreEntries kept = file;
        std::erase_if(kept, [this](const HighscoreEntry& entry) {
            return entry.amountCards != layout() || entry.amountRounds != rounds() ||
                   entry.gameMode != mode();
        });
        if (isVersusMode)
            assign(bestVersusScores, rankByMargin(std::exchange(kept, {}), 10),
                   Member::bestVersusScores);
        assign(bestTimeScores, rankByTime(kept, 10), Member::bestTimeScores);
        assign(bestFailureScores, rankByFailures(kept, 10), Member::bestFailureScores);
        if (!isVersusMode)
            assign(bestVersusScores, {}, Member::bestVersusScores);
    }

    void resetHighscores()
    {
        assign(bestTimeScores, {}, Member::bestTimeScores);
        assign(bestFailureScores, {}, Member::bestFailureScores);
        assign(bestVersusScores, {}, Member::bestVersusScores);
        removed.insert(removed.end(), file.begin(), file.end());
        file.clear();
    }

    void restoreHighscores()
    {
        file.insert(file.begin(), removed.begin(), removed.end());
        removed.clear();
        updateLists();
    }

private:
    void header(const QString& text) { assign(headerText, text, Member::headerText); }
    void turn(bool& side, bool value) { assign(side, value, Member::cards); }
    void clearAttempt()
    {
        firstSelectedIndex.reset();
        isCheckingPair = false;
    }
    /// Left open by the rules; chosen: no miss outlives its game.
    void withdrawTurnBack()
    {
        delayed.reset();
        due.reset();
    }
    void turnBack(const Miss& miss)
    {
        if (!miss)
            return;
        turn(cards[miss->first].isFaceUp, false);
        turn(cards[miss->second].isFaceUp, false);
        clearAttempt();
        if (isVersusMode) {
            assign(currentPlayerIndex, (currentPlayerIndex + 1) % 2, Member::currentPlayerIndex);
            header(localizedText("player_turn", {toMove()}));
        }
    }
    QString mode() const { return isVersusMode ? u"versus"_s : u"solo"_s; }
    QString soloName() const { return nameOr("unknown_player", playerName); }
    void store()
    {
        HighscoreEntry entry{.gameMode = mode(),
                             .playerName = isVersusMode ? names()[0] : soloName(),
                             .elapsedSeconds = elapsedSeconds,
                             .failedAttempts = failedAttempts,
                             .amountCards = layout(),
                             .amountRounds = rounds()};
        if (isVersusMode) {
            const auto [one, two] = playerScores;
            entry.secondPlayerName = names()[1];
            entry.firstPlayerScore = one;
            entry.secondPlayerScore = two;
            if (one != two)
                entry.winnerName = names()[one > two ? 0 : 1];
        }
        file.push_back(entry);
        updateLists();
    }
};
