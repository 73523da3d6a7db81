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
import unittest
import uuid
from datetime import datetime, timedelta, timezone
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
FOLDER = tempfile.TemporaryDirectory(prefix="paircade-browser-", ignore_cleanup_errors=True)
HOME = Path(FOLDER.name)
NAMES = [
    "<script>hacked = 1</script>", "<img src=x onerror=hacked=1>", "\"><svg onload=hacked=1>",
    "' onmouseover='hacked=1' x='", "`${hacked = 1}`", "</td></tr></table><h2>x", "<!-- x", "]]>",
    "&lt;b&gt; &amp;amp; &#60;i&#62; &notin &quot", "javascript:hacked=1", "{{rows}} {{title}} %1",
    "\u202eabc\u2066def\u200f", "👩‍👩‍👧 İSTANBUL ΣΑΣ ẞ", "a\nb\tc  d\u2028e", " \u00a0 ", "",
]


def record(name, **fields):
    """A record of the file; with a second name, one of two players."""
    return {"id": str(uuid.uuid4()), "playerName": name, "elapsedSeconds": 0, "failedAttempts": 0,
            "gameMode": "versus" if "secondPlayerName" in fields else "solo",
            "amountCards": 1, "amountRounds": 1, **fields}


def random_record(number, pick=random):
    name = pick.choice(["Ann", "ann", "BEN", "Zoë", "Äda", "😀", "～", ""]) + f" #{number}"
    versus = {"secondPlayerName": "Eve", "firstPlayerScore": pick.randrange(4),
              "secondPlayerScore": pick.choice([0, 4, 39, -2**63])} if pick.random() < 0.4 else {}
    return record(name, elapsedSeconds=pick.choice([0, 9, 10, 75, 2**62, 2**62 + 1, -3]),
                  failedAttempts=pick.randrange(12), amountCards=pick.randrange(8),
                  amountRounds=pick.choice([1, 2, 9, 10, 100]), **versus)


class Model:
    """What the scripts must make of a row: its values as the reader would see them."""

    def __init__(self, entry):
        versus = entry["gameMode"] == "versus"
        self.name = entry["playerName"] + (f" vs {entry['secondPlayerName']}" if versus else "")
        lead = abs(entry.get("firstPlayerScore", 0) - entry.get("secondPlayerScore", 0))
        self.keys = {"player": self.name.lower().encode("utf-16-be"),
                     "time": entry["elapsedSeconds"],
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
        cls.addClassCleanup(cls.driver.quit)
        cls.driver.set_script_timeout(60)
        cls.run_script = cls.driver.execute_script

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
        self.assertIsNone(self.run_script("return window.hacked"))

    def open(self, records, language="en_US.UTF-8", time="en_US.UTF-8"):
        """Opens the page of the records, in a zone of its own."""
        results, page = HOME / "results.json", HOME / "page.html"
        results.write_text(json.dumps(records))
        page.unlink(missing_ok=True)
        subprocess.run([WRITER, results, page], check=True,
                       env={**os.environ, "LC_ALL": "", "LANG": language, "LANGUAGE": "",
                            "LC_TIME": time, "TZ": "HERE-05:30"})
        html5lib.HTMLParser(strict=True).parse(page.read_bytes())
        self.address = page.as_uri()
        self.driver.get(self.address)

    def each(self, selector, expression):
        """What the expression gives for each element e of the page that is selected."""
        return self.run_script(
            f"return [...document.querySelectorAll('{selector}')].map(e => {expression})")

    def click(self, selector):
        self.driver.find_element(By.CSS_SELECTOR, selector).click()

    def filter(self, name):
        return Select(self.driver.find_element(By.ID, "filter-" + name))

    def rows(self):
        """First cells of all rows in their order, and of those alone that can be seen."""
        rows = self.each("tbody tr", "[e.cells[0].textContent, e.offsetHeight > 0]")
        return [name for name, _ in rows], [name for name, is_visible in rows if is_visible]

    def test_scripts_do_what_the_model_does(self):
        seed = random.randrange(10**6)
        pick = random.Random(seed)
        for size in (1, 7, 60):
            records = [random_record(number, pick) for number in range(size)]
            self.open(records)
            expected = sorted(map(Model, records), key=lambda row: row.report_order)
            rounds = sorted({int(row.filters["rounds"]) for row in expected})
            self.assertEqual(
                [(o.get_attribute("value"), o.text) for o in self.filter("rounds").options],
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
                    self.filter(action).select_by_value(chosen[action])
                with self.subTest(seed=seed, size=size, step=step, action=action):
                    self.assertEqual(self.rows(), ([row.name for row in expected], [
                        row.name for row in expected
                        if all(value in ("", row.filters[key]) for key, value in chosen.items())]))
                    marks = self.each("th", "e.className + getComputedStyle(e, '::after').content")
                    self.assertEqual(marks, [
                        '"↕"' if key != sorted_by else
                        'sorted-desc" ▼"' if descending[key] else 'sorted-asc" ▲"'
                        for key in ("player", "time", "failures")] + ["none"] * 3)

    def test_names_stay_text(self):
        self.open([*map(record, NAMES), *(record("A", secondPlayerName=name) for name in NAMES)])
        self.assertEqual(self.rows()[1], [*NAMES, *(f"A vs {name}" for name in NAMES)])
        self.assertEqual(self.each("script, h2, img", "e.localName"), ["script"] * 2)

    def test_an_empty_page_bears_every_click(self):
        self.open([], "C.UTF-8")
        self.assertEqual(self.each("html", "e.lang"), ["en"])
        self.assertEqual(len(self.filter("rounds").options), 1)
        for key in ("player", "time", "failures"):
            self.click(f"th[data-sort={key}]")
        self.filter("mode").select_by_value("solo")
        self.click("#reset-filters")
        self.assertEqual(self.rows()[1], ["No results yet"])

    def test_coming_back_shows_what_the_filters_say(self):
        self.open([record("Ann"), record("Ben", amountCards=2)])
        self.filter("cards").select_by_value("2")
        self.driver.get("about:blank")
        self.driver.back()
        self.assertEqual(self.each("#filter-cards", "e.value"), ["2"])
        self.assertEqual(self.rows()[1], ["Ben"])

    def test_language_and_cells(self):
        solo = [record("Ann", elapsedSeconds=75, failedAttempts=3, amountCards=cards)
                for cards in (*range(1, 8), -2**63)]
        # The second player of the other has no name.
        self.open([*solo, record("Ben", gameMode="versus", elapsedSeconds=3600, amountCards=9,
                                 amountRounds=10, firstPlayerScore=3, secondPlayerScore=5)],
                  "de_DE.UTF-8", "en_GB.UTF-8")
        self.assertEqual(self.each("html", "e.lang"), ["de"])
        self.assertEqual(self.driver.title, "Paircade-Highscores")
        text = self.driver.find_element(By.CLASS_NAME, "generated").text
        generated = datetime.strptime(text + " +0530", "Erstellt am %d %b %Y, %H:%M %z")
        self.assertLess(abs(datetime.now(timezone.utc) - generated), timedelta(minutes=5))
        self.assertEqual(self.each("th", "e.textContent"),
                         ["Spieler", "Zeit", "Fehler /\u00a0Punkte", "Karten", "Runden", "Modus"])
        filters = self.each("label, option, #reset-filters",
                            "(e.value ?? '') + '=' + e.firstChild.textContent.trim()")
        self.assertEqual(filters, (
            "=Kartenset|=Alle|1=4x3|2=4x4|3=5x4|4=6x4|5=7x4|6=8x5|=Runde|=Alle|1=1|10=10|=Modus|"
            "=Alle|solo=Single player|versus=1 vs 1|=Filter zurücksetzen").split("|"))
        shown = self.each("tbody tr", "[...e.cells].map(c => c.textContent).join(' ')")
        layouts = f"{-2**63} 4x3 4x4 5x4 6x4 7x4 8x5 7".split()
        self.assertEqual(shown, [f"Ann 01:15 3 {layout} 1 Einzelspiel" for layout in layouts] +
                         ["Ben vs Spieler 2 60:00 3 : 5 9 10 Duell"])

    def test_dark_and_narrow(self):
        self.open([random_record(number) for number in range(60)])
        command = self.driver.execute_cdp_cmd
        self.addCleanup(command, "Emulation.clearDeviceMetricsOverride", {})
        self.addCleanup(command, "Emulation.setEmulatedMedia", {"features": []})
        for scheme, expected in {
                "light": ["#f5f5f7", "#ffffff", "#1d1d1f", "#6e6e73", "#d2d2d7", "#007aff"],
                "dark": ["#111113", "#1c1c1e", "#f5f5f7", "#a1a1a6", "#3a3a3c", "#0a84ff"]}.items():
            command("Emulation.setEmulatedMedia", {"features": [
                {"name": "prefers-color-scheme", "value": scheme}]})
            self.assertEqual(self.run_script(
                "return ['bg', 'surface', 'text', 'muted', 'border', 'accent'].map(name =>"
                "getComputedStyle(document.body).getPropertyValue('--' + name).trim())"), expected)
        command("Emulation.setDeviceMetricsOverride", {
            "width": 390, "height": 844, "deviceScaleFactor": 1, "mobile": True})
        colours = self.each("body, .table-wrap", "getComputedStyle(e).backgroundColor")
        self.assertEqual(colours, ["rgb(17, 17, 19)", "rgb(28, 28, 30)"])
        # Only the table's frame scrolls sideways, and every filter is in sight.
        self.assertEqual(self.each("html", "e.scrollWidth - e.clientWidth"), [0])
        rights = self.each("select, button", "e.getBoundingClientRect().right")
        self.assertLessEqual(max(rights), 390 - 32)


if __name__ == "__main__":
    unittest.main(verbosity=2)
