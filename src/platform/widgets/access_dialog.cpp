// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/widgets/access_dialog.h"

#include "platform/localized_text.h"
#include "platform/widgets/control_text.h"
#include "platform/widgets/held_input.h"
#include "platform/widgets/logo.h"
#include "platform/widgets/palettes.h"

#include <QEvent>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QGridLayout>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QUrl>
#include <utility>

namespace {

constexpr int margin = 24;
constexpr int logoEdge = 64;
constexpr int logoGap = 20;
constexpr int textWidth = 428;
constexpr int titleGap = 8;
constexpr int answersGap = 20;
constexpr int footGap = 18;
constexpr int answerGap = 8;
constexpr int consequenceGap = 14;
constexpr QSize answerSize{150, 32};

QLabel* makeLabel(const char* key, int points, QWidget* parent)
{
    auto* const label = new QLabel(localizedText(key), parent);
    label->setTextFormat(Qt::PlainText);
    QFont font = label->font();
    font.setPixelSize(points);
    label->setFont(font);
    return label;
}

/// The folder of `url` as the system names it, which need not be text; empty where
/// it is none of this computer.
QByteArray folderAt(const QUrl& url)
{
    if (!url.isLocalFile() || !url.host().isEmpty())
        return {};
    QByteArray folder = QByteArray::fromPercentEncoding(url.path(QUrl::FullyEncoded).toLatin1());
    while (folder.size() > 1 && folder.endsWith('/'))
        folder.chop(1);
    return folder;
}

} // namespace

AccessDialog::AccessDialog(QString picturesFolder, QWidget* parent)
    : QDialog(parent)
    , m_picturesFolder(std::move(picturesFolder))
{
    setObjectName(QStringLiteral("accessQuestion"));
    setAccessibleName(localizedText("photo_question_title"));
    setAccessibleDescription(localizedText("photo_question_text"));

    auto* const logo = new LogoView(this);
    logo->setFixedSize(logoEdge, logoEdge);
    QLabel* const title = makeLabel("photo_question_title", 18, this);
    QFont bold = title->font();
    bold.setBold(true);
    title->setFont(bold);
    QLabel* const text = makeLabel("photo_question_text", 13, this);
    text->setWordWrap(true);
    text->setMinimumWidth(textWidth);
    QLabel* const foot = makeLabel("photo_question_foot", 12, this);

    auto* const answers = new QGridLayout;
    answers->setHorizontalSpacing(consequenceGap);
    answers->setVerticalSpacing(answerGap);
    QPushButton* const all = addAnswer(answers, "photo_question_all");
    QPushButton* const folder = addAnswer(answers, "photo_question_folder");
    QPushButton* const none = addAnswer(answers, "photo_question_none");
    answers->setColumnStretch(1, 1);
    m_secondaryTexts << foot;
    colourTexts();

    auto* const grid = new QGridLayout(this);
    grid->setContentsMargins(margin, margin, margin, margin);
    grid->setHorizontalSpacing(logoGap);
    grid->setVerticalSpacing(0);
    grid->setSizeConstraint(QLayout::SetFixedSize);
    grid->addWidget(logo, 0, 0, 3, 1, Qt::AlignTop);
    grid->addWidget(title, 0, 1);
    grid->setRowMinimumHeight(1, titleGap);
    grid->addWidget(text, 2, 1);
    grid->setRowMinimumHeight(3, answersGap);
    grid->addLayout(answers, 4, 1);
    grid->setRowMinimumHeight(5, footGap);
    grid->addWidget(foot, 6, 1);

    connect(all, &QPushButton::clicked, this,
            [this] { giveAnswer({PhotoAuthorization::authorized}); });
    connect(folder, &QPushButton::clicked, this, &AccessDialog::chooseFolder);
    connect(none, &QPushButton::clicked, this,
            [this] { giveAnswer({PhotoAuthorization::denied}); });
    // Return pressed without a look leads to a dialog that can be cancelled.
    folder->setDefault(true);
    folder->setFocus();
}

QPushButton* AccessDialog::addAnswer(QGridLayout* answers, const char* key)
{
    const QByteArray consequenceKey = QByteArray(key) + "_consequence";
    auto* const button = new QPushButton(controlText(key), this);
    button->setObjectName(QString::fromLatin1(key));
    button->setMinimumSize(answerSize);
    QFont font = button->font();
    font.setPixelSize(13);
    button->setFont(font);
    QLabel* const consequence = makeLabel(consequenceKey.constData(), 13, this);
    button->setAccessibleDescription(consequence->text());
    m_secondaryTexts << consequence;
    const int row = answers->rowCount();
    answers->addWidget(button, row, 0);
    answers->addWidget(consequence, row, 1);
    return button;
}

void AccessDialog::giveAnswer(const PhotoAccess& answer)
{
    m_answer = answer;
    accept();
}

void AccessDialog::chooseFolder()
{
    const QPointer<QFileDialog> dialog =
        new QFileDialog(this, localizedText("photo_question_choose"), m_picturesFolder);
    dialog->setFileMode(QFileDialog::Directory);
    dialog->setOption(QFileDialog::ShowDirsOnly);
    const HeldInput heldInput;
    const bool isChosen = dialog->exec() == QDialog::Accepted;
    if (!dialog)
        return; // and so is this, on which it lay
    const QList<QUrl> urls = isChosen ? dialog->selectedUrls() : QList<QUrl>();
    delete dialog;
    const QByteArray folder = urls.isEmpty() ? QByteArray() : folderAt(urls.constFirst());
    if (!folder.isEmpty())
        giveAnswer({PhotoAuthorization::limited, folder});
}

void AccessDialog::colourTexts()
{
    QPalette secondary;
    secondary.setColor(QPalette::WindowText, Palettes::secondaryText(palette()));
    for (QLabel* const label : std::as_const(m_secondaryTexts))
        label->setPalette(secondary);
}

void AccessDialog::changeEvent(QEvent* event)
{
    QDialog::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        colourTexts();
}
