// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class Alerts;
class ApplicationBundle;
class AudioPlayer;
class MainQueue;
class NotificationCenter;
class PhotoLibrary;
class UserDefaults;
class Workspace;

/// The services that the game asks of its surroundings.
///
/// The one global of the program, so that every layer reaches the same
/// settings, resources and main queue without passing them along.
struct Platform {
    UserDefaults& defaults;
    const ApplicationBundle& bundle;
    MainQueue& mainQueue;
    NotificationCenter& notifications;
    AudioPlayer& audio;
    PhotoLibrary& photos;
    Alerts& alerts;
    const Workspace& workspace;
};

/// The services in use. Calling it before usePlatform() is a programming error.
[[nodiscard]] const Platform& platform();

/// Makes `services` the ones in use; main() or a test calls it before anything
/// else. They must outlive every use; nullptr forgets them.
void usePlatform(const Platform* services);
