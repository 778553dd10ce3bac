#!/usr/bin/env bash
# Times `zephrane-cli junk --json` on a home against `du -s` of the very candidates it lists (one
# du argument each) and the reference walker of the home's ".cache", in one hyperfine run, and
# prints each median as a ratio to du.
#
# Usage: Benchmarks/run-junk-bench.sh [HOME] [RUNS]
#   HOME  defaults to /tmp/bench-tree (made by make-home-tree.py when missing); its ".cache"
#         holds some 450,000 files in a few hundred folders, the shape of a well-used cache.
#   RUNS  timed runs per command after one warm-up (default 5).
# Environment: OUT (results folder, default /tmp/junk-bench).
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
home=${1:-/tmp/bench-tree}
runs=${2:-5}
out=${OUT:-/tmp/junk-bench}
mkdir -p "$out"

[[ -d $home ]] || python3 "$root/Benchmarks/make-home-tree.py" --out "$home" >&2
"$root/scripts/build" release zephrane-cli >&2
cli=$root/build/release/Sources/zephrane-cli/zephrane-cli
floor=$("$root/Benchmarks/bench-build.sh" floor-walk)/floor-walk

# The candidates the rules name in this home, as the verb itself lists them.
HOME=$home "$cli" junk --json | python3 -c 'import json, sys
for group in json.load(sys.stdin):
    for item in group["items"]:
        print(item["path"])' >"$out/candidates.txt"
echo "$(wc -l <"$out/candidates.txt") candidates" >&2

hyperfine -N --warmup 1 --runs "$runs" --export-json "$out/junk-bench.json" \
  -n "zephrane-cli junk" "env HOME=$home $cli junk --json" \
  -n "du -s (candidates)" "xargs -d '\n' -a $out/candidates.txt du -s --block-size=1" \
  -n "floor-walk -j2 (.cache)" "$floor -j2 $home/.cache" >&2

python3 - "$out/junk-bench.json" <<'PY'
import json, sys
results = json.load(open(sys.argv[1]))["results"]
du = next(r for r in results if r["command"].startswith("du"))
print("| command | median s | x du | user+sys s | x du (cpu) |\n|---|---:|---:|---:|---:|")
for r in results:
    cpu, du_cpu = r["user"] + r["system"], du["user"] + du["system"]
    print(f'| {r["command"]} | {r["median"]:.3f} | {r["median"] / du["median"]:.2f} | {cpu:.3f} | {cpu / du_cpu:.2f} |')
PY
