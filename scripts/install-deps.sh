#!/usr/bin/env bash
# Installs the Debian packages that building, testing and the tool need,
# when they are missing. Safe to run again: it does nothing when all are there.
set -euo pipefail
packages=(g++ cmake ninja-build libgtest-dev libgmock-dev libbenchmark-dev libpcap-dev libcli11-dev
          nlohmann-json3-dev clang libclang-rt-14-dev pkg-config binutils git
          pybind11-dev python3-dev python3-pytest python3-numpy python3-pandas python3-matplotlib
          chromium)  # chromium: the HTML report is tested headless (tests/browser)
missing=()
for p in "${packages[@]}"; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q 'install ok installed' || missing+=("$p")
done
[ ${#missing[@]} -eq 0 ] && exit 0
echo "installing: ${missing[*]}"
sudo_cmd=()
if [ "$(id -u)" -ne 0 ]; then sudo_cmd=(sudo); fi
export DEBIAN_FRONTEND=noninteractive
"${sudo_cmd[@]}" apt-get update -qq
"${sudo_cmd[@]}" apt-get install -y -qq --no-install-recommends "${missing[@]}"
