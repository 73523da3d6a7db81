// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/app_delegate.h"
#include "app/main_window.h"
#include "app/single_instance.h"
#include "app/termination.h"
#include "highscores/highscore_file.h"
#include "platform/application_bundle.h"
#include "platform/audio_player.h"
#include "platform/localized_text.h"
#include "platform/main_queue.h"
#include "platform/notification_center.h"
#include "platform/photo_library.h"
#include "platform/platform.h"
#include "platform/user_defaults.h"
#include "platform/user_folders.h"
#include "platform/widgets/access_question.h"
#include "platform/widgets/alert_box.h"
#include "platform/widgets/appearance.h"
#include "platform/workspace.h"
#include "ui/content_view.h"

#include <QApplication>
#include <QIcon>
#include <QLocale>
#include <QLoggingCategory>
#include <cstdio>
#include <fcntl.h>
#include <unistd.h>

namespace {

/// Whoever starts the game may have closed them, and the log would go into whatever file
/// or connection is opened in their place.
void openStandardStreams()
{
    for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        if (::fcntl(stream, F_GETFD) == -1)
            (void)::open("/dev/null", O_RDWR); // takes the lowest number that is free
    }
}

/// Takes the icon of all windows from its file.
void loadIcon(const ApplicationBundle& bundle)
{
    if (const auto icon = bundle.resource(QStringLiteral("icon"), QStringLiteral("png")))
        QApplication::setWindowIcon(QIcon(*icon));
}

} // namespace

int main(int argc, char* argv[])
{
    openStandardStreams();
    // Qt complains of every lock in a network folder that knows none, and of whatever else it
    // makes do with. QT_LOGGING_RULES="default.warning=true" lets it.
    QLoggingCategory::setFilterRules(QStringLiteral("default.warning=false"));
    const QByteArray activationToken = SingleInstance::ownActivationToken();
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Paircade"));
    QApplication::setApplicationVersion(QStringLiteral(PAIRCADE_VERSION));
    QApplication::setDesktopFileName(QStringLiteral("org.paircade.Paircade"));
    // Closing the window ends the program in a way of its own.
    QApplication::setQuitOnLastWindowClosed(false);

    UserDefaults defaults(settingsFile());
    const ApplicationBundle bundle = ApplicationBundle::ofRunningProgram();
    MainQueue mainQueue;
    NotificationCenter notifications;
    AudioPlayer audio;
    PhotoAccessStore photoAccess(photoAccessFile());
    AccessQuestion accessQuestion(picturesFolder());
    PhotoLibrary photos(photoAccess, &accessQuestion, picturesFolder(),
                        PhotoLibrary::helperOfRunningProgram());
    AlertBox alerts;
    const Workspace workspace;
    const Platform services{defaults, bundle, mainQueue, notifications,
                            audio,    photos, alerts,    workspace};
    usePlatform(&services);

    Catalogues catalogues;
    (void)catalogues.install(bundle.resourceFolder().value_or(QString()) +
                                 QStringLiteral("/translations"),
                             QLocale::system().uiLanguages());

    SingleInstance instance;
    const SingleInstance::Claim claim = instance.claim(highscoreFolder(), activationToken);
    if (claim == SingleInstance::Claim::handedOver)
        return 0;
    if (claim == SingleInstance::Claim::noAnswer) {
        std::fprintf(stderr, "%s\n", qUtf8Printable(localizedText("already_running")));
        loadIcon(bundle);
        showInformation(QStringLiteral("Paircade"), localizedText("already_running"));
        return 1;
    }

    const Termination termination;
    const Appearance appearance;
    AppDelegate delegate;
    QObject::connect(&instance, &SingleInstance::startedAgain, &delegate,
                     [&delegate](const QByteArray& token) {
                         if (!token.isEmpty())
                             qputenv("XDG_ACTIVATION_TOKEN", token);
                         delegate.activate();
                     });
    delegate.applicationDidFinishLaunching();
    // The first picture does not show it.
    QObject::connect(delegate.window(), &MainWindow::appeared, delegate.window(),
                     [&bundle] { loadIcon(bundle); });
    QObject::connect(&appearance, &Appearance::changed, delegate.contentView(),
                     &ContentView::followAppearance);
    const int status = QApplication::exec();
    delegate.applicationWillTerminate();
    return status;
}
