# SPDX-FileCopyrightText: 2026 The Paircade authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""reader_test.py PROGRAM: plays whole games and sets the preferences through AT-SPI alone.

Knows of the game what a screen reader does: the tree of objects and the events. Skipped
(status 77) where there is no AT-SPI or no virtual display.
"""
import importlib.util
import re
import shutil
import sys
import time
import unittest

from desk import Desk, texts, until

MISSING = [name for name in ("Xvfb", "openbox", "xprop") if not shutil.which(name)]
MISSING += [name for name in ("pyatspi", "gi") if not importlib.util.find_spec(name)]
if MISSING:
    print("skipped: nobody has listened to the game; missing:", *MISSING)
    sys.exit(77)

PROGRAM = sys.argv.pop(1)
DESK = Desk()
unittest.addModuleCleanup(DESK.close)
import pyatspi  # needs the display that the desk has just set up
from gi.repository import GLib

PICTURES = {text for key, text in texts("en").items() if re.match("card_(?!layout)", key)}
CARD = re.compile(r"Row (\d), column (\d), (.*)")
HIDDEN = "face down"
HEARD = ("object:state-changed:showing", "object:announcement")
BUTTON, CHECK_BOX, COMBO_BOX = (pyatspi.ROLE_PUSH_BUTTON, pyatspi.ROLE_CHECK_BOX,
                                pyatspi.ROLE_COMBO_BOX)
FIELD, IMAGE, ITEM = pyatspi.ROLE_TEXT, pyatspi.ROLE_IMAGE, pyatspi.ROLE_MENU_ITEM
LABEL, SLIDER, STEPPER = pyatspi.ROLE_LABEL, pyatspi.ROLE_SLIDER, pyatspi.ROLE_SPIN_BUTTON

# What is read on the way down the preferences.
PREFERENCES = [
    (LABEL, "Rounds:"), (STEPPER, "Rounds:"), (LABEL, "2 rounds per game"),
    (LABEL, "Card layout:"), (STEPPER, "Card layout:"), (LABEL, "4 × 4, 8 pairs"),
    (LABEL, "Found pairs:"), (CHECK_BOX, "Found pairs: Clear them off the board"),
    (LABEL, "Deck:"), (COMBO_BOX, "Kids"),
    (IMAGE, "Pictures of the deck: Hot-air balloon, Bee, Cat, Crab, Dinosaur"),
    (LABEL, "Photos:"), (LABEL, "Not asked yet"), (BUTTON, "Allow…"),
    (CHECK_BOX, "Keep a Paircade album"),
    (LABEL, "Sound:"), (CHECK_BOX, "Play sounds"),
    (LABEL, "Volume:"), (SLIDER, "Volume:"), (LABEL, "50%"),
    (LABEL, "Window:"), (CHECK_BOX, "Start in full screen"),
]


def every(root):
    """root and all below it, but for the announcements."""
    yield root
    if root.getRole() != pyatspi.ROLE_STATUS_BAR:
        for child in root:
            if child:
                yield from every(child)


def has(one, state):
    return one.getState().contains(state)


def act(one, *names):
    """Does the action that has one of the names."""
    action = one.queryAction()
    action.doAction(next(i for i in range(action.nActions) if action.getName(i) in names))


class Game:
    """One running game, and all that was said."""

    def __init__(self, **settings):
        DESK.write_settings(CardDeck="Kids", PlaySounds=0, **settings)
        self.said = []
        self.heard = 0  # of them
        pyatspi.Registry.registerEventListener(self.hear, *HEARD)
        self.process = DESK.start(PROGRAM)
        self.application = self.until(lambda: next(
            (one for one in pyatspi.Registry.getDesktop(0)
             if one and one.get_process_id() == self.process.pid and one.childCount), None),
            "the game")
        self.window = self.application[0]

    def hear(self, event):
        try:
            if event.type.startswith("object:announcement"):
                self.said.append(event.any_data)
            elif event.source.getRole() == pyatspi.ROLE_NOTIFICATION:
                self.said.append(event.source[0].name)
        except GLib.Error:
            pass  # a widget that is gone again

    def until(self, answer, what):
        def listen():
            while GLib.MainContext.default().pending():
                GLib.MainContext.default().iteration(False)
            GLib.usleep(20000)
        return until(answer, f"{what}; said: {self.said}", 30, listen)

    def expect(self, text):
        """This is said next; TIME stands for a time."""
        self.until(lambda: len(self.said) > self.heard, f"“{text}”")
        said = re.sub(r"\b\d\d:\d\d\b", "TIME", self.said[self.heard])
        self.heard += 1
        if said != text:
            raise AssertionError(f"“{said}” was said, not “{text}”; all: {self.said}")

    def find(self, role, name):
        return self.until(lambda: next(
            (one for one in every(self.window) if one.getRole() == role and one.name == name and
             (role == ITEM or has(one, pyatspi.STATE_SHOWING))), None), name)

    def press(self, role, name):
        act(self.find(role, name), "Press", "Toggle")

    def write(self, field, name):
        self.find(FIELD, field).queryEditableText().setTextContents(name)

    def cards(self):
        """The cards on the board, in order, with what is said of each."""
        cards = []
        for one in every(self.window):
            if one.getRole() == BUTTON and has(one, pyatspi.STATE_SHOWING):
                one.clear_cache()  # what has the focus tells of a new name only later
                if card := CARD.fullmatch(one.name):
                    cards.append(((card[1], card[2]), one, card[3]))
        return [(one, shown) for _, one, shown in sorted(cards, key=lambda card: card[0])]

    def turn(self, place):
        """Turns a card; gives the name of its picture, as the tree has it."""
        card = self.cards()[place][0]
        act(card, "Press")
        self.until(lambda: (card.clear_cache(), not card.name.endswith(HIDDEN))[1], "a turned card")
        return CARD.fullmatch(card.name)[3].split(",")[0]

    def given_away(self):
        """Names of pictures in the tree that no open card shows."""
        shown = {shown.split(",")[0] for _, shown in self.cards()}
        words = "\n".join(f"{one.name}\n{one.description}" for one in every(self.window))
        return [name for name in PICTURES - shown if re.search(rf"\b{re.escape(name)}\b", words)]

    def focused(self):
        return [one.name for one in every(self.window) if has(one, pyatspi.STATE_FOCUSED)]

    def open_preferences(self):
        """From here on these are the window."""
        self.press(ITEM, "Preferences…")
        self.window = self.until(lambda: next(
            (one for one in every(self.application) if one.getRole() == pyatspi.ROLE_DIALOG and
             has(one, pyatspi.STATE_ACTIVE)), None), "the preferences in front")

    def expect_stored(self, key, value):
        file = DESK.home / "config/Paircade/Paircade.conf"
        self.until(lambda: f"{key}={value}" in file.read_text().splitlines(), f"{key}={value}")

    def close(self):
        pyatspi.Registry.deregisterEventListener(self.hear, *HEARD)
        self.process.terminate()
        if status := self.process.wait(20):
            raise AssertionError(f"the game ended with status {status}")


class ReaderTest(unittest.TestCase):
    def start(self, **settings):
        self.game = Game(**settings)
        self.addCleanup(self.game.close)
        self.addCleanup(self.expect_silence)
        self.misses = 0
        return self.game

    def find_all(self, header, end):
        """Finds all pairs of a board by memory. header(event) is what the line above the
        board then says, end() what follows the last pair."""
        game, left, known = self.game, list(range(12)), {}
        self.assertEqual([shown for _, shown in game.cards()], [HIDDEN] * 12)
        while True:
            first = left[0]
            name = game.turn(first)
            game.expect(name + "." + header("first"))
            self.assertEqual(game.given_away(), [])
            second = next(one for one in left[1:] if known.get(one, name) == name)
            if len(left) == 2:
                act(game.cards()[second][0], "Press")
                game.expect(f"A pair: {name}." + header("pair") + end())
                return
            known[second] = game.turn(second)
            if known[second] == name:
                left = [one for one in left if one not in (first, second)]
                game.expect(f"A pair: {name}." + header("pair"))
            else:
                self.misses += 1
                game.expect(known[second] + ". Not a pair.")
                game.expect("Face down again." + header("miss"))
                self.assertEqual(game.given_away(), [])

    def test_one_player(self):
        game = self.start(AmountCards=1, AmountRounds=1)
        self.assertEqual(game.focused(), ["Enter your name"])
        for area, widths in (800, range(700, 801)), (1920, [1100]):  # a panel comes and goes
            DESK.set_work_area(area, 1080)
            game.until(lambda expected=widths: game.window.queryComponent().getSize()[0] in expected,
                       f"a window in {area}")
        game.write("Enter your name", "Ann")
        game.press(BUTTON, "Start Game")
        game.expect("Round 1 of 1. Cards dealt: 3 rows, 4 columns.")
        self.assertEqual(game.focused(), ["Row 1, column 1, face down"])
        game.press(ITEM, "Announce the Score")
        game.expect("Round 1 of 1. Time: TIME. Failed attempts: 0. Pairs left: 6.")

        result = "Well done, Ann! TIME · Failed attempts: {}."
        self.find_all(lambda event: "", lambda: " " + result.format(self.misses))
        self.assertEqual(game.focused(), ["Enter your name"])

    def test_two_players_and_two_rounds(self):
        game = self.start(AmountCards=1, AmountRounds=2)
        game.press(CHECK_BOX, "Versus Mode")
        game.write("Player 1", "Ann")
        game.write("Player 2", "Ben")
        game.press(BUTTON, "Start Versus Game")
        game.expect("Ann, it’s your turn. Cards dealt: 3 rows, 4 columns.")
        turn, scores = ["Ann", "Ben"], {"Ann": 0, "Ben": 0}

        def header(event):
            if event == "first":
                return f" {turn[0]}, choose a second card."
            if event == "pair":
                scores[turn[0]] += 1
                return f" {turn[0]} found a pair!"
            turn.reverse()
            return f" {turn[0]}, it’s your turn."

        def result():
            if scores["Ann"] == scores["Ben"]:
                return " It’s a draw: {Ann}–{Ben}.".format(**scores)
            winner, loser = sorted(scores, key=scores.get, reverse=True)
            return f" {winner} wins {scores[winner]}–{scores[loser]}!"

        self.find_all(header, lambda: f" Cards dealt: 3 rows, 4 columns. {turn[0]} starts round 2.")
        game.press(ITEM, "Announce the Score")
        game.expect(f"{turn[0]} starts round 2. Ann: {scores['Ann']}. Ben: {scores['Ben']}. "
                    "Pairs left: 6.")
        self.find_all(header, result)
        self.assertEqual(game.focused(), ["Player 1"])

    def test_preferences(self):
        game = self.start(AmountRounds=2, AmountCards=2)
        game.open_preferences()
        self.assertEqual([(one.getRole(), one.name) for one in game.window
                          if one.getRole() != pyatspi.ROLE_FILLER], PREFERENCES)
        rounds = game.find(STEPPER, "Rounds:")
        self.assertTrue(has(rounds, pyatspi.STATE_FOCUSED))
        self.assertEqual(rounds.description, "2 rounds per game")
        box = game.find(CHECK_BOX, "Play sounds")
        act(box, "Toggle")
        game.expect_stored("PlaySounds", 1)
        self.assertTrue(has(box, pyatspi.STATE_CHECKED))

    def expect_silence(self):
        """Nothing was said twice, and nothing comes after."""
        begin = time.monotonic()
        self.game.until(lambda: time.monotonic() - begin > 0.5, "silence")
        self.assertEqual(self.game.said[self.game.heard:], [])


if __name__ == "__main__":
    unittest.main()
