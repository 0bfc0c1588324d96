"""Recorder framings and fragmented captures: the records come out located
and timed as the tool gives them, from bytes and from files."""

import json
import subprocess
import warnings

import pytest

import kovrel
from conftest import block

# Blocks of one CAT048 record each, told apart by their SIC.
B7 = block(48, "80 0707")
B8 = block(48, "80 0708")
B9 = block(48, "80 0709")


def oradis(ms, *blocks):
    body = b"".join(blocks)
    return (len(body) + 6).to_bytes(2, "big") + ms.to_bytes(4, "big") + body


def final(day, centis, *blocks):
    body = b"".join(blocks)
    return ((len(body) + 12).to_bytes(2, "big") + bytes([1, 2, day]) + centis.to_bytes(3, "big") + body +
            b"\xa5" * 4)


def length(*blocks):
    body = b"".join(blocks)
    return len(body).to_bytes(2, "big") + body


# Each framed input, and (packet, offset, time, sic) of its records.
FRAMED = [
    ("oradis", oradis(3600500, B7) + oradis(3601000, B8, B9),
     [(1, 6, 3600.5, 7), (2, 6, 3601.0, 8), (2, 6 + len(B8), 3601.0, 9)]),
    ("final", final(2, 360050, B7) + final(2, 360100, B8) + final(3, 0, B9),
     [(1, 8, 2 * 86400 + 3600.5, 7), (2, 8, 2 * 86400 + 3601.0, 8), (3, 8, 3 * 86400.0, 9)]),
    ("length", length(B7, B8) + length(B9),
     [(None, 2, None, 7), (None, 2 + len(B7), None, 8), (None, 2 + len(B7) + len(B8) + 2, None, 9)]),
]


def located(records):
    return [(r.get("packet"), r["offset"], r.get("time"), r["fields"]["sic"]) for r in records]


def tool_records(tool, path, *options):
    out = subprocess.run([tool, "decode", "--format", "json", *options, str(path)], check=True,
                         capture_output=True, text=True).stdout
    return [json.loads(line) for line in out.splitlines()]


def without_input(records):
    return [{k: v for k, v in r.items() if k != "input"} for r in records]


@pytest.mark.parametrize("name,octets,expected", FRAMED, ids=[f[0] for f in FRAMED])
@pytest.mark.parametrize("framing", ["auto", "named"])
def test_framed_inputs_give_the_tools_records(tool, tmp_path, name, octets, expected, framing):
    chosen = name if framing == "named" else "auto"
    path = tmp_path / f"{name}.rec"
    path.write_bytes(octets)
    with warnings.catch_warnings():
        warnings.simplefilter("error")
        from_bytes = list(kovrel.decode(octets, framing=chosen))
        from_file = list(kovrel.decode(str(path), framing=chosen))
        with open(path, "rb") as f:
            from_object = list(kovrel.decode(f, framing=chosen))
    assert located(from_bytes) == expected
    assert from_file == from_object
    assert without_input(from_bytes) == without_input(from_file)
    assert from_file == tool_records(tool, path, "--framing", chosen)


def test_dataframe_reads_framings():
    name, octets, expected = FRAMED[0]
    frame = kovrel.to_dataframe(octets, columns="packet,offset,sic", framing=name)
    assert list(zip(frame["packet"], frame["offset"], frame["sic"])) == [(p, o, s) for p, o, _, s in expected]


def test_a_framing_forced_on_other_octets_reports_them():
    # Oradis frames read as plain blocks: the frame header is no block.
    with pytest.warns(kovrel.DecodeWarning):
        records = list(kovrel.decode(FRAMED[0][1], framing="none"))
    assert all(r["fields"].get("sic") != 9 for r in records)
    with pytest.raises(ValueError, match="oradis"):
        list(kovrel.decode(B7, framing="ORADIS-2"))


# ---- Captures --------------------------------------------------------------

def _checksum(octets):
    total = sum(int.from_bytes(octets[i:i + 2], "big") for i in range(0, len(octets) - 1, 2))
    if len(octets) % 2:
        total += octets[-1] << 8
    while total >> 16:
        total = (total & 0xFFFF) + (total >> 16)
    return ~total & 0xFFFF


def ipv4_frames(payload, ident=1, fragment=None):
    """Ethernet frames of one UDP datagram 192.0.2.1:4000 -> 192.0.2.2:8600,
    cut into fragments of `fragment` octets of IP payload (a multiple of 8)."""
    udp = (4000).to_bytes(2, "big") + (8600).to_bytes(2, "big") + (len(payload) + 8).to_bytes(2, "big") + \
        b"\0\0" + payload
    step = fragment or len(udp)
    frames = []
    for start in range(0, len(udp), step):
        part = udp[start:start + step]
        more = start + step < len(udp)
        flags = (0x2000 if more else 0) | (start // 8)
        header = bytearray(bytes([0x45, 0]) + (20 + len(part)).to_bytes(2, "big") + ident.to_bytes(2, "big") +
                           flags.to_bytes(2, "big") + bytes([64, 17, 0, 0, 192, 0, 2, 1, 192, 0, 2, 2]))
        header[10:12] = _checksum(bytes(header)).to_bytes(2, "big")
        frames.append(b"\x02" * 6 + b"\x04" * 6 + b"\x08\x00" + bytes(header) + part)
    return frames


def pcap(frames, seconds=1000):
    out = bytearray((0xA1B2C3D4).to_bytes(4, "little") + (2).to_bytes(2, "little") + (4).to_bytes(2, "little") +
                    bytes(8) + (65535).to_bytes(4, "little") + (1).to_bytes(4, "little"))
    for i, frame in enumerate(frames):
        out += (seconds + i).to_bytes(4, "little") + (0).to_bytes(4, "little") + \
            len(frame).to_bytes(4, "little") * 2 + frame
    return bytes(out)


# Each capture, and (packet, offset, time, sic) of its records.
CAPTURES = [
    ("oradis payload", pcap(ipv4_frames(oradis(10, B7) + oradis(20, B8, B9))),
     [(1, 6, 1000.0, 7), (1, 12 + len(B7), 1000.0, 8), (1, 12 + len(B7) + len(B8), 1000.0, 9)]),
    ("length payload", pcap(ipv4_frames(B7) + ipv4_frames(length(B8) + length(B9))),
     [(1, 0, 1000.0, 7), (2, 2, 1001.0, 8), (2, 4 + len(B8), 1001.0, 9)]),
    # One datagram in three fragments, followed by a plain one: the
    # reassembled datagram is located at its last fragment.
    ("fragments", pcap(ipv4_frames(B7 + B8 + B9 * 5, fragment=24) +
                       ipv4_frames(B9, ident=2)),
     [(3, 0, 1002.0, 7), (3, len(B7), 1002.0, 8)] +
     [(3, len(B7) + len(B8) + i * len(B9), 1002.0, 9) for i in range(5)] + [(4, 0, 1003.0, 9)]),
]


@pytest.mark.parametrize("name,octets,expected", CAPTURES, ids=[c[0] for c in CAPTURES])
def test_captures_give_the_tools_records(tool, tmp_path, name, octets, expected):
    path = tmp_path / "capture.pcap"
    path.write_bytes(octets)
    with warnings.catch_warnings():
        warnings.simplefilter("error")
        from_bytes = list(kovrel.decode(octets))
        from_file = list(kovrel.decode(str(path)))
    assert located(from_bytes) == expected
    assert from_file == tool_records(tool, path)
    assert without_input(from_bytes) == without_input(from_file)
    assert {(r["src"], r["dst"]) for r in from_file} == {("192.0.2.1:4000", "192.0.2.2:8600")}


def test_a_datagram_missing_a_fragment_is_reported():
    frames = ipv4_frames(B7 + B8 + B9, fragment=8)
    assert len(frames) == 4
    with pytest.warns(kovrel.DecodeWarning, match="1 fragmented datagram incomplete at the end of the capture"):
        records = list(kovrel.decode(pcap(frames[:1] + frames[2:])))
    assert records == []
