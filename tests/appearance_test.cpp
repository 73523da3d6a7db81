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
    void wishesAreFollowed_data()
    {
        const Rows<QString, QString, QVariant, QVariant, QString> row{"group", "key", "value",
                                                                      "otherwise", "wishes"};
        row("dark", appearance, u"color-scheme"_s, 1U, 0U, u"dark"_s);
        row("light", appearance, u"color-scheme"_s, 2U, 0U, {});
        row("contrast", appearance, u"contrast"_s, 1U, 0U, u"contrast"_s);
        row("the older way", oldContrast, u"high-contrast"_s, true, false, u"contrast"_s);
        row("stillness", appearance, u"reduced-motion"_s, 1U, 0U, u"stillness"_s);
        row("no motion", oldMotion, u"enable-animations"_s, false, true, u"stillness"_s);
    }

    void wishesAreFollowed()
    {
        QFETCH(QString, group);
        QFETCH(QString, key);
        QFETCH(QVariant, value);
        QFETCH(QVariant, otherwise);
        QFETCH(QString, wishes);
        const auto shown = [] {
            const QColor ground = QApplication::palette().color(QPalette::Window);
            return u"dark"_s.repeated(ground.lightnessF() < 0.5F) +
                   u"contrast"_s.repeated(Appearance::isContrastHigh()) +
                   u"stillness"_s.repeated(Appearance::isMotionReduced());
        };
        Portal portal;
        portal.settings[{group, key}] = value;
        const Appearance followed;
        const QPalette before = QApplication::palette();
        QTest::qWait(150);
        QTRY_COMPARE(shown(), wishes);
        for (const QVariant& now : {otherwise, value}) {
            portal.change(group, key, now);
            const QString expected = now == value ? wishes : QString();
            QTRY_COMPARE(shown(), expected);
            // High contrast outlines controls, and changes no colour.
            QCOMPARE(outlinedControls(), expected == u"contrast" ? 5 : 0);
            QCOMPARE(QApplication::palette() == before, expected != u"dark");
            TurningCard card{MemoryCard()};
            QVERIFY(card.show({.isFaceUp = true}, false));
            QCOMPARE(card.isMoving(), expected != u"stillness");
        }
    }

    void cleanup() { QApplication::setPalette(Palettes::light()); }

private:
    static std::ptrdiff_t outlinedControls()
    {
        QCheckBox box;
        QComboBox menu;
        QSpinBox stepper;
        QLineEdit field;
        QPushButton button;
        const std::initializer_list<QWidget*> controls{&box, &menu, &stepper, &field, &button};
        return std::ranges::count_if(controls, [](QWidget* control) {
            const QImage picture = control->grab().toImage();
            const QRgb text = control->palette().color(QPalette::WindowText).rgb();
            // The left edge, away from the corners.
            return picture.pixel(0, picture.height() / 2) == text;
        });
    }
};

QTEST_MAIN(AppearanceTest)
#include "appearance_test.moc"
