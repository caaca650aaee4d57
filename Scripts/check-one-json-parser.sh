#!/usr/bin/env bash
# Fails when code of the core or the host parses JSON other than through FOrvJson::Parse, the one entry
# point that parses without recursion and bounds the nesting depth (RapidJSON's own recursive Parse lets
# deeply nested input overflow the stack).
set -uo pipefail
cd "$(dirname "$0")/.."
found=$(grep -rnE '(\.|->)(Parse|ParseInsitu|ParseStream)[<(]|GenericReader|rapidjson::Reader\b' \
    Source/OrvessaWebBridge/Private/Core Host --include='*.h' --include='*.cpp' |
    grep -v '^Source/OrvessaWebBridge/Private/Core/Json/OrvJson.cpp:')
if [ -n "$found" ]; then
    echo "JSON parsed outside FOrvJson::Parse:"
    echo "$found"
    exit 1
fi
echo "JSON: every parse goes through FOrvJson::Parse."
