import pytest

import kovrel
from conftest import block

PLOT = block(48, "f0 1901 46591c a0 2bb08dda", "d0 1902 465a00 0a800100")


def test_block_records_and_items_over_the_buffer():
    data = bytearray(PLOT)
    blk = kovrel.Block(data)
    assert (blk.category, blk.length, blk.valid, len(blk)) == (48, len(PLOT), True, 2)
    rec = blk[0]
    assert (rec.number, rec.length, rec.uap, len(rec)) == (1, 11, "standard", 4)
    assert [i.id for i in rec] == ["I048/010", "I048/140", "I048/020", "I048/040"]
    rho = rec["I048/040"]
    assert (rho.name, rho.hex, rho.summary) == ("Measured Position in Polar Co-ordinates", "2b b0 8d da",
                                               "RHO:43.7 THETA:199.5")
    assert rho.fields == {"rho": 43.6875, "theta": 199.478759765625}
    # The spans are views of the caller's octets, not copies.
    assert rho.data.obj is data
    data[10] = 0x2C
    assert bytes(rho.data) == bytes.fromhex("2cb08dda")
    assert "I048/040" in rec and "I048/070" not in rec
    with pytest.raises(KeyError):
        rec["I048/070"]


def test_record_views_match_the_stream(sample_path, tool_json):
    octets = open(sample_path, "rb").read()
    first = tool_json[0]
    # the first record's block, found in the capture by its octets
    hexes = bytes.fromhex("".join(i["hex"] for i in first["items"]).replace(" ", ""))
    at = octets.find(hexes)
    assert at > 0
    blk_at = at - 3 - 1 - (first["record"] - 1)  # not needed exactly: search back for the header
    for start in range(at - 8, at):
        try:
            blk = kovrel.Block(octets, start)
        except kovrel.DecodeError:
            continue
        if blk.valid and blk.category == first["cat"] and blk.length == len(octets[start:start + blk.length]):
            rec = blk[first["record"] - 1]
            d = rec.to_dict(input=first["input"], block=first["block"])
            if d["items"] == first["items"]:
                assert d["fields"] == first["fields"] == rec.fields
                break
    else:
        pytest.fail("the first record's block was not found")
    del blk_at


@pytest.mark.parametrize("keyword, text, expected", [
    ("sacsic", "25/1", True), ("sacsic", "25", True), ("sacsic", "25/2", False),
    ("tod", "10:00:18.218", True), ("Timestamp Tx", "10:00:18.218", True),
    ("polar", "R:43.6875 T:199.4788", True), ("callsign", "DLH4AB", False),
])
def test_keyword_search(keyword, text, expected):
    rec = kovrel.Block(PLOT)[0]
    assert rec.match(keyword, text) is expected


def test_keyword_values_and_unknown_keywords():
    rec = kovrel.Block(PLOT)[0]
    assert rec.keyword("sacsic") == "025/001"
    assert rec.keyword("callsign") is None
    with pytest.raises(KeyError, match="unknown keyword"):
        rec.match("colour", "red")


@pytest.mark.parametrize("octets, reason", [
    (b"\x30\x00", "too few for a block header"),
    (b"\x30\x00\x01", "LEN 1 is below 3"),
    (PLOT[:-3], "exceeds"),
    (block(48, "f0 1901 46591c a0 2bb0"), "cannot be delimited"),
])
def test_bad_octets_raise_the_reason(octets, reason):
    with pytest.raises(kovrel.DecodeError, match=reason):
        kovrel.Block(octets)


def test_lenient_blocks_keep_what_was_read():
    blk = kovrel.Block(block(48, "f0 1901 46591c a0 2bb0"), strict=False)
    assert not blk.valid and "cannot be delimited" in blk.reason
    (rec,) = blk.records
    assert not rec.valid and rec.length is None and [i.id for i in rec] == ["I048/010", "I048/140", "I048/020"]
    assert "SAC:025" in rec.detail_html or "025" in rec.detail_html


def test_iter_blocks_walks_a_buffer():
    blocks = list(kovrel.iter_blocks(PLOT + PLOT))
    assert [(b.offset, len(b)) for b in blocks] == [(0, 2), (len(PLOT), 2)]
    with pytest.raises(kovrel.DecodeError):
        list(kovrel.iter_blocks(PLOT + b"\x30"))
