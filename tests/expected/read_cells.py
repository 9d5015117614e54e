#!/usr/bin/env python3
"""The cells of the sample data files as a grid shows them, read without the program and without its Access library.

    read_cells.py SAMPLES_FOLDER          writes cells/<sample>.<table>.tsv beside this file
    read_cells.py SAMPLES_FOLDER --check  reads again and compares with the files that are there

A file has one line a grid row: line 0 the headings, line r the record of grid row r; the fields of a line, parted by
tabs, are grid columns 1, 2, 3, ... (the margin, column 0, is not written). Null is an empty field.

This is a reading of the bytes (Access 2000 format, "Jet 4") in its own right, for the few kinds of column that the
samples have. Where mdb-export is installed, its output is compared as well: same rows, same columns, same texts, the
numbers equal once both are cut to the digits that their column can hold. The two agree on all 42 tables.
"""

import csv
import io
import pathlib
import shutil
import struct
import subprocess
import sys

TABLES = ("TR", "CS", "YD", "M1", "M2", "S1", "S2")
PAGE = 4096  # bytes a page in this format
CATALOGUE = 2  # the page on which the table of tables is defined
DATA_PAGE, DEFINITION_PAGE = 0x01, 0x02
SHORT, LONG, SINGLE, DOUBLE, TEXT = 3, 4, 6, 7, 10  # kinds of column
DIGITS = {SINGLE: ".7g", DOUBLE: ".15g"}  # significant digits shown

HIDDEN, POINTER = 0x8000, 0x4000  # flags of a row slot: deleted or reached by a pointer; holds a pointer


class DataFile:
    def __init__(self, path):
        data = path.read_bytes()
        if len(data) % PAGE or data[0x14] != 1:
            raise ValueError(f"{path}: no whole Access 2000 file")
        self.pages = [data[at : at + PAGE] for at in range(0, len(data), PAGE)]
        self.tables = {}
        for record in self.records(CATALOGUE, ("Id", "Name", "Type")):
            if record["Type"] == "1":
                self.tables[record["Name"]] = int(record["Id"]) & 0xFFFFFF

    def columns(self, page):
        """The columns in the order of the table's definition."""
        definition = self.pages[page]
        if definition[0] != DEFINITION_PAGE:
            raise ValueError(f"page {page} defines no table")
        while (following := struct.unpack_from("<I", self.pages[page], 4)[0]) != 0:
            page = following
            definition += self.pages[page][8:]
        count, _, indexes = struct.unpack_from("<HII", definition, 45)
        at = 63 + 12 * indexes
        columns = []
        for c in range(count):
            entry = definition[at + 25 * c : at + 25 * (c + 1)]
            columns.append(
                {
                    "kind": entry[0],
                    "number": struct.unpack_from("<H", entry, 5)[0],
                    "variable": struct.unpack_from("<H", entry, 7)[0],
                    "is fixed": entry[15] & 1,
                    "fixed": struct.unpack_from("<H", entry, 21)[0],
                }
            )
        at += 25 * count
        for column in columns:
            length = struct.unpack_from("<H", definition, at)[0]
            column["name"] = definition[at + 2 : at + 2 + length].decode("utf-16-le")
            at += 2 + length
        return columns

    def rows(self, table):
        """The bytes of each record, in the order of the pages and of the row slots in a page."""
        for page in self.pages:
            if page[0] == DATA_PAGE and struct.unpack_from("<I", page, 4)[0] == table:
                for slot in range(struct.unpack_from("<H", page, 12)[0]):
                    flags, row = slot_of(page, slot)
                    if flags & HIDDEN:
                        continue
                    if flags & POINTER:
                        target = struct.unpack("<I", row[:4])[0]
                        row = slot_of(self.pages[target >> 8], target & 0xFF)[1]
                    yield row

    def records(self, table, wanted=None):
        columns = [c for c in self.columns(table) if wanted is None or c["name"] in wanted]
        for row in self.rows(table):
            yield {column["name"]: cell(row, column) for column in columns}

    def grid(self, name):
        """The table's texts, headings first, and the kind of each column."""
        table = self.tables[name]
        columns = self.columns(table)
        body = [list(record.values()) for record in self.records(table)]
        stated = struct.unpack_from("<I", self.pages[table], 16)[0]
        if stated != len(body):
            raise ValueError(f"{name}: {len(body)} records found, {stated} stated")
        return [[column["name"] for column in columns]] + body, [column["kind"] for column in columns]


def slot_of(page, slot):
    start = struct.unpack_from("<H", page, 14 + 2 * slot)[0]
    end = PAGE if slot == 0 else struct.unpack_from("<H", page, 12 + 2 * slot)[0] & 0x1FFF
    return start & ~0x1FFF, page[start & 0x1FFF : end]


def cell(row, column):
    """One value as a user sees it: a Single has 7 significant digits, a Double 15, Null is empty."""
    stored = struct.unpack_from("<H", row)[0]  # the columns there were when the row was written
    marks = len(row) - (stored + 7) // 8  # one bit a column, clear for Null
    number = column["number"]
    if number >= stored or not row[marks + number // 8] >> number % 8 & 1:
        return ""
    if column["is fixed"]:
        at = 2 + column["fixed"]
        if column["kind"] == SHORT:
            return str(struct.unpack_from("<h", row, at)[0])
        if column["kind"] == LONG:
            return str(struct.unpack_from("<i", row, at)[0])
        if column["kind"] == SINGLE:
            return format(struct.unpack_from("<f", row, at)[0], DIGITS[SINGLE])
        if column["kind"] == DOUBLE:
            return format(struct.unpack_from("<d", row, at)[0], DIGITS[DOUBLE])
    elif column["kind"] == TEXT:
        # The ends of the variable fields stand before the marks, the first field last.
        start, end = (struct.unpack_from("<H", row, marks - 4 - 2 * k)[0] for k in (column["variable"], column["variable"] + 1))
        return text(row[start:end])
    raise ValueError(f"column {column['name']} is of kind {column['kind']}")


def text(data):
    if data[:2] != b"\xff\xfe":
        return data.decode("utf-16-le")
    parts = data[2:].split(b"\0")  # compressed: a zero byte changes between one byte and two bytes a letter
    if len(parts) > 1:
        raise ValueError("text of one and two bytes a letter")  # the samples have none
    return parts[0].decode("latin-1")


def against_mdb_export(path, table, grid, kinds):
    """mdb-export writes a Single with 9 digits and a Double with 16: 42.599998 for 42.6, 8.699999999999999 for 8.7."""
    exported = subprocess.run(["mdb-export", str(path), table], check=True, capture_output=True, text=True).stdout
    rows = list(csv.reader(io.StringIO(exported)))
    if len(rows) != len(grid) or any(len(a) != len(b) for a, b in zip(rows, grid)):
        raise SystemExit(f"{path.name} {table}: mdb-export has another shape")
    for r, (theirs, ours) in enumerate(zip(rows, grid)):
        for c, (a, b) in enumerate(zip(theirs, ours)):
            if r > 0 and a and kinds[c] in DIGITS:
                a = format(float(a), DIGITS[kinds[c]])
            if a != b:
                raise SystemExit(f"{path.name} {table} ({r}, {c + 1}): mdb-export says '{a}', not '{b}'")


def main():
    samples = pathlib.Path(sys.argv[1])
    folder = pathlib.Path(__file__).parent / "cells"
    folder.mkdir(exist_ok=True)
    for path in sorted(samples.glob("*.mdb")):
        data = DataFile(path)
        for table in TABLES:
            grid, kinds = data.grid(table)
            if shutil.which("mdb-export"):
                against_mdb_export(path, table, grid, kinds)
            lines = "".join("\t".join(row) + "\n" for row in grid)
            kept = folder / f"{path.stem}.{table}.tsv"
            if "--check" not in sys.argv[2:]:
                kept.write_text(lines, encoding="utf-8", newline="\n")
            elif kept.read_text(encoding="utf-8") != lines:
                raise SystemExit(f"{kept.name} differs")
    print("cells: as they stand" if "--check" in sys.argv[2:] else "cells: written")


if __name__ == "__main__":
    main()
