#!/usr/bin/env bash
# Fails when a C++ file of the project is not formatted as .clang-format says.
set -uo pipefail
cd "$(dirname "$0")/.."
unformatted=()
while IFS= read -r file; do
    clang-format --dry-run -Werror "$file" >/dev/null 2>&1 || unformatted+=("$file")
done < <(git ls-files '*.h' '*.cpp' 2>/dev/null || find Source Host Tests Benchmarks -name '*.h' -o -name '*.cpp')
if [ ${#unformatted[@]} -gt 0 ]; then
    echo "Not formatted as .clang-format says (fix with: clang-format -i FILE):"
    printf '    %s\n' "${unformatted[@]}"
    exit 1
fi
echo "Formatting: every C++ file follows .clang-format."
