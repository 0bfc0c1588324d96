"""Hostile octets through every entry that decodes: the fuzz seeds, the
sample capture and a few thousand buffers mutated from them.

Nothing may crash the interpreter; decode may only warn, Block may only
raise DecodeError, and what comes out keeps its shape.
"""

import pathlib
import random
import warnings

import kovrel
from conftest import block

SEEDS = pathlib.Path(__file__).resolve().parents[2] / "fuzz" / "seeds"
KEYS = {"input", "block", "offset", "cat", "uap", "record", "item_count", "valid", "block_valid", "fields", "items"}


def _seeds(sample_path):
    seeds = [p.read_bytes() for p in sorted(SEEDS.iterdir()) if p.is_file()]
    assert len(seeds) >= 4
    sample = pathlib.Path(sample_path).read_bytes()
    # The capture's head (the file header and first packets) and a few
    # blocks made here: a CAT048 plot, two records, a CAT062 track.
    return seeds + [sample[:4096], block(48, "f0 1901 46591c a0 2bb08dda", "d0 1902 465a00 0a800100"),
                    block(62, "9c 0101 465a00 00001234 000a")]


def _mutate(rng, octets):
    data = bytearray(octets)
    for _ in range(rng.randint(1, 4)):
        what = rng.randrange(5)
        at = rng.randrange(len(data)) if data else 0
        if what == 0 and data:  # one bit
            data[at] ^= 1 << rng.randrange(8)
        elif what == 1 and data:  # one octet
            data[at] = rng.choice((0x00, 0x01, 0x7F, 0x80, 0xFE, 0xFF, rng.randrange(256)))
        elif what == 2:  # cut short
            del data[at:]
        elif what == 3:  # octets inserted
            data[at:at] = bytes(rng.randrange(256) for _ in range(rng.randint(1, 8)))
        elif len(data) >= 3:  # a block length that lies
            data[1:3] = rng.randrange(65536).to_bytes(2, "big")
    return bytes(data)


def _decode_all(octets):
    with warnings.catch_warnings():
        warnings.simplefilter("ignore", kovrel.DecodeWarning)
        try:
            records = list(kovrel.decode(octets))
        except ValueError:  # a capture that cannot be read at all
            return
    for r in records:
        assert KEYS <= r.keys()
        assert r["item_count"] == len(r["items"]) or not r["valid"]


def _objects(octets):
    try:
        blocks = list(kovrel.iter_blocks(octets))
    except kovrel.DecodeError:
        return
    for b in blocks:
        repr(b)
        assert b.valid or b.reason
        for r in b.records:
            repr(r)
            r.to_dict()
            r.fields
            r.detail_html
            for keyword in ("sacsic", "tod", "callsign", "mode3a", "wgs84"):
                r.keyword(keyword)
                r.match(keyword, "1")
            for item in r:
                assert len(item.data) == item.length
                item.summary, item.hex, item.fields, item.detail_html


def test_seeds_and_mutations_decode_without_a_crash(sample_path):
    seeds = _seeds(sample_path)
    rng = random.Random(20241124)
    buffers = seeds + [_mutate(rng, rng.choice(seeds)) for _ in range(3000)]
    for octets in buffers:
        _decode_all(octets)
        _objects(octets)
    # Columns over hostile input: the frame has one row per record decode gives.
    for octets in buffers[:300]:
        with warnings.catch_warnings():
            warnings.simplefilter("ignore", kovrel.DecodeWarning)
            try:
                frame = kovrel.to_dataframe(octets, columns="cat,uap,valid,sac,tod,callsign,I048/040.rho")
                count = sum(1 for _ in kovrel.decode(octets))
            except ValueError:
                continue
        assert len(frame) == count

