// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/widgets/announcer.h"

#include <QAccessibleWidget>

#if QT_VERSION < QT_VERSION_CHECK(6, 8, 0)

#include <QLabel>
#include <QTimer>
#include <chrono>

namespace {

/// Longer than a reader on a busy machine needs to take a text.
constexpr std::chrono::seconds noticeLife{3};

/// One text, the name of the label within: a name of its own would keep Orca
/// from showing it in braille.
class Notice : public QWidget {
public:
    Notice(const QString& text, QWidget* parent)
        : QWidget(parent)
    {
        auto* const label = new QLabel(this);
        label->setTextFormat(Qt::PlainText);
        label->setText(text);
        QTimer::singleShot(noticeLife, this, &QObject::deleteLater);
    }
};

QAccessibleInterface* makeInterface(const QString&, QObject* object)
{
    if (auto* const notice = dynamic_cast<Notice*>(object))
        return new QAccessibleWidget(notice, QAccessible::Notification);
    if (auto* const announcer = qobject_cast<Announcer*>(object))
        return new QAccessibleWidget(announcer, QAccessible::StatusBar);
    return nullptr;
}

void prepare()
{
    QAccessible::installFactory(makeInterface); // once, however often it is asked for
}

void announce(const QString& text, Announcer* announcer)
{
    QAccessibleEvent event(new Notice(text, announcer), QAccessible::ObjectShow);
    QAccessible::updateAccessibility(&event);
}

} // namespace

#else

namespace {

void prepare() {}

void announce(const QString& text, Announcer* announcer)
{
    QAccessibleAnnouncementEvent event(announcer->window(), text);
    QAccessible::updateAccessibility(&event);
}

} // namespace

#endif

Announcer::Announcer(QWidget* parent)
    : QWidget(parent)
{
    setObjectName(QStringLiteral("announcer"));
    prepare();
    hide();
}

void Announcer::say(const QString& text)
{
    if (!text.isEmpty() && QAccessible::isActive())
        announce(text, this);
}
