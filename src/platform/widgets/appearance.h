// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QPalette>
#include <QVariant>
#include <optional>

class QDBusVariant;

/// How the desktop wants programs to look, followed while the game runs.
///
/// Asked of the desktop's settings portal without waiting for its answer:
/// dark or light, high contrast, less motion. Where the portal's wish for dark
/// or light differs from the palette in force, a palette of ours is laid; under
/// high contrast controls have outlines; where there is no portal, nothing changes.
/// Source: freedesktop.org, org.freedesktop.portal.Settings.
class Appearance : public QObject {
    Q_OBJECT

public:
    /// Begins to follow the desktop. There is one for the life of a program.
    Appearance();
    ~Appearance() override;

    /// States are to change at once. False as long as nobody follows.
    [[nodiscard]] static bool isMotionReduced();

    /// Texts and rings are to stand out as far as they can.
    [[nodiscard]] static bool isContrastHigh();

Q_SIGNALS:
    /// Contrast or motion changed; a palette announces itself.
    void changed();

private Q_SLOTS:
    void noteSetting(const QString& group, const QString& key, const QDBusVariant& value);

private: // NOLINT(readability-redundant-access-specifiers): ends the slots
    void ask(const QString& group, const QString& key);
    void take(const QString& group, const QString& key, QVariant value);
    void applyScheme();
    static void applyContrast();
    /// Takes over what contrast and motion come to by all answers so far.
    void applyAnswers();

    QPalette m_ownPalette;
    unsigned m_scheme = 0;   ///< 0 no wish, 1 dark, 2 light
    unsigned m_contrast = 0; ///< 1 high
    bool m_isContrastHighByOldKey = false;
    unsigned m_motion = 0; ///< 1 reduced
    std::optional<bool> m_isMotionReducedByOldKey{};
};
