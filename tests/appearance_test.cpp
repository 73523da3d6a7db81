// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Follows a desktop's wishes live, over a real session bus: dbus-run-session
// starts one for this test, and a portal of its own answers on it.
#include "platform/widgets/appearance.h"
#include "platform/widgets/palettes.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QLineEdit>
#include <QMap>
#include <QPushButton>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTest>
#include <algorithm>
#include <array>
#include <memory>

namespace {

const QString appearance = QStringLiteral("org.freedesktop.appearance");
const QString oldMotion = QStringLiteral("org.gnome.desktop.interface");
const QString oldContrast = QStringLiteral("org.gnome.desktop.a11y.interface");

} // namespace

/// Answers as the settings portal of a desktop does.
class Portal : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Settings")

public:
    using Key = std::pair<QString, QString>;

    Portal()
        : m_bus(
              QDBusConnection::connectToBus(QDBusConnection::SessionBus, QStringLiteral("portal")))
    {
        m_bus.registerObject(QStringLiteral("/org/freedesktop/portal/desktop"), this,
                             QDBusConnection::ExportAllSlots);
        if (!m_bus.registerService(QStringLiteral("org.freedesktop.portal.Desktop")))
            qFatal("there is no session bus for the test");
    }

    QMap<Key, QVariant> settings{};

    void change(const QString& group, const QString& key, const QVariant& value)
    {
        settings[{group, key}] = value;
        QDBusMessage signal = QDBusMessage::createSignal(
            QStringLiteral("/org/freedesktop/portal/desktop"),
            QStringLiteral("org.freedesktop.portal.Settings"), QStringLiteral("SettingChanged"));
        signal << group << key << QVariant::fromValue(QDBusVariant(value));
        m_bus.send(signal);
    }

public Q_SLOTS:
    QDBusVariant Read(const QString& group, const QString& key, const QDBusMessage& call)
    {
        if (!settings.contains({group, key})) {
            call.setDelayedReply(true);
            m_bus.send(call.createErrorReply(
                QStringLiteral("org.freedesktop.portal.Error.NotFound"), QStringLiteral("no")));
            return {};
        }
        // A variant within a variant, as the portal's Read has it.
        return QDBusVariant(QVariant::fromValue(QDBusVariant(settings.value({group, key}))));
    }

private:
    QDBusConnection m_bus;
};

class AppearanceTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void wishesAreTakenAtTheStart_data()
    {
        QTest::addColumn<QString>("group");
        QTest::addColumn<QString>("key");
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<bool>("isDark");
        QTest::addColumn<bool>("isContrastHigh");
        QTest::addColumn<bool>("isMotionReduced");

        const auto row = [](const char* name, const QString& group, const char* key,
                            const QVariant& value, bool dark, bool contrast, bool motion) {
            QTest::newRow(name) << group << QString::fromLatin1(key) << value << dark << contrast
                                << motion;
        };
        row("no wish", appearance, "color-scheme", 0U, false, false, false);
        row("dark", appearance, "color-scheme", 1U, true, false, false);
        row("light", appearance, "color-scheme", 2U, false, false, false);
        row("a wish of the future", appearance, "color-scheme", 7U, false, false, false);
        row("high contrast", appearance, "contrast", 1U, false, true, false);
        row("high contrast, the older way", oldContrast, "high-contrast", true, false, true, false);
        row("less motion", appearance, "reduced-motion", 1U, false, false, true);
        row("less motion, the older way", oldMotion, "enable-animations", false, false, false,
            true);
        row("motion", oldMotion, "enable-animations", true, false, false, false);
        row("no number", appearance, "color-scheme", QStringLiteral("dark"), false, false, false);
    }

    void wishesAreTakenAtTheStart()
    {
        QFETCH(QString, group);
        QFETCH(QString, key);
        QFETCH(QVariant, value);
        QFETCH(bool, isContrastHigh);
        QFETCH(bool, isMotionReduced);
        Portal portal;
        portal.settings[{group, key}] = value;
        const Appearance followed;
        QTest::qWait(150);
        QTEST(isDark(), "isDark");
        QCOMPARE(Appearance::isContrastHigh(), isContrastHigh);
        QCOMPARE(Appearance::isMotionReduced(), isMotionReduced);
    }

    void changesAreFollowed()
    {
        Portal portal;
        const Appearance followed;
        const QSignalSpy changes(&followed, &Appearance::changed);
        QTest::qWait(100);
        const QPalette before = QApplication::palette();
        portal.change(appearance, QStringLiteral("color-scheme"), 1U);
        QTRY_VERIFY(isDark());
        portal.change(appearance, QStringLiteral("color-scheme"), 0U);
        QTRY_VERIFY(!isDark());
        QCOMPARE(QApplication::palette(), before);
        portal.change(appearance, QStringLiteral("reduced-motion"), 1U);
        QTRY_VERIFY(Appearance::isMotionReduced());
        portal.change(appearance, QStringLiteral("reduced-motion"), 0U);
        QTRY_VERIFY(!Appearance::isMotionReduced());
        QCOMPARE(changes.size(), 2);
    }

    void highContrastOutlinesControls()
    {
        Portal portal;
        portal.settings[{appearance, QStringLiteral("color-scheme")}] = 1U;
        const Appearance followed;
        QTRY_VERIFY(isDark());
        const QPalette before = QApplication::palette();
        QCheckBox box;
        QComboBox menu;
        QSpinBox stepper;
        QLineEdit field;
        QPushButton button;
        const std::array<QWidget*, 5> controls{&box, &menu, &stepper, &field, &button};
        const auto outlined = [&] {
            return std::ranges::count_if(controls, [](QWidget* control) {
                const QImage picture = control->grab().toImage();
                const QRgb text = control->palette().color(QPalette::WindowText).rgb();
                // The left edge, away from the corners.
                return picture.pixel(0, picture.height() / 2) == text;
            });
        };
        QCOMPARE(outlined(), 0);
        portal.change(appearance, QStringLiteral("contrast"), 1U);
        QTRY_COMPARE(outlined(), 5);
        QCOMPARE(QApplication::palette(), before);
        portal.change(appearance, QStringLiteral("contrast"), 0U);
        QTRY_COMPARE(outlined(), 0);
        QCOMPARE(QApplication::palette(), before);
    }

    void withoutAPortalNothingChanges()
    {
        const QPalette before = QApplication::palette();
        const Appearance alone;
        QTest::qWait(100);
        QCOMPARE(isDark(), false);
        QVERIFY(!Appearance::isContrastHigh());
        QApplication::setPalette(before);
    }

    void cleanup() { QApplication::setPalette(Palettes::light()); }

private:
    static bool isDark()
    {
        return QApplication::palette().color(QPalette::Window).lightnessF() < 0.5F;
    }
};

QTEST_MAIN(AppearanceTest)
#include "appearance_test.moc"
