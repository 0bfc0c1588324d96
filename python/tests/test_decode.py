import io
import os
import warnings

import pytest

import kovrel
from conftest import block

# I048/010, 140, 020, 040 of one plot: FSPEC f0.
PLOT = "f0 1901 46591c a0 2bb08dda"
# I048/010, 140, 040 of a second one: FSPEC d0 (no I048/020).
PLOT2 = "d0 1902 465a00 0a800100"


def test_sample_records_equal_the_tools_json(sample_path, tool_json):
    records = list(kovrel.decode(sample_path))
    assert len(records) == len(tool_json) > 100
    for mine, theirs in zip(records, tool_json):
        assert mine == theirs


@pytest.mark.parametrize("opener", [
    lambda p: open(p, "rb").read(),
    lambda p: bytearray(open(p, "rb").read()),
    lambda p: open(p, "rb"),
    lambda p: io.BytesIO(open(p, "rb").read()),
])
def test_every_kind_of_source_gives_the_same_records(sample_path, tool_json, opener):
    source = opener(sample_path)
    records = list(kovrel.decode(source))
    # The input name differs (memory, file object); the rest must not.
    strip = lambda r: {k: v for k, v in r.items() if k != "input"}
    assert [strip(r) for r in records] == [strip(r) for r in tool_json]


@pytest.mark.parametrize("octets, expected", [
    # one block, one record
    (block(48, PLOT), [dict(block=1, offset=0, cat=48, record=1, length=11, valid=True,
                            fields={"sac": 25, "sic": 1, "tod": "10:00:18.218", "msgtype": "Plot",
                                    "rho": 43.6875, "theta": 199.478759765625})]),
    # two records in one block, then a second block at offset 22
    (block(48, PLOT, PLOT2) + block(48, PLOT2),
     [dict(block=1, offset=0, record=1, fields={"sic": 1}),
      dict(block=1, offset=0, record=2, length=10, fields={"sic": 2, "tod": "10:00:20.000", "rho": 10.5}),
      dict(block=2, offset=24, record=1, fields={"sic": 2})]),
])
def test_records_from_wire_octets(octets, expected):
    records = list(kovrel.decode(octets))
    assert len(records) == len(expected)
    for got, want in zip(records, expected):
        want_fields = want.pop("fields")
        for key, value in want.items():
            assert got[key] == value, key
        for key, value in want_fields.items():
            assert got["fields"][key] == value, key


def test_hex_text_is_read_as_octets():
    text = "# one plot\n" + " ".join(f"{b:02x}" for b in block(48, PLOT)) + "\n"
    (record,) = kovrel.decode(text.encode())
    assert [i["id"] for i in record["items"]] == ["I048/010", "I048/140", "I048/020", "I048/040"]
    assert record["items"][3]["hex"] == "2b b0 8d da"
    assert record["items"][3]["summary"] == "RHO:43.7 THETA:199.5"


@pytest.mark.parametrize("octets, warning, valid", [
    # the record's last item is cut off by LEN: the record is yielded, not valid
    (bytes.fromhex("30000c f0 1901 46591c a0 2bb0".replace(" ", "")),
     "block 1 at @0 (CAT048, LEN 12): no profile reads the whole block", [False]),
    # LEN beyond the octets: the block is not decoded
    (bytes.fromhex("30000e f0 1901 46591c a0 2bb0".replace(" ", "")),
     "LEN 14 exceeds the 12 octets available", []),
    # LEN below 3: nothing can be decoded
    (bytes.fromhex("300002ff"), "LEN 2 is below 3", []),
    # two stray octets after a good block
    (block(48, PLOT) + b"\x30\x00", "2 octets left, too few for a block header", [True]),
])
def test_bad_blocks_warn_and_decoding_goes_on(octets, warning, valid):
    with warnings.catch_warnings(record=True) as caught:
        warnings.simplefilter("always")
        records = list(kovrel.decode(octets))
    assert [r["valid"] for r in records] == valid
    texts = [str(w.message) for w in caught if issubclass(w.category, kovrel.DecodeWarning)]
    assert any(t.startswith("(memory): ") and warning in t for t in texts), texts


def test_hostile_octets_never_crash():
    import random
    rng = random.Random(7)
    good = block(48, PLOT, PLOT2)
    for _ in range(2000):
        octets = bytearray(good)
        for _ in range(rng.randint(1, 6)):
            octets[rng.randrange(len(octets))] = rng.randrange(256)
        with warnings.catch_warnings():
            warnings.simplefilter("ignore")
            for record in kovrel.decode(bytes(octets)):
                assert record["cat"] == octets[0]


def test_errors_are_exceptions(tmp_path):
    with pytest.raises(ValueError, match="cannot open"):
        list(kovrel.decode(str(tmp_path / "missing.pcap")))
    with pytest.raises(ValueError, match="unknown profile 'nope'"):
        list(kovrel.decode(b"", uap="nope"))
    with pytest.raises(TypeError):
        list(kovrel.decode(12))
    with pytest.raises(ValueError, match="keywords"):
        list(kovrel.decode(b"", filter="colour=red"))


def test_filter_keeps_what_the_tool_keeps(sample_path, tool_json):
    cases = [
        ("callsign=SWR123", lambda f: f.get("callsign") == "SWR123"),
        ("mode3a=7000", lambda f: f.get("mode3a") == "7000"),
        ("sacsic=025/002", lambda f: f.get("sac") == 25 and f.get("sic") == 2),
    ]
    for text, holds in cases:
        kept = list(kovrel.decode(sample_path, filter=text))
        expected = [r for r in tool_json if holds(r["fields"])]
        assert len(expected) > 0, text
        assert [(r["block"], r["record"]) for r in kept] == [(r["block"], r["record"]) for r in expected], text


def test_a_profile_can_be_forced():
    (record,) = kovrel.decode(block(48, PLOT), uap="standard")
    assert record["uap"] == "standard" and record["valid"]


def test_decoding_is_lazy(tmp_path):
    path = tmp_path / "many.ast"
    path.write_bytes(block(48, PLOT) * 20000)
    records = kovrel.decode(str(path), batch=10)
    first = next(records)
    assert first["block"] == 1
    # The generator holds one batch, not the whole input.
    assert next(records)["block"] == 2
    assert sum(1 for _ in records) == 19998


def test_file_objects_are_read_from_their_position(tmp_path):
    path = tmp_path / "two.ast"
    path.write_bytes(block(48, PLOT) + block(48, PLOT2))
    with open(path, "rb") as f:
        f.seek(14)
        (record,) = kovrel.decode(f)
    assert record["fields"]["sic"] == 2 and record["offset"] == 0


def _resident_kb():
    with open("/proc/self/status") as status:
        return next(int(line.split()[1]) for line in status if line.startswith("VmRSS:"))


@pytest.mark.skipif(not os.path.exists("/proc/self/status"), reason="needs /proc")
def test_decode_streams_a_long_file(tmp_path):
    # 64 MB of records from 025/001 between a first and a last record from
    # 007/007 and 007/008. Read one record at a time and filtered, the
    # records from 007 come out of a decoder that has been through the file:
    # the memory held by then is a small part of the file, at the first
    # record and at the last one.
    filler = kovrel.encode([{"cat": 48, "fields": {"sac": 25, "sic": 1},
                             "items": [{"id": "I048/SPF", "hex": "ff" + "ab" * 254}]}] * 30)
    path = tmp_path / "long.ast"
    with open(path, "wb") as out:
        out.write(block(48, "80 0707"))
        for _ in range((64 << 20) // len(filler)):
            out.write(filler)
        out.write(block(48, "80 0708"))
    size_kb = path.stat().st_size // 1024
    before = _resident_kb()
    records = kovrel.decode(str(path), filter="sacsic=7", batch=1)
    first = next(records)
    assert first["fields"]["sic"] == 7 and first["offset"] == 0
    assert _resident_kb() - before < size_kb // 8
    last = next(records)
    assert last["fields"]["sic"] == 8 and last["offset"] == path.stat().st_size - 6
    assert _resident_kb() - before < size_kb // 4
    assert next(records, None) is None
