# SPDX-FileCopyrightText: 2026 The Paircade authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""A desktop of its own for a program that is played from outside: a home, a display, a
window manager. The session bus is that of dbus-run-session, around the whole script."""
import os
import shutil
import subprocess
import tempfile
import time
import xml.etree.ElementTree as Xml
from pathlib import Path

TRANSLATIONS = Path(__file__).resolve().parents[1] / "resources" / "translations"


def texts(language):
    """The game's texts in that language, by their ids."""
    catalogue = Xml.parse(TRANSLATIONS / f"paircade_{language}.ts")
    return {message.get("id"): message.findtext("translation")
            for message in catalogue.iter("message")}


class Desk:
    """Sets up this process's environment for all that is started from here."""

    def __init__(self, language="en"):
        self.home = Path(tempfile.mkdtemp(prefix="paircade-desk-"))
        self.processes = []
        runtime = self.home / "runtime"
        runtime.mkdir(mode=0o700)
        for name in ("WAYLAND_DISPLAY", "XAUTHORITY", "QT_SCALE_FACTOR"):
            os.environ.pop(name, None)
        os.environ.update(
            HOME=str(self.home), XDG_RUNTIME_DIR=str(runtime),
            LC_ALL="C.UTF-8", LANGUAGE=language,
            XDG_CONFIG_HOME=str(self.home / "config"), XDG_DATA_HOME=str(self.home / "data"),
            XDG_CACHE_HOME=str(self.home / "cache"), QT_QPA_PLATFORM="xcb",
            SDL_AUDIODRIVER="dummy", QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1",
            # Qt waits for the end of its thread for the bus, not for what the system does
            # after it: the search for leaks sometimes crashed over that at the program's end.
            ASAN_OPTIONS="detect_leaks=0")
        # A server that is just ending, on the number that ours was given, may take our
        # socket with it.
        if not any(self.open_display() for _ in range(3)):
            raise SystemExit("there is no virtual display")

    def open_display(self):
        # The server picks a free number itself and says it once it can be used.
        server = self.start("Xvfb", "-displayfd", "1", "-screen", "0", "1920x1080x24",
                            "-nolisten", "tcp", stdout=subprocess.PIPE)
        number = server.stdout.readline().decode().strip()
        os.environ["DISPLAY"] = ":" + number
        self.start("openbox")
        for _ in range(200):
            answer = subprocess.run(["xprop", "-root", "_NET_SUPPORTING_WM_CHECK"],
                                    capture_output=True, check=False, timeout=10)
            if b"0x" in answer.stdout:
                return True
            time.sleep(0.05)
        return False

    def start(self, *command, **options):
        options.setdefault("stdout", subprocess.DEVNULL)
        process = subprocess.Popen(command, **options)
        self.processes.append(process)
        return process

    def set_work_area(self, width, height):
        """Leaves that much of the screen to windows, as a panel does."""
        subprocess.run(["xprop", "-root", "-f", "_NET_WORKAREA", "32c", "-set", "_NET_WORKAREA",
                        f"0, 0, {width}, {height}"], check=True, timeout=10)

    def write_settings(self, **settings):
        folder = self.home / "config" / "Paircade"
        folder.mkdir(parents=True, exist_ok=True)
        (folder / "Paircade.conf").write_text("[General]\n" + "".join(
            f"{key}={value}\n" for key, value in settings.items()))

    def close(self):
        for process in reversed(self.processes):
            process.terminate()
            try:
                process.wait(5)
            except subprocess.TimeoutExpired:
                process.kill()
        shutil.rmtree(self.home, ignore_errors=True)


def until(answer, what, seconds=30, meanwhile=lambda: time.sleep(0.02)):
    """Asks until there is an answer, which it returns; SystemExit without one."""
    end = time.monotonic() + seconds
    while time.monotonic() < end:
        if found := answer():
            return found
        meanwhile()
    raise SystemExit(f"waited {seconds} s for {what}")
