#!/usr/bin/env bash
# Builds the libFuzzer targets of Tests/Fuzz with clang and runs them, one process at a time.
#
#   bash Scripts/fuzz.sh --ci                 every target over its seeds and regressions, then fuzzed
#                                             briefly (about a minute in all); what CI runs
#   bash Scripts/fuzz.sh --minutes N [NAME]   fuzz NAME (McpHandler, SceneFile, ...; default: each target
#                                             in turn) for N minutes; inputs that crash are kept in
#                                             Tests/Fuzz/Regressions/NAME/, new coverage in build-fuzz/corpus
#   bash Scripts/fuzz.sh --list               the targets
#
# A crash stops the run with the sanitizer's report and a non-zero exit; commit the reproducer with the fix.
set -euo pipefail
cd "$(dirname "$0")/.."

mode=""
minutes=""
names=()
while [ $# -gt 0 ]; do
    case "$1" in
        --ci) mode=ci ;;
        --list) mode=list ;;
        --minutes) mode=long; minutes=${2:?--minutes needs a number}; shift ;;
        -h|--help) sed -n '2,12p' "$0"; exit 0 ;;
        *) names+=("$1") ;;
    esac
    shift
done
[ -n "$mode" ] || { sed -n '2,12p' "$0"; exit 2; }

all_names=()
for source in Tests/Fuzz/*Fuzz.cpp; do
    name=$(basename "$source" Fuzz.cpp)
    all_names+=("$name")
done
if [ "$mode" = list ]; then
    printf '%s\n' "${all_names[@]}"
    exit 0
fi
[ ${#names[@]} -gt 0 ] || names=("${all_names[@]}")

build=${ORV_FUZZ_BUILD_DIR:-build-fuzz}
if ! command -v clang++ >/dev/null || ! ls /usr/lib/llvm-*/lib/clang/*/lib/linux/libclang_rt.fuzzer-x86_64.a >/dev/null 2>&1; then
    bash Scripts/install-deps.sh
fi
CC=clang CXX=clang++ cmake -S . -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo -DORV_BUILD_FUZZERS=ON \
    -DORV_BUILD_TESTS=OFF -DORV_BUILD_BENCHMARKS=OFF -DORV_UNITY_CHECK=OFF >/dev/null
targets=()
for name in "${names[@]}"; do
    targets+=("orv-fuzz-$(echo "$name" | sed -E 's/([a-z0-9])([A-Z])/\1-\2/g' | tr '[:upper:]' '[:lower:]')")
done
cmake --build "$build" -j"$(nproc)" --target "${targets[@]}"

export ASAN_OPTIONS=detect_leaks=1:abort_on_error=1
export UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1:suppressions=$PWD/Tests/Fuzz/ubsan.supp
if [ "$mode" = ci ]; then
    seconds=$(( 60 / ${#names[@]} ))
    [ "$seconds" -ge 5 ] || seconds=5
else
    seconds=$(( minutes * 60 ))
fi

for index in "${!names[@]}"; do
    name=${names[$index]}
    executable="$build/fuzz/${targets[$index]}"
    regressions="Tests/Fuzz/Regressions/$name"
    corpus="$build/corpus/$name" # what the fuzzer finds stays out of the repository
    mkdir -p "$corpus" "$regressions"
    echo "== $name: ${seconds}s over Tests/Fuzz/Corpus/$name and $regressions"
    # Seeds and past crashes run first, as corpus; then mutation, for the time given. New crashes land
    # in the regressions folder, named by libFuzzer (crash-<sha1>, leak-..., timeout-...).
    log="$build/fuzz-$name.log"
    set +e
    TIMEFORMAT="== $name: %U s user + %S s system CPU"
    time "$executable" -max_total_time="$seconds" -timeout=10 -rss_limit_mb=2048 -max_len=65536 \
        -print_final_stats=1 -dict="Tests/Fuzz/Dictionaries/$name.dict" -artifact_prefix="$regressions/" \
        "$corpus" "Tests/Fuzz/Corpus/$name" "$regressions" >"$log" 2>&1
    status=$?
    set -e
    if [ "$status" -ne 0 ]; then
        tail -n 80 "$log"
        echo "== $name: FAILED (exit $status); the reproducer is in $regressions/" >&2
        exit "$status"
    fi
    grep -E '^(#[0-9]+ +DONE|stat::(number_of_executed_units|peak_rss_mb|new_units_added))' "$log" || true
done
echo "Fuzzing: every target ran clean."
