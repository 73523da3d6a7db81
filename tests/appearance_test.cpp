// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Follows a desktop's wishes live, over a real session bus: dbus-run-session
// starts one for this test, and a portal of its own answers on it.
#include "platform/widgets/appearance.h"
#include "platform/widgets/palettes.h"
#include "support/rows.h"
#include "ui/turning_card.h"

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
#include <algorithm>

using namespace Qt::StringLiterals;

const QString path = u"/org/freedesktop/portal/desktop"_s;
const QString interface = u"org.freedesktop.portal.Settings"_s;
const QString appearance = u"org.freedesktop.appearance"_s;
const QString oldMotion = u"org.gnome.desktop.interface"_s;
const QString oldContrast = u"org.gnome.desktop.a11y.interface"_s;

/// Answers as the settings portal of a desktop does.
class Portal : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Settings")

public:
    using Key = std::pair<QString, QString>;

    Portal()
    {
        m_bus.registerObject(path, this, QDBusConnection::ExportAllSlots);
        if (!m_bus.registerService(u"org.freedesktop.portal.Desktop"_s))
            qFatal("there is no session bus for the test");
    }

    QMap<Key, QVariant> settings{};

    void change(const QString& group, const QString& key, const QVariant& value)
    {
        settings[{group, key}] = value;
        auto signal = QDBusMessage::createSignal(path, interface, u"SettingChanged"_s);
        signal << group << key << QVariant::fromValue(QDBusVariant(value));
        m_bus.send(signal);
    }

public Q_SLOTS:
    QDBusVariant Read(const QString& group, const QString& key, const QDBusMessage& call)
    {
        if (!settings.contains({group, key})) {
            call.setDelayedReply(true);
            m_bus.send(call.createErrorReply(u"org.freedesktop.portal.Error.NotFound"_s, u"no"_s));
            return {};
        }
        // A variant within a variant, as the portal's Read has it.
        return QDBusVariant(QVariant::fromValue(QDBusVariant(settings.value({group, key}))));
    }

private:
    QDBusConnection m_bus = QDBusConnection::connectToBus(QDBusConnection::SessionBus, u"portal"_s);
};

class AppearanceTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void wishesAreTakenAtTheStart_data()
    {
        const Rows<QString, QString, QVariant, QString> row{"group", "key", "value", "wishes"};
        row("no wish", appearance, u"color-scheme"_s, 0U, {});
        row("dark", appearance, u"color-scheme"_s, 1U, u"dark"_s);
        row("light", appearance, u"color-scheme"_s, 2U, {});
        row("a wish of the future", appearance, u"color-scheme"_s, 7U, {});
        row("no number", appearance, u"color-scheme"_s, u"dark"_s, {});
        row("contrast", appearance, u"contrast"_s, 1U, u"contrast"_s);
        row("contrast, the older way", oldContrast, u"high-contrast"_s, true, u"contrast"_s);
        row("stillness", appearance, u"reduced-motion"_s, 1U, u"stillness"_s);
        row("stillness, the older way", oldMotion, u"enable-animations"_s, false, u"stillness"_s);
        row("motion", oldMotion, u"enable-animations"_s, true, {});
    }

    void wishesAreTakenAtTheStart()
    {
        QFETCH(QString, group);
        QFETCH(QString, key);
        QFETCH(QVariant, value);
        Portal portal;
        portal.settings[{group, key}] = value;
        const Appearance followed;
        QTest::qWait(150);
        const QString wishes = u"dark"_s.repeated(isDark()) +
                               u"contrast"_s.repeated(Appearance::isContrastHigh()) +
                               u"stillness"_s.repeated(Appearance::isMotionReduced());
        QTEST(wishes, "wishes");
    }

    void changesAreFollowed()
    {
        QCheckBox box;
        QComboBox menu;
        QSpinBox stepper;
        QLineEdit field;
        QPushButton button;
        const std::initializer_list<QWidget*> controls{&box, &menu, &stepper, &field, &button};
        const auto outlined = [&] {
            return std::ranges::count_if(controls, [](QWidget* control) {
                const QImage picture = control->grab().toImage();
                const QRgb text = control->palette().color(QPalette::WindowText).rgb();
                // The left edge, away from the corners.
                return picture.pixel(0, picture.height() / 2) == text;
            });
        };
        Portal portal;
        const Appearance followed;
        const QSignalSpy changes(&followed, &Appearance::changed);
        QTest::qWait(100);
        const QPalette before = QApplication::palette();
        portal.change(appearance, u"color-scheme"_s, 1U);
        QTRY_VERIFY(isDark());
        // High contrast outlines controls, and changes no colour.
        const QPalette dark = QApplication::palette();
        QCOMPARE(outlined(), 0);
        for (const unsigned wish : {1U, 0U}) {
            portal.change(appearance, u"contrast"_s, wish);
            QTRY_COMPARE(outlined(), wish == 1 ? 5 : 0);
            QCOMPARE(QApplication::palette(), dark);
        }
        portal.change(appearance, u"color-scheme"_s, 0U);
        QTRY_VERIFY(!isDark());
        QCOMPARE(QApplication::palette(), before);
        portal.change(appearance, u"reduced-motion"_s, 1U);
        QTRY_VERIFY(Appearance::isMotionReduced());
        TurningCard card{MemoryCard()};
        QVERIFY(card.show({.isFaceUp = true}, false) && !card.isMoving());
        portal.change(appearance, u"reduced-motion"_s, 0U);
        QTRY_VERIFY(!Appearance::isMotionReduced());
        QCOMPARE(changes.size(), 4); // of contrast and motion
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
