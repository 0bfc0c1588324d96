"""Shared inputs: the tool's sample recording and the tool itself.

The build sets KOVREL_SAMPLE (the sample capture) and KOVREL_TOOL (the kovrel
executable); the package decodes exactly as the tool does, so the tool's
outputs are what the package is compared with.
"""

import json
import os
import subprocess

import pytest


def _env_path(name):
    path = os.environ.get(name)
    if not path or not os.path.exists(path):
        pytest.fail(f"{name} must name an existing file (the build sets it for ctest)")
    return path


@pytest.fixture(scope="session")
def sample_path():
    return _env_path("KOVREL_SAMPLE")


@pytest.fixture(scope="session")
def tool():
    return _env_path("KOVREL_TOOL")


@pytest.fixture(scope="session")
def tool_json(tool, sample_path):
    out = subprocess.run([tool, "decode", "--format", "json", sample_path], check=True,
                         capture_output=True, text=True).stdout
    return [json.loads(line) for line in out.splitlines()]


def block(cat, *records):
    """A data block of hexadecimal record texts."""
    body = b"".join(bytes.fromhex(r.replace(" ", "")) for r in records)
    return bytes([cat]) + (len(body) + 3).to_bytes(2, "big") + body
