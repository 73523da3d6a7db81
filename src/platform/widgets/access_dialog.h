// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/photo_access.h"

#include <QDialog>
#include <QList>
#include <QString>
#include <optional>

class QGridLayout;
class QLabel;
class QPushButton;

/// The window of the question how far the game may look at personal photos.
///
/// Three buttons answer it; closing it, Escape and the end of the program do not.
/// A folder is chosen in a dialog of its own, and who cancels that is back here.
class AccessDialog : public QDialog {
    Q_OBJECT

public:
    /// The choice of a folder begins in `picturesFolder`.
    explicit AccessDialog(QString picturesFolder, QWidget* parent = nullptr);

    /// What was answered; none as long as nothing was.
    [[nodiscard]] const std::optional<PhotoAccess>& answer() const { return m_answer; }

protected:
    void changeEvent(QEvent* event) override;

private:
    QPushButton* addAnswer(QGridLayout* answers, const char* key);
    void giveAnswer(const PhotoAccess& answer);
    void chooseFolder();
    void colourTexts();

    QString m_picturesFolder;
    QList<QLabel*> m_secondaryTexts{};
    std::optional<PhotoAccess> m_answer{};
};
