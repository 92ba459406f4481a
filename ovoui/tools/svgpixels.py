"""Pixels of drawings: SVG, drawn by rsvg-convert."""
import signal
import struct
import subprocess
import zlib

signal.signal(signal.SIGINT, signal.SIG_DFL)  # an interrupted build shows no traceback


def pixels_of(svg, size):
    """Rows of (red, green, blue, alpha) from the top."""
    png = subprocess.run(["rsvg-convert", "-w", str(size), "-h", str(size), svg],
                         check=True, stdout=subprocess.PIPE).stdout
    position, packed = 8, b""
    while position < len(png):
        length, kind = struct.unpack(">I4s", png[position:position + 8])
        body = png[position + 8:position + 8 + length]
        if kind == b"IHDR":
            width, height, depth, colour, _, _, interlace = struct.unpack(">IIBBBBB", body)
            if (width, height, depth, colour, interlace) != (size, size, 8, 6, 0):
                raise SystemExit(f"{svg}: unexpected picture format")
        elif kind == b"IDAT":
            packed += body
        position += 12 + length
    return unfilter(zlib.decompress(packed), size)


def unfilter(data, size):
    """Undoes the row filters of a PNG with four bytes a pixel."""
    stride = size * 4
    rows, above = [], bytes(stride)
    for y in range(size):
        start = y * (stride + 1)
        kind, row = data[start], bytearray(data[start + 1:start + 1 + stride])
        for i in range(stride):
            left = row[i - 4] if i >= 4 else 0
            corner = above[i - 4] if i >= 4 else 0
            row[i] = (row[i] + predicted(kind, left, above[i], corner)) & 0xFF
        above = bytes(row)
        rows.append(above)
    return rows


def predicted(kind, left, up, corner):
    if kind == 0:
        return 0
    if kind == 1:
        return left
    if kind == 2:
        return up
    if kind == 3:
        return (left + up) // 2
    guess = left + up - corner
    return min((left, up, corner), key=lambda value: abs(guess - value))
