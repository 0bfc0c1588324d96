"""Decode and encode ASTERIX surveillance data with the kovrel library.

Records come out shaped exactly like the JSON records of
``kovrel decode --format json``; DataFrames have the columns of its CSV
output; ``encode`` takes the dicts that ``kovrel encode`` takes.

    >>> import kovrel
    >>> for record in kovrel.decode("radar.pcap"):
    ...     print(record["cat"], record["fields"].get("callsign"))
    >>> frame = kovrel.to_dataframe("radar.pcap", columns=["tod", "sac", "sic", "I048/040.rho"])
    >>> octets = kovrel.encode([{"cat": 48, "fields": {"sac": 25, "sic": 1}}])

Decoding runs in C++ with the GIL released, so several inputs decode at
once on several threads (see ``docs/python.md``).
"""

from __future__ import annotations

import datetime as _datetime
import io as _io
import json as _json
import os as _os
import warnings as _warnings
from typing import Any, BinaryIO, Dict, Iterable, Iterator, List, Optional, Sequence, Union

from . import _kovrel
from ._kovrel import Block, DecodeError, Item, Record

__all__ = [
    "Block",
    "DecodeError",
    "DecodeWarning",
    "EncodeError",
    "Item",
    "Record",
    "decode",
    "encode",
    "iter_blocks",
    "keywords",
    "library_version",
    "profiles",
    "to_dataframe",
]

Source = Union[bytes, bytearray, memoryview, str, "_os.PathLike[str]", BinaryIO]


class DecodeWarning(UserWarning):
    """A problem met while decoding (a bad block, a capture cut short).

    Decoding goes on after it, as the command-line tool does; the message is
    the tool's, starting with the input's name.
    """


class EncodeError(ValueError):
    """A record that cannot be encoded.

    ``record`` is its position in the records given (from 0), ``field`` the
    item and field at fault when the reason names one (``"I048/040.rho"``),
    ``reason`` the encoder's text.
    """

    def __init__(self, record: int, reason: str) -> None:
        self.record = record
        self.reason = reason
        head, sep, _ = reason.partition(": ")
        self.field: Optional[str] = head if sep and " " not in head else None
        super().__init__(f"record {record}: {reason}")


def library_version() -> str:
    """The version of the kovrel library the package is built with."""
    return _kovrel.library_version()


def profiles() -> List[str]:
    """The profile names ``uap=`` takes besides ``"auto"``."""
    return list(_kovrel.profiles())


def keywords() -> List[str]:
    """The keyword names ``Record.match`` and ``Record.keyword`` take."""
    return list(_kovrel.keywords())


def _apply_filter(reader: "_kovrel.Reader", filter: Union[None, str, Sequence[str]]) -> None:
    """Keeps the records that match every ``KEYWORD=VALUE`` of ``filter``."""
    if filter is None:
        return
    for text in [filter] if isinstance(filter, str) else filter:
        reader.add_filter(text)


def _open(source: Source, uap: str, framing: str) -> "_kovrel.Reader":
    reader = _kovrel.Reader(uap)
    reader.set_framing(framing)
    if isinstance(source, (bytes, bytearray, memoryview)):
        reader.open_buffer("(memory)", memoryview(source).cast("B"))
    elif isinstance(source, (str, _os.PathLike)):
        reader.open_path(_os.fspath(source))
    elif hasattr(source, "read"):
        name = getattr(source, "name", None)
        name = name if isinstance(name, str) else "(file object)"
        fd = None
        try:
            fd = source.fileno()
            position = source.tell()
        except (AttributeError, OSError, _io.UnsupportedOperation):
            fd = None
        if fd is not None:
            # The file is read through its own descriptor: large files are
            # mapped, not copied into Python.
            reader.open_fd(name, _os.dup(fd), position)
        else:
            reader.open_buffer(name, memoryview(source.read()).cast("B"))
    else:
        raise TypeError("source must be bytes, a path or a binary file object, not " + type(source).__name__)
    return reader


def _warn(reader: "_kovrel.Reader") -> None:
    for message in reader.messages():
        _warnings.warn(message, DecodeWarning, stacklevel=3)


def decode(source: Source, uap: str = "auto", filter: Union[None, str, Sequence[str]] = None,
           batch: int = 512, framing: str = "auto") -> Iterator[Dict[str, Any]]:
    """Yields the records of a recording as dicts.

    ``source`` is bytes, a path or a binary file object holding a pcap or
    pcapng capture, raw data blocks or hexadecimal text (told apart by
    content). Each record is the dict of one line of
    ``kovrel decode --format json``: ``input``, ``block``, ``offset``,
    ``packet`` and ``time`` (captures), ``cat``, ``uap``, ``record``,
    ``length``, ``item_count``, ``valid``, ``block_valid``, ``fields`` and
    ``items`` (each with ``id``, ``name``, ``len``, ``hex``, ``summary`` and
    ``fields``).

    ``uap`` is ``"auto"`` (smart decoding) or a profile name (see
    ``profiles()``). Records are decoded ``batch`` at a time with the GIL
    released; memory stays bounded whatever the input's size. Bad blocks are
    reported as ``DecodeWarning`` and decoding goes on; an input that cannot
    be read at all raises ``ValueError``.

    ``filter`` keeps only the records that match: one ``"KEYWORD=VALUE"``
    text or a list of them, all of which must match, as ``kovrel decode
    --filter`` takes them (``"callsign=DLH4AB"``, ``"sacsic=025/013"``,
    ``"mode3a=7700"``; see ``keywords()``). A filter that cannot be read
    raises ``ValueError`` listing the keywords.

    ``framing`` is the recorder framing around the blocks of a file and of
    each UDP payload, as ``kovrel decode --framing`` takes it: ``"auto"``
    (told by content), ``"none"`` (blocks back to back), ``"oradis"``,
    ``"final"`` or ``"length"``. Records of framed files with time stamps
    are located ``packet`` (the frame, from 1) plus ``offset`` in the frame
    and carry the frame's ``time``. Another name raises ``ValueError``.
    """
    reader = _open(source, uap, framing)
    _apply_filter(reader, filter)
    loads = _json.loads
    while True:
        text = reader.next_json(batch)
        _warn(reader)
        if text is None:
            return
        # The lines are JSON objects; a line end never occurs inside one.
        yield from loads("[" + text.rstrip("\n").replace("\n", ",") + "]")


def _as_date(date: Union[None, str, _datetime.date]) -> Optional[_datetime.date]:
    if date is None or isinstance(date, _datetime.date):
        return date
    return _datetime.date.fromisoformat(date)


def to_dataframe(source: Source, columns: Union[None, str, Sequence[str]] = None, uap: str = "auto",
                 date: Union[None, str, _datetime.date] = None, filter: Union[None, str, Sequence[str]] = None,
                 framing: str = "auto"):
    """One row per record, in the columns of ``kovrel decode --format csv``.

    ``columns`` names record columns (``block``, ``cat``, ``uap``, ...),
    record fields (``sac``, ``tod``, ``callsign``, ...) and item field paths
    (``"I048/040.rho"``, ``"I048/250.bds60.ias"``), as a list or a
    comma-separated text; by default the tool's default CSV columns.

    The columns are built in C++ buffers and typed: integers (nullable
    ``Int64`` where a record may lack the value), floats (NaN where
    missing), booleans, categories for texts (``uap``, ``callsign``,
    ``mode3a``, ...), ``time`` as UTC timestamps, and ``tod`` as a
    timedelta since midnight, or as UTC timestamps on ``date`` when a date
    is given. An item field takes the type of its values.

    ``uap``, ``filter`` and ``framing`` are those of ``decode()``.
    """
    import numpy as np
    import pandas as pd

    if columns is None:
        wanted = _kovrel.default_columns()
    elif isinstance(columns, str):
        wanted = columns
    else:
        wanted = ",".join(columns)
    day = _as_date(date)
    reader = _open(source, uap, framing)
    _apply_filter(reader, filter)
    raw = reader.columns(wanted)
    _warn(reader)
    data = {}
    rows = 0
    for name, kind, values, extra in raw:
        if kind == "int":
            series = pd.Series(values, dtype="int64", copy=False)
        elif kind == "int?":
            series = pd.Series(pd.arrays.IntegerArray(values, extra.view(bool)))
        elif kind == "real":
            series = pd.Series(values, dtype="float64", copy=False)
        elif kind == "bool":
            series = pd.Series(values.view(bool))
        elif kind == "text":
            series = pd.Series(pd.Categorical.from_codes(values, categories=extra))
        elif kind == "time":
            series = pd.Series(values.view("M8[ns]")).dt.tz_localize("UTC")
        elif kind == "tod":
            series = pd.Series(values.view("m8[ns]"))
            if day is not None:
                series = pd.Timestamp(day, tz="UTC") + series
        else:  # no record had a value
            series = pd.Series(np.full(values, np.nan))
        rows = len(series)
        data[name] = series
    # The columns stay the arrays built above: consolidating them into 2-D
    # blocks would copy every one of them again.
    frame = pd.DataFrame(data, index=pd.RangeIndex(rows), copy=False)
    return frame


def encode(records: Iterable[Dict[str, Any]], uap: Optional[str] = None, block_records: int = 64) -> bytes:
    """ASTERIX data blocks from record dicts, as ``kovrel encode`` writes them.

    A record is a dict shaped like those ``decode`` yields: ``cat``, and its
    items from ``items`` (``{"id": "I048/040", "fields": {...}}`` or
    ``{"id": ..., "hex": "..."}``) and/or from the record ``fields``. ``uap``
    is the profile of records that do not name one (default ``standard``).
    Consecutive records of one category share a block of at most
    ``block_records`` records.

    Raises ``EncodeError`` for the first record that cannot be encoded,
    naming the record and the item field at fault.
    """
    lines = []
    for record in records:
        if not isinstance(record, dict):
            raise TypeError("a record is a dict, not " + type(record).__name__)
        if uap is not None and "uap" not in record:
            record = dict(record, uap=uap)
        # Numbers that are not finite cannot be encoded; the encoder says so.
        lines.append(_json.dumps(record, ensure_ascii=False, allow_nan=False))
    if not 1 <= block_records <= 64:
        raise ValueError("block_records must be from 1 to 64")
    octets, problems = _kovrel.encode_lines("\n".join(lines) + "\n" if lines else "", block_records)
    if problems:
        line, reason = problems[0]
        raise EncodeError(line - 1, reason)
    return octets


def iter_blocks(data: Union[bytes, bytearray, memoryview], uap: str = "auto") -> Iterator[Block]:
    """The data blocks of raw octets, back to back, as ``Block`` objects.

    Every block is decoded where it lies (no copy). A bad block is yielded
    with ``valid`` false and its ``reason``; a block whose LEN reaches past
    the octets is the last one, and ``DecodeError`` is raised where no block
    header can be read (fewer than 3 octets left, a LEN below 3).
    """
    view = memoryview(data).cast("B")
    offset = 0
    while offset < len(view):
        block = Block(view, offset, uap, False)
        yield block
        if block.length < 3 or offset + block.length > len(view):
            return
        offset += block.length
