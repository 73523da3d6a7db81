# SPDX-FileCopyrightText: 2026 The Paircade authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""pane_test.py PROGRAM: the preferences, read and set through AT-SPI alone.

Skipped (status 77) where there is no AT-SPI or no virtual display.
"""
import importlib.util
import shutil
import subprocess
import sys
import unittest

from desk import Desk, until

MISSING = [name for name in ("Xvfb", "openbox", "xprop") if not shutil.which(name)]
MISSING += [name for name in ("pyatspi", "gi") if not importlib.util.find_spec(name)]
if MISSING:
    print("skipped: no screen reader has seen the preferences; missing:", *MISSING)
    sys.exit(77)

PROGRAM = sys.argv.pop(1)
DESK = Desk()
unittest.addModuleCleanup(DESK.close)
# The bus starts what sends keys, in an environment of its own.
subprocess.run(["dbus-update-activation-environment", "DISPLAY"], check=True)
import pyatspi  # needs the display that the desk has just set up
from gi.repository import GLib

CHECK_BOX, COMBO_BOX, IMAGE = pyatspi.ROLE_CHECK_BOX, pyatspi.ROLE_COMBO_BOX, pyatspi.ROLE_IMAGE
LABEL, SLIDER, SPIN_BUTTON = pyatspi.ROLE_LABEL, pyatspi.ROLE_SLIDER, pyatspi.ROLE_SPIN_BUTTON

# What is read on the way down the window.
IN_ORDER = [
    (LABEL, "Rounds:"), (SPIN_BUTTON, "Rounds:"), (LABEL, "2 rounds per game"),
    (LABEL, "Card layout:"), (SPIN_BUTTON, "Card layout:"), (LABEL, "4 × 4, 8 pairs"),
    (LABEL, "Found pairs:"), (CHECK_BOX, "Found pairs: Clear them off the board"),
    (LABEL, "Deck:"), (COMBO_BOX, "Kids"),
    (IMAGE, "Pictures of the deck: Hot-air balloon, Bee, Cat, Crab, Dinosaur"),
    (LABEL, "Photos:"), (LABEL, "Not asked yet"), (pyatspi.ROLE_PUSH_BUTTON, "Allow…"),
    (CHECK_BOX, "Keep a Paircade album"),
    (LABEL, "Sound:"), (CHECK_BOX, "Play sounds"),
    (LABEL, "Volume:"), (SLIDER, "Volume:"), (LABEL, "50%"),
    (LABEL, "Window:"), (CHECK_BOX, "Start in full screen"),
]


def wait_for(answer, what):
    def listen():
        while GLib.MainContext.default().pending():
            GLib.MainContext.default().iteration(False)
        GLib.usleep(20000)
    return until(answer, what, 30, listen)


def has(one, state):
    return one.getState().contains(state)


def act(one, name):
    actions = one.queryAction()
    actions.doAction([actions.getName(i) for i in range(actions.nActions)].index(name))


def press_key(keysym):
    pyatspi.Registry.generateKeyboardEvent(keysym, None, pyatspi.KEY_SYM)


class PaneTest(unittest.TestCase):
    def open(self, **settings):
        """Starts the game with these settings and opens its preferences."""
        DESK.write_settings(CardDeck="Kids", **settings)
        game = DESK.start(PROGRAM)
        self.addCleanup(lambda: self.assertEqual(game.wait(20), 0))
        self.addCleanup(game.terminate)
        self.root = wait_for(lambda: next(
            (one for one in pyatspi.Registry.getDesktop(0)
             if one and one.get_process_id() == game.pid and one.childCount), None), "the game")
        act(self.find(pyatspi.ROLE_MENU_ITEM, "Preferences…"), "Press")
        self.root = self.find(pyatspi.ROLE_DIALOG, "Preferences")
        wait_for(lambda: has(self.root, pyatspi.STATE_ACTIVE), "the preferences in front")

    def find(self, role, name=None):
        return wait_for(lambda: pyatspi.findDescendant(
            self.root, lambda one: one.getRole() == role and name in (None, one.name)), name)

    def expect_stored(self, key, value):
        file = DESK.home / "config/Paircade/Paircade.conf"
        wait_for(lambda: f"{key}={value}" in file.read_text().splitlines(), f"{key}={value}")

    def test_everything_is_read_in_order(self):
        self.open(AmountRounds=2, AmountCards=2)
        self.assertEqual([(one.getRole(), one.name) for one in self.root
                          if one.getRole() != pyatspi.ROLE_FILLER], IN_ORDER)
        rounds = self.find(SPIN_BUTTON, "Rounds:")
        self.assertTrue(has(rounds, pyatspi.STATE_FOCUSED))
        self.assertEqual(rounds.description, "2 rounds per game")
        captions = [relation.getTarget(0).name for relation in self.find(COMBO_BOX).getRelationSet()
                    if relation.getRelationType() == pyatspi.RELATION_LABELLED_BY]
        self.assertEqual(captions, ["Deck:"])

    def test_every_setting_can_be_set(self):
        self.open(AmountRounds=2, AmountCards=3, PlaySounds=1)
        rounds = self.find(SPIN_BUTTON, "Rounds:")
        act(rounds, "Increase")
        self.expect_stored("AmountRounds", 3)
        rounds.queryEditableText().setTextContents("12")
        self.expect_stored("AmountRounds", 12)
        self.find(LABEL, "12 rounds per game")

        self.find(SPIN_BUTTON, "Card layout:").queryValue().currentValue = 5
        self.expect_stored("AmountCards", 5)

        deck = self.find(COMBO_BOX)
        act(deck, "ShowMenu")
        wait_for(lambda: has(deck, pyatspi.STATE_EXPANDED), "the menu of decks")
        press_key(0xFF54)  # Down
        press_key(0xFF0D)  # Return
        self.expect_stored("CardDeck", "70s")
        self.find(COMBO_BOX, "70s")

        for name, key, value in [("Found pairs: Clear them off the board", "RemoveMatch", 1),
                                 ("Play sounds", "PlaySounds", 0),
                                 ("Start in full screen", "LaunchInFullscreen", 1)]:
            box = self.find(CHECK_BOX, name)
            act(box, "Toggle")
            self.expect_stored(key, value)
            self.assertEqual(has(box, pyatspi.STATE_CHECKED), value == 1)

        act(self.find(SLIDER), "Increase")
        self.expect_stored("VolumeSound", 55)

    def test_a_running_game_locks_the_steppers(self):
        self.open(GameIsActive=1, AmountRounds=2, AmountCards=2)
        for name in ("Rounds:", "Card layout:"):
            stepper = self.find(SPIN_BUTTON, name)
            self.assertFalse(has(stepper, pyatspi.STATE_ENABLED))
            self.assertEqual(stepper.description, "Can be changed when the game is over.")
            act(stepper, "Increase")
            stepper.queryValue().currentValue = 5
            self.assertEqual(stepper.queryValue().currentValue, 2)
        self.expect_stored("AmountRounds", 2)
        self.expect_stored("AmountCards", 2)


if __name__ == "__main__":
    unittest.main()
