"""The examples of docs/ run as documented."""

import importlib.util
import os

import pandas as pd

import kovrel

DOCS = os.path.join(os.path.dirname(__file__), "..", "..", "docs")


def load(name):
    found = importlib.util.spec_from_file_location(name, os.path.join(DOCS, name + ".py"))
    module = importlib.util.module_from_spec(found)
    found.loader.exec_module(module)
    return module


def test_partitions_decode_on_threads_like_one_by_one(tmp_path):
    partitions = load("partitions")
    paths = []
    for sensor in (1, 2, 3):
        for hour in range(4):
            records = [{"cat": 48, "fields": {"sac": 25, "sic": sensor, "tod": hour * 3600 + i,
                                              "track": i % 7, "rho": 10 + i / 8, "theta": i}}
                       for i in range(300)]
            path = tmp_path / f"sensor{sensor}-{hour:02d}.ast"
            path.write_bytes(kovrel.encode(records))
            paths.append(str(path))
    together = partitions.decode_partitions(paths, workers=4, date="2024-05-14")
    one_by_one = pd.concat([partitions.partition_frame(p, date="2024-05-14") for p in paths], ignore_index=True)
    pd.testing.assert_frame_equal(together, one_by_one)
    assert len(together) == 12 * 300
    assert sorted(together.groupby("partition", observed=True)["sic"].first()) == [1] * 4 + [2] * 4 + [3] * 4
    assert together["tod"].max() == pd.Timestamp("2024-05-14 03:04:59", tz="UTC")


def test_track_plot(sample_path, tmp_path):
    out = tmp_path / "tracks.png"
    frame = load("plot_tracks").plot(sample_path, str(out))
    assert out.stat().st_size > 10000
    assert frame["track"].nunique() > 1
