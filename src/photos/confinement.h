// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>

/// Bounds what the process may use: memory, time, and no file to write to or core
/// to leave. Comes first.
void limitResources();

/// Starts the processor time that one picture may take; beyond it the system ends
/// the process, as a crash does.
void limitPictureTime();

/// Takes from the process all that reading pictures does not need, for good:
/// reading but below the folder `library` and the folders of programs, writing,
/// other processes, the network. Parts that this kernel lacks are left out;
/// docs/photos.md says what that means.
void confine(const QByteArray& library);

/// The halves of confine(), each whether it is in force.
bool confineFiles(const QByteArray& library);
bool confineSystemCalls();
