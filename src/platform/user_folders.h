// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// The user's folder for data of applications, `$XDG_DATA_HOME`; empty where
/// the system names none. Source: freedesktop.org, XDG base directories.
[[nodiscard]] QString applicationSupportFolder();

/// The file of the settings, `$XDG_CONFIG_HOME/Paircade/Paircade.conf`.
[[nodiscard]] QString settingsFile();

/// The user's folder of pictures; empty where there is none. Source:
/// freedesktop.org, xdg-user-dirs, by which the home folder stands for none.
[[nodiscard]] QString picturesFolder();

/// The file of the answer to the question for photo access, beside the settings.
[[nodiscard]] QString photoAccessFile();
