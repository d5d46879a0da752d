"""Settings.ini and readme.txt, the two texts of the package."""

from .cameos import CAMEOS
from .symbols import SYMBOLS

HEADER = """; The editor's picture catalogues. Every line of the two sections below offers one picture:
;
;   key=display text,file name
;
; The key is any text that occurs only once in its section. The picture lies in the folder Templates.
; Write no spaces around the equals sign, and no comma, semicolon or equals sign inside the texts.
"""

SYMBOLS_NOTE = """; Symbols to place on the map. Blue 0000FF is transparent, yellow FFFF00 takes the side's colour.
; The editor lists them from the last line to the first.
"""

CAMEOS_NOTE = """; Icons for the two or three slots, exactly 76 x 60 pixels. The editor sorts them by name.
"""


def settings():
    symbols = [f"{s.stem}={s.name},{s.file}" for s in reversed(SYMBOLS)]
    cameos = [f"{c.file[4:-4]}={c.name},{c.file}" for c in CAMEOS]
    return "\n".join([HEADER, "[SymbolsList]", SYMBOLS_NOTE + "\n".join(symbols), "", "[CameosList]", CAMEOS_NOTE + "\n".join(cameos), ""])


def readme():
    return f"""LOADING SCREEN TEMPLATES
========================

World maps, side overlays, target frames, {len(SYMBOLS)} symbols and {len(CAMEOS)} icons for the
loading screens of the Allied, Soviet and Yuri sides.


WHAT IS IN THE PACKAGE

  all_worldmap.png, sov_worldmap.png, psy_worldmap.png
      The map behind everything, 1600 x 1040, one for each side.
  com_worldmap2x.png
      The map in the large frame, 3200 x 2080, shared by the sides.
  all_2icomain.png, all_3icomain.png and the same for sov and psy
      The overlay with two or three icon slots, 800 x 520.
  com_largetargetbox.png, com_smalltargetbox.png
      The two target frames.
  sym_*.png
      Symbols that are placed on the map.
  cam_*.png
      Icons for the two or three slots, 76 x 60.

Settings.ini, beside the editor, lists the symbols and the icons.


ADDING YOUR OWN ICONS AND SYMBOLS

1. Save the picture as a PNG file in the folder Templates.
2. Add a line to Settings.ini, in [CameosList] for an icon or in
   [SymbolsList] for a symbol:

       mytank=My tank,mytank.png

   The first word is a key that occurs only once. There are no spaces
   around the equals sign, and no comma, semicolon or equals sign in
   the name or the file name.
3. Open the dialog again; the editor need not be restarted.

Icons must be exactly 76 x 60 pixels.

Symbols may have any size up to 700 x 420; 24 to 48 pixels look best.
Two colours have a meaning, and only if they match exactly:

    blue    0, 0, 255     transparent
    yellow  255, 255, 0   replaced by the colour of the side

The colours of the sides are 97, 80, 255 (Allied), 206, 0, 0 (Soviet)
and 206, 30, 250 (Yuri). Draw the edge between symbol and blue hard: a
soft edge leaves a blue fringe, because nothing is blended.


CHANGING THE OVERLAYS

An overlay is 800 x 520 pixels. Blue 0, 0, 255 lets the map show. The
editor draws into it:

    two icons at x 311 and 405, three at x 256, 350 and 444; y 380
    the screenshot, 234 x 232, at 542, 267
    the large target frame at 346, 52, over the overlay
    the small target box at x 232, from y 56 downwards

What the overlay shows where an icon or the screenshot belongs is seen
until one is chosen.


CHANGING THE MAPS AND FRAMES

The three side maps have the same size, at least 800 x 520. The zoomed
map is at least 281 x 277. Maps are repeated in all directions, so the
left edge must fit the right edge, and the top the bottom.

The large frame is drawn at 346, 52. Its window of 281 x 277 begins 7
pixels from its left and 6 from its top. In the small box blue is
transparent; it must be narrower and lower than the large frame. Five
lines run from its left edge to the left edge of the large frame.


The coastlines are those of Natural Earth, which are in the public
domain. All pictures were made for this package.
"""


def crlf(text):
    """Bytes with the line ends that a Windows edit control shows."""
    return text.replace("\n", "\r\n").encode("ascii")
