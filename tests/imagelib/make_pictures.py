#!/usr/bin/env python3
"""Writes the pictures of many kinds in `pictures`, and what Pillow reads in each to expected.txt.

    tests/imagelib/make_pictures.py    (Debian: python3-pil)

That names each picture, and its pixels follow: a line a row, RRGGBB by RRGGBB, and an empty
one. Transparency changes no colour. Of several pages or frames the first counts.
"""
import pathlib
import struct
import zlib

from PIL import Image

HERE = pathlib.Path(__file__).parent
FOLDER = HERE / "pictures"
WIDTH, HEIGHT = 9, 7
COLOURS = [(16, 32, 48), (192, 176, 160), (255, 0, 0), (0, 0, 255),
           (0, 128, 64), (250, 240, 20), (90, 10, 200), (255, 255, 255)]
PASSES = [(0, 0, 8, 8), (4, 0, 8, 8), (0, 4, 4, 8), (2, 0, 4, 4), (0, 2, 2, 4), (1, 0, 2, 2),
          (0, 1, 1, 2)]  # of an interlaced PNG: first column and row, steps


def index(x, y):
    return (x * 3 + y * 5 + x * y) % len(COLOURS)


def packed_bits(text):
    return bytes(int(text[i:i + 8].ljust(8, "0"), 2) for i in range(0, len(text), 8))


def png(name, kind, depth, sample, extra=b"", interlaced=False):
    """`sample(x, y)` gives a pixel's values."""
    def chunk(tag, data):
        return struct.pack(">I", len(data)) + tag + data + struct.pack(">I", zlib.crc32(tag + data))
    rows = b""
    for left, top, dx, dy in PASSES if interlaced else [(0, 0, 1, 1)]:
        for y in range(top, HEIGHT, dy):
            values = [v for x in range(left, WIDTH, dx) for v in sample(x, y)]
            text = "".join(format(value, f"0{depth}b") for value in values)
            rows += b"\0" + packed_bits(text) if values else b""
    header = struct.pack(">IIBBBBB", WIDTH, HEIGHT, depth, kind, 0, 0, interlaced)
    (FOLDER / f"{name}.png").write_bytes(
        b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", header) + extra +
        chunk(b"IDAT", zlib.compress(rows, 9)) + chunk(b"IEND", b""))
    return chunk


def pngs():
    chunk = png("colour8", 2, 8, lambda x, y: COLOURS[index(x, y)])
    palette = chunk(b"PLTE", bytes(v for colour in COLOURS for v in colour))
    gamma = chunk(b"gAMA", struct.pack(">I", 100000))
    wide = [tuple(v * 256 + v // 3 for v in colour) for colour in COLOURS]
    for depth in (1, 2, 4, 8, 16):
        png(f"grey{depth}", 0, depth, lambda x, y, d=depth: [(x * 7 + y * 9) * 257 % 2 ** d])
    for depth in (1, 2, 4, 8):
        png(f"palette{depth}", 3, depth, lambda x, y, d=depth: [index(x, y) % 2 ** d], palette)
    png("palette_transparent", 3, 4, lambda x, y: [index(x, y)],
        palette + chunk(b"tRNS", bytes([0, 128, 255, 7])))
    png("grey8_alpha", 4, 8, lambda x, y: [x * 20, y * 30])
    png("grey16_alpha", 4, 16, lambda x, y: [x * 5140 + 9, y * 3000])
    png("colour8_gamma", 2, 8, lambda x, y: COLOURS[index(x, y)], gamma)
    png("colour8_alpha", 6, 8, lambda x, y: [*COLOURS[index(x, y)], x * 25])
    png("colour16", 2, 16, lambda x, y: wide[index(x, y)])
    png("colour16_alpha", 6, 16, lambda x, y: [*wide[index(x, y)], y * 9000])
    png("colour8_interlaced", 2, 8, lambda x, y: COLOURS[index(x, y)], interlaced=True)
    png("palette4_interlaced", 3, 4, lambda x, y: [index(x, y)], palette, interlaced=True)
    png("grey1_interlaced", 0, 1, lambda x, y: [index(x, y) % 2], interlaced=True)


def bmp(name, depth, compression, pixels, table=b"", height=HEIGHT, header=40):
    masks = table if header > 40 else b""
    info = struct.pack("<IiiHHIIiiII", header, WIDTH, height, 1, depth, compression, len(pixels),
                       0, 0, len(table) // 4 if depth <= 8 else 0, 0)
    if header > 40:
        info = info + masks + bytes(header - 40 - len(masks))
        table = b""
    offset = 14 + len(info) + len(table)
    (FOLDER / f"{name}.bmp").write_bytes(
        b"BM" + struct.pack("<IHHI", offset + len(pixels), 0, 0, offset) + info + table + pixels)


def bmps():
    table = b"".join(bytes([b, g, r, 0]) for r, g, b in COLOURS)
    up = range(HEIGHT - 1, -1, -1)

    def rows(pixel, order=up):
        """`pixel` gives the bits of a pixel; a row is padded to four bytes."""
        data = b""
        for y in order:
            row = packed_bits("".join(pixel(x, y) for x in range(WIDTH)))
            data += row + bytes(-len(row) % 4)
        return data

    def little(value, size):
        return "".join(format(b, "08b") for b in value.to_bytes(size, "little"))

    def colour(x, y):
        r, g, b = COLOURS[index(x, y)]
        return r << 16 | g << 8 | b
    bmp("palette1", 1, 0, rows(lambda x, y: format(index(x, y) % 2, "b")), table[:8])
    bmp("palette4", 4, 0, rows(lambda x, y: format(index(x, y), "04b")), table)
    bmp("palette8", 8, 0, rows(lambda x, y: format(index(x, y), "08b")), table)
    bmp("palette8_top_down", 8, 0, rows(lambda x, y: format(index(x, y), "08b"), range(HEIGHT)),
        table, -HEIGHT)
    bmp("colour24", 24, 0, rows(lambda x, y: little(colour(x, y), 3)))
    bmp("colour24_top_down", 24, 0, rows(lambda x, y: little(colour(x, y), 3), range(HEIGHT)),
        height=-HEIGHT)
    bmp("colour32", 32, 0, rows(lambda x, y: little(colour(x, y) | 0xEE << 24, 4)))
    bmp("colour32_masks", 32, 3, rows(lambda x, y: little(colour(x, y) | 0xEE << 24, 4)),
        struct.pack("<III", 0xFF0000, 0xFF00, 0xFF))
    bmp("colour32_other_masks", 32, 3, rows(lambda x, y: little(colour(x, y) << 8 | 0xEE, 4)),
        struct.pack("<III", 0xFF000000, 0xFF0000, 0xFF00))
    bmp("colour32_v4", 32, 3, rows(lambda x, y: little(colour(x, y) | 0xEE << 24, 4)),
        struct.pack("<IIII", 0xFF0000, 0xFF00, 0xFF, 0), header=108)
    bmp("colour16_555", 16, 0,
        rows(lambda x, y: little(colour(x, y) >> 9 & 0x7C00 | colour(x, y) >> 6 & 0x3E0 |
                                 colour(x, y) >> 3 & 0x1F, 2)))
    bmp("colour16_565", 16, 3,
        rows(lambda x, y: little(colour(x, y) >> 8 & 0xF800 | colour(x, y) >> 5 & 0x7E0 |
                                 colour(x, y) >> 3 & 0x1F, 2)),
        struct.pack("<III", 0xF800, 0x7E0, 0x1F))
    runs = b"".join(b"".join(bytes([1, index(x, y)]) for x in range(4)) +  # runs, then a literal
                    bytes([0, WIDTH - 4, *(index(x, y) for x in range(4, WIDTH)), 0, 0, 0]) for y in up)
    # One entry less than the highest index needs.
    bmp("palette8_short", 8, 0, rows(lambda x, y: format(index(x, y), "08b")), table[:-4])
    bmp("palette8_rle", 8, 1, runs + b"\0\1", table)


def others():
    picture = Image.new("RGB", (WIDTH, HEIGHT))
    picture.putdata([COLOURS[index(x, y)] for y in range(HEIGHT) for x in range(WIDTH)])
    few = picture.quantize(8)
    turned = picture.transpose(Image.Transpose.ROTATE_180).quantize(8)
    (FOLDER / "tiny.gif").write_bytes(bytes.fromhex(
        "474946383961 0200 0100 80 00 00 102030 C0B0A0 21FE02486900 2C 0000 0000 0200 0100 00"
        "02 02 440A 00 3B"))
    few.save(FOLDER / "interlaced.gif", interlace=1)
    few.save(FOLDER / "animated.gif", save_all=True, append_images=[turned], duration=50)
    few.save(FOLDER / "transparent.gif", transparency=2)
    for name, options in {"plain": {}, "lzw": {"compression": "tiff_lzw"},
                          "deflate": {"compression": "tiff_adobe_deflate"},
                          "packbits": {"compression": "packbits"}}.items():
        picture.save(FOLDER / f"{name}.tif", **options)
    picture.save(FOLDER / "pages.tif", save_all=True,
                 append_images=[Image.new("RGB", (3, 2), (1, 2, 3))])
    few.save(FOLDER / "palette.tif")
    soft = Image.new("RGB", (20, 18))
    soft.putdata([(40 + 8 * x, 220 - 9 * y, 60 + 4 * x + 3 * y)
                  for y in range(18) for x in range(20)])
    soft.save(FOLDER / "progressive.jpg", quality=95, progressive=True)
    soft.save(FOLDER / "halved.jpg", quality=95, subsampling=2)
    soft.convert("L").save(FOLDER / "grey.jpg", quality=95)
    soft.convert("CMYK").save(FOLDER / "cmyk.jpg", quality=95)


def read(path):
    """The pixels of a picture in rows of RRGGBB."""
    picture = Image.open(path)
    if picture.mode == "I":
        picture = picture.point(lambda value: value / 256).convert("L")
    if "transparency" in picture.info:
        del picture.info["transparency"]
    pixels = list(picture.convert("RGB").getdata())
    return ["".join(" %02X%02X%02X" % p for p in pixels[i:i + picture.width])[1:]
            for i in range(0, len(pixels), picture.width)]


def main():
    pngs()
    bmps()
    others()
    text = ""
    for path in sorted(FOLDER.iterdir()):
        text += "\n".join([path.name, *read(path), "", ""])
    (HERE / "expected.txt").write_text(text, encoding="ascii")


main()
