"""Partitioned recordings: one file per sensor and hour, one DataFrame each.

`partition_frame` maps one partition to a DataFrame. kovrel decodes with the
GIL released, so a thread pool decodes several partitions at once on one
machine; the same function is what a cluster runs per partition:

    # Spark: a DataFrame of partition paths, one row each
    paths.mapInPandas(lambda frames: (partition_frame(p) for f in frames for p in f["path"]),
                      schema=SCHEMA)

    # Dask: one partition per file
    dask.dataframe.from_map(partition_frame, paths)
    # or, over a frame of paths: paths.map_partitions(lambda f: pd.concat(map(partition_frame, f["path"])))
"""

from __future__ import annotations

import concurrent.futures
import os
from typing import Iterable, Optional

import pandas as pd

import kovrel

COLUMNS = ["sac", "sic", "tod", "track", "callsign", "mode3a", "fl", "rho", "theta", "lat", "lon"]


def partition_frame(path: str, columns: Iterable[str] = COLUMNS, date: Optional[str] = None) -> pd.DataFrame:
    """The records of one partition file, with the partition's name."""
    frame = kovrel.to_dataframe(path, columns=list(columns), date=date)
    frame.insert(0, "partition", pd.Categorical([os.path.basename(path)] * len(frame)))
    return frame


def decode_partitions(paths: Iterable[str], workers: int = 4, **options) -> pd.DataFrame:
    """Every partition decoded on a pool of threads, in the order given."""
    with concurrent.futures.ThreadPoolExecutor(max_workers=workers) as pool:
        frames = list(pool.map(lambda p: partition_frame(p, **options), paths))
    return pd.concat(frames, ignore_index=True) if frames else pd.DataFrame()
