#!/usr/bin/env bash
# Type-checks every Unreal-side source (each .cpp and .h under Source/OrvessaWebBridge outside Private/Core)
# with clang -fsyntax-only against the declared engine API surface in Tools/UnrealSurface and the core,
# with the engine's defines: once without the maker's closed modules (ORV_WITH_CLOSED_MODULES=0) and once
# with them (=1). A call, type or header the surface does not declare fails the check.
set -uo pipefail
cd "$(dirname "$0")/.."

usage() {
    cat <<'EOF'
Usage: bash Scripts/check-unreal.sh [--closed 0|1] [--define NAME[=VALUE]]... [FILE...]

Type-checks the Unreal-side sources (or only FILEs) against Tools/UnrealSurface, the declared Unreal
Engine 5.6 API, with clang -fsyntax-only, C++20, no exceptions, no RTTI, -Wall -Wextra -Wshadow -Wundef
-Werror and the engine's defines (WITH_EDITOR=1, WITH_METADATA=1, ...). Without --closed, every file is
checked twice: ORV_WITH_CLOSED_MODULES=0 and =1. The maker's headers (Tools/UnrealSurface/Closed) are
visible only to files in the glue folders (Source/OrvessaWebBridge/Private/Unreal/Closed), and only with
=1. Headers with GENERATED_BODY get a "<Name>.generated.h" as the engine's header tool would write it.

When the check says "undeclared" or "header not in the surface" for an engine name, declare it:
  1. Find the engine header that declares it: the API page on dev.epicgames.com names it ("Header File",
     "Include Path").
  2. Open, or create, Tools/UnrealSurface/Engine/<that include path> (Tools/UnrealSurface/Closed/ for the
     maker's OrvCore and OrvImport, marked ASSUMED). A new file starts with #pragma once and two comment
     lines: "// Engine: <engine path> (module <Module>)" and "// Docs: <the API page URL>".
  3. Declare only what the source uses, with the 5.6 signature exactly: parameter types, const, default
     arguments. No bodies: nothing is linked. Write [unconf] beside anything not confirmed for 5.6.
  4. If the engine module is new to the plugin, add it to Source/OrvessaWebBridge/OrvessaWebBridge.Build.cs.
Tools/UnrealSurface/README.md has the conventions and the stand-ins for UCLASS, delegates and Slate.

Options:
  --closed 0|1     check with that setting only
  --define X[=V]   pass -DX[=V] to the compiler (the surface's own tests use this)
  FILE...          check only these files (any path; the folders that hold them are scanned for
                   GENERATED_BODY headers)
EOF
}

surface=Tools/UnrealSurface
module=Source/OrvessaWebBridge
# Folders whose files may include the maker's headers; add one here if glue must live elsewhere.
glue_dirs=("$module/Private/Unreal/Closed")

settings=(0 1)
defines=()
files=()
while [ $# -gt 0 ]; do
    case "$1" in
    -h | --help) usage; exit 0 ;;
    --closed) settings=("$2"); shift 2 ;;
    --define) defines+=("-D$2"); shift 2 ;;
    *) files+=("$1"); shift ;;
    esac
done

if ! command -v clang++ >/dev/null 2>&1; then
    echo "clang++ not found: run Scripts/install-deps.sh (it installs clang)."
    exit 1
fi

if [ ${#files[@]} -eq 0 ]; then
    mapfile -t files < <(find "$module" -path "$module/Private/Core" -prune -o \( -name '*.cpp' -o -name '*.h' \) -print | sort)
    scan_dirs=("$module")
    scan_depth=()
else
    mapfile -t scan_dirs < <(for file in "${files[@]}"; do dirname "$file"; done | sort -u)
    scan_depth=(-maxdepth 1)
fi

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
mkdir -p "$work/generated" "$work/include" "$work/logs"
ln -s /usr/include/rapidjson "$work/include/rapidjson"

# --- The header tool's part: for every header with GENERATED_BODY, "<Name>.generated.h" defines, under
# that file's CURRENT_FILE_ID, one GENERATED_BODY macro per line it is used on.
uht_errors=$work/uht-errors
: >"$uht_errors"
while IFS= read -r header; do
    name=$(basename "$header" .h)
    file_id="FID_$(echo "$header" | tr -c 'A-Za-z0-9\n' '_')"
    perl -e '
        my ($FileId, $Header, $Name) = @ARGV;
        open(my $In, "<", $Header) or die "$Header: $!\n";
        my ($Pending, $Class, $Super, $Kind, $LastInclude, $Generated, @Bodies);
        while (my $Line = <$In>) {
            $Line =~ s{//.*}{};
            if ($Line =~ /^\s*#\s*include\s*["<]([^">]+)/) { $LastInclude = $1; $Generated = $. if $1 eq "$Name.generated.h"; }
            if ($Line =~ /^\s*(UCLASS|USTRUCT|UINTERFACE)\s*\(/) { $Pending = $1; next; }
            if ($Pending && $Line =~ /^\s*(?:class|struct)\s+(?:[A-Z0-9_]+_API\s+)?(\w+)(?:\s+final)?(?:\s*:\s*(?:public\s+)?(\w+))?/) {
                ($Class, $Super, $Kind, $Pending) = ($1, $2, $Pending, undef);
                next;
            }
            next unless $Line =~ /\bGENERATED_BODY\s*\(/;
            die "$Header:$.: GENERATED_BODY follows no UCLASS or USTRUCT\n" unless $Class;
            my $Body = "public: " . ($Super ? "using Super = $Super; " : "") . "using ThisClass = $Class; ";
            $Body .= $Kind eq "USTRUCT" ? "static class UScriptStruct* StaticStruct();" : "static class UClass* StaticClass(); private:";
            push @Bodies, "#define ${FileId}_$._GENERATED_BODY $Body\n";
        }
        die "$Header: missing #include \"$Name.generated.h\" (the header tool needs it)\n" unless $Generated;
        die "$Header: #include \"$Name.generated.h\" must be the last #include (the header tool requires it)\n"
            unless $LastInclude eq "$Name.generated.h";
        print "// Written by Scripts/check-unreal.sh in the header tool\x27s place.\n";
        print "#ifdef ${FileId}_GENERATED\n#error \"$Name.generated.h included twice: $Name.h needs #pragma once\"\n#endif\n";
        print "#define ${FileId}_GENERATED\n", @Bodies, "#undef CURRENT_FILE_ID\n#define CURRENT_FILE_ID $FileId\n";
    ' "$file_id" "$header" "$name" >"$work/generated/$name.generated.h" 2>>"$uht_errors"
done < <(find "${scan_dirs[@]}" "${scan_depth[@]}" -name '*.h' -not -path "$module/Private/Core/*" -print0 |
    xargs -0 grep -l 'GENERATED_BODY' 2>/dev/null | sort)

# --- One clang per file and setting.
check_one() {
    local setting=$1 file=$2
    local log="$WORK/logs/$(echo "$setting:$file" | tr '/:' '__').log"
    local args=(-fsyntax-only -std=c++20 -fno-exceptions -fno-rtti -ferror-limit=20
        -Wall -Wextra -Wshadow -Wundef -Werror -Wno-unused-parameter
        -Wno-undefined-inline -Wno-undefined-internal
        -DWITH_EDITOR=1 -DWITH_EDITORONLY_DATA=1 -DWITH_METADATA=1 -DWITH_ENGINE=1 -DUE_EDITOR=1
        -DUE_BUILD_DEBUG=0 -DUE_BUILD_DEVELOPMENT=1 -DUE_BUILD_SHIPPING=0
        -DPLATFORM_WINDOWS=1 -DPLATFORM_LINUX=0 -DPLATFORM_MAC=0
        -DORVESSAWEBBRIDGE_API= -DORV_WITH_CLOSED_MODULES="$setting" $DEFINES
        -I "$SURFACE/Engine" -I "$MODULE/Private" -I "$MODULE/Public" -I "$WORK/generated" -isystem "$WORK/include")
    if [ "$setting" = 1 ]; then
        local dir
        for dir in $GLUE_DIRS; do
            case "$file" in "$dir"/*) args+=(-I "$SURFACE/Closed") ;; esac
        done
    fi
    case "$file" in *.h) args+=(-Wno-pragma-once-outside-header) ;; esac
    clang++ "${args[@]}" -x c++ "$file" >"$log" 2>&1 || echo "$setting $file" >>"$WORK/failed"
}
export -f check_one
export WORK=$work SURFACE=$surface MODULE=$module GLUE_DIRS="${glue_dirs[*]}" DEFINES="${defines[*]}"

for setting in "${settings[@]}"; do
    for file in "${files[@]}"; do
        echo "$setting $file"
    done
done | xargs -P "$(nproc)" -L 1 bash -c 'check_one "$0" "$1"'

# --- Report: what is missing, in a line each, then the compiler's own words.
explain() {
    sed -nE \
        -e "s/.*fatal error: '([^']+)' file not found.*/header not in the surface: \1/p" \
        -e "s/.*error: no member named '([^']+)' in (namespace )?'([^']+)'.*/undeclared: \3::\1/p" \
        -e "s/.*error: use of undeclared identifier '([^']+)'.*/undeclared: \1/p" \
        -e "s/.*error: unknown type name '([^']+)'.*/undeclared: type \1/p" \
        -e "s/.*error: no type named '([^']+)' in '([^']+)'.*/undeclared: type \2::\1/p" \
        -e "s/.*error: no matching (member )?function for call to '([^']+)'.*/no declared \2 takes these arguments (check the call, then the declaration's 5.6 signature)/p" \
        -e "s/.*error: cannot initialize a parameter of type '([^']+)'( \(aka [^)]*\))? with an [lr]value of type '([^']+)'.*/wrong argument type: \3 given where \1 is declared/p" \
        -e "s/.*error: too (few|many) arguments to function call, (.*)/too \1 arguments for the declared signature (\2)/p" \
        -e "s/.*error: no viable conversion from '([^']+)' to '([^']+)'.*/wrong argument type: \1 given where \2 is declared/p" \
        -e "s/.*error: '([^']+)' is not defined, evaluates to 0.*/undefined macro in #if: \1/p" \
        -e 's/.*error: static_assert failed[^"]*"([^"]+)".*/\1/p' \
        -e 's/.*error: static assertion failed[^:]*: (.*)/\1/p' \
        "$1" | sort -u
}

status=0
if [ -s "$uht_errors" ]; then
    status=1
    echo "The header tool's stand-in refused:"
    sed 's/^/    /' "$uht_errors"
fi
if [ -s "$work/failed" ]; then
    status=1
    sort -k2 "$work/failed" | while read -r setting file; do
        log="$work/logs/$(echo "$setting:$file" | tr '/:' '__').log"
        echo "FAIL $file (ORV_WITH_CLOSED_MODULES=$setting)"
        explain "$log" | while IFS= read -r line; do
            header=${line#header not in the surface: }
            if [ "$header" != "$line" ] && [ -e "$surface/Closed/$header" ]; then
                echo "    the maker's header $header is visible only in glue folders (${glue_dirs[*]}) with ORV_WITH_CLOSED_MODULES=1"
            else
                echo "    $line"
            fi
        done
        head -n 40 "$log" | sed 's/^/    | /'
    done
    echo "The Unreal-side check failed. How to declare what is missing: bash Scripts/check-unreal.sh --help"
fi
if [ $status -eq 0 ]; then
    echo "Unreal-side check: ${#files[@]} files type-check against Tools/UnrealSurface with ORV_WITH_CLOSED_MODULES=${settings[*]}."
fi
exit $status
