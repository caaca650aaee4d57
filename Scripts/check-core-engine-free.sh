#!/usr/bin/env bash
# Fails when the portable core reaches for the engine or for what engine modules build without.
set -u
core=${1:?usage: check-core-engine-free.sh CORE_DIR}
status=0
report() { echo "$1"; printf '%s\n' "$2" | sed 's/^/    /'; status=1; }

engine_includes=$(grep -rnE '#include\s*[<"](CoreMinimal\.h|Engine/|Editor\.h|UnrealEd|Slate|Widgets/|UObject/|Modules/|HAL/|Misc/|Containers/|Templates/|Async/|Dom/|Serialization/|Http|IImageWrapper|AssetRegistry/)' "$core")
[ -n "$engine_includes" ] && report "Engine headers in the core:" "$engine_includes"

non_core_includes=$(grep -rnE '#include\s*"' "$core" | grep -vE '#include\s*"Core/')
[ -n "$non_core_includes" ] && report "Quoted includes from outside the core:" "$non_core_includes"

# RapidJSON comes in through one wrapper, which silences its warnings for the engine's compilers.
direct_rapidjson=$(grep -rnE '#include\s*<rapidjson/' "$core" | grep -v '/Json/OrvRapidJson\.h:')
[ -n "$direct_rapidjson" ] && report "RapidJSON included around its wrapper (Core/Json/OrvRapidJson.h):" "$direct_rapidjson"

# The maker's closed modules declare FOrv* names of their own; the core's live in one namespace.
outside_namespace=$(find "$core" -name '*.h' ! -name 'OrvRapidJson.h' | sort | while read -r file; do
    grep -q '^namespace OrvWebBridge$' "$file" || echo "$file"
done)
[ -n "$outside_namespace" ] && report "Core headers outside namespace OrvWebBridge:" "$outside_namespace"

# Code only: comments may name the engine calls that a port stands for, and string literals hold
# user-facing sentences ("... and try again.").
code_grep() {
    find "$core" -name '*.h' -o -name '*.cpp' | sort | while read -r file; do
        sed -E 's:"([^"\\]|\\.)*":"":g; s://.*$::; s:^\s*/?\*.*$::' "$file" | grep -nwE "$1" | sed "s|^|$file:|"
    done
}
engine_names=$(code_grep 'UE_LOG|TEXT\(|FString|FName|FText|FVector|TArray|TSharedPtr|TSharedRef|UObject|GEditor')
[ -n "$engine_names" ] && report "Engine types or macros in the core:" "$engine_names"

exceptions=$(code_grep 'throw|try|catch|dynamic_cast|typeid')
[ -n "$exceptions" ] && report "Exceptions or RTTI in the core:" "$exceptions"

[ $status -eq 0 ] && echo "The core is engine-free: no engine headers, types, exceptions or RTTI."
exit $status
