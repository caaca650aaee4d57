#!/usr/bin/env bash
# The Unreal-side check accepts correct engine code and refuses, with a message naming the fault, each
# kind of mistake it exists to catch before an engine build does.
set -uo pipefail
cd "$(dirname "$0")/../.."

probes=Tests/Unreal/Probes
failures=0

expect() {
    local want=$1 name=$2 message=$3
    shift 3
    local output status
    output=$(bash Scripts/check-unreal.sh "$@" 2>&1)
    status=$?
    if { [ "$want" = pass ] && [ $status -eq 0 ]; } ||
        { [ "$want" = fail ] && [ $status -ne 0 ] && grep -qF -- "$message" <<<"$output"; }; then
        echo "ok    $name"
    else
        echo "WRONG $name: expected to $want${message:+ saying \"$message\"}; the check printed:"
        sed 's/^/      /' <<<"$output" | head -n 30
        failures=$((failures + 1))
    fi
}

expect pass "correct engine calls, delegates, UE_LOG, Slate and a reflected class" "" \
    --closed 1 "$probes/OrvSurfaceProbes.cpp"

# Probe name | what the check must say
while IFS='|' read -r probe message; do
    expect fail "$probe" "$message" --closed 0 --define "ORV_PROBE_$probe" "$probes/OrvSurfaceProbes.cpp"
done <<'EOF_PROBES'
UNDECLARED_MEMBER|undeclared: UEditorEngine::GetSelectedComponents
UNDECLARED_HEADER|header not in the surface: Subsystems/EditorActorSubsystem.h
MISSING_ARGUMENT|too few arguments for the declared signature
LOG_FSTRING|pass an FString as *Text
LOG_COUNT|the format's % specifiers and the arguments differ in number
LOG_VERBOSITY|undeclared: ELogVerbosity::Info
LAMBDA_SIGNATURE|no declared CreateLambda takes these arguments
METHOD_SIGNATURE|no declared CreateRaw takes these arguments
SLATE_NAME|undeclared: SOrvProbeWidget::FArguments::Cuont
SLATE_TYPE|wrong argument type: const wchar_t[6] given where int32 is declared
MOVE_CONST|MoveTemp called on a const object
FLAG_TYPO|undefined macro in #if: ORV_WITH_CLOSED_MODULE
EOF_PROBES

expect fail "the maker's header outside the glue folders" "visible only in glue folders" \
    --closed 1 --define ORV_PROBE_CLOSED_HEADER "$probes/OrvSurfaceProbes.cpp"
expect fail "a reflected class without its generated include" \
    'missing #include "OrvProbeNoGeneratedInclude.generated.h"' "$probes/Forgotten/OrvProbeNoGeneratedInclude.h"

if [ $failures -ne 0 ]; then
    echo "$failures of the Unreal-side check's expectations failed."
    exit 1
fi
echo "The Unreal-side check accepts correct engine code and refuses each fault, saying which."
