#!/bin/sh
# Qt's static analysis, clazy, over the plug-in's own code with its level 0
# and level 1 checks. Any finding fails.
#
#   tools/lint.sh [BUILD_DIR [JOBS]]
#
# BUILD_DIR is a configured desktop build (its compile_commands.json gives
# each file's flags); default build.
set -eu

build=${1:-build}
jobs=${2:-$(nproc)}
src=$(cd "$(dirname "$0")/.." && pwd)

# All checks of both levels are on. Should one ever contradict the head
# unit's interface (the slots' names are letter for letter the interface's,
# and connections by SIGNAL/SLOT name are part of it), turn that one off here,
# as no-<check>, with the reason beside it.
CHECKS="level0,level1"

if ! command -v clazy-standalone >/dev/null 2>&1; then
    echo "lint: clazy-standalone is missing; run 'sh tools/setup.sh lint' as root" >&2
    exit 1
fi
if [ ! -f "$build/compile_commands.json" ]; then
    echo "lint: no $build/compile_commands.json; configure the build first (make build)" >&2
    exit 1
fi

dirs="plugin|records|host|dialogView|exView|pages|reverse"
files=$(python3 - "$build/compile_commands.json" "$src" "$dirs" <<'PY'
import json, re, sys
commands, src, dirs = sys.argv[1:]
pattern = re.compile(r"^%s/(%s)/.*\.cpp$" % (re.escape(src), dirs))
for entry in json.load(open(commands)):
    if pattern.match(entry["file"]):
        print(entry["file"])
PY
)
[ -n "$files" ] || { echo "lint: no plug-in sources in $build/compile_commands.json" >&2; exit 1; }

log=$(mktemp)
trap 'rm -f "$log"' EXIT
# Findings in the plug-in's headers count; Qt's headers and moc's output don't.
echo "$files" | xargs -P "$jobs" -n 4 clazy-standalone -p "$build" -checks="$CHECKS" \
    -header-filter="^$src/($dirs)/" -ignore-dirs="_autogen|/usr/" >"$log" 2>&1 || true

# A finding in a header is reported once for each file that includes it.
findings=$(grep -E "(warning|error):" "$log" | sort -u | wc -l)
count=$(echo "$files" | wc -l)
if [ "$findings" -ne 0 ]; then
    grep -E "(warning|error):" "$log" | sort -u >&2
    echo "lint: clazy ($CHECKS): $findings findings in $count files" >&2
    exit 1
fi
echo "lint: clazy ($CHECKS): no finding in $count files"
