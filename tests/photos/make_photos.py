#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The Paircade authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""make_photos.py FOLDER: fills FOLDER with photos for the tests, all drawn here but for three.

good/ has a picture in every format and orientation, each of which shows upright a red
and a green quarter above a blue and a yellow one; bad/ has files that give no picture.
"""
import pathlib
import shutil
import struct
import subprocess
import sys

from PIL import Image

CORPUS = pathlib.Path(__file__).parent.parent / "fuzz" / "corpus" / "pictures"
WIDTH, HEIGHT = 96, 64
ORIENTATION = 0x0112
# How an upright picture is stored for each orientation.
STORED = {1: None, 2: Image.FLIP_LEFT_RIGHT, 3: Image.ROTATE_180, 4: Image.FLIP_TOP_BOTTOM,
          5: Image.TRANSPOSE, 6: Image.ROTATE_90, 7: Image.TRANSVERSE, 8: Image.ROTATE_270}

good, bad = (pathlib.Path(sys.argv[1]) / name for name in ("good", "bad"))
good.mkdir(parents=True)
bad.mkdir()


def convert(*options):
    """The upright picture once more, as the options of ffmpeg say."""
    subprocess.run(["ffmpeg", "-nostdin", "-loglevel", "error", "-i", good / "plain.png",
                    *options], check=True)


def drawn(width=WIDTH, height=HEIGHT):
    quarters = bytes((220, 40, 40, 40, 180, 60, 40, 60, 220, 230, 220, 50))
    return Image.frombytes("RGB", (2, 2), quarters).resize((width, height), Image.NEAREST)


picture = drawn()
picture.save(good / "plain.jpg", quality=95)
drawn(900, 600).save(good / "progressive.jpeg", quality=95, progressive=True)
picture.convert("CMYK").save(good / "cmyk.jpg", quality=95)
drawn(3000, 2000).save(good / "large.JPG", quality=95)
drawn(1500, 2900).save(good / "large.png")
picture.save(good / "plain.png")
picture.quantize(16).save(good / "palette.png")
picture.save(good / "really-a-png.jpg", format="PNG")
picture.save(good / "really-a-jpeg.heic", format="JPEG", quality=95)
picture.save(good / "lossless.webp", lossless=True)
picture.save(good / "tagged.tif", compression="tiff_lzw")
picture.save(good / "plain.bmp")
picture.quantize(16).save(good / "moving.gif", save_all=True,
                          append_images=[Image.new("P", picture.size)])
for orientation, change in STORED.items():
    stored = picture if change is None else picture.transpose(change)
    exif = Image.Exif()
    exif[ORIENTATION] = orientation
    for kind in ("jpg", "png", "webp", "tiff"):
        stored.save(good / f"turned{orientation}.{kind}", quality=95, lossless=True, exif=exif)

glass = picture.copy()
glass.putalpha(128)
glass.save(good / "glass.png")
# The same colours to the eye, in other numbers, among pictures that take rare encoders.
for name in ("wide.png", "turned.heic", "turned.avif"):
    shutil.copy(CORPUS / name, good)
with Image.open(good / "wide.png") as wide:
    wide.save(good / "wide.jpg", quality=95, icc_profile=wide.info["icc_profile"])

convert("-flags", "+ildct", good / "interlaced.png")
convert("-pix_fmt", "rgb48", good / "deep.png")
# Films of five seconds that begin in black.
for name, codec in (("film.mp4", "libx264"), ("film.webm", "libvpx")):
    convert("-vf", "tpad=start_duration=2:stop_mode=clone:stop_duration=3,format=yuv420p",
            "-r", "10", "-c:v", codec, "-crf", "10", "-b:v", "1M", good / name)

for name in ("large.JPG", "progressive.jpeg", "large.png", "interlaced.png", "lossless.webp",
             "tagged.tif"):
    whole = (good / name).read_bytes()
    (bad / f"cut-{name}").write_bytes(whole[:len(whole) * 6 // 10])
jpeg, bitmap = ((good / name).read_bytes() for name in ("plain.jpg", "plain.bmp"))
frame = jpeg.index(b"\xff\xc0") + 5
(bad / "huge.jpg").write_bytes(jpeg[:frame] + struct.pack(">HH", 65500, 65500) + jpeg[frame + 4:])
(bad / "huge.bmp").write_bytes(bitmap[:18] + struct.pack("<ii", 65500, 65500) + bitmap[26:])
Image.new("1", (9000, 6000)).save(bad / "sixty-megapixels.gif")
(bad / "empty.jpg").touch()
(bad / "noise.jpg").write_bytes(jpeg[:20] + bytes(range(256)) * 20)
(bad / "drawing.png").write_text(
    '<svg xmlns="http://www.w3.org/2000/svg" width="9" height="9"><path d="M0 0h9v9"/></svg>')
(bad / "page.jpg").write_text("%PDF-1.4\n1 0 obj<<>>endobj\n")
(bad / "list.mp4").write_text("#EXTM3U\n#EXTINF:5,\nfilm.mp4\n")
(bad / "list.webm").write_text(f"ffconcat version 1.0\nfile {good / 'film.mp4'}\n")
