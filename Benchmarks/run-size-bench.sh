#!/usr/bin/env bash
# Times FileSize.parallelAllocatedSize (Benchmarks/SizeWalk) against `du -s` and the reference
# "syscall floor" walker in one hyperfine run, and prints each as a ratio.
#
# Usage: Benchmarks/run-size-bench.sh [TREE] [RUNS]
#   TREE  defaults to /tmp/bench-tree, made by make-tree.py (1,000,000 files) when missing.
#   RUNS  timed runs per command after one warm-up (default 7).
# Environment: BENCH_DIR (the reference walkers and make-tree.py, default /work/shared/bench),
#   OUT (results folder, default /tmp/size-bench), THREADS (extra SizeWalk --threads values to try,
#   e.g. "1 4").
# Needs hyperfine (scripts/install-deps with ZEPHRANE_WITH_BENCH_TOOLS=1), gcc, python3.
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
tree=${1:-/tmp/bench-tree}
runs=${2:-7}
bench=${BENCH_DIR:-/work/shared/bench}
out=${OUT:-/tmp/size-bench}
mkdir -p "$out"

if [[ ! -d $tree ]]; then
  python3 "$bench/make-tree.py" --out "$tree"
fi

export CCACHE_BASEDIR=$root CCACHE_NOHASHDIR=1
cmake -S "$root" -B "$root/build/bench" -G Ninja -DCMAKE_BUILD_TYPE=Release -DZEPHRANE_BUILD_APP=OFF \
  -DZEPHRANE_BUILD_BENCHMARKS=ON -DCMAKE_CXX_COMPILER_LAUNCHER=ccache -DCMAKE_CXX_FLAGS= >/dev/null
cmake --build "$root/build/bench" --target SizeWalk >/dev/null
walk=$root/build/bench/Benchmarks/SizeWalk
gcc -O2 -pthread -o "$out/floor-walk" "$bench/floor-walk.c"

args=(-n "SizeWalk" "$walk $tree")
for t in ${THREADS:-}; do args+=(-n "SizeWalk --threads $t" "$walk --threads $t $tree"); done
args+=(-n "du -s" "du -s --block-size=1 $tree")
for j in 1 2 4 8; do args+=(-n "floor-walk -j$j" "$out/floor-walk -j$j $tree"); done

hyperfine -N --warmup 1 --runs "$runs" --export-json "$out/size-bench.json" "${args[@]}" >&2

python3 "$root/Benchmarks/summarize-size-bench.py" "$out/size-bench.json"
