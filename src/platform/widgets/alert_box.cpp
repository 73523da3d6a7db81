// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/widgets/alert_box.h"

#include "platform/localized_text.h"

#include <QApplication>
#include <QLabel>
#include <QMessageBox>

namespace {

void showBox(QMessageBox& box, const QString& informativeText, const QString& buttonTitle)
{
    box.setInformativeText(informativeText);
    // Texts may quote names and paths, and a name may look like markup.
    for (QLabel* const label : box.findChildren<QLabel*>())
        label->setTextFormat(Qt::PlainText);
    box.addButton(buttonTitle, QMessageBox::AcceptRole);
    box.exec();
}

} // namespace

void AlertBox::warn(const QString& messageText, const QString& informativeText,
                    const QString& buttonTitle)
{
    QMessageBox box(QMessageBox::Warning, QString(), messageText, QMessageBox::NoButton,
                    QApplication::activeWindow());
    showBox(box, informativeText, buttonTitle);
}

void showInformation(const QString& title, const QString& text)
{
    QMessageBox box(QMessageBox::Information, title, title, QMessageBox::NoButton,
                    QApplication::activeWindow());
    showBox(box, text, localizedText("ok"));
}
