#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The Paircade authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""Make the four sounds of Paircade: python3 tools/make_sounds.py FOLDER

Every sound is cards landing on small wooden bars in one small room, in G major
pentatonic. SOUNDS says what is played, the tables before it how it sounds.
Needs what "tools/install-packages sounds" installs; every run gives the same files.
"""

import subprocess
import sys
import tempfile
from pathlib import Path
from typing import NamedTuple

import numpy as np
from scipy import signal
from scipy.io import wavfile

RATE = 44100         # samples per second
SEED = 1862          # fixes every noise: paper, felt, room
LEAD_IN = 0.002      # seconds of silence, room for the codec's pre-echo
# A bar's partials: ratio to the note, level, decay time relative to the
# note's, attack in seconds, how much more than the note they follow velocity.
PARTIALS = (
    (1.000, 1.000, 1.00, 0.0050, 0.0),    # the note
    (2.006, 0.150, 0.60, 0.0040, 0.5),    # the box under the bar
    (3.930, 0.340, 0.34, 0.0030, 1.0),    # wood: just below two octaves
    (6.270, 0.110, 0.18, 0.0020, 1.5),
    (9.550, 0.060, 0.09, 0.0015, 2.0),    # the first touch
)
# Each partial rings twice, as a pair: cents, level, decay, place (-1 to 1).
PAIR = ((-0.8, 0.74, 0.80, 0.18), (0.8, 0.26, 1.40, -0.18))
BAR_T60 = 0.90       # seconds in which a free A4 falls by 60 dB
# The table's resonances under a landing card: hertz, level, T60 in seconds.
TABLE = ((196.0, 0.5, 0.055), (301.0, 0.5, 0.045), (447.0, 0.35, 0.035))
TAP = 0.30           # level of the card that lands with a note
SWISH = 0.056        # seconds that a turned card is in the air
# The room's echoes, left and right, in samples: no note leans to one side.
ECHOES = ((163, 238, 459, 657), (128, 220, 463, 556))


class Note(NamedTuple):
    """One struck bar."""
    start: float          # seconds
    name: str             # such as "G4" or "F#5"
    velocity: float       # 0 to 1: loudness, and with it brightness
    ring: float = 1.0     # decay time relative to the free bar's
    felt: float = 0.0     # 0 bare wood to 1 under felt: darker, slower attack


# Seconds, highest momentary loudness in LUFS, notes; no notes: a card turned.
SOUNDS: dict[str, tuple[float, float, tuple[Note, ...]]] = {
    "card_flip": (0.130, -22.0, ()),
    "card_done": (0.660, -18.0, (
        Note(0.000, "D5", 0.82), Note(0.100, "G5", 0.90))),
    "card_reset": (0.460, -19.0, (
        Note(0.000, "B4", 0.60, 0.55, 1.0),
        Note(0.130, "G4", 0.46, 0.55, 1.0))),
    "done": (2.500, -17.5, (
        Note(0.000, "G4", 0.52, 1.4), Note(0.000, "D5", 0.80, 1.2),
        Note(0.100, "G5", 0.90, 1.2),
        Note(0.250, "E5", 0.68, 1.2), Note(0.350, "A5", 0.78, 1.2),
        Note(0.500, "G5", 0.68, 1.2), Note(0.600, "B5", 0.78, 1.2),
        Note(0.750, "D6", 0.70, 1.5), Note(0.950, "G3", 0.40, 1.8),
        Note(0.975, "G4", 0.50, 2.2), Note(1.000, "B4", 0.42, 2.2),
        Note(1.025, "D5", 0.46, 2.2), Note(1.050, "G5", 0.74, 2.4))),
}


def frequency(name: str) -> float:
    """Return a note's hertz in equal temperament, A4 = 440."""
    step = "C D EF G A B".index(name[0]) + ("#" in name)
    return 440.0 * 2.0 ** (int(name[-1]) - 4 + (step - 9) / 12.0)


def strike(t: np.ndarray, attack: float, t60: float) -> np.ndarray:
    """Return an envelope: a smooth rise from t = 0, a fall by 60 dB in t60."""
    rise = np.sin(np.pi / 2.0 * np.clip(t / attack, 0.0, 1.0)) ** 2
    return rise * 10.0 ** (-3.0 * np.maximum(t, 0.0) / t60)


def band(noise: np.ndarray, low: float, high: float) -> np.ndarray:
    """Return what lies between two frequencies."""
    sos = signal.butter(2, (low, high), "bandpass", fs=RATE, output="sos")
    return signal.sosfilt(sos, noise)


def bar(note: Note, side: int, t: np.ndarray) -> np.ndarray:
    """Return a bar struck at t = 0, a little to the left (-1) or right (1)."""
    pitch = frequency(note.name)
    free = BAR_T60 * note.ring * (440.0 / pitch) ** 0.5
    out = np.zeros((len(t), 2))
    for ratio, level, share, attack, tilt in PARTIALS:
        level *= note.velocity ** (1.0 + tilt) * ratio ** (-1.4 * note.felt)
        for cents, weight, last, place in PAIR:
            hertz = pitch * ratio * 2.0 ** (cents / 1200.0)
            wave = level * weight * np.sin(2.0 * np.pi * hertz * t)
            wave *= strike(t, attack * (1 + note.felt), free * share * last)
            angle = np.pi / 4.0 * (1.0 + side * place)
            out += np.outer(wave, (np.cos(angle), np.sin(angle)))
    return out


def tap(t: np.ndarray, rng: np.random.Generator) -> np.ndarray:
    """Return a card landing at t = 0: dull felt, and the table under it."""
    felt = band(rng.standard_normal(len(t)), 400.0, 1500.0)
    out = 1.06 * felt * strike(t, 0.005, 0.032)
    for hertz, level, t60 in TABLE:
        out += level * np.sin(2.0 * np.pi * hertz * t) * strike(t, 0.005, t60)
    return np.stack((out, out), axis=1)


def swish(t: np.ndarray, rng: np.random.Generator) -> np.ndarray:
    """Return a card in the air: paper that brightens from left to right."""
    way = np.clip(t / SWISH, 0.0, 1.0)
    grains = rng.standard_normal(len(t)) * (rng.random(len(t)) < 0.05)
    paper = 0.5 * rng.standard_normal(len(t)) + grains
    paper *= np.sin(np.pi * way ** 0.6) ** 2
    dark = (1.0 - way) * band(paper, 750.0, 2500.0)
    bright = way * band(paper, 1500.0, 4300.0)
    return np.stack((dark + bright / 2.0, dark / 2.0 + bright), axis=1)


def in_room(dry: np.ndarray) -> np.ndarray:
    """Return the sound in the room: a few early echoes, a short tail."""
    t = np.arange(int(0.16 * RATE)) / RATE
    room = np.random.default_rng(SEED).standard_normal((2, len(t)))
    room *= 0.006 * strike(t - 0.004, 0.006, 0.15)
    for ear, delays in zip(room, ECHOES):
        ear[list(delays)] += 0.07 * 0.8 ** np.arange(len(delays))
    wet = signal.fftconvolve(dry, band(room, 250.0, 4000.0).T, axes=0)
    return dry + wet[:len(dry)]


def loudness(stereo: np.ndarray) -> float:
    """Return the highest momentary loudness (EBU R 128, 400 ms) in LUFS."""
    width = int(0.4 * RATE)
    out = np.pad(stereo, ((width, width), (0, 0)))
    s = 1j * np.fft.rfftfreq(len(out), 1.0 / RATE)[:, None]
    shelf, low = s / 1681.97, s / 38.1355        # K weighting, ITU-R BS.1770
    weight = (1.58486 * shelf ** 2 + 1.77993 * shelf + 1.0) / (
        shelf ** 2 + shelf / 0.707175 + 1.0)
    weight *= low ** 2 / (low ** 2 + low / 0.500327 + 1.0)
    out = np.fft.irfft(weight * np.fft.rfft(out, axis=0), len(out), axis=0)
    power = np.cumsum(np.sum(out ** 2, axis=1)) / width
    return -0.691 + 10.0 * np.log10(np.max(power[width:] - power[:-width]))


def render(name: str) -> np.ndarray:
    """Return a sound at its loudness, as stereo samples from -1 to 1."""
    length, target, notes = SOUNDS[name]
    rng = np.random.default_rng((SEED, *name.encode()))
    t = np.arange(int(length * RATE)) / RATE - LEAD_IN
    out = np.zeros((len(t), 2))
    if not notes:
        out += swish(t, rng) + tap(t - 0.8 * SWISH, rng)
    for count, note in enumerate(notes):
        touch = TAP * note.velocity * (1.0 + 0.5 * note.felt)
        out += touch * tap(t - note.start, rng)
        out += bar(note, 2 * (count % 2) - 1, t - note.start)
    fade = np.clip((0.97 - t / length) / 0.3, 0.0, 1.0)
    out = in_room(out) * np.sin(np.pi / 2.0 * fade)[:, None] ** 2
    return out * 10.0 ** ((target - loudness(out)) / 20.0)


def share_above(part: np.ndarray, hertz: float) -> float:
    """Return the energy above a frequency relative to the whole, in dB."""
    power = np.sum(np.abs(np.fft.rfft(part, axis=0)) ** 2, axis=1)
    above = power[int(hertz * len(part) / RATE):]
    return 10.0 * np.log10(np.sum(above) / np.sum(power))


def facts(name: str, out: np.ndarray) -> str:
    """Return a row: seconds, ms until -40 dBFS, then decibels, as decoded."""
    level = np.max(np.abs(out), axis=1)
    first = int(np.argmax(level >= 0.01))        # -40 dBFS
    peak = np.max(np.abs(signal.resample_poly(out, 8, 1)))
    start = out[first:first + int(0.06 * RATE)]    # 60 ms
    row = (len(out) / RATE, 1e3 * first / RATE,
           20.0 * np.log10(max(level[-1], 1e-5)), 20.0 * np.log10(peak),
           loudness(out), share_above(out, 8e3), share_above(start, 1200.0))
    return f"{name:10}" + "".join(f"{value:8.2f}" for value in row)


def main(folder: Path) -> None:
    """Write the four files into the folder and print what was measured."""
    folder.mkdir(parents=True, exist_ok=True)
    print("sound      seconds   first     end    dBTP    LUFS   >8kHz >1.2kHz")
    with tempfile.TemporaryDirectory() as scratch:
        wav = str(Path(scratch, "sound.wav"))
        for name in SOUNDS:
            mp3 = str(folder / f"{name}.mp3")
            wavfile.write(wav, RATE, np.int16(np.rint(32767 * render(name))))
            for task in (("-V0", "-q0", wav, mp3), ("--decode", mp3, wav)):
                subprocess.run(("lame", "--quiet", *task), check=True)
            print(facts(name, wavfile.read(wav)[1] / 32768.0))


if __name__ == "__main__":
    main(Path(sys.argv[1]))
