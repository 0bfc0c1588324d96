import pytest

import kovrel


@pytest.mark.parametrize("record, octets", [
    ({"cat": 48, "fields": {"sac": 25, "sic": 1, "tod": "10:00:18.218", "rho": 43.6875,
                            "theta": 199.478759765625}},
     "30000e f0 1901 46591c 40 2bb08dda"),
    ({"cat": 62, "items": [{"id": "I062/010", "hex": "19 64"}, {"id": "I062/060", "fields": {"mode3a": "7700"}}]},
     "3e0009 8140 1964 0fc0"),
])
def test_records_become_wire_octets(record, octets):
    assert kovrel.encode([record]).hex() == octets.replace(" ", "")


def test_decoded_records_encode_back_to_their_items(tool_json):
    records = [r for r in tool_json if r["cat"] == 48 and r["valid"]]
    items_only = [{"cat": 48, "uap": r["uap"], "items": r["items"]} for r in records]
    again = list(kovrel.decode(kovrel.encode(items_only)))
    assert len(again) == len(records)
    for before, after in zip(records, again):
        assert [(i["id"], i["hex"]) for i in after["items"]] == [(i["id"], i["hex"]) for i in before["items"]]


def test_records_share_blocks():
    one = {"cat": 48, "fields": {"sac": 25, "sic": 1}}
    octets = kovrel.encode([one] * 5, block_records=2)
    assert [r["block"] for r in kovrel.decode(octets)] == [1, 1, 2, 2, 3]
    assert kovrel.encode([]) == b""


@pytest.mark.parametrize("records, index, field, text", [
    ([{"cat": 48, "fields": {"sac": 25, "sic": 1}}, {"cat": 48, "fields": {"sac": 25}}], 1, None, "sic"),
    ([{"cat": 48, "fields": {"sac": 256, "sic": 1}}], 0, "sac", "from 0 to 255"),
    ([{"cat": 48, "fields": {"sac": 1, "sic": 1, "colour": "red"}}], 0, None, "colour"),
    ([{"cat": 48, "items": [{"id": "I048/040", "fields": {"rho": "far", "theta": 1}}]}], 0, "I048/040.rho", ""),
    ([{"cat": 48, "uap": "nope", "fields": {"sac": 1, "sic": 1}}], 0, None, "nope"),
])
def test_bad_records_raise_naming_record_and_field(records, index, field, text):
    with pytest.raises(kovrel.EncodeError) as caught:
        kovrel.encode(records)
    assert caught.value.record == index
    if field:
        assert caught.value.field == field
    assert text in caught.value.reason
    assert str(caught.value).startswith(f"record {index}: ")


def test_default_profile_for_records_without_one():
    octets = kovrel.encode([{"cat": 1, "fields": {"sac": 1, "sic": 2, "msgtype": "Plot"}}], uap="cat001_plot")
    (record,) = kovrel.decode(octets, uap="cat001_plot")
    assert record["fields"]["sic"] == 2
    with pytest.raises(TypeError):
        kovrel.encode(["not a dict"])
