#!/usr/bin/env bash
# Removal against peer tools, each on freshly generated identical trees:
#   permanent removal of 100,000 files  vs  rm -rf
#   trashing 10,000 items               vs  gio trash (or mv into the trash folder without gio)
# Usage: Benchmarks/removal.sh [RUNS] [all|permanent|trash]
# Works in a scratch folder under /tmp with its own HOME and trash; prints ratios (ours / peer).
set -euo pipefail
runs=${1:-3}
only=${2:-all}
here=$(cd "$(dirname "$0")" && pwd)
tool=$("$here/bench-build.sh" RemoveBench)/RemoveBench
work=$(mktemp -d /tmp/zephrane-removal-bench-XXXXXX)
trap 'rm -rf "$work"' EXIT
export HOME=$work/home XDG_DATA_HOME=$work/home/.local/share
mkdir -p "$XDG_DATA_HOME"
gen="python3 $here/make-removal-tree.py"

reports=()
if [[ $only != trash ]]; then
reports+=("$work/permanent.json")
hyperfine --runs "$runs" --export-json "$work/permanent.json" \
    --prepare "rm -rf $work/tree; $gen $work/tree 100000; sync" \
    -n zephrane "$tool permanent $work/tree" \
    -n "rm -rf" "rm -rf $work/tree"
fi

if [[ $only != permanent ]]; then
if command -v gio >/dev/null; then
    peer_name="gio trash"; peer="cd $work/items && gio trash -- *"
else
    peer_name="mv into trash"; peer="mkdir -p $XDG_DATA_HOME/Trash/files && mv $work/items/* $XDG_DATA_HOME/Trash/files/"
fi
hyperfine --runs "$runs" --export-json "$work/trash.json" \
    --prepare "rm -rf $work/items $XDG_DATA_HOME/Trash; $gen --flat $work/items 10000; sync" \
    -n zephrane "$tool trash-children $work/items" \
    -n "$peer_name" "$peer"
reports+=("$work/trash.json")
fi

python3 - "${reports[@]}" <<'PY'
import json, sys
for path in sys.argv[1:]:
    results = json.load(open(path))["results"]
    ours, peer = results[0], results[1]
    print(f"{peer['command']:>14}: zephrane {ours['mean']:.3f}s / {peer['mean']:.3f}s = "
          f"{ours['mean'] / peer['mean']:.2f}x the peer's time")
PY
