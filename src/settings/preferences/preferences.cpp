// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/preferences/preferences.h"

#include "decks/deck_name.h"
#include "game/game_status.h"
#include "game/memory_game.h"
#include "game/rules/card_layout.h"
#include "game/sound_effects.h"
#include "platform/localized_text.h"
#include "platform/notification_center.h"
#include "platform/platform.h"
#include "platform/user_defaults.h"
#include "platform/widgets/control_text.h"
#include "settings/preferences/main_window_link.h"
#include "settings/settings_keys.h"
#include "ui/elided_label.h"

#include <QShowEvent>
#include <QSignalBlocker>
#include <algorithm>
#include <ui_preferences.h>

namespace {

constexpr int mostRounds = 99;
constexpr int mostLayouts = int{cardLayouts.size()};

bool isOn(QLatin1String key)
{
    return platform().defaults.integer(key) == 1;
}

int storedValue(QLatin1String key, int most)
{
    return static_cast<int>(std::clamp<std::int64_t>(platform().defaults.integer(key), 1, most));
}

/// Brings a stepper up to date, which must not look like an act of the user.
void showValue(QSpinBox* stepper, int value)
{
    const QSignalBlocker blocker(stepper);
    stepper->setValue(value);
}

/// Stores under `key` what the user makes of `box`. A screen reader toggles it
/// without a click.
void keepStored(QCheckBox* box, QLatin1String key)
{
    QObject::connect(box, &QCheckBox::toggled, box, [key](bool isChecked) {
        platform().defaults.setInteger(key, isChecked ? 1 : 0);
    });
}

} // namespace

Preferences::Preferences(MainWindowLink* link, QWidget* parent)
    : QDialog(parent)
    , m_ui(std::make_unique<Ui::Preferences>())
    , m_link(link)
{
    m_ui->setupUi(this);
    m_photosState = new ElidedLabel(QStringLiteral("photosState"), this);
    // A folder's name, however long, must not widen the window.
    m_photosState->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    m_ui->photosRow->insertWidget(0, m_photosState, 1);
    // A screen reader reads in this order.
    m_photosState->stackUnder(m_ui->photosButton);
    viewDidLoad();
}

Preferences::~Preferences() = default;

const QStringList& Preferences::baseCardDecks()
{
    return ::baseCardDecks();
}

const QString& Preferences::albumPrefix()
{
    return photoAlbumDeckPrefix();
}

QLabel* Preferences::rounds_label() const
{
    return m_ui->rounds_label;
}

QLabel* Preferences::cards_label() const
{
    return m_ui->cards_label;
}

QSpinBox* Preferences::roundsStepper() const
{
    return m_ui->roundsStepper;
}

QSpinBox* Preferences::cardsStepper() const
{
    return m_ui->cardsStepper;
}

QComboBox* Preferences::cardDeck_dropdown() const
{
    return m_ui->cardDeck_dropdown;
}

QCheckBox* Preferences::paircade_album() const
{
    return m_ui->paircade_album;
}

void Preferences::viewDidLoad()
{
    // An edit by another program must not change the board of a running game.
    const MemoryGame* const game = m_link == nullptr ? nullptr : m_link->shownGame();
    if (game == nullptr || !game->isGameActive())
        platform().defaults.reread();
    fillInTexts();
    showStoredSettings();
    updateRoundsLabel(roundsStepper()->value());
    updateCardsLabel(cardsStepper()->value());
    platform().notifications.observe(gameStatusChanged, this,
                                     [this] { handleGameStatusChanged(); });
    rebuildCardDeckMenu();
    updatePaircadeAlbumState();
    updateStepperState();
    connectControls();
    m_isOpening = true;
}

void Preferences::viewDidAppear()
{
    window()->setWindowTitle(QString());
    rebuildCardDeckMenu();
    updatePaircadeAlbumState();
    updatePhotosRow();
}

void Preferences::showEvent(QShowEvent* event)
{
    QDialog::showEvent(event);
    if (event->spontaneous())
        return;
    viewDidAppear();
    QWidget* const first =
        roundsStepper()->isEnabled() ? static_cast<QWidget*>(roundsStepper()) : cardDeck_dropdown();
    first->setFocus(Qt::OtherFocusReason);
}

void Preferences::changeEvent(QEvent* event)
{
    QDialog::changeEvent(event);
    if (event->type() == QEvent::WindowStateChange && !isMinimized() &&
        static_cast<QWindowStateChangeEvent*>(event)->oldState() & Qt::WindowMinimized)
        viewDidAppear();
}

void Preferences::fillInTexts()
{
    setAccessibleName(localizedText("preferences_accessible_name"));
    for (QWidget* const control : findChildren<QWidget*>()) {
        const QByteArray key = control->property("textKey").toByteArray();
        if (!key.isEmpty())
            control->setProperty("text", controlText(key.constData()));
    }
    for (QLabel* const label : findChildren<QLabel*>())
        label->setTextFormat(Qt::PlainText);

    // Its text goes on from the caption and says too little alone.
    m_ui->removeMatch->setAccessibleName(localizedText("preferences_found_pairs") +
                                         QLatin1Char(' ') +
                                         localizedText("preferences_remove_match"));

    // Larger fonts need more room, and nothing may move when a value changes.
    const int stepperWidth =
        std::max(roundsStepper()->minimumWidth(), roundsStepper()->sizeHint().width());
    cardsStepper()->setMinimumWidth(stepperWidth);
    const QString loudest = localizedText("volume_percent", {m_ui->volumeSound->maximum()});
    m_ui->volumeLabel->setMinimumWidth(
        std::max(m_ui->volumeLabel->minimumWidth(),
                 m_ui->volumeLabel->fontMetrics().horizontalAdvance(loudest)));
}

void Preferences::showStoredSettings()
{
    showValue(roundsStepper(), storedValue(SettingsKeys::AmountRounds, mostRounds));
    showValue(cardsStepper(), storedValue(SettingsKeys::AmountCards, mostLayouts));
    m_ui->removeMatch->setChecked(isOn(SettingsKeys::RemoveMatch));
    paircade_album()->setChecked(isOn(SettingsKeys::PaircadeAlbum));
    m_ui->playSounds->setChecked(isOn(SettingsKeys::PlaySounds));
    m_ui->launchInFullscreen->setChecked(isOn(SettingsKeys::LaunchInFullscreen));
    const double percent = platform().defaults.floating(SettingsKeys::VolumeSound);
    m_ui->volumeSound->setValue(qRound(std::clamp(percent, 0.0, 100.0)));
    showVolume();
}

void Preferences::connectControls()
{
    const auto connectStepper = [this](QSpinBox* stepper, void (Preferences::*action)(),
                                       QLatin1String key, int most) {
        connect(stepper, &QSpinBox::valueChanged, this, [=, this] {
            // A screen reader can change a stepper that is locked, or disabled with the pane.
            if (stepper->isEnabled())
                (this->*action)();
            else
                showValue(stepper, storedValue(key, most));
        });
    };
    connectStepper(roundsStepper(), &Preferences::stepper_value_rounds, SettingsKeys::AmountRounds,
                   mostRounds);
    connectStepper(cardsStepper(), &Preferences::stepper_value_cards, SettingsKeys::AmountCards,
                   mostLayouts);
    connect(cardDeck_dropdown(), &QComboBox::activated, this, &Preferences::carddeck_changed);

    keepStored(m_ui->removeMatch, SettingsKeys::RemoveMatch);
    keepStored(paircade_album(), SettingsKeys::PaircadeAlbum);
    connectPhotoControls();
    keepStored(m_ui->playSounds, SettingsKeys::PlaySounds);
    keepStored(m_ui->launchInFullscreen, SettingsKeys::LaunchInFullscreen);

    // A drag ends with the release of the slider; a key, the wheel or a screen
    // reader changes it without one.
    connect(m_ui->volumeSound, &QSlider::valueChanged, this, [this] {
        showVolume();
        if (!m_ui->volumeSound->isSliderDown())
            storeVolume();
    });
    connect(m_ui->volumeSound, &QSlider::sliderReleased, this, [this] {
        if (platform().defaults.integer(SettingsKeys::VolumeSound) != m_ui->volumeSound->value())
            storeVolume();
    });
}

void Preferences::stepper_value_rounds()
{
    const int value = std::clamp(roundsStepper()->value(), 1, mostRounds);
    showValue(roundsStepper(), value);
    updateRoundsLabel(value);
    describeSteppers();
    platform().defaults.setInteger(SettingsKeys::AmountRounds, value);
    followMainWindow();
}

void Preferences::stepper_value_cards()
{
    const int value = std::clamp(cardsStepper()->value(), 1, mostLayouts);
    showValue(cardsStepper(), value);
    updateCardsLabel(value);
    describeSteppers();
    platform().defaults.setInteger(SettingsKeys::AmountCards, value);
    followMainWindow();
}

void Preferences::followMainWindow()
{
    if (m_link == nullptr)
        return;
    m_link->updateWindowSizeForCurrentLayout();
    if (MemoryGame* const game = m_link->shownGame())
        game->reloadHighscoresForCurrentSettings();
}

void Preferences::handleGameStatusChanged()
{
    updateStepperState();
}

void Preferences::updateStepperState()
{
    const bool isGameActive = isOn(SettingsKeys::GameIsActive);
    const int rounds = std::clamp(roundsStepper()->value(), 1, mostRounds);
    const int cards = std::clamp(cardsStepper()->value(), 1, mostLayouts);
    {
        const QSignalBlocker roundsBlocker(roundsStepper());
        const QSignalBlocker cardsBlocker(cardsStepper());
        roundsStepper()->setRange(1, mostRounds);
        cardsStepper()->setRange(1, mostLayouts);
    }
    showValue(roundsStepper(), rounds);
    showValue(cardsStepper(), cards);
    platform().defaults.setInteger(SettingsKeys::AmountRounds, rounds);
    platform().defaults.setInteger(SettingsKeys::AmountCards, cards);
    updateRoundsLabel(rounds);
    updateCardsLabel(cards);
    roundsStepper()->setEnabled(!isGameActive);
    cardsStepper()->setEnabled(!isGameActive);
    m_ui->layoutPicture->setEnabled(!isGameActive);
    describeSteppers();
}

void Preferences::describeSteppers()
{
    for (const auto& [stepper, label] :
         {std::pair(roundsStepper(), rounds_label()), std::pair(cardsStepper(), cards_label())}) {
        const bool isLocked = !stepper->isEnabledTo(this);
        const QString reason = isLocked ? localizedText("preferences_locked") : QString();
        stepper->setToolTip(reason);
        stepper->setAccessibleDescription(isLocked ? reason : label->text());
    }
}

void Preferences::updateRoundsLabel(std::int64_t count)
{
    rounds_label()->setText(localizedCount(
        count == 1 ? "play_rounds_label_singular" : "play_rounds_label_plural", count, {count}));
}

void Preferences::updateCardsLabel(int index)
{
    cards_label()->setText(cardLayoutLabel(index));
    m_ui->layoutPicture->setAmountCards(index);
}

QString Preferences::cardLayoutLabel(std::int64_t index)
{
    const QString number = QString::number(index);
    return cardLayoutNumber(index) == index ? localizedText(QStringLiteral("card_layout_") + number)
                                            : number;
}

void Preferences::showVolume()
{
    m_ui->volumeLabel->setText(localizedText("volume_percent", {m_ui->volumeSound->value()}));
}

void Preferences::storeVolume()
{
    platform().defaults.setInteger(SettingsKeys::VolumeSound, m_ui->volumeSound->value());
    playSoundEffect(QStringLiteral("card_done"));
}
