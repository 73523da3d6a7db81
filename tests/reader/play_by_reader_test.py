# SPDX-FileCopyrightText: 2026 The Paircade authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""play_by_reader_test.py PROGRAM: plays whole games through AT-SPI alone.

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
BUTTON, CHECK_BOX, FIELD, ITEM = (pyatspi.ROLE_PUSH_BUTTON, pyatspi.ROLE_CHECK_BOX,
                                  pyatspi.ROLE_TEXT, pyatspi.ROLE_MENU_ITEM)


def every(root):
    """root and all below it, but for the announcements."""
    yield root
    if root.getRole() != pyatspi.ROLE_STATUS_BAR:
        for child in root:
            if child:
                yield from every(child)


def has(one, state):
    return one.getState().contains(state)


def press(one):
    action = one.queryAction()
    names = [action.getName(i) for i in range(action.nActions)]
    action.doAction(next(i for i, name in enumerate(names) if name in ("Press", "Toggle")))


class Player:
    """One running game, and all that was said."""

    def __init__(self, **settings):
        DESK.write_settings(CardDeck="Kids", PlaySounds=0, AmountCards=1, **settings)
        self.said = []
        self.heard = 0  # of them
        for kind in ("object:state-changed:showing", "object:announcement"):
            pyatspi.Registry.registerEventListener(self.hear, kind)
        self.process = DESK.start(PROGRAM)
        self.window = self.until(self.find_window, "the window")

    def find_window(self):
        for application in pyatspi.Registry.getDesktop(0):
            if application and application.get_process_id() == self.process.pid:
                return next(iter(application), None)
        return None

    def hear(self, event):
        if event.type.startswith("object:announcement"):
            self.said.append(event.any_data)
            return
        try:
            if event.source.getRole() == pyatspi.ROLE_NOTIFICATION:
                self.said.append(event.source[0].name)
        except GLib.Error:
            pass  # a widget that is gone again

    def until(self, answer, what, seconds=30):
        def listen():
            while GLib.MainContext.default().pending():
                GLib.MainContext.default().iteration(False)
            GLib.usleep(20000)
        return until(answer, f"{what}; said: {self.said}", seconds, listen)

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
        press(self.find(role, name))

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
        press(card)
        self.until(lambda: (card.clear_cache(), not card.name.endswith(HIDDEN))[1], "a turned card")
        return CARD.fullmatch(card.name)[3].split(",")[0]

    def given_away(self):
        """Names of pictures in the tree that no open card shows."""
        shown = {shown.split(",")[0] for _, shown in self.cards()}
        words = "\n".join(f"{one.name}\n{one.description}" for one in every(self.window))
        return [name for name in PICTURES - shown if re.search(rf"\b{re.escape(name)}\b", words)]

    def focused(self):
        return [one.name for one in every(self.window) if has(one, pyatspi.STATE_FOCUSED)]

    def nameless(self):
        """What can have the focus and has no name."""
        return [one for one in every(self.window) if not one.name and
                has(one, pyatspi.STATE_FOCUSABLE) and has(one, pyatspi.STATE_SHOWING)]

    def close(self):
        for kind in ("object:state-changed:showing", "object:announcement"):
            pyatspi.Registry.deregisterEventListener(self.hear, kind)
        self.process.terminate()
        if status := self.process.wait(20):
            raise AssertionError(f"the game ended with status {status}")


class Play(unittest.TestCase):
    def start(self, **settings):
        self.player = Player(**settings)
        self.addCleanup(self.player.close)
        self.misses = 0
        return self.player

    def find_all(self, header, end):
        """Finds all pairs of a board by memory. header(event) is what the line above the
        board then says, end() what follows the last pair."""
        player, known, unseen = self.player, {}, list(range(12))
        self.assertEqual([shown for _, shown in player.cards()], [HIDDEN] * 12)
        left = 6
        while left:
            first = next((one for one in known if list(known.values()).count(known[one]) == 2),
                         None)
            if first is None:
                first = unseen.pop(0)
            known[first] = name = player.turn(first)
            player.expect(name + "." + header("first"))
            self.assertEqual(player.given_away(), [])
            second = next((one for one in known if one != first and known[one] == name), None)
            if second is None:
                second = unseen.pop(0)
            if left == 1:
                press(player.cards()[second][0])
                player.expect(f"A pair: {name}." + header("pair") + end())
                return
            known[second] = player.turn(second)
            if known[second] == name:
                del known[first], known[second]
                left -= 1
                player.expect(f"A pair: {name}." + header("pair"))
            else:
                self.misses += 1
                player.expect(known[second] + ". Not a pair.")
                player.expect("Face down again." + header("miss"))
                self.assertEqual(player.given_away(), [])

    def test_one_player(self):
        player = self.start(AmountRounds=1)
        self.assertEqual(player.focused(), ["Enter your name"])
        self.assertEqual(player.nameless(), [])
        player.press(ITEM, "Announce the Score")
        player.expect("No game is running.")
        player.write("Enter your name", "Ann")
        player.press(BUTTON, "Start Game")
        player.expect("Round 1 of 1. Cards dealt: 3 rows, 4 columns.")
        self.assertEqual(player.focused(), ["Row 1, column 1, face down"])
        self.assertEqual(player.nameless(), [])
        player.press(ITEM, "Announce the Score")
        player.expect("Round 1 of 1. Time: TIME. Failed attempts: 0. Pairs left: 6.")

        result = "Well done, Ann! TIME · Failed attempts: {}."
        self.find_all(lambda event: "", lambda: " " + result.format(self.misses))
        self.assertEqual(player.focused(), ["Enter your name"])
        player.press(ITEM, "Announce the Score")
        player.expect(result.format(self.misses))

    def test_two_players_and_two_rounds(self):
        player = self.start(AmountRounds=2)
        player.press(CHECK_BOX, "Versus Mode")
        player.write("Player 1", "Ann")
        player.write("Player 2", "Ben")
        player.press(BUTTON, "Start Versus Game")
        player.expect("Ann, it’s your turn. Cards dealt: 3 rows, 4 columns.")
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
        player.press(ITEM, "Announce the Score")
        player.expect(f"{turn[0]} starts round 2. Ann: {scores['Ann']}. Ben: {scores['Ben']}. "
                      "Pairs left: 6.")
        self.find_all(header, result)
        self.assertEqual(player.focused(), ["Player 1"])

    def tearDown(self):
        # Nothing was said twice, and nothing comes after.
        begin = time.monotonic()
        self.player.until(lambda: time.monotonic() - begin > 0.5, "silence")
        self.assertEqual(self.player.said[self.player.heard:], [])


if __name__ == "__main__":
    unittest.main()
