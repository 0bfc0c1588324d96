"""Plots the CAT048 tracks of a recording, one line per track number.

    python3 docs/plot_tracks.py radar.pcap tracks.png
"""

import sys

import matplotlib

matplotlib.use("Agg")
import matplotlib.pyplot as plt
import numpy as np

import kovrel


def plot(source, out):
    frame = kovrel.to_dataframe(source, columns="cat,track,rho,theta,callsign")
    frame = frame[(frame["cat"] == 48) & frame["track"].notna() & frame["rho"].notna()]
    azimuth = np.radians(frame["theta"].to_numpy())
    frame = frame.assign(x=frame["rho"] * np.sin(azimuth), y=frame["rho"] * np.cos(azimuth))
    fig, ax = plt.subplots(figsize=(8, 8))
    for track, points in frame.groupby("track"):
        ax.plot(points["x"], points["y"], marker=".", linewidth=1, label=str(track))
    ax.set_xlabel("east (NM)")
    ax.set_ylabel("north (NM)")
    ax.set_aspect("equal")
    ax.set_title(f"{frame['track'].nunique()} tracks")
    fig.savefig(out, dpi=100)
    return frame


if __name__ == "__main__":
    plot(sys.argv[1], sys.argv[2] if len(sys.argv) > 2 else "tracks.png")
