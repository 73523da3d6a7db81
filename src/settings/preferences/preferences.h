// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/photo_fetch.h"

#include <QDialog>
#include <QString>
#include <QStringList>
#include <cstdint>
#include <memory>

class ElidedLabel;
class MainWindowLink;
class QCheckBox;
class QComboBox;
class QLabel;
class QSpinBox;

namespace Ui {
class Preferences;
}

/// The window in which the player sets up the game. Every change is stored at
/// once and holds from the next game or round on.
///
/// It keeps its controls in step with the settings, locks rounds and card layout
/// while a game runs, and offers the decks of the game and the user's albums.
/// Main thread only.
class Preferences : public QDialog {
    Q_OBJECT

public:
    /// Shows the stored settings. Through `link`, which must outlive the pane,
    /// the main window follows them; without one only the settings change.
    explicit Preferences(MainWindowLink* link, QWidget* parent = nullptr);
    ~Preferences() override;

    /// The decks that are always offered, in their order.
    [[nodiscard]] static const QStringList& baseCardDecks();
    /// What an album's title follows in the deck menu.
    [[nodiscard]] static const QString& albumPrefix();

    // Those of its controls that the settings of a game are made by.
    [[nodiscard]] QLabel* rounds_label() const;
    [[nodiscard]] QLabel* cards_label() const;
    [[nodiscard]] QSpinBox* roundsStepper() const;
    [[nodiscard]] QSpinBox* cardsStepper() const;
    [[nodiscard]] QComboBox* cardDeck_dropdown() const;
    [[nodiscard]] QCheckBox* paircade_album() const;

    /// Shows the albums that there are now. Called whenever the window comes on screen, and
    /// when it is asked for while it is there.
    void viewDidAppear();

    // What the user's acts lead to.
    /// Stores the rounds; the main window and its highscores follow.
    void stepper_value_rounds();
    /// Stores the card layout; the main window and its highscores follow.
    void stepper_value_cards();
    /// Stores the selected deck.
    void carddeck_changed();

    /// A game has begun or ended.
    void handleGameStatusChanged();
    /// Brings the steppers into their ranges, stores their values, and locks
    /// them while a game runs.
    void updateStepperState();
    /// The album check box goes with the deck of all photos only; for any other
    /// deck it is switched off, in the settings too.
    void updatePaircadeAlbumState();
    /// Fills the deck menu and selects the stored deck; where that is no longer
    /// offered, "Cyberpunk" is stored instead. An album stays on offer as long as it
    /// may be among those that could not be listed.
    void rebuildCardDeckMenu();
    /// The titles of the user's albums that hold something, sorted for a reader;
    /// equal ones are kept. Never asks for access: without it there are none. Blocks while
    /// the library is read.
    [[nodiscard]] QStringList fetchAvailablePhotoAlbums();
    /// Says `count` rounds beside their stepper, in the language's form for it.
    void updateRoundsLabel(std::int64_t count);
    /// The name of the layout `index`; the number itself if there is no such one.
    [[nodiscard]] static QString cardLayoutLabel(std::int64_t index);

protected:
    void changeEvent(QEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    void viewDidLoad();
    void fillInTexts();
    void showStoredSettings();
    void connectControls();
    void updateCardsLabel(int index);
    void describeSteppers();
    void showDeck();
    void connectPhotoControls();
    void updatePhotosRow();
    static void openPaircadeAlbum();
    void followMainWindow();
    void showVolume();
    void storeVolume();

    std::unique_ptr<Ui::Preferences> m_ui;
    ElidedLabel* m_photosState = nullptr;
    MainWindowLink* m_link;
    PhotoAlbums m_albums{}; ///< As last listed.
    /// True between viewDidLoad() and the viewDidAppear() of the same opening, which
    /// uses that list again.
    bool m_isOpening = false;
};
