#!/usr/bin/env bash
# Builds everything with AddressSanitizer and UBSan and runs every test: the engine-free guards, the
# unit and end-to-end suites, the official MCP TypeScript SDK client against the host, the catalogue
# panel in headless Chromium, and a minute of fuzzing over the seeds and past crashes.
set -euo pipefail
cd "$(dirname "$0")/.."

bash Scripts/install-deps.sh
(cd Tests/Interop && npm ci --no-audit --no-fund --loglevel=error)
(cd Tests/Browser && npm ci --no-audit --no-fund --loglevel=error)

bash Scripts/check-format.sh

build=${ORV_TEST_BUILD_DIR:-build-test}
cmake -S . -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=Debug -DORV_SANITIZE=ON -DORV_BUILD_BENCHMARKS=ON
cmake --build "$build" -j"$(nproc)"
export ASAN_OPTIONS=detect_leaks=1:abort_on_error=1
export UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1
ctest --test-dir "$build" --output-on-failure -j"$(nproc)"

bash Scripts/fuzz.sh --ci
