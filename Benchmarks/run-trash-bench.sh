#!/usr/bin/env bash
# Times emptying a trash through TrashBin (Benchmarks/EmptyTrashBench) against `rm -rf` of the
# same trash and `gio trash --empty`, in one hyperfine run, on a trash filled afresh before every
# run, and prints each as a ratio to rm -rf.
#
# Usage: Benchmarks/run-trash-bench.sh [RUNS] [home|flat] [FILES]
#   RUNS   timed runs per command (default 3).
#   home   (default) the trash holds the top-level items of a synthetic home of FILES files: a
#          few large trashed folders; flat: FILES items trashed one by one (a tenth small folders).
#   FILES  regular files in the trash (default 100,000).
# Works under /tmp with its own HOME and trash. gio returns before the trash is empty (the gvfs
# trash daemon removes the items afterwards), so its command waits until files/ and the daemon's
# expunged/ are empty, inside the same session bus.
# Needs hyperfine (scripts/install-deps with ZEPHRANE_WITH_BENCH_TOOLS=1), gio, gvfs-daemons and
# dbus-run-session (scripts/install-deps).
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
runs=${1:-3}
shape=${2:-home}
files=${3:-100000}
[[ $shape == home || $shape == flat ]] || { echo "shape must be home or flat" >&2; exit 2; }
work=$(mktemp -d /tmp/zephrane-trash-bench-XXXXXX)
trap 'rm -rf "$work"' EXIT
export HOME=$work/home XDG_DATA_HOME=$work/home/.local/share
trash=$XDG_DATA_HOME/Trash
mkdir -p "$trash"
tool=$("$root/Benchmarks/bench-build.sh" EmptyTrashBench)/EmptyTrashBench

flat=()
[[ $shape == flat ]] && flat=(--flat)
cat >"$work/prepare.sh" <<PREPARE
rm -rf "$trash/files" "$trash/info" "$trash/expunged"
python3 "$root/Benchmarks/make-trash.py" "$trash" $files ${flat[*]:-} >/dev/null 2>&1
sync
PREPARE
cat >"$work/gio-empty.sh" <<GIO
gio trash --empty || exit 1
while [ -n "\$(ls -A "$trash/files")\$(ls -A "$trash/expunged" 2>/dev/null)" ]; do sleep 0.01; done
GIO

hyperfine --runs "$runs" --export-json "$work/trash.json" --prepare "sh $work/prepare.sh" \
  -n "zephrane (TrashBin.empty)" "$tool $trash" \
  -n "rm -rf" "rm -rf $trash/files $trash/info" \
  -n "gio trash --empty" "dbus-run-session -- sh $work/gio-empty.sh" >&2

python3 - "$work/trash.json" "$shape" "$files" <<'PY'
import json, statistics, sys
results = json.load(open(sys.argv[1]))["results"]
rm = next(r for r in results if r["command"] == "rm -rf")
gio = next(r for r in results if r["command"].startswith("gio"))
median = lambda r: statistics.median(r["times"])
cpu = lambda r: r["user"] + r["system"]
print(f"\n{sys.argv[3]} files, {sys.argv[2]} shape\n")
print("| command | median s | min-max s | x rm -rf | x gio | user+sys s | x rm -rf (cpu) |")
print("|---|---:|---:|---:|---:|---:|---:|")
for r in results:
    print(f"| {r['command']} | {median(r):.3f} | {min(r['times']):.3f}-{max(r['times']):.3f} | "
          f"{median(r) / median(rm):.2f} | {median(r) / median(gio):.2f} | {cpu(r):.2f} | {cpu(r) / cpu(rm):.2f} |")
PY
