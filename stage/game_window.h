// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/app_delegate.h"
#include "app/main_window.h"
#include "game/memory_game.h"
#include "game/rules/card_layout.h"
#include "platform/widgets/alert_box.h"
#include "stage/play.h"
#include "stage/stage_platform.h"
#include "ui/content_view.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QMessageBox>
#include <QScreen>
#include <QTest>
#include <QTimer>
#include <QWheelEvent>
#include <functional>

/// The real window over the real game, driven by mouse and keyboard; the model
/// is read, never driven. Alerts are real message boxes.
class GameWindow {
public:
    /// `prepare` may write settings and results before the launch.
    explicit GameWindow(
        const std::function<void(StagePlatform&)>& prepare = [](StagePlatform&) {},
        const QString& language = QStringLiteral("en"))
        : platform(&alerts, language)
    {
        platform.useResources(resources());
        makeDeck(resources(), QStringLiteral("Cyberpunk"), 24);
        prepare(platform);
        delegate.applicationDidFinishLaunching();
        if (!QTest::qWaitForWindowActive(delegate.window()))
            qFatal("the window does not come up");
        QTest::qWait(20); // frame and centre
    }

    [[nodiscard]] QString resources() const { return platform.home.path(); }
    [[nodiscard]] MemoryGame& game() { return delegate.contentView()->game(); }
    [[nodiscard]] MainWindow& window() { return *delegate.window(); }

    /// The size of the window below its menu bar.
    [[nodiscard]] QSize contentSize() { return delegate.contentView()->size(); }
    /// The one that `layout` asks for.
    [[nodiscard]] static QSize sizeFor(const CardLayout& layout)
    {
        return {layout.windowWidth, layout.windowHeight};
    }
    [[nodiscard]] QRect screen() { return window().screen()->geometry(); }

    template <class Widget>
    [[nodiscard]] Widget& child(const QString& name)
    {
        auto* const found = window().findChild<Widget*>(name);
        if (found == nullptr)
            qFatal("no widget is called %s", qPrintable(name));
        return *found;
    }
    [[nodiscard]] QString text(const QString& label) { return child<QLabel>(label).text(); }
    [[nodiscard]] QAbstractButton& card(std::size_t position)
    {
        return child<QAbstractButton>(QStringLiteral("card%1").arg(position));
    }
    /// The name of what has the window's focus.
    [[nodiscard]] QString focused()
    {
        const QWidget* const widget = window().focusWidget();
        return widget == nullptr ? QString() : widget->objectName();
    }

    void click(QWidget& widget)
    {
        const QPoint place(std::min(widget.width() / 2, 10), widget.height() / 2);
        QTest::mouseClick(widget.window()->windowHandle(), Qt::LeftButton, {},
                          widget.mapTo(widget.window(), place));
        QCoreApplication::processEvents();
    }
    void click(const QString& name) { click(child<QWidget>(name)); }
    void clickCard(std::size_t position) { click(card(position)); }
    void choose(const QString& menuItem)
    {
        child<QAction>(menuItem).trigger();
        QCoreApplication::processEvents();
    }
    /// Turns the wheel over the control.
    void wheel(QWidget& control, int notches)
    {
        const QPointF place = control.rect().center();
        QWheelEvent event(place, control.mapToGlobal(place), {}, {0, 120 * notches}, {}, {},
                          Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&control, &event);
    }

    /// Keys go to the window, as from a keyboard, and so to what has the focus.
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::keyClick(window().windowHandle(), key, modifiers);
    }
    void type(const QString& text)
    {
        for (const QChar letter : text)
            QTest::keyClick(window().windowHandle(), letter.toLatin1());
    }
    /// One more press of a key that is held down.
    void repeat(Qt::Key key, const QString& text) { repeatOn(window(), key, text); }
    static void repeatOn(const QWidget& shown, Qt::Key key, const QString& text = {})
    {
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier, text, true);
        QCoreApplication::sendEvent(shown.windowHandle(), &event);
    }

    /// Types the name where the focus is, and Return.
    void startGame(const QString& name = QStringLiteral("Ann"))
    {
        type(name);
        press(Qt::Key_Return);
        QCoreApplication::processEvents();
    }

    /// Finds the next pair by two clicks.
    void clickPair()
    {
        press(Qt::Key_Escape); // a board that fades out would take the first click
        const std::size_t first = hiddenCard(game());
        const std::size_t second = otherCard(game(), first, true);
        clickCard(first);
        clickCard(second);
    }

    AlertBox alerts{};
    StagePlatform platform;
    AppDelegate delegate{};
};

/// Calls `act` on the next modal `Dialog` once it is active. A failure closes whatever
/// waits for an answer.
template <class Dialog>
void whenShown(const std::function<void(Dialog&)>& act, int tries = 200)
{
    QTimer::singleShot(20, qApp, [act, tries] {
        auto* const dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
        if (dialog != nullptr)
            dialog->activateWindow(); // as a window manager does
        if (dialog != nullptr && dialog->isActiveWindow())
            act(*dialog);
        else if (tries > 0)
            whenShown(act, tries - 1);
        else
            QTest::qFail("no such dialog comes up", __FILE__, __LINE__);
        while (QTest::currentTestFailed() && QApplication::activeModalWidget() != nullptr)
            QApplication::activeModalWidget()->close();
    });
}

/// Calls `look` on the message box that comes up next, then clicks its button.
inline void whenAlerted(const std::function<void(QMessageBox&)>& look)
{
    whenShown<QMessageBox>([look](QMessageBox& box) {
        look(box);
        QTest::mouseClick(box.buttons().constFirst(), Qt::LeftButton);
    });
}
