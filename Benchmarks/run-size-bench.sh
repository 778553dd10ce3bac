#!/usr/bin/env bash
# Times FileSize.parallelAllocatedSize (Benchmarks/SizeWalk) against `du -s` and the reference
# "syscall floor" walker in one hyperfine run, and prints each as a ratio.
#
# Usage: Benchmarks/run-size-bench.sh [TREE] [RUNS]
#   TREE  defaults to /tmp/bench-tree, made by make-home-tree.py (1,000,000 files) when missing.
#   RUNS  timed runs per command after one warm-up (default 7).
# Environment: OUT (results folder, default /tmp/size-bench), THREADS (extra SizeWalk --threads
#   values to try, e.g. "1 4").
# Needs hyperfine (scripts/install-deps with ZEPHRANE_WITH_BENCH_TOOLS=1), gcc, python3.
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
tree=${1:-/tmp/bench-tree}
runs=${2:-7}
out=${OUT:-/tmp/size-bench}
mkdir -p "$out"

if [[ ! -d $tree ]]; then
  python3 "$root/Benchmarks/make-home-tree.py" --out "$tree"
fi

bin=$("$root/Benchmarks/bench-build.sh" SizeWalk floor-walk)
walk=$bin/SizeWalk

args=(-n "SizeWalk" "$walk $tree")
for t in ${THREADS:-}; do args+=(-n "SizeWalk --threads $t" "$walk --threads $t $tree"); done
args+=(-n "du -s" "du -s --block-size=1 $tree")
for j in 1 2 4 8; do args+=(-n "floor-walk -j$j" "$bin/floor-walk -j$j $tree"); done

hyperfine -N --warmup 1 --runs "$runs" --export-json "$out/size-bench.json" "${args[@]}" >&2

python3 "$root/Benchmarks/summarize-size-bench.py" "$out/size-bench.json"
