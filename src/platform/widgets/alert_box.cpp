// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/widgets/alert_box.h"

#include "platform/localized_text.h"
#include "platform/widgets/held_input.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QIcon>
#include <QLabel>
#include <QMessageBox>
#include <QPointer>
#include <QStyle>

namespace {

constexpr int informativeWidth = 420;
constexpr int iconSize = 64;

void showBox(QMessageBox& box, const QString& informativeText, const QString& buttonTitle)
{
    box.setInformativeText(informativeText);
    // Texts may quote names and paths, and a name may look like markup.
    for (QLabel* const label : box.findChildren<QLabel*>())
        label->setTextFormat(Qt::PlainText);
    if (auto* const title = box.findChild<QLabel*>(QStringLiteral("qt_msgbox_label"))) {
        QFont font = title->font();
        font.setBold(true);
        title->setFont(font);
    }
    // Else the text is squeezed into the width of the message above it.
    if (auto* const text = box.findChild<QLabel*>(QStringLiteral("qt_msgbox_informativelabel")))
        text->setMinimumWidth(informativeWidth);
    box.addButton(buttonTitle, QMessageBox::AcceptRole);
    // Room for the ring around the button that has the focus.
    if (auto* const buttons = box.findChild<QDialogButtonBox*>()) {
        const int ring = box.style()->pixelMetric(QStyle::PM_FocusFrameHMargin);
        buttons->setContentsMargins(ring, ring, ring, ring);
    }
    const HeldInput held; // else the key that led here would close it again
    box.exec();
}

} // namespace

void AlertBox::warn(const QString& messageText, const QString& informativeText,
                    const QString& buttonTitle)
{
    // Not on the stack: the box goes with its parent, whenever that goes.
    const QPointer<QMessageBox> box =
        new QMessageBox(QMessageBox::Warning, QString(), messageText, QMessageBox::NoButton,
                        QApplication::activeWindow());
    showBox(*box, informativeText, buttonTitle);
    delete box;
}

void showInformation(const QString& title, const QString& text)
{
    const QPointer<QMessageBox> box = new QMessageBox(
        QMessageBox::NoIcon, QString(), title, QMessageBox::NoButton, QApplication::activeWindow());
    box->setIconPixmap(QApplication::windowIcon().pixmap(iconSize));
    showBox(*box, text, localizedText("ok"));
    delete box;
}
