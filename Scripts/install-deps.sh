#!/usr/bin/env bash
# Installs what building, running and testing orv-host needs on Debian 12 (run as root), and what the
# Unreal-side checks compile with (clang for the syntax check, mingw-w64 for the core's Windows build).
set -euo pipefail

packages=(
    g++ cmake ninja-build pkg-config
    rapidjson-dev libboost1.81-dev libturbojpeg0-dev libcli11-dev
    libgtest-dev libgmock-dev libbenchmark-dev
    clang-format wrk chromium
    clang mingw-w64 libclang-rt-14-dev
)
missing=()
for package in "${packages[@]}"; do
    dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'install ok installed' || missing+=("$package")
done
command -v node >/dev/null 2>&1 || missing+=(nodejs)
command -v npm >/dev/null 2>&1 || missing+=(npm)

if [ ${#missing[@]} -gt 0 ]; then
    echo "Installing: ${missing[*]}"
    export DEBIAN_FRONTEND=noninteractive
    apt-get update -qq
    apt-get install -y -qq --no-install-recommends "${missing[@]}"
fi
