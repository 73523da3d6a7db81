// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Where everything lies, how large it is and in which font, measured on the real
// window; and that all of it can be read and reached on small and large screens.
#include "settings/settings_keys.h"
#include "stage/game_window.h"
#include "support/results.h"
#include "support/rows.h"
#include "support/texts_fit.h"
#include "ui/elided_label.h"

#include <QFontDatabase>
#include <QLineEdit>
#include <QRegularExpression>
#include <QScrollArea>
#include <QScrollBar>

using namespace Qt::StringLiterals;

namespace {

enum class Mode { solo, versus, both };

/// A place in the sidebar, from top to bottom.
struct Place {
    const char* name;
    Mode mode;
    int pixelSize;
    int weight;
    bool isMonospaced;
    int width; ///< 0: what the text asks for.
    int above; ///< In addition to the gap of 12.
    int below;
    const char* colour = nullptr; ///< Of its text, if it is not the window's.
};

constexpr int semibold = 600;
constexpr std::array sidebar{
    Place{"pairingLine", Mode::versus, 16, semibold, false, 180, 0, 0, "#f2007aff"}, // 95 %
    Place{"firstScoreLine", Mode::versus, 14, semibold, true, 220, 0, 0},
    Place{"secondScoreLine", Mode::versus, 14, semibold, true, 220, 0, 0},
    Place{"nameLine", Mode::solo, 18, semibold, false, 180, 0, 0, "#f2007aff"},
    Place{"timeLine", Mode::solo, 14, semibold, true, 220, 0, 0},
    Place{"failuresLine", Mode::solo, 14, semibold, true, 220, 0, 0},
    Place{"bestTimesHeading", Mode::solo, 13, semibold, false, 220, 12, 0, "#ff5f5f5f"},
    Place{"bestTimes1", Mode::solo, 12, 400, true, 220, 0, 0},
    Place{"bestTimes2", Mode::solo, 12, 400, true, 220, 0, 0},
    Place{"bestFailuresHeading", Mode::solo, 13, semibold, false, 220, 10, 0, "#ff5f5f5f"},
    Place{"bestFailures1", Mode::solo, 12, 400, true, 220, 0, 0},
    Place{"bestFailures2", Mode::solo, 12, 400, true, 220, 0, 0},
    Place{"bestVersusHeading", Mode::versus, 13, semibold, false, 220, 12, 0},
    Place{"bestVersus1", Mode::versus, 12, 400, true, 220, 0, 0},
    Place{"bestVersus2", Mode::versus, 12, 400, true, 220, 0, 0},
    Place{"resetButton", Mode::both, 12, semibold, false, 0, 10, 0},
    Place{"reportButton", Mode::both, 12, semibold, false, 0, 6, 0},
    Place{"versusCheckbox", Mode::both, 13, semibold, false, 0, 0, 8},
    Place{"endButton", Mode::both, 12, semibold, false, 0, 6, 0, "#ffff3b30"},
};

} // namespace

class GeometryTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void everythingHasItsPlaceAndFont_data() { addRows({1, 2, 3, 4, 5, 6}, {u"en"_s}); }

    void everythingHasItsPlaceAndFont()
    {
        openWindow(2, u"Mia"_s);
        for (const bool isVersus : {false, true}) {
            if (isVersus)
                m_window->click(child("versusCheckbox"));
            measureAll(isVersus, false);
            typeNames(isVersus, u" Ann "_s);
            measureAll(isVersus, true);
            m_window->click(startButton(isVersus));
            measureAll(isVersus, true);
            m_window->click(child("endButton"));
        }
    }

    void everythingCanBeReachedAndRead_data() { addRows({1, 6}, StagePlatform::languages()); }

    void everythingCanBeReachedAndRead()
    {
        const QString name(200, u'W');
        openWindow(5, name);
        for (const bool isVersus : {false, true}) {
            if (isVersus)
                m_window->click(reach(child("versusCheckbox")));
            QCOMPARE(m_window->text(u"headerText"_s), QString()); // no result of the other mode
            typeNames(isVersus, name);
            reachAll();
            m_window->click(reach(startButton(isVersus)));
            reachAll();
            while (m_window->game().isGameActive())
                findPair(m_window->game());
            QCoreApplication::processEvents();
            reachAll();
        }
    }

    void cleanup() { m_window.reset(); }

private:
    static void addRows(std::initializer_list<int> layouts, const QStringList& languages)
    {
        const Rows<int, QString, bool> row{"layout", "language", "isFullScreen"};
        for (const int layout : layouts) {
            for (const QString& language : languages) {
                const QByteArray name = language.toUtf8() + char('0' + layout);
                row(name, layout, language, false);
                // More room is a matter of the layout, not of the language.
                if (language == u"en")
                    row((name + ", full screen").constData(), layout, language, true);
            }
        }
    }

    /// The window of the row, with `count` results in each list.
    void openWindow(int count, const QString& name)
    {
        QFETCH(int, layout);
        QFETCH(QString, language);
        QFETCH(bool, isFullScreen);
        m_window = std::make_unique<GameWindow>(
            [&](StagePlatform& platform) {
                platform.defaults->setInteger(SettingsKeys::AmountCards, layout);
                platform.defaults->setInteger(SettingsKeys::LaunchInFullscreen,
                                              isFullScreen ? 1 : 2);
                writeResults(
                    platform, count,
                    {.playerName = name, .secondPlayerName = name, .firstPlayerScore = 11});
            },
            language);
        QTRY_COMPARE(m_window->window().isFullScreen(), isFullScreen);
        if (isFullScreen)
            QTRY_COMPARE(m_window->window().geometry(), m_window->screen());
        QVERIFY(m_window->screen().contains(m_window->window().geometry()));
    }

    void typeNames(bool isVersus, const QString& name)
    {
        for (QWidget* const control : formOf(isVersus)) {
            if (auto* const field = qobject_cast<QLineEdit*>(control))
                field->insert(name);
        }
        QCoreApplication::processEvents();
    }

    QWidget& child(const char* name) { return m_window->child<QWidget>(QLatin1String(name)); }
    /// The controls of a form, from the top to its button.
    QWidgetList formOf(bool isVersus)
    {
        if (isVersus)
            return {&child("playerOneName"), &child("playerTwoName"), &child("startVersusButton")};
        return {&child("playerName"), &child("startButton")};
    }
    QWidget& startButton(bool isVersus) { return *formOf(isVersus).constLast(); }
    ContentView& screen() { return *m_window->delegate.contentView(); }
    QRect place(const QWidget& widget)
    {
        return {widget.mapTo(&screen(), QPoint()), widget.size()};
    }

    void measureAll(bool isVersus, bool hasNames)
    {
        const bool isActive = m_window->game().isGameActive();
        QCOMPARE(place(child("logo")), QRect(16, 22, 180, 180));
        QCOMPARE(place(child("divider")), QRect(236, 0, 1, screen().height()));

        auto& title = m_window->child<QLabel>(u"headerText"_s);
        const QRect strip(236, 0, screen().width() - 236 - 16, 60);
        QCOMPARE(place(title).width(), strip.width());
        QCOMPARE(place(title).center(), strip.center());
        QCOMPARE(title.alignment(), Qt::AlignCenter);
        compareFont(title, 30, 700, false);

        measureSidebar(isVersus, isActive, hasNames);
        for (QWidget* const control : formOf(true) + formOf(false))
            QCOMPARE(control->isVisible(), !isActive && formOf(isVersus).contains(control));
        QCOMPARE(child("gameBoard").isVisible(), isActive);
        if (isActive)
            measureBoard();
        else
            measureForm(isVersus, hasNames);
    }

    void measureSidebar(bool isVersus, bool isActive, bool hasNames)
    {
        int y = 22 + 180;
        for (const Place& expected : sidebar) {
            const QWidget& widget = child(expected.name);
            const bool isOfMode =
                expected.mode == Mode::both || (expected.mode == Mode::versus) == isVersus;
            const QLatin1String name(expected.name);
            const bool isShown = isOfMode && (name != "nameLine"_L1 || hasNames) &&
                                 (name != "endButton"_L1 || isActive);
            QVERIFY2(widget.isVisible() == isShown, expected.name);
            if (!isShown)
                continue;
            const QRect rect = place(widget);
            y += 12 + expected.above;
            QVERIFY2(rect.topLeft() == QPoint(16, y), expected.name);
            QVERIFY2(expected.width == 0 || rect.width() == expected.width, expected.name);
            compareFont(widget, expected.pixelSize, expected.weight, expected.isMonospaced);
            const QColor colour = widget.palette().color(QPalette::Active, widget.foregroundRole());
            if (expected.colour != nullptr)
                QCOMPARE(colour.name(QColor::HexArgb), QLatin1String(expected.colour));
            y += rect.height() + expected.below;
        }
        QCOMPARE(child("versusCheckbox").isEnabled(), !isActive);
    }

    /// The controls of the form lie in the middle of the main area, 16 apart.
    void measureForm(bool isVersus, bool hasNames)
    {
        const QWidgetList column = formOf(isVersus);
        int y = place(*column.constFirst()).top();
        const int bottom = place(*column.constLast()).bottom() + 1;
        QVERIFY(qAbs(y + bottom - (60 + screen().height())) <= 1);
        for (const QWidget* const control : column) {
            const QRect rect = place(*control);
            QCOMPARE(rect.top(), y);
            QVERIFY(qAbs(rect.left() + rect.right() + 1 - (236 + screen().width())) <= 1);
            y = rect.bottom() + 1 + 16;
            if (control == column.constLast())
                continue;
            QCOMPARE(rect.width(), isVersus ? 320 : 300);
            compareFont(*control, 18, 400, false);
        }
        QCOMPARE(column.constLast()->isEnabled(), hasNames);
        if (isVersus)
            QCOMPARE(column.constLast()->font(), QApplication::font("QPushButton"));
        else
            compareFont(*column.constLast(), 14, semibold, false);
    }

    void measureBoard()
    {
        const int columns = m_window->game().cardColumns();
        const int rows = m_window->game().cardRows();
        const double edge = std::min((screen().width() - 300.0 - 20 * (columns - 1)) / columns,
                                     (screen().height() - 160.0 - 20 * (rows - 1)) / rows);
        const double gridHeight = rows * (edge + 20) - 20;
        const double left = 236 + (screen().width() - 236 - columns * (edge + 20) + 20) / 2;
        // Two spacers share the rest, the lower one being at least 20.
        const double rest = screen().height() - 60 - 2 * 12 - 2 * 20 - gridHeight;
        const double top = 60 + 12 + std::min(rest / 2, rest - 20) + 20;
        for (int i = 0; i < columns * rows; ++i) {
            const QRect card = place(m_window->card(std::size_t(i)));
            // Half a point for the grid's corner, half for the card's place in it.
            QVERIFY(qAbs(card.left() - (left + i % columns * (edge + 20))) <= 1);
            const int row = i / columns;
            QVERIFY(qAbs(card.top() - (top + row * (edge + 20))) <= 1);
            QVERIFY(card.width() == card.height() && qAbs(card.width() - edge) <= 0.5);
        }
    }

    static void compareFont(const QWidget& widget, int pixelSize, int weight, bool isMonospaced)
    {
        const QByteArray name = widget.objectName().toUtf8();
        QVERIFY2(widget.font().pixelSize() == pixelSize, name);
        QVERIFY2(widget.font().weight() == weight, name);
        const auto kind = isMonospaced ? QFontDatabase::FixedFont : QFontDatabase::GeneralFont;
        QVERIFY2(widget.font().family() == QFontDatabase::systemFont(kind).family(), name);
    }

    /// Scrolls until `widget` is seen.
    QWidget& reach(QWidget& widget)
    {
        for (auto* const area : screen().findChildren<QScrollArea*>()) {
            if (area->isAncestorOf(&widget))
                area->ensureWidgetVisible(&widget, 0, 0);
        }
        return widget;
    }

    /// The part of `widget` that no scroll area cuts off.
    QRect seen(const QWidget& widget)
    {
        QRect rect = place(widget) & screen().rect();
        for (const QWidget* above = widget.parentWidget(); above != &screen();
             above = above->parentWidget())
            rect &= place(*above);
        return rect;
    }

    /// Every text, control and card can be seen whole, and lies on no other.
    void reachAll()
    {
        QWidgetList widgets = screen().findChildren<QWidget*>();
        widgets.removeIf([](const QWidget* widget) {
            return !widget->isVisible() ||
                   !(widget->inherits("QLabel") || widget->inherits("QLineEdit") ||
                     widget->inherits("QAbstractButton"));
        });
        for (QWidget* const widget : widgets) {
            const QByteArray name = widget->objectName().toUtf8();
            reach(*widget);
            QVERIFY2(seen(*widget) == place(*widget), name);
            // Whatever scrolls, the logo goes with it.
            const auto* const bar =
                m_window->child<QScrollArea>(u"leftSidebar"_s).verticalScrollBar();
            QCOMPARE(place(child("logo")).y(), 22 - bar->value());
            QVERIFY2(!widget->parentWidget()->autoFillBackground(), name); // see plain_area.cpp
            for (const QWidget* const other : widgets)
                QVERIFY2(other == widget || !seen(*other).intersects(seen(*widget)),
                         name + " lies on " + other->objectName().toUtf8());
            if (const auto* const line = qobject_cast<ElidedLabel*>(widget)) {
                // Only names give way, here to fewer of their one letter. Each has marks
                // about it that are not seen.
                const auto besideNames = [](QString text) {
                    static const QRegularExpression ofNames(u"[W…\u2066-\u2069]"_s);
                    return text.remove(ofNames);
                };
                QVERIFY2(besideNames(line->shownText()) == besideNames(line->text()), name);
            }
        }
        QCOMPARE(cutText(screen()), QString());
    }

    std::unique_ptr<GameWindow> m_window{};
};

QTEST_MAIN(GeometryTest)
#include "geometry_test.moc"
