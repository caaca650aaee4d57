#!/usr/bin/env bash
# Installs what orv-host needs on Debian 12 (run as root).
#
#   bash Scripts/install-deps.sh           everything: building and running the host, and every test
#                                          (GoogleTest, Benchmark, clang for the fuzzers and the Unreal-side
#                                          syntax check, mingw-w64 for the core's Windows build, Chromium and
#                                          Node.js for the browser and MCP SDK suites)
#   bash Scripts/install-deps.sh --serve   only what building and running the host needs
set -euo pipefail

serve_packages=(
    g++ cmake ninja-build pkg-config
    rapidjson-dev libboost1.81-dev libturbojpeg0-dev libcli11-dev
)
test_packages=(
    libgtest-dev libgmock-dev libbenchmark-dev
    clang-format wrk chromium
    clang mingw-w64 libclang-rt-14-dev
)

case "${1:-}" in
    --serve) packages=("${serve_packages[@]}") ;;
    "") packages=("${serve_packages[@]}" "${test_packages[@]}") ;;
    *)
        echo "usage: bash Scripts/install-deps.sh [--serve]" >&2
        exit 2
        ;;
esac

missing=()
for package in "${packages[@]}"; do
    dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'install ok installed' || missing+=("$package")
done
if [ "${1:-}" != "--serve" ]; then
    command -v node >/dev/null 2>&1 || missing+=(nodejs)
    command -v npm >/dev/null 2>&1 || missing+=(npm)
fi

if [ ${#missing[@]} -gt 0 ]; then
    echo "Installing: ${missing[*]}"
    export DEBIAN_FRONTEND=noninteractive
    apt-get update -qq
    apt-get install -y -qq --no-install-recommends "${missing[@]}"
fi
