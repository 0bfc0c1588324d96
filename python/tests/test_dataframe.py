import csv
import datetime
import io
import math
import subprocess

import numpy as np
import pandas as pd
import pytest

import kovrel
from conftest import block

COLUMNS = ("block,offset,packet,time,cat,uap,record,length,valid,block_valid,sac,sic,tod,msgtype,track,"
           "mode3a,fl,callsign,icao,rho,theta,lat,lon,I048/040.rho,I048/070.mode3a,I048/020.typ,"
           "I048/250.bds60.ias,I048/220.aa,I048/240.acid,I048/130.srl.srl,I021/131.lat")


def cell(value, column):
    """The tool's CSV text of a DataFrame cell."""
    if value is None or value is pd.NA or value is pd.NaT or (isinstance(value, float) and math.isnan(value)):
        return ""
    if isinstance(value, (bool, np.bool_)):
        return "true" if value else "false"
    if column == "time":
        return None  # compared as a number below
    if column == "tod":
        seconds = value.total_seconds()
        ms = int(seconds * 1000)
        return f"{ms // 3600000:02d}:{ms // 60000 % 60:02d}:{ms // 1000 % 60:02d}.{ms % 1000:03d}"
    return str(value)


def test_frame_holds_the_tools_csv_values(tool, sample_path):
    out = subprocess.run([tool, "decode", "--columns", COLUMNS, sample_path], check=True,
                         capture_output=True, text=True).stdout
    rows = list(csv.reader(io.StringIO(out)))
    header, rows = rows[0], rows[1:]
    frame = kovrel.to_dataframe(sample_path, columns=COLUMNS)
    assert list(frame.columns) == header
    assert len(frame) == len(rows) > 100
    for name in header:
        for i, (value, text) in enumerate(zip(frame[name], (r[header.index(name)] for r in rows))):
            if name == "time":
                assert abs(value.timestamp() - float(text)) < 1e-6, (name, i)
            elif isinstance(value, float) and text:
                assert value == float(text), (name, i)
            else:
                assert cell(value, name) == text, (name, i, value, text)


@pytest.mark.parametrize("column, dtype", [
    ("block", "int64"), ("cat", "int64"), ("packet", "Int64"), ("length", "Int64"), ("sac", "Int64"),
    ("track", "Int64"), ("valid", "bool"), ("fl", "float64"), ("rho", "float64"), ("uap", "category"),
    ("callsign", "category"), ("mode3a", "category"), ("icao", "category"), ("msgtype", "category"),
    ("time", "datetime64[ns, UTC]"), ("tod", "timedelta64[ns]"), ("I048/020.typ", "Int64"),
    ("I048/040.rho", "float64"), ("I048/070.mode3a", "category"), ("I048/240.acid", "category"),
])
def test_column_types(sample_path, column, dtype):
    frame = kovrel.to_dataframe(sample_path, columns=[column])
    assert str(frame[column].dtype) == dtype


def test_time_of_day_on_a_date():
    octets = block(48, "f0 1901 46591c a0 2bb08dda", "d0 1902 465a00 0a800100")
    frame = kovrel.to_dataframe(octets, columns="tod,sic,I048/020.typ", date=datetime.date(2024, 5, 14))
    assert list(frame["tod"]) == [pd.Timestamp("2024-05-14 10:00:18.21875", tz="UTC"),
                                  pd.Timestamp("2024-05-14 10:00:20", tz="UTC")]
    assert list(frame["sic"]) == [1, 2]
    # the second record has no I048/020
    assert frame["I048/020.typ"][0] == 5 and frame["I048/020.typ"][1] is pd.NA


def test_item_fields_and_misspelt_paths():
    # I048/040.rho of the first record; a misspelt path stays empty.
    frame = kovrel.to_dataframe(block(48, "d0 1902 465a00 0a800100"), columns="I048/040.rho,I048/040.nope")
    assert frame["I048/040.rho"][0] == 10.5
    assert frame["I048/040.nope"].isna().all()


def test_default_columns_and_bad_ones(sample_path):
    frame = kovrel.to_dataframe(sample_path)
    assert list(frame.columns)[:6] == ["block", "offset", "cat", "uap", "record", "valid"]
    with pytest.raises(ValueError, match="unknown column 'speeed'"):
        kovrel.to_dataframe(sample_path, columns="cat,speeed")
    with pytest.raises(ValueError, match="keywords"):
        kovrel.to_dataframe(sample_path, filter="cat=48")


def test_filters_keep_the_matching_rows(sample_path, tool_json):
    frame = kovrel.to_dataframe(sample_path, columns="cat,sac,sic,callsign", filter=["sacsic=025/001", "type=Track"])
    expected = [r for r in tool_json if r["fields"].get("sac") == 25 and r["fields"].get("sic") == 1
                and r["fields"].get("msgtype") == "Track"]
    assert len(expected) > 0
    assert len(frame) == len(expected)
    assert set(frame["sic"]) == {1}


def test_empty_input_gives_an_empty_frame():
    with pytest.warns(kovrel.DecodeWarning, match="empty input"):
        frame = kovrel.to_dataframe(b"", columns="cat,sac,I048/040.rho")
    assert len(frame) == 0 and list(frame.columns) == ["cat", "sac", "I048/040.rho"]


def test_text_columns_tell_every_value_apart():
    # Callsigns that are prefixes of each other, codes and addresses met
    # again after others: each distinct value is one category, in the order
    # first met, and every row points at its own.
    rows = [("ABCDEFGH", "7700", "ABCDEF"), ("ABCDEFG", "0007", "000001"), ("A", "7700", "ABCDEF"),
            ("ABCDEFG", "0000", "000001"), ("ABCDEFGH", "7777", "FFFFFF")]
    octets = kovrel.encode([{"cat": 48, "fields": {"sac": 25, "sic": 1, "callsign": c, "mode3a": m, "icao": i}}
                            for c, m, i in rows])
    frame = kovrel.to_dataframe(octets, columns="callsign,mode3a,icao,uap,msgtype")
    for n, name in enumerate(("callsign", "mode3a", "icao")):
        assert list(frame[name]) == [r[n] for r in rows], name
    assert list(frame["callsign"].cat.categories) == ["ABCDEFGH", "ABCDEFG", "A"]
    assert list(frame["mode3a"].cat.categories) == ["7700", "0007", "0000", "7777"]
    assert list(frame["uap"].cat.categories) == ["standard"]
    assert list(frame["msgtype"]) == ["Plot"] * len(rows)


@pytest.mark.parametrize("dense_first", [True, False])
def test_long_raw_inputs_keep_every_row(tmp_path, dense_first):
    # The columns are sized from the first part of a raw input; a part that
    # holds many more (or fewer) records per octet than the rest must not
    # lose or add a row.
    dense = block(48, *["d0 1902 465a00 0a800100"] * 60)  # 60 records in 603 octets
    sparse = kovrel.encode([{"cat": 48, "fields": {"sac": 25, "sic": 3},
                             "items": [{"id": "I048/SPF", "hex": "ff" + "ab" * 254}]}] * 8)
    parts = [dense * 600, sparse * 200]  # about 360 KB and 420 KB
    if not dense_first:
        parts.reverse()
    path = tmp_path / "long.ast"
    path.write_bytes(b"".join(parts))
    frame = kovrel.to_dataframe(str(path), columns="block,record,sic,tod,rho")
    records = list(kovrel.decode(str(path)))
    assert len(frame) == len(records) == 600 * 60 + 200 * 8
    assert list(frame["block"]) == [r["block"] for r in records]
    assert list(frame["record"]) == [r["record"] for r in records]
    assert list(frame["sic"]) == [r["fields"]["sic"] for r in records]
    assert frame["rho"].isna().sum() == 200 * 8
    assert frame["tod"].isna().sum() == 200 * 8
