// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/widgets/access_question.h"

#include "platform/main_queue.h"
#include "platform/platform.h"
#include "platform/widgets/access_dialog.h"
#include "platform/widgets/held_input.h"

#include <QApplication>
#include <QPointer>
#include <utility>
#include <vector>

namespace {

/// Disables every window there is, and gives each its focus back with its life.
class DisabledWindows {
public:
    DisabledWindows()
    {
        for (QWidget* const window : QApplication::topLevelWidgets()) {
            // Disabling the parent of a window disables that, too.
            if (!window->isVisible() || !window->isEnabled())
                continue;
            m_windows.push_back({window, window->focusWidget()});
        }
        for (const Window& window : m_windows)
            window.widget->setEnabled(false);
    }
    ~DisabledWindows()
    {
        for (const Window& window : m_windows) {
            if (window.widget)
                window.widget->setEnabled(true);
        }
        for (const Window& window : m_windows) {
            if (window.widget && window.focus)
                window.focus->setFocus(Qt::OtherFocusReason);
        }
    }
    Q_DISABLE_COPY_MOVE(DisabledWindows)

private:
    struct Window {
        QPointer<QWidget> widget{};
        QPointer<QWidget> focus{};
    };
    std::vector<Window> m_windows{};
};

} // namespace

AccessQuestion::AccessQuestion(QString picturesFolder)
    : m_picturesFolder(std::move(picturesFolder))
{
}

std::optional<PhotoAccess> AccessQuestion::askForPhotoAccess()
{
    const MainQueue::Hold hold(platform().mainQueue);
    QWidget* const parent = QApplication::activeWindow();
    const DisabledWindows disabledWindows;
    // Not on the stack: the dialog goes with its parent, whenever that goes.
    const QPointer<AccessDialog> dialog = new AccessDialog(m_picturesFolder, parent);
    const HeldInput heldInput;
    dialog->exec();
    const std::optional<PhotoAccess> answer = dialog ? dialog->answer() : std::nullopt;
    delete dialog;
    return answer;
}
