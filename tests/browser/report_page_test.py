# SPDX-FileCopyrightText: 2026 The Paircade authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""report_page_test.py WRITER: the page of the results, written by WRITER, in Chromium.

Skipped (status 77) where there is no Chromium that can be driven.
"""
import json
import os
import random
import shutil
import subprocess
import sys
import tempfile
import time
import unittest
import uuid
from pathlib import Path

BROWSER, DRIVER = shutil.which("chromium"), shutil.which("chromedriver")
if not BROWSER:
    print("skipped: there is no Chromium here, so nobody has looked at the page")
    sys.exit(77)

import html5lib
from selenium import webdriver
from selenium.webdriver.chrome.service import Service
from selenium.webdriver.common.by import By
from selenium.webdriver.support.ui import Select

WRITER = sys.argv.pop(1)
HOME = Path(tempfile.mkdtemp(prefix="paircade-browser-"))
NAMES = [
    "<script>hacked = 1</script>", "<img src=x onerror=hacked=1>", "\"><svg onload=hacked=1>",
    "' onmouseover='hacked=1' x='", "`${hacked = 1}`", "</td></tr></table><h2>x", "<!-- x", "]]>",
    "&lt;b&gt; &amp;amp; &#60;i&#62; &notin &quot", "javascript:hacked=1", "{{rows}} {{title}} %1",
    "\u202eabc\u2066def\u200f", "👩‍👩‍👧 İSTANBUL ΣΑΣ ẞ", "a\nb\tc  d\u2028e", " \u00a0 ", "",
    "\ufffe\ufdd0\u0001x\x7f", "a\r\nb\rc", "nul\0nul",
]


def record(name, seconds=0, failures=0, cards=1, rounds=1, scores=None, second=None):
    """A record of the file; with scores, one of two players."""
    entry = {"id": str(uuid.uuid4()), "gameMode": "solo", "playerName": name,
             "elapsedSeconds": seconds, "failedAttempts": failures,
             "amountCards": cards, "amountRounds": rounds}
    if scores:
        entry.update(gameMode="versus", firstPlayerScore=scores[0], secondPlayerScore=scores[1])
        if second is not None:
            entry["secondPlayerName"] = second
    return entry


def random_record(number, pick=random):
    name = pick.choice(["Ann", "ann", "BEN", "Zoë", "Äda", "😀", "～", ""]) + f" #{number}"
    scores = (pick.randrange(4), pick.randrange(40)) if pick.random() < 0.4 else None
    return record(name, pick.choice([0, 9, 10, 75, 2**62, 2**62 + 1, -3]), pick.randrange(12),
                  pick.randrange(8), pick.choice([1, 2, 9, 10, 100]), scores, "Eve")


class Model:
    """What the scripts must make of a row: its values as the reader would see them."""

    def __init__(self, entry):
        versus = entry["gameMode"] == "versus"
        name = entry["playerName"] + (f" vs {entry['secondPlayerName']}" if versus else "")
        lead = abs(entry.get("firstPlayerScore", 0) - entry.get("secondPlayerScore", 0))
        self.name = name
        self.keys = {"player": name.lower().encode("utf-16-be"), "time": entry["elapsedSeconds"],
                     "failures": lead if versus else entry["failedAttempts"]}
        self.filters = {"cards": str(entry["amountCards"]), "rounds": str(entry["amountRounds"]),
                        "mode": entry["gameMode"]}
        self.report_order = (entry["amountCards"], entry["amountRounds"],
                             entry["elapsedSeconds"], entry["failedAttempts"])


class ReportPage(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        options = webdriver.ChromeOptions()
        options.binary_location = BROWSER
        for argument in ("--headless=new", "--no-sandbox", "--disable-dev-shm-usage",
                         f"--user-data-dir={HOME}/profile"):
            options.add_argument(argument)
        options.set_capability("goog:loggingPrefs", {"browser": "ALL", "performance": "ALL"})
        cls.driver = webdriver.Chrome(service=Service(DRIVER), options=options)
        cls.driver.set_script_timeout(60)

    @classmethod
    def tearDownClass(cls):
        cls.driver.quit()
        shutil.rmtree(HOME, ignore_errors=True)

    def setUp(self):
        """Forgets what the browser's own start page or an earlier test has asked for."""
        self.driver.get("about:blank")
        for kind in ("browser", "performance"):
            self.driver.get_log(kind)

    def tearDown(self):
        """Whatever was done: nothing was said, nothing but the page itself was asked for."""
        self.assertEqual(self.driver.get_log("browser"), [])
        events = [json.loads(entry["message"])["message"]
                  for entry in self.driver.get_log("performance")]
        asked = [event["params"]["request"]["url"] for event in events
                 if event["method"] == "Network.requestWillBeSent"]
        self.assertEqual(set(asked) - {"about:blank"}, {self.address})
        self.assertIsNone(self.driver.execute_script("return window.hacked"))

    def open(self, records, locale="en_US.UTF-8", is_valid=True):
        """Opens the page of the records."""
        folder = HOME / "Paircade"
        folder.mkdir(exist_ok=True)
        (folder / "highscores.json").write_text(json.dumps(records))
        path = Path(subprocess.run([WRITER], check=True, capture_output=True, text=True, env={
            **os.environ, "XDG_DATA_HOME": str(HOME), "LC_ALL": locale, "LANGUAGE": ""}).stdout)
        if is_valid:
            html5lib.HTMLParser(strict=True).parse(path.read_bytes())
        self.address = path.as_uri()
        self.driver.get(self.address)

    def run_script(self, script, *arguments):
        return self.driver.execute_script(script, *arguments)

    def click(self, selector):
        self.driver.find_element(By.CSS_SELECTOR, selector).click()

    def choose(self, filter_name, value):
        Select(self.driver.find_element(By.ID, "filter-" + filter_name)).select_by_value(value)

    def rows(self, visible=None):
        """First cells of all rows in their order, or of those alone that can be seen or not."""
        rows = self.run_script("return [...document.querySelectorAll('tbody tr')].map("
                               "r => [r.cells[0].textContent, r.offsetHeight > 0])")
        return [name for name, is_visible in rows if visible in (None, is_visible)]

    def marks(self):
        return self.run_script("return [...document.querySelectorAll('th')].map("
                               "h => h.className + getComputedStyle(h, '::after').content)")

    def test_scripts_do_what_the_model_does(self):
        seed = random.randrange(10**6)
        pick = random.Random(seed)
        for size in (1, 7, 60):
            records = [random_record(number, pick) for number in range(size)]
            self.open(records)
            expected = sorted(map(Model, records), key=lambda row: row.report_order)
            rounds = sorted({int(row.filters["rounds"]) for row in expected})
            self.assertEqual(
                [(o.get_attribute("value"), o.text) for o in Select(
                    self.driver.find_element(By.ID, "filter-rounds")).options],
                [("", "Alle")] + [(str(value), str(value)) for value in rounds])
            chosen = {"cards": "", "rounds": "", "mode": ""}
            descending, sorted_by = {}, None
            for step in range(40):
                action = pick.choice(["sort", "sort", *chosen, "reset"])
                if action == "sort":
                    sorted_by = key = pick.choice(["player", "time", "failures"])
                    descending[key] = not descending.get(key, False)
                    expected.sort(key=lambda row: row.keys[key], reverse=descending[key])
                    self.click(f"th[data-sort={key}]")
                elif action == "reset":
                    chosen = dict.fromkeys(chosen, "")
                    self.click("#reset-filters")
                else:
                    chosen[action] = pick.choice({
                        "cards": ["", *"123456"], "rounds": ["", *map(str, rounds)],
                        "mode": ["", "solo", "versus"]}[action])
                    self.choose(action, chosen[action])
                with self.subTest(seed=seed, size=size, step=step, action=action):
                    self.assertEqual(self.rows(), [row.name for row in expected])
                    self.assertEqual(self.rows(visible=True), [
                        row.name for row in expected
                        if all(value in ("", row.filters[key]) for key, value in chosen.items())])
                    self.assertEqual(self.marks(), [
                        '"↕"' if key != sorted_by else
                        'sorted-desc" ▼"' if descending[key] else 'sorted-asc" ▲"'
                        for key in ("player", "time", "failures")] + ["none"] * 3)

    def test_names_stay_text(self):
        for name in NAMES:
            # A browser reads CR as LF, drops NUL in a cell and replaces it in an attribute.
            odd = set(name) & set("\r\0\ufffe\ufdd0\u0001\x7f")
            self.open([record(name), record("A", scores=(1, 0), second=name)], is_valid=not odd)
            read = name.replace("\r\n", "\n").replace("\r", "\n")
            with self.subTest(name=name):
                shown = read.replace("\0", "")
                self.assertEqual(self.rows(visible=True), [shown, f"A vs {shown}"])
                stored = self.run_script("return [...document.querySelectorAll('tbody tr')]"
                                         ".map(r => r.getAttribute('data-player'))")
                kept = read.replace("\0", "\ufffd")
                # Greek alone has two small letters for one capital, by place in the word.
                small = kept.lower().replace("ς", "σ")
                self.assertEqual([s.replace("ς", "σ") for s in stored], [small, f"a vs {small}"])
                self.assertEqual(self.run_script(
                    "return [...document.querySelectorAll('tbody *')].map(e => [e.localName, "
                    "e.attributes.length])"), ([["tr", 6]] + [["td", 0]] * 6) * 2)
                self.assertEqual(
                    self.run_script("return document.querySelectorAll('script, h2, img').length"), 2)

    def test_an_empty_page_bears_every_click(self):
        self.open([], "C.UTF-8")
        self.assertEqual(self.rows(visible=True), ["No results yet"])
        self.assertEqual(self.run_script("return document.documentElement.lang"), "en")
        self.assertEqual(len(Select(self.driver.find_element(By.ID, "filter-rounds")).options), 1)
        for key in ("player", "time", "failures"):
            self.click(f"th[data-sort={key}]")
        self.choose("mode", "solo")
        self.click("#reset-filters")
        self.assertEqual(self.rows(visible=True), ["No results yet"])

    def test_coming_back_shows_what_the_filters_say(self):
        self.open([record("Ann", cards=1), record("Ben", cards=2)])
        self.choose("cards", "2")
        self.driver.get("about:blank")
        self.driver.back()
        self.assertEqual(self.run_script("return document.getElementById('filter-cards').value"), "2")
        self.assertEqual(self.rows(visible=True), ["Ben"])

    def test_language_and_layout_names(self):
        self.open([record("Ann", 75, cards=cards) for cards in range(1, 8)], "de_DE.UTF-8")
        self.assertEqual(self.run_script("return document.documentElement.lang"), "de")
        self.assertEqual(self.driver.title, "Paircade-Highscores")
        self.assertRegex(self.driver.find_element(By.CLASS_NAME, "generated").text,
                         r"^Erstellt am \d\d\.\d\d\.\d{4}, \d\d:\d\d$")
        shown = self.run_script("return [...document.querySelectorAll('tbody tr')].map("
                                "r => [...r.cells].map(c => c.textContent).join(' '))")
        self.assertEqual(shown, [f"Ann 01:15 0 {layout} 1 Einzelspiel"
                                 for layout in "4x3 4x4 5x4 6x4 7x4 8x5 7".split()])

    def test_light_dark_and_narrow(self):
        self.open([random_record(number) for number in range(60)])
        self.addCleanup(self.driver.execute_cdp_cmd, "Emulation.clearDeviceMetricsOverride", {})
        for scheme, ground, card, text in (("light", "245, 245, 247", "255, 255, 255", "29, 29, 31"),
                                           ("dark", "17, 17, 19", "28, 28, 30", "245, 245, 247")):
            self.driver.execute_cdp_cmd("Emulation.setEmulatedMedia", {"features": [
                {"name": "prefers-color-scheme", "value": scheme}]})
            for width in (1280, 390):
                self.driver.execute_cdp_cmd("Emulation.setDeviceMetricsOverride", {
                    "width": width, "height": 844, "deviceScaleFactor": 1, "mobile": width < 400})
                # Only the table's frame scrolls sideways, and every filter is in sight.
                *colours, overflow, right = self.run_script(
                    "const of = s => getComputedStyle(document.querySelector(s));"
                    "const page = document.documentElement;"
                    "const ends = [...document.querySelectorAll('select, button')].map("
                    "    e => e.getBoundingClientRect().right);"
                    "return [of('body').backgroundColor, of('.table-wrap').backgroundColor,"
                    "        of('td').color, page.scrollWidth - page.clientWidth,"
                    "        Math.max(...ends)]")
                with self.subTest(scheme=scheme, width=width):
                    self.assertEqual(colours, [f"rgb({c})" for c in (ground, card, text)])
                    self.assertEqual(overflow, 0)
                    self.assertLessEqual(right, width - 32)
        self.driver.execute_cdp_cmd("Emulation.setEmulatedMedia", {"features": []})

    def test_ten_thousand_rows(self):
        self.open([random_record(number) for number in range(10_000)], is_valid=False)
        began = time.monotonic()
        for key in ("player", "time", "failures"):
            self.click(f"th[data-sort={key}]")
        self.assertEqual(len(self.rows(visible=True)), 10_000)
        # Each takes half a second at most; a busy machine may take longer, but not this long.
        self.assertLess(time.monotonic() - began, 30)


if __name__ == "__main__":
    unittest.main(verbosity=2)
