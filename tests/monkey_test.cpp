// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Random mouse and keys over all that has a window: nothing crashes, hangs or complains.
//
// PAIRCADE_SECONDS sets how long. What happens depends on time, so that no seed would
// repeat a run; the last actions before a failure are told instead.
#include "app/termination.h"
#include "settings/settings_keys.h"
#include "stage/game_window.h"
#include "support/output_of.h"
#include "support/real_photos.h"

#include <QFileDialog>
#include <QMenu>
#include <QRandomGenerator>
#include <QWindow>
#include <csignal>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

constexpr unsigned hangs = 120; // seconds without an action; patient, for a busy machine
constexpr int actionsInEachOther = 12;

QStringList complaints;
QStringList trail;

void complain(QtMsgType, const QMessageLogContext&, const QString& text)
{
    // What a display without a screen says, and QTest of a click beside the window.
    if (!text.startsWith(u"This plugin does not support"_s) &&
        !text.startsWith(u"Mouse event at"_s))
        complaints << text;
}

void tellAndDie(int signal)
{
    ::psignal(signal, qPrintable(trail.join(u", "_s)));
    (void)std::signal(signal, SIG_DFL);
    (void)std::raise(signal);
}

/// Plays one start of the program, from its window to its end, in its event loop.
class Monkey : public QObject {
    Q_OBJECT

public:
    Monkey(int& actions, qint64 milliseconds)
        : m_actions(actions)
        , m_window([this](StagePlatform& platform) { prepare(platform); })
    {
        QTimer::singleShot(milliseconds, this, [] { QCoreApplication::exit(0); });
        next();
    }

    [[nodiscard]] GameWindow& window() { return m_window; }

private:
    static int draw(int bound) { return int(QRandomGenerator::global()->bounded(bound)); }
    template <class List>
    auto oneOf(const List& list)
    {
        return list.begin()[draw(int(std::size(list)))];
    }

    void prepare(StagePlatform& platform)
    {
        platform.defaults->setInteger(SettingsKeys::AmountCards, draw(8));
        platform.defaults->setInteger(SettingsKeys::AmountRounds, draw(3));
        platform.defaults->setInteger(SettingsKeys::LaunchInFullscreen, draw(2));
        platform.defaults->setInteger(SettingsKeys::RemoveMatch, draw(2));
        makeDeck(platform.home.path(), u"Kids"_s, 9);
        if (draw(4) == 0)
            platform.defaults->setString(SettingsKeys::CardDeck, u"iPhoto"_s);
    }

    void next()
    {
        ::alarm(hangs);
        // Ahead of the action, since that may open a dialog and stay in it.
        QTimer::singleShot(draw(4), this, [this] { act(); });
    }

    void act()
    {
        next();
        if (m_depth >= actionsInEachOther)
            return;
        ++m_depth;
        choose();
        --m_depth;
    }

    void choose()
    {
        QWidgetList shown = QApplication::topLevelWidgets();
        shown.removeIf([](const QWidget* widget) {
            return !widget->isVisible() || widget->windowHandle() == nullptr;
        });
        if (shown.isEmpty())
            return;
        QWidget* top = oneOf(shown);
        QWidget* const modal = QApplication::activeModalWidget();
        QWidget* const popup = QApplication::activePopupWidget();
        if (QWidget* const first = popup != nullptr ? popup : modal; first != nullptr && draw(10))
            top = first;
        // Lest it delete a file of this machine.
        if (qobject_cast<QFileDialog*>(modal) != nullptr)
            return press(*modal, draw(2) ? Qt::Key_Escape : Qt::Key_Return);

        const int dice = draw(1000);
        if (dice < 380)
            play();
        else if (dice < 600)
            point(*top);
        else if (dice < 970)
            press(*top, key());
        else if (dice < 996)
            disturb(*top);
        else
            leave();
    }

    void note(const QString& what)
    {
        trail = trail.mid(trail.size() - 40) << what;
        ++m_actions;
    }

    /// Something sensible: a game goes on, or one is started.
    void play()
    {
        MemoryGame& game = m_window.game();
        QString target = game.isVersusMode() ? u"startVersusButton"_s : u"startButton"_s;
        if (game.isGameActive() && !game.cards().empty()) {
            const auto first = game.firstSelectedIndex();
            target =
                u"card%1"_s.arg(first ? otherCard(game, *first, draw(4) > 0) : hiddenCard(game));
        }
        note(target);
        auto* const button = m_window.window().findChild<QAbstractButton*>(target);
        if (button != nullptr && button->isVisible())
            m_window.click(*button);
    }

    void point(QWidget& top)
    {
        QWidget* target = &top;
        QWidgetList children = top.findChildren<QWidget*>();
        children.removeIf([](const QWidget* widget) { return !widget->isVisible(); });
        if (!children.isEmpty() && draw(6))
            target = oneOf(children);
        const QPoint place = target->mapTo(&top, placeIn(*target));
        note(QLatin1String(target->metaObject()->className()) + u' ' + target->objectName());
        const QPointer<QWindow> window = top.windowHandle();
        const auto button = draw(12) ? Qt::LeftButton : Qt::RightButton;
        if (draw(8) == 0)
            return QTest::mouseDClick(window, button, {}, place);
        QTest::mousePress(window, button, {}, place);
        for (int drags = draw(12) ? 0 : 3; drags > 0 && window; --drags)
            QTest::mouseMove(window, placeIn(top));
        if (window)
            QTest::mouseRelease(window, button, {}, place);
    }

    static QPoint placeIn(const QWidget& widget)
    {
        return {draw(std::max(1, widget.width())), draw(std::max(1, widget.height()))};
    }

    QKeyCombination key()
    {
        using namespace Qt;
        static constexpr std::initializer_list<QKeyCombination> keys{
            Key_Tab,      Key_Tab,      Key_Tab,          Key_Backtab,      Key_Space,
            Key_Space,    Key_Return,   Key_Return,       Key_Escape,       Key_Escape,
            Key_Up,       Key_Down,     Key_Left,         Key_Right,        Key_Home,
            Key_End,      Key_PageUp,   Key_Delete,       Key_Backspace,    Key_F1,
            Key_F10,      Key_F11,      Key_Alt,          Key_Menu,         CTRL | Key_N,
            CTRL | Key_A, CTRL | Key_X, CTRL | Key_Comma, CTRL | Key_Comma, ALT | Key_G,
            CTRL | Key_V, ALT | Key_V,  ALT | Key_H};
        return draw(3) == 0 ? QKeyCombination(Key(Key_A + draw(26))) : oneOf(keys);
    }

    void press(QWidget& top, QKeyCombination combination)
    {
        note(QKeySequence(combination).toString());
        // Not QTest::keyClick, which lets go of Ctrl or Alt in a window that an action in
        // between may have closed.
        const QPointer<QWindow> window = top.windowHandle();
        const Qt::Key key = combination.key();
        const char letter = QTest::keyToAscii(key);
        for (const bool isDown : {true, false}) {
            if (window)
                QTest::simulateEvent(window, isDown, key, combination.keyboardModifiers(),
                                     letter ? QString(QLatin1Char(letter)) : QString(), false);
        }
        if (draw(15) == 0)
            m_window.repeat(combination.key(), {});
    }

    using Deeds = std::vector<std::pair<QString, std::function<void()>>>;

    void doOneOf(const Deeds& deeds)
    {
        const auto& [name, deed] = deeds[std::size_t(draw(int(deeds.size())))];
        note(name);
        deed();
    }

    /// What others do to the game: the desktop, other programs, the disk.
    void disturb(QWidget& top)
    {
        StagePlatform& platform = m_window.platform;
        static const QStringList decks =
            u"Cyberpunk|Cyberpunk|Kids|None||iPhoto|iPhoto: Kids|iPhoto: Sea"_s.split(u'|');
        doOneOf({
            {u"minimise"_s, [&] { top.setWindowState(top.windowState() ^ Qt::WindowMinimized); }},
            {u"resize"_s, [&] { top.windowHandle()->resize(draw(2000) + 1, draw(1500) + 1); }},
            {u"results"_s, [&] { platform.writeHighscoreFile(draw(2) ? "[{" : "[]"); }},
            {u"deck"_s,
             [&] { platform.defaults->setString(SettingsKeys::CardDeck, oneOf(decks)); }},
            {u"second start"_s, [&] { m_window.delegate.activate(); }},
            {u"alert"_s, [&] { m_window.game().showLocalizedAlert("enter_name"); }},
            {u"close"_s, [&] { (void)(&top == &m_window.window() || top.close()); }},
        });
    }

    void leave()
    {
        doOneOf({{u"SIGTERM"_s, [] { (void)std::raise(SIGTERM); }},
                 {u"quit"_s, [this] { press(m_window.window(), Qt::CTRL | Qt::Key_Q); }},
                 {u"leave"_s, [this] { m_window.window().close(); }}});
    }

    int& m_actions;
    GameWindow m_window;
    RealPhotos m_photos{m_window.platform, m_window.alerts, // the decks being albums
                        m_window.resources() + u"/Cards"_s};
    int m_depth = 0;
};

} // namespace

class MonkeyTest : public QObject {
    Q_OBJECT

public:
    static void initMain()
    {
        QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
        QApplication::setQuitOnLastWindowClosed(false);
    }

private Q_SLOTS:
    void nothingCrashesHangsOrComplains()
    {
        bool isSet = false;
        const int asked = qEnvironmentVariableIntValue("PAIRCADE_SECONDS", &isSet);
        const QDeadlineTimer end(std::chrono::seconds(isSet ? asked : 5));
        int actions = 0;
        int starts = 0;
        for (const int signal : {SIGSEGV, SIGABRT, SIGALRM})
            (void)std::signal(signal, tellAndDie);
        const QtMessageHandler before = qInstallMessageHandler(complain);
        QByteArray log;
        while (!end.hasExpired() && complaints.isEmpty()) {
            trail.clear();
            log += outputOf([&] {
                const Termination termination;
                // An end in a while, so that each layout and setting has its turn.
                Monkey monkey(actions, std::min<qint64>(end.remainingTime(), 8000));
                QApplication::exec();
                StagePlatform& platform = monkey.window().platform;
                monkey.window().delegate.applicationWillTerminate();
                if (platform.defaults->integer(SettingsKeys::GameIsActive) != 0)
                    complaints << u"a game is left running"_s;
            });
            ++starts;
        }
        ::alarm(0);
        qInstallMessageHandler(before);

        static const QRegularExpression described(
            u"^(CardDeck ist leer|Ordnerinhalt konnte nicht gelesen werden: .*|"
            "Sounddatei Sounds/[a-z_]+\\.mp3 nicht gefunden|"
            "Fehler beim Zurücksetzen der Highscores: .*)?$"_s);
        for (const QString& line : QString::fromUtf8(log).split(u'\n')) {
            if (!described.match(line).hasMatch())
                complaints << line;
        }
        qInfo() << actions << "actions," << starts << "starts";
        QVERIFY2(complaints.isEmpty(),
                 qPrintable(complaints.join(u'\n') + u"\nafter "_s + trail.join(u", "_s)));
        QVERIFY(actions > 10); // however busy the machine
    }
};

QTEST_MAIN(MonkeyTest)
#include "monkey_test.moc"
