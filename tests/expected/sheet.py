"""Numbers, texts, cells and boxes: the tools of the worksheet in work_out.py."""

import decimal
import pathlib
import re
import struct

HERE = pathlib.Path(__file__).parent

MAN_YEAR = 294  # mandays that one man gives in a year


def f32(value):
    """The nearest single, as a double that prints it exactly."""
    return struct.unpack("<f", struct.pack("<f", value))[0]


def val(text):
    """The number at the start of a text, 0 if there is none."""
    start = re.match(r" *([+-]?(?:[0-9]+\.?[0-9]*|\.[0-9]+)(?:[eE][+-]?[0-9]+)?)", text)
    return float(start.group(1)) if start else 0.0


def whole(value):
    """A 16-bit whole number; a half goes to the even neighbour, which is what round() does."""
    if not -32768 <= round(value) <= 32767:
        raise OverflowError(f"{value} is beyond 16 bits")
    return round(value)


def picture(value, pattern):
    """ "####.##" and its kin: no zeros to fill up, always the point that the pattern has; a half rounds away from zero,
    judged on the shortest decimal that identifies the double."""
    decimals = len(pattern.partition(".")[2])
    with decimal.localcontext(decimal.Context(prec=400)):
        rounded = decimal.Decimal(repr(float(value))).quantize(decimal.Decimal(1).scaleb(-decimals), decimal.ROUND_HALF_UP)
    before, _, after = f"{abs(rounded):f}".partition(".")
    shown = before.lstrip("0") + ("." if "." in pattern else "") + after.rstrip("0")
    return ("-" if rounded < 0 else "") + shown


def added(values):
    """Left to right, each sum a double; the built-in sum() of newer Pythons carries the lost digits along."""
    total = 0.0
    for value in values:
        total += value
    return total


def seven_digits(single):
    """A single as a user sees it: 114.4, where the nearest single is 114.4000015258789."""
    return format(single, ".7g")


def count_of(text, limit):
    """A count and the text that its box then holds; above the limit both are cut, a fraction of one is dropped."""
    if val(text) > limit:
        return limit, str(limit)
    return int(val(text)), text


class Grid:
    """Cells by grid row and grid column: row 0 the headings, column 1 the table's first field."""

    def __init__(self, lines):
        self.lines = lines

    @classmethod
    def read(cls, sample, table):
        text = (HERE / "cells" / f"{sample}.{table}.tsv").read_text(encoding="utf-8")
        return cls([line.split("\t") for line in text.splitlines()])

    def __call__(self, row, column):
        return self.lines[row][column - 1]


class Screen:
    """The boxes of a screen by object name, and what it publishes beside them as attributes."""

    def __init__(self, name, **boxes):
        self.name = name
        self.boxes = boxes
        self.steps = []

    def __getitem__(self, box):
        return self.boxes[box]

    def __setitem__(self, box, text):
        self.boxes[box] = text

    def value(self, box):
        return val(self.boxes[box])

    def copy(self, boxes, other):
        for box in boxes:
            self[box] = other[box]

    def note(self, step):
        """A line for the worksheet."""
        self.steps.append(step)
