// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/start_forms.h"

#include "game/memory_game.h"
#include "platform/localized_text.h"
#include "platform/trim.h"
#include "platform/widgets/control_text.h"
#include "ui/fonts.h"

#include <QFocusEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QVBoxLayout>
#include <initializer_list>

namespace {

constexpr int controlHeight = 32;

/// Selects its text once it has the focus, not while it gets it: Qt would report the
/// caret before the focus, and Orca then takes the field for one already named and
/// says nothing.
class NameField : public QLineEdit {
public:
    using QLineEdit::QLineEdit;

protected:
    void focusInEvent(QFocusEvent* event) override
    {
        const bool isByKey =
            event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason;
        QFocusEvent quiet(event->type(), isByKey ? Qt::OtherFocusReason : event->reason());
        QLineEdit::focusInEvent(&quiet);
        if (isByKey)
            QMetaObject::invokeMethod(this, &QLineEdit::selectAll, Qt::QueuedConnection);
    }
};

QLineEdit* makeField(const char* placeholderKey, const char* name, int width, QWidget* form)
{
    auto* const field = new NameField(form);
    field->setObjectName(QString::fromLatin1(name));
    field->setPlaceholderText(localizedText(placeholderKey));
    field->setAccessibleName(localizedText(placeholderKey));
    field->setFont(systemFont(18));
    field->setFixedWidth(width);
    field->setMinimumHeight(controlHeight);
    field->setTextMargins(3, 0, 3, 0);
    return field;
}

QPushButton* makeButton(const char* key, const char* name, int width, QWidget* form)
{
    auto* const button = new QPushButton(controlText(key), form);
    button->setObjectName(QString::fromLatin1(name));
    button->setMinimumSize(width, controlHeight);
    return button;
}

/// Stacks the controls of a form in its middle.
void stack(QWidget* form, std::initializer_list<QWidget*> controls)
{
    auto* const column = new QVBoxLayout(form);
    column->setSpacing(16);
    column->addStretch();
    for (QWidget* const control : controls)
        column->addWidget(control, 0, Qt::AlignHCenter);
    column->addStretch();
}

/// The same text set again would move the cursor.
void showText(QLineEdit* field, const QString& text)
{
    const QSignalBlocker blocker(field); // nobody has typed
    if (field->text() != text)
        field->setText(text);
}

} // namespace

SinglePlayerStartView::SinglePlayerStartView(MemoryGame& game, QWidget* parent)
    : QWidget(parent)
    , m_game(game)
    , m_playerName(makeField("enter_name", "playerName", 300, this))
    , m_startButton(makeButton("start_game", "startButton", 140, this))
{
    m_startButton->setFont(systemFont(14, QFont::DemiBold));
    stack(this, {m_playerName, m_startButton});
    // Not textEdited, which is silent when a screen reader or dictation writes.
    connect(m_playerName, &QLineEdit::textChanged, &m_game, &MemoryGame::setPlayerName);
    connect(m_playerName, &QLineEdit::returnPressed, &m_game, &MemoryGame::startNewGame);
    connect(m_startButton, &QPushButton::clicked, &m_game, &MemoryGame::startNewGame);
}

void SinglePlayerStartView::refresh()
{
    showText(m_playerName, m_game.playerName());
    m_startButton->setEnabled(m_game.canStartGame());
    m_startButton->setDefault(m_game.canStartGame()); // as Return starts
}

void SinglePlayerStartView::focusField()
{
    m_playerName->setFocus(Qt::OtherFocusReason);
}

int SinglePlayerStartView::controlsTop() const
{
    layout()->setGeometry(rect()); // a hidden form is not laid out by itself
    return m_playerName->y();
}

VersusStartView::VersusStartView(MemoryGame& game, QWidget* parent)
    : QWidget(parent)
    , m_game(game)
    , m_playerOneName(makeField("player_one", "playerOneName", 320, this))
    , m_playerTwoName(makeField("player_two", "playerTwoName", 320, this))
    , m_startButton(makeButton("start_versus_game", "startVersusButton", 160, this))
{
    stack(this, {m_playerOneName, m_playerTwoName, m_startButton});
    connect(m_playerOneName, &QLineEdit::textChanged, &m_game, &MemoryGame::setPlayerOneName);
    connect(m_playerTwoName, &QLineEdit::textChanged, &m_game, &MemoryGame::setPlayerTwoName);
    connect(m_startButton, &QPushButton::clicked, &m_game, &MemoryGame::startNewGame);
}

void VersusStartView::refresh()
{
    showText(m_playerOneName, m_game.playerOneName());
    showText(m_playerTwoName, m_game.playerTwoName());
    m_startButton->setEnabled(m_game.canStartVersusGame());
}

void VersusStartView::focusField()
{
    const bool isSecondMissing = !trimmedText(m_game.playerOneName()).isEmpty() &&
                                 trimmedText(m_game.playerTwoName()).isEmpty();
    (isSecondMissing ? m_playerTwoName : m_playerOneName)->setFocus(Qt::OtherFocusReason);
}

int VersusStartView::controlsTop() const
{
    layout()->setGeometry(rect()); // a hidden form is not laid out by itself
    return m_playerOneName->y();
}
