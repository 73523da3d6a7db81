// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/workspace.h"

#include <QDesktopServices>
#include <QUrl>

void Workspace::openFile(const QString& path) const
{
    QDesktopServices::openUrl(QUrl::fromLocalFile(path));
}
