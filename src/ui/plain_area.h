// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QScrollArea;
class QWidget;

/// Lets `area` scroll `content`, and otherwise be as if it were not there: no
/// frame, no focus, the window's ground behind.
void makePlain(QScrollArea& area, QWidget* content);
