#!/usr/bin/env bash
# Builds the portable core for Windows x64 with mingw-w64, the way the engine's build sees it: C++20, no
# exceptions, no RTTI, warnings as errors, <windows.h> (as the engine includes it) and the engine's
# function-like macros in front of every file. So a `long` that is 32 bits on Windows, a printf format
# that only fits glibc, or a name that a Windows or engine macro rewrites fails here, on Linux.
set -uo pipefail
cd "$(dirname "$0")/.."

if [ "${1:-}" = "--help" ] || [ "${1:-}" = "-h" ]; then
    sed -n '2,5s/^# \{0,1\}//p' "$0"
    echo
    echo "Usage: bash Scripts/check-core-windows.sh [CORE_DIR]   (default: Source/OrvessaWebBridge/Private/Core)"
    echo "Needs x86_64-w64-mingw32-g++-posix (Debian package mingw-w64; Scripts/install-deps.sh installs it)."
    exit 0
fi

core=${1:-Source/OrvessaWebBridge/Private/Core}
compiler=x86_64-w64-mingw32-g++-posix
if ! command -v "$compiler" >/dev/null 2>&1; then
    echo "$compiler not found: run Scripts/install-deps.sh (it installs mingw-w64)."
    exit 1
fi

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

# RapidJSON is header-only; the Linux copy serves, from a folder that holds nothing else.
mkdir -p "$work/include"
ln -s /usr/include/rapidjson "$work/include/rapidjson"

# What the engine has seen before any of our code: the Windows headers as its MinWindows.h includes them,
# then the engine's macros.
cat >"$work/OrvWindowsPrelude.h" <<'EOF'
#define NOMINMAX
#define WIN32_LEAN_AND_MEAN
#include <windows.h>
EOF

flags=(-std=c++20 -fno-exceptions -fno-rtti -Wall -Wextra -Wshadow -Wundef -Werror
    -D_WIN64 -DUNICODE -D_UNICODE
    -include "$work/OrvWindowsPrelude.h" -include Tests/Support/OrvEngineMacroShim.h
    -I Source/OrvessaWebBridge/Private -isystem "$work/include")

# One compiler per core; each file's diagnostics go to its own log, named after the file.
compile_one() {
    local log="$work/$(echo "$1" | tr / _).log"
    "$compiler" "${flags[@]}" -c "$1" -o "${log%.log}.o" >"$log" 2>&1 || echo "$1" >>"$work/failed"
}
export -f compile_one
export work compiler
export flags_text="${flags[*]}"
mapfile -t sources < <(find "$core" -name '*.cpp' | sort)
printf '%s\n' "${sources[@]}" | xargs -P "$(nproc)" -I{} bash -c 'read -ra flags <<<"$flags_text"; compile_one "$1"' _ {}
status=0
if [ -s "$work/failed" ]; then
    status=1
    echo "The core does not build for Windows x64 (mingw-w64, LLP64, <windows.h> and engine macros in front):"
    sort "$work/failed" | while read -r file; do
        echo "--- $file"
        cat "$work/$(echo "$file" | tr / _).log"
    done
else
    echo "The core builds for Windows x64: ${#sources[@]} files, mingw-w64, C++20, no exceptions, no RTTI, <windows.h> and engine macros in front."
fi
exit $status
