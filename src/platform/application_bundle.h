// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <optional>

/// The files that come with the program: decks, sounds, logo, translations.
class ApplicationBundle {
public:
    /// Finds resources under `resourceFolder`, which may not exist.
    explicit ApplicationBundle(QString resourceFolder);

    /// The bundle of the running program: share/paircade beside its bin folder.
    [[nodiscard]] static ApplicationBundle ofRunningProgram();

    /// The absolute path of the resource folder; none if there is no such folder.
    [[nodiscard]] std::optional<QString> resourceFolder() const;

    /// The path of the file `name`.`extension` in `subfolder` (empty: the
    /// resource folder itself); none if there is no such file.
    [[nodiscard]] std::optional<QString> resource(const QString& name, const QString& extension,
                                                  const QString& subfolder = {}) const;

private:
    QString m_folder;
};
