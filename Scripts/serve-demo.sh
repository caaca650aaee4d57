#!/usr/bin/env bash
# Builds orv-host and serves the AI tool endpoint on the built-in demo room at http://127.0.0.1:30011/mcp
# and the catalogue panel at http://127.0.0.1:30012/ (both URLs are printed; sign in as demo / demo).
# Extra arguments go to `orv-host serve` (e.g. --port 30021, --panel-port 0, --site my-build).
set -euo pipefail
cd "$(dirname "$0")/.."

bash Scripts/install-deps.sh --serve
cmake -S . -B build -G Ninja -DCMAKE_BUILD_TYPE=Release -DORV_BUILD_TESTS=OFF -DORV_BUILD_BENCHMARKS=OFF >/dev/null
cmake --build build --target orv-host
exec ./build/orv-host serve "$@"
