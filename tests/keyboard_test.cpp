// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The ways of the keyboard through every screen, and what can be seen of them.
#include "platform/widgets/access_dialog.h"
#include "platform/widgets/access_question.h"
#include "platform/widgets/palettes.h"
#include "stage/game_window.h"
#include "support/rows.h"
#include "support/texts_fit.h"
#include "ui/colours.h"

#include <QFocusFrame>
#include <QMenu>
#include <QMenuBar>
#include <cmath>
#include <map>

using namespace Qt::StringLiterals;

namespace {

/// WCAG 2.1, relative luminance and contrast ratio.
double luminance(const QColor& colour)
{
    const auto linear = [](float part) {
        return part <= 0.04045F ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
}

double contrast(const QColor& one, const QColor& other)
{
    const auto [dark, light] = std::minmax({luminance(one), luminance(other)});
    return (light + 0.05) / (dark + 0.05);
}

/// The texts of what can be chosen by Alt and a letter on a screen or in a
/// menu, in use or not.
QStringList mnemonics(const QWidget& screen)
{
    QStringList texts;
    for (const auto* const widget : screen.findChildren<QWidget*>()) {
        const QString text = widget->property("text").toString();
        const bool isButton =
            widget->inherits("QAbstractButton") && !widget->objectName().startsWith(u"card"_s);
        const bool isCaption = widget->inherits("QLabel") && text.contains(u'&');
        if (widget->isVisible() && (isButton || isCaption))
            texts << text;
    }
    for (const QAction* const item : screen.actions()) {
        if (!item->isSeparator())
            texts << item->text();
    }
    return texts;
}

void checkMnemonics(const QStringList& texts)
{
    std::map<QString, QString> taken;
    for (const QString& text : texts) {
        const QString letter = QKeySequence::mnemonic(text).toString();
        QVERIFY2(!letter.isEmpty(), qPrintable(text));
        QVERIFY2(taken.emplace(letter, text).second, qPrintable(text + u" | "_s + taken[letter]));
    }
    QVERIFY(!taken.empty());
}

} // namespace

class KeyboardTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void tabGoesInReadingOrder()
    {
        GameWindow window;
        // From wherever it begins. `stops` are those after the sidebar's buttons.
        const auto goRound = [&window](const QString& stops) {
            const QStringList order = u"resetButton reportButton "_s.append(stops).split(u' ');
            const auto begin = order.indexOf(window.focused());
            QVERIFY2(begin >= 0, qPrintable(window.focused()));
            for (qsizetype i = 1; i <= order.size(); ++i) {
                window.press(Qt::Key_Tab);
                QCOMPARE(window.focused(), order[(begin + i) % order.size()]);
            }
        };
        window.type(u"Ann"_s);
        window.press(Qt::Key_Tab);
        goRound(u"versusCheckbox playerName startButton"_s);
        for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Down, Qt::Key_Right})
            window.press(key);
        goRound(u"endButton card5"_s); // the board is one stop
        window.choose(u"menu_end_game"_s);

        // A letter that is held acts once.
        for (const bool isRepeat : {false, true, true}) {
            QTest::simulateEvent(window.window().windowHandle(), true, Qt::Key_M, Qt::AltModifier,
                                 u"m"_s, isRepeat);
            QTest::qWait(150); // as long as such a button is down
            QVERIFY(window.game().isVersusMode());
        }
        for (const QString& name : {u""_s, u"Ann"_s, u"Ben"_s}) {
            window.type(name);
            window.press(Qt::Key_Tab);
        }
        goRound(u"versusCheckbox playerOneName playerTwoName startVersusButton"_s);
    }

    void everyControlHasItsLetterAndRoom_data()
    {
        const Rows<QString> row{"language"};
        for (const QString& language : StagePlatform::languages())
            row(qPrintable(language), language);
    }

    void everyControlHasItsLetterAndRoom()
    {
        QFETCH(QString, language);
        GameWindow window([](StagePlatform&) {}, language);
        const QMenuBar& menus = *window.window().menuBar();
        for (const QAction* const menu : menus.actions())
            checkMnemonics(mnemonics(*menu->menu()));

        const auto checkScreen = [&] {
            checkMnemonics(mnemonics(menus) + mnemonics(window.window()));
        };
        checkScreen();
        window.startGame();
        checkScreen();
        window.choose(u"menu_end_game"_s);
        window.click(u"versusCheckbox"_s);
        checkScreen();

        const auto checkDialog = [](const QWidget& dialog) {
            checkMnemonics(mnemonics(dialog));
            QTest::qWait(20); // the layout
            QCOMPARE(cutText(dialog), QString());
        };
        for (const auto status : {PhotoAuthorization::notDetermined, PhotoAuthorization::denied}) {
            window.platform.photos.status = status;
            window.delegate.showPreferences();
            auto& preferences = window.child<QWidget>(u"Preferences"_s);
            checkDialog(preferences);
            delete &preferences;
        }
        whenShown<AccessDialog>([&](AccessDialog& question) {
            checkDialog(question);
            question.close();
        });
        QVERIFY(!AccessQuestion(QString()).askForPhotoAccess());
    }

    void theFocusIsSeenOnEverySurface()
    {
        const QPalette before = QApplication::palette();
        for (const QPalette& palette : {Palettes::light(), Palettes::dark()}) {
            QVERIFY(contrast(Colours::focusRing(palette), palette.color(QPalette::Window)) >= 3);
            QApplication::setPalette(palette);
            GameWindow window;
            window.type(u"Ann"_s);
            lookAtFocus(window.window(), 5);
            const auto& ring = *window.window().findChild<QFocusFrame*>();
            QVERIFY(ring.isVisible());
            window.click(u"playerName"_s);
            QVERIFY(!ring.isVisible());
            window.delegate.showPreferences();
            auto& preferences = window.child<QWidget>(u"Preferences"_s);
            QVERIFY(QTest::qWaitForWindowActive(&preferences));
            lookAtFocus(preferences, 8);
        }
        QApplication::setPalette(before);
    }

private:
    /// Goes by Tab from control to control.
    static void lookAtFocus(QWidget& top, int stops)
    {
        const QColor ground = top.palette().color(QPalette::Window);
        for (int stop = 0; stop < stops; ++stop) {
            QTest::qWait(20);
            const QImage without = top.grab().toImage();
            QTest::keyClick(top.windowHandle(), Qt::Key_Tab);
            QWidget& control = *top.focusWidget();
            QTest::qWait(20);
            const QImage with = top.grab().toImage();
            const QRect place(control.mapTo(&top, QPoint()), control.size());
            const QRect around = place.adjusted(-2, -2, 2, 2);
            int seen = 0;
            for (int i = 0; i < around.width() * around.height(); ++i) {
                const QPoint at = around.topLeft() + QPoint(i % around.width(), i / around.width());
                const QColor now = with.pixelColor(at);
                seen += contrast(now, ground) >= 3 && contrast(now, without.pixelColor(at)) >= 3;
            }
            // A line all around, if not every pixel of a corner.
            QVERIFY2(seen >= 2 * (place.width() + place.height()),
                     qPrintable(control.objectName()));
        }
    }
};

QTEST_MAIN(KeyboardTest)
#include "keyboard_test.moc"
