#!/usr/bin/env bash
# Times `zephrane-cli tree --json` against gdu, ncdu, du and the reference "syscall floor" walker
# on the same trees in one run: wall time with hyperfine, peak memory with /usr/bin/time -v.
# Prints one markdown table per tree: each command's median wall time as a ratio to the fastest
# floor walker, its CPU time (user + system, mean) as a ratio to the floor's least, and its peak RSS.
#
# Usage: Benchmarks/run-tree-bench.sh [RUNS] [TREE...]
#   RUNS  timed runs per command after one warm-up (default 5).
#   TREE  defaults to /tmp/bench-tree (1,000,000 files, made by make-home-tree.py when missing)
#         and /usr.
# Environment: OUT (results folder, default /tmp/tree-bench), COLD=1 drops the caches before every run (root).
# Needs hyperfine, gdu, ncdu and GNU time (scripts/install-deps with ZEPHRANE_WITH_BENCH_TOOLS=1),
# gcc and python3.
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
runs=${1:-5}
shift || true
trees=("$@")
((${#trees[@]})) || trees=(/tmp/bench-tree /usr)
out=${OUT:-/tmp/tree-bench}
mkdir -p "$out"

for tree in "${trees[@]}"; do
  [[ -d $tree ]] || python3 "$root/Benchmarks/make-home-tree.py" --out "$tree" >&2
done
"$root/scripts/build" release zephrane-cli >&2
cli=$root/build/release/Sources/zephrane-cli/zephrane-cli
floor=$("$root/Benchmarks/bench-build.sh" floor-walk)/floor-walk

commands() { # "name|command" lines; every command writes its report to stdout
  local tree=$1
  cat <<EOF
zephrane-cli tree --json|$cli tree $tree --json
gdu -n -p -s|gdu -n -p -s $tree
ncdu -0 -o /dev/null|ncdu -0 -o /dev/null $tree
du -s|du -s $tree
floor-walk -j1|$floor -j1 $tree
floor-walk -j2|$floor -j2 $tree
floor-walk -j4|$floor -j4 $tree
floor-walk -j8|$floor -j8 $tree
EOF
}

for tree in "${trees[@]}"; do
  tag=$(echo "$tree" | tr / _)
  args=()
  while IFS='|' read -r name command; do args+=(-n "$name" "$command"); done < <(commands "$tree")
  if [[ ${COLD:-0} == 1 ]]; then
    hyperfine --prepare 'sync; echo 3 > /proc/sys/vm/drop_caches' --runs "$runs" --output=null \
      --export-json "$out/$tag.json" "${args[@]}" >&2
  else
    hyperfine -N --warmup 1 --runs "$runs" --output=null --export-json "$out/$tag.json" "${args[@]}" >&2
  fi
  : >"$out/$tag.rss" # one more run of each, for its peak resident memory (KiB)
  while IFS='|' read -r name command; do
    /usr/bin/time -v $command >/dev/null 2>"$out/time.txt" || true
    echo "$name|$(awk -F': ' '/Maximum resident/ {print $2}' "$out/time.txt")" >>"$out/$tag.rss"
  done < <(commands "$tree")

  python3 - "$tree" "$out/$tag.json" "$out/$tag.rss" <<'PY'
import json, statistics, sys
tree, results, rss = sys.argv[1], json.load(open(sys.argv[2]))["results"], {}
for line in open(sys.argv[3]):
    name, _, kib = line.rstrip("\n").partition("|")
    rss[name] = int(kib) / 1024 if kib else float("nan")
median = {r["command"]: statistics.median(r["times"]) for r in results}
cpu = {r["command"]: r["user"] + r["system"] for r in results}
floors = [k for k in median if k.startswith("floor-walk")]
best = min(floors, key=median.get)
bestCpu = min(cpu[k] for k in floors)
print(f"\n{tree} (best floor: {best})\n")
print("| command | median s | min-max s | x best floor | user+sys s | x floor (cpu) | peak RSS MiB |")
print("|---|---:|---:|---:|---:|---:|---:|")
for r in results:
    name = r["command"]
    print(f"| {name} | {median[name]:.3f} | {min(r['times']):.3f}-{max(r['times']):.3f} | "
          f"{median[name] / median[best]:.2f} | {cpu[name]:.2f} | {cpu[name] / bestCpu:.2f} | "
          f"{rss.get(name, float('nan')):.1f} |")
PY
done
