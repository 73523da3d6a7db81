// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/widgets/appearance.h"

#include "platform/widgets/outlined_style.h"
#include "platform/widgets/palettes.h"

#include <QApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>
#include <QStyle>

namespace {

const QString service = QStringLiteral("org.freedesktop.portal.Desktop");
const QString path = QStringLiteral("/org/freedesktop/portal/desktop");
const QString interface = QStringLiteral("org.freedesktop.portal.Settings");

const QString appearance = QStringLiteral("org.freedesktop.appearance");
const QString gnomeInterface = QStringLiteral("org.gnome.desktop.interface");
const QString gnomeAccessibility = QStringLiteral("org.gnome.desktop.a11y.interface");
const QString colorScheme = QStringLiteral("color-scheme");
const QString contrast = QStringLiteral("contrast");
const QString reducedMotion = QStringLiteral("reduced-motion");
const QString enableAnimations = QStringLiteral("enable-animations");
const QString highContrast = QStringLiteral("high-contrast");

bool motionIsReduced = false;
bool contrastIsHigh = false;

} // namespace

Appearance::Appearance()
    : m_ownPalette(QApplication::palette())
{
    // Where the desktop brings no palette, ours is easier to read than the style's.
    if (m_ownPalette == QApplication::style()->standardPalette()) {
        m_ownPalette = Palettes::light();
        QApplication::setPalette(m_ownPalette);
    }
    applyAnswers();
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return;
    // Unknown to the type system, the argument below would not connect.
    qDBusRegisterMetaType<QDBusVariant>();
    bus.connect(service, path, interface, QStringLiteral("SettingChanged"), this,
                SLOT(noteSetting(QString, QString, QDBusVariant)));
    for (const QString& key : {colorScheme, contrast, reducedMotion})
        ask(appearance, key);
    ask(gnomeInterface, enableAnimations);
    ask(gnomeAccessibility, highContrast);
}

Appearance::~Appearance()
{
    motionIsReduced = false;
    contrastIsHigh = false;
    applyContrast();
}

bool Appearance::isMotionReduced()
{
    return motionIsReduced;
}

bool Appearance::isContrastHigh()
{
    return contrastIsHigh;
}

void Appearance::ask(const QString& group, const QString& key)
{
    QDBusMessage call =
        QDBusMessage::createMethodCall(service, path, interface, QStringLiteral("Read"));
    call << group << key;
    auto* const watcher =
        new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(call), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher, group, key] {
        const QDBusPendingReply<QDBusVariant> reply = *watcher;
        if (reply.isValid())
            take(group, key, reply.value().variant());
        watcher->deleteLater();
    });
}

void Appearance::noteSetting(const QString& group, const QString& key, const QDBusVariant& value)
{
    take(group, key, value.variant());
}

void Appearance::take(const QString& group, const QString& key, QVariant value)
{
    // An answer is wrapped once more than a signal.
    while (value.userType() == qMetaTypeId<QDBusVariant>())
        value = qvariant_cast<QDBusVariant>(value).variant();

    if (group == appearance && key == colorScheme) {
        m_scheme = value.toUInt();
        applyScheme();
    } else if (group == appearance && key == contrast) {
        m_contrast = value.toUInt();
    } else if (group == appearance && key == reducedMotion) {
        m_motion = value.toUInt();
    } else if (group == gnomeInterface && key == enableAnimations) {
        m_isMotionReducedByOldKey = !value.toBool();
    } else if (group == gnomeAccessibility && key == highContrast) {
        m_isContrastHighByOldKey = value.toBool();
    }
    applyAnswers();
}

void Appearance::applyAnswers()
{
    const bool isStyleStill =
        QApplication::style()->styleHint(QStyle::SH_Widget_Animation_Duration) == 0;
    const bool isMotionReducedNow =
        m_motion == 1 || m_isMotionReducedByOldKey.value_or(isStyleStill);
    const bool isContrastHighNow = m_contrast == 1 || m_isContrastHighByOldKey;
    if (isMotionReducedNow == motionIsReduced && isContrastHighNow == contrastIsHigh)
        return;
    motionIsReduced = isMotionReducedNow;
    contrastIsHigh = isContrastHighNow;
    applyContrast();
    Q_EMIT changed();
}

void Appearance::applyContrast()
{
    const QStyle* const style = QApplication::style();
    const bool isOutlined = qobject_cast<const OutlinedStyle*>(style) != nullptr;
    const auto fusion = QStringLiteral("fusion");
    if (isOutlined && !contrastIsHigh)
        QApplication::setStyle(fusion);
    // A desktop with a style of its own has one for high contrast, too.
    else if (!isOutlined && contrastIsHigh && style->name() == fusion)
        QApplication::setStyle(new OutlinedStyle);
}

void Appearance::applyScheme()
{
    const bool wantsDark = m_scheme == 1;
    const bool hasWish = wantsDark || m_scheme == 2;
    if (!hasWish || wantsDark == Palettes::isDark(m_ownPalette))
        QApplication::setPalette(m_ownPalette);
    else
        QApplication::setPalette(wantsDark ? Palettes::dark() : Palettes::light());
}
