#!/usr/bin/env python3
"""Writes the seeds of the target tavrel_records beside the others: one input for every decoder
and every layout, as fuzz/tavrel_records.cpp takes them (decoder, version, records)."""

import pathlib
import struct

SEEDS = pathlib.Path(__file__).parent / "seeds" / "tavrel_records"
FIRST, LAST = 2000016, 2000024
PNG = bytes.fromhex(
    "89504e470d0a1a0a0000000d4948445200000001000000010800000000"
    "3a7e9b550000000a49444154789c636800000082008177cd72b60000000049454e44ae426082")


def text(value):
    raw = value.encode("utf-16-be")
    return struct.pack(">I", len(raw)) + raw


def ints(*values):
    return struct.pack(f">{len(values)}i", *values)


def bools(*values):
    return bytes(int(value) for value in values)


def doubles(*values):
    return struct.pack(f">{len(values)}d", *values)


def header(size="3/4"):
    return bools(False) + doubles(0.5, 0.25, 1.0, 45.0) + text(size) + text("1.5")


def pen_and_font():
    return ints(4, 1) + text("unused") + ints(42) + bools(1, 0, 1)


def text_record(version):
    fixed = doubles(2.0, -1.0) if version >= 2000018 else b""
    if version >= 2000022:
        record = header() + text("Net  weight") + text("%_DATES%") + text("_SPECIAL") + fixed
        record += pen_and_font() + ints(0x84) + bools(0, 1, 0, 1, 1) + ints(50)
        return record + (ints(0, 0) if version >= 2000023 else b"")
    record = header() + fixed + text("_SEQUENCE") + pen_and_font() + text("Net  weight")
    record += ints(2) + bools(1, 0)
    record += bools(0, 1, 1) if version >= 2000020 else b""
    return record + (ints(50) if version >= 2000021 else b"")


def barcode_record(version):
    look = bools(0) + text("") + ints(7, 1) + bools(1, 0, 1, 0) + text("12") + ints(3, 4, 5)
    if version >= 2000022:
        return header() + text("12345") + text("") + text("_DATE") + ints(20) + look
    return header() + text("_DATE") + ints(55) + text("12345") + look + text("")


def symbol_record(version):
    record = header() + text("C:\\symbols\\flame.svg")
    svg = b"<svg xmlns='http://www.w3.org/2000/svg' width='1' height='1'/>"
    return record + (struct.pack(">I", len(svg)) + svg if version >= 2000023 else b"")


def shape_record(_version):
    return b"".join(header("1/3") + ints(6, 2, mode) + text(name)
                    for mode, name in enumerate(["VerticalLine", "Oval", "no such shape"]))


def picture_record(_version):
    return header() + ints(1) + PNG + header() + ints(0)


def sequence_record(version):
    record = ints(1, 100, 1, 4) + text("A-") + text("-Z")
    return record + (ints(1) if version >= 2000020 else b"")


def database_list(_version):
    return ints(0, 0, 1, 2) + text("list") + ints(0) + text("C:\\data\\list.csv") + ints(0)


def canvas_record(version):
    size = ints(600, 915) if version <= 2000018 else doubles(2.0, 3.0)
    record = bools(0) + size + ints(3, 4) + text("a") + text("b") + bools(1) + ints(2, 0)
    record += bools(0) + doubles(1, 2, 3, 4)
    return record + (doubles(300.0, 305.0) if version >= 2000024 else b"")


def file_header(version):
    return ints(0, version) + ints(1) + PNG


# In the order of the decoders.
RECORDS = [text_record, barcode_record, symbol_record, shape_record, picture_record,
           sequence_record, database_list, canvas_record, file_header]


def main():
    SEEDS.mkdir(parents=True, exist_ok=True)
    for selector, record in enumerate(RECORDS):
        written = set()
        for version in range(FIRST, LAST + 1):
            stream = record(version)
            if stream in written:
                continue
            written.add(stream)
            name = f"{record.__name__.removesuffix('_record')}_{version}"
            (SEEDS / name).write_bytes(bytes([selector, version - FIRST]) + stream)


main()
