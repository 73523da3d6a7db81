// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// Writes `text` to standard output, the debug log, as one line, at once.
///
/// The game's lines are German whatever language it speaks, and keep their wording: who
/// reads them looks for it, as the tests do.
///
/// Line breaks in it (a path may hold some) are written as \n and \r, so that
/// one message stays one line. May be called on any thread.
void logLine(QString text);
