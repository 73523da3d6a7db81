// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "decks/deck_name.h"
#include "game/memory_card.h"
#include "game/published.h"
#include "game/rules/card_layout.h"
#include "highscores/highscore_entry.h"
#include "highscores/recording.h"
#include "platform/main_queue.h"

#include <QObject>
#include <QTimer>
#include <array>
#include <chrono>
#include <memory>
#include <optional>

class AudioPlayer;
class PhotoFetch;
struct PhotoAlbum;

/// The whole state of the game and every operation on it.
///
/// There is one for the life of the program. Views read its published members,
/// listen to changed(), write the names and the mode, and call the operations.
/// Settings are read at the moment of use. Main thread only, but where it says
/// otherwise; nothing throws.
///
/// The operations are spread over one source file per concern: round_setup,
/// flip_rules, game_end, game_clock, sound_effects, game_highscores, game_report,
/// image_sources.
class MemoryGame : public QObject {
    Q_OBJECT

public:
    /// The published members.
    enum class Member {
        playerName,
        bestTimeScores,
        bestFailureScores,
        bestVersusScores,
        cards,
        currentRound,
        gameCompleted,
        headerText,
        elapsedSeconds,
        failedAttempts,
        isGameActive,
        isVersusMode,
        playerOneName,
        playerTwoName,
        currentPlayerIndex,
        playerScores,
        winnerText,
    };
    Q_ENUM(Member)

    /// What the name of an album's deck begins with.
    inline static const QString& photoAlbumPrefix = photoAlbumDeckPrefix();
    /// The longest that a highscore list gets.
    static constexpr std::size_t maxHighscoreEntries = 10;
    /// How long a missed pair stays face up.
    static constexpr std::chrono::milliseconds turnBackDelay{1000};
    /// How often the clock counts.
    static constexpr std::chrono::milliseconds tickInterval{1000};

    /// An idle game with the highscores of the current settings.
    MemoryGame();
    ~MemoryGame() override;

    // Published members.
    /// The name typed for a one-player game.
    [[nodiscard]] const QString& playerName() const { return m_playerName.get(); }
    /// Best one-player results by time.
    [[nodiscard]] const HighscoreEntries& bestTimeScores() const { return m_bestTimeScores.get(); }
    /// Best one-player results by failed attempts.
    [[nodiscard]] const HighscoreEntries& bestFailureScores() const
    {
        return m_bestFailureScores.get();
    }
    /// Best results of two players.
    [[nodiscard]] const HighscoreEntries& bestVersusScores() const
    {
        return m_bestVersusScores.get();
    }
    /// The board, row by row. Stays after a game until the next is dealt.
    [[nodiscard]] const MemoryCards& cards() const { return m_cards.get(); }
    /// The round being played, from 1.
    [[nodiscard]] std::int64_t currentRound() const { return m_currentRound.get(); }
    /// The last game was won to its end; false again once another starts.
    [[nodiscard]] bool gameCompleted() const { return m_gameCompleted.get(); }
    /// The line above the board while a game runs.
    [[nodiscard]] const QString& headerText() const { return m_headerText.get(); }
    /// Whole seconds of play in the current or last game.
    [[nodiscard]] std::int64_t elapsedSeconds() const { return m_elapsedSeconds.get(); }
    /// Turned pairs that did not match, all rounds and players together.
    [[nodiscard]] std::int64_t failedAttempts() const { return m_failedAttempts.get(); }
    /// A game runs; cards can be turned only then.
    [[nodiscard]] bool isGameActive() const { return m_isGameActive.get(); }
    /// Two players take turns.
    [[nodiscard]] bool isVersusMode() const { return m_isVersusMode.get(); }
    /// The names typed for a versus game.
    [[nodiscard]] const QString& playerOneName() const { return m_playerOneName.get(); }
    [[nodiscard]] const QString& playerTwoName() const { return m_playerTwoName.get(); }
    /// Whose turn it is in a versus game: 0 or 1.
    [[nodiscard]] int currentPlayerIndex() const { return m_currentPlayerIndex.get(); }
    /// Pairs found by the first and the second player.
    [[nodiscard]] const std::array<std::int64_t, 2>& playerScores() const
    {
        return m_playerScores.get();
    }
    /// The result of a game won to its end; empty otherwise.
    [[nodiscard]] const QString& winnerText() const { return m_winnerText.get(); }

    // What the views write. No effect beyond the announcement.
    void setPlayerName(const QString& name) { m_playerName = name; }
    void setPlayerOneName(const QString& name) { m_playerOneName = name; }
    void setPlayerTwoName(const QString& name) { m_playerTwoName = name; }
    /// Not to be called while a game runs.
    void setIsVersusMode(bool isVersusMode) { m_isVersusMode = isVersusMode; }

    // Derived values, computed at every read.
    /// The versus names trimmed, each with a fallback for an empty one.
    [[nodiscard]] std::array<QString, 2> playerNames() const;
    /// A name was typed for a one-player game; white space is none.
    [[nodiscard]] bool canStartGame() const;
    /// Both names were typed for a versus game.
    [[nodiscard]] bool canStartVersusGame() const;
    /// Whether startNewGame() would start a game in the current mode.
    [[nodiscard]] bool canStart() const;
    /// elapsedSeconds() as clockText() writes it.
    [[nodiscard]] QString formattedElapsedTime() const;
    /// The board of the settings: read at each call, as a round is dealt by them.
    [[nodiscard]] int cardColumns() const { return layout().columns; }
    [[nodiscard]] int cardRows() const { return layout().rows; }
    [[nodiscard]] int pairsPerRound() const { return layout().pairs(); }
    /// The rounds of a game by the settings, at least 1.
    [[nodiscard]] std::int64_t totalRounds() const;
    /// The deck's name by the settings, trimmed; it may name no deck.
    [[nodiscard]] QString cardDeck() const;
    /// The album's title if the deck is an album of photos.
    [[nodiscard]] std::optional<QString> selectedPhotoAlbumName() const;

    // The attempt in progress and the machinery, for tests.
    /// The place of the first card of an attempt; none between two attempts.
    [[nodiscard]] std::optional<std::size_t> firstSelectedIndex() const
    {
        return m_firstSelectedIndex;
    }
    /// Two cards lie open, and taps are ignored until they are settled.
    [[nodiscard]] bool isCheckingPair() const { return m_isCheckingPair; }
    /// The running clock; null while none runs.
    [[nodiscard]] const QTimer* timer() const { return m_timer.get(); }
    /// Whether the current game's first card was turned.
    [[nodiscard]] bool timerStarted() const { return m_timerStarted; }
    /// Returns the player, which keeps the sound that was loaded last; null before
    /// the first.
    [[nodiscard]] const AudioPlayer* audioPlayer() const;

    // Course of the game.
    /// Starts a game of the current mode, unless a name is missing: then only
    /// the header text says so.
    void startNewGame();
    /// Deals round `round`, from 1. Too few pictures stop the game with an alert.
    void loadRound(std::int64_t round);
    /// A tap on `card`, which is found again by its id. A tap that the rules do
    /// not allow is ignored.
    void flipCard(const MemoryCard& card);
    /// After the last pair of a round: deals the next or finishes the game.
    void advanceToNextRoundIfNeeded();
    /// Says whose turn (versus) or which round it is.
    void updateHeaderForCurrentTurn();
    /// Stops the running game; a versus game is recorded as it stands.
    void endGame();
    /// The last pair of a one-player game was found: stores and tells the result.
    void finishSoloGame();
    /// The same for a versus game, with its winner or a draw.
    void finishVersusGame();
    /// Starts the clock at once, instead of one that runs.
    void startTimer();

    // Each as playSoundEffect() does.
    void playCardFlipSound();
    void playCardDoneSound();
    void playCardResetSound();
    void playDoneSound();

    // Highscores.
    /// Reads the file and ranks its records for the current settings and mode.
    void reloadHighscoresForCurrentSettings();
    /// Deletes every stored result, of all modes and settings.
    void resetHighscores();
    /// Puts back what resets have removed since the program started; after a
    /// failed write it can be tried again.
    void restoreHighscores();
    [[nodiscard]] bool canRestoreHighscores() const { return !m_removedEntries.empty(); }
    /// Writes every stored result into a page beside the results and opens it in
    /// the browser. If it cannot be written, an alert says so, at once, and the
    /// page of an earlier call stays.
    void openHighscoresHTML();

    // Image sources: the pictures to deal from; short or empty on any failure.
    /// Every picture of the deck of the settings; see loadBundleDeck().
    [[nodiscard]] CardPictures loadImagesFromBundle() const;
    /// At most as many as a round needs, drawn from the album of the deck, or else
    /// from the whole library. Asks for access where the user was never asked, and
    /// says in an alert why there are none.
    [[nodiscard]] CardPictures loadImagesFromPhotoLibrary();
    /// Returns the first album with the title `named`; if there is none, the first with
    /// that title when trimmed. Case matters. `fetch` is the round's.
    [[nodiscard]] static std::optional<PhotoAlbum> fetchPhotoAlbum(const QString& named,
                                                                   PhotoFetch& fetch);

    /// Shows a warning with one button after the current turn of the main
    /// thread's event loop; texts are looked up when it shows. No second key, no
    /// second text. May be called on any thread.
    void showLocalizedAlert(const char* messageKey, const char* informativeTextKey = nullptr);

Q_SIGNALS:
    /// `member` was assigned, to an equal value or not.
    void changed(MemoryGame::Member member);

private:
    [[nodiscard]] std::function<void()> announcing(Member member);
    [[nodiscard]] const CardLayout& layout() const;
    [[nodiscard]] QString playerToMove() const;
    [[nodiscard]] QString soloPlayerName() const;

    void stopForTooFewPictures(std::int64_t round);
    [[nodiscard]] static MemoryCards dealtCards(const CardPictures& pictures);
    void clearAttempt();
    void settlePair(std::size_t first, std::size_t second);
    void settleMiss(std::size_t first, std::size_t second);
    void turnBack(std::size_t first, std::size_t second, int missedPlayer);
    void withdrawTurnBack();
    void setFaceUp(std::size_t position, bool isFaceUp);
    void setMatched(std::size_t position);
    void markFinished();
    void stopTimer();
    static void followSoundSetting();

    [[nodiscard]] QString highscoreFolderURL() const;
    [[nodiscard]] QString highscoreFileURL() const;
    [[nodiscard]] HighscoreEntries readHighscoreFile() const;
    [[nodiscard]] HighscoreEntries loadAllHighscoreEntries() const;
    [[nodiscard]] QString buildHighscoresHTML(const HighscoreEntries& entries) const;
    void appendHighscoreEntry(const HighscoreEntry& entry);
    void updateHighscoreLists(const HighscoreEntries& entries);
    void storeCurrentResult();
    void storeVersusResult();
    [[nodiscard]] GameFacts facts() const;

    Published<QString> m_playerName{announcing(Member::playerName)};
    Published<HighscoreEntries> m_bestTimeScores{announcing(Member::bestTimeScores)};
    Published<HighscoreEntries> m_bestFailureScores{announcing(Member::bestFailureScores)};
    Published<HighscoreEntries> m_bestVersusScores{announcing(Member::bestVersusScores)};
    Published<MemoryCards> m_cards{announcing(Member::cards)};
    Published<std::int64_t> m_currentRound{announcing(Member::currentRound), 1};
    Published<bool> m_gameCompleted{announcing(Member::gameCompleted)};
    Published<QString> m_headerText{announcing(Member::headerText)};
    Published<std::int64_t> m_elapsedSeconds{announcing(Member::elapsedSeconds)};
    Published<std::int64_t> m_failedAttempts{announcing(Member::failedAttempts)};
    Published<bool> m_isGameActive{announcing(Member::isGameActive)};
    Published<bool> m_isVersusMode{announcing(Member::isVersusMode)};
    Published<QString> m_playerOneName{announcing(Member::playerOneName)};
    Published<QString> m_playerTwoName{announcing(Member::playerTwoName)};
    Published<int> m_currentPlayerIndex{announcing(Member::currentPlayerIndex)};
    Published<std::array<std::int64_t, 2>> m_playerScores{announcing(Member::playerScores)};
    Published<QString> m_winnerText{announcing(Member::winnerText)};

    std::optional<std::size_t> m_firstSelectedIndex{}; ///< First card of the attempt.
    bool m_isCheckingPair = false; ///< A missed pair lies open: taps are ignored.
    std::optional<MainQueue::Ticket> m_pendingTurnBack{};
    std::unique_ptr<QTimer> m_timer{};
    bool m_timerStarted = false;         ///< The clock was started in the current game.
    HighscoreEntries m_removedEntries{}; ///< What resets have removed.
};
