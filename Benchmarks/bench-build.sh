#!/usr/bin/env bash
# Builds benchmark programs, optimised, in build/bench: the engine's programs named after their
# .cpp here, and `floor-walk` from floor-walk.c. Prints the folder that holds them.
# Usage: Benchmarks/bench-build.sh TARGET...
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
build=$root/build/bench
targets=()
for target in "$@"; do
  if [[ $target == floor-walk ]]; then
    mkdir -p "$build/Benchmarks"
    gcc -O2 -Wall -Wextra -pthread -o "$build/Benchmarks/floor-walk" "$root/Benchmarks/floor-walk.c"
  else
    targets+=("$target")
  fi
done
if ((${#targets[@]})); then
  export CCACHE_BASEDIR=$root CCACHE_NOHASHDIR=1
  cmake -S "$root" -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=Release -DZEPHRANE_BUILD_APP=OFF \
    -DZEPHRANE_BUILD_BENCHMARKS=ON -DCMAKE_CXX_COMPILER_LAUNCHER=ccache -DCMAKE_CXX_FLAGS= >/dev/null
  cmake --build "$build" --target "${targets[@]}" >/dev/null
fi
echo "$build/Benchmarks"
