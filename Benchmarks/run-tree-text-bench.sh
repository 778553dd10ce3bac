#!/usr/bin/env bash
# Times `zephrane-cli tree --keep 1000000` as text against the same as JSON, on one generated tree,
# in one run: the text report must cost no more than the JSON one. Prints hyperfine's table and the
# ratio text / JSON of the median wall times.
#
# Usage: Benchmarks/run-tree-text-bench.sh [FILES] [RUNS]
#   FILES  files in the generated tree (default 300000), spread over folders of 1 to 400 files
#          three levels deep; RUNS timed runs per command (default 5).
# Environment: OUT (work folder, default /tmp/tree-text-bench). Needs hyperfine and python3.
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
files=${1:-300000}
runs=${2:-5}
out=${OUT:-/tmp/tree-text-bench}
tree=$out/tree-$files
mkdir -p "$out"
if [[ ! -d $tree ]]; then
  python3 - "$tree" "$files" <<'PY'
import os, random, sys
root, total = sys.argv[1], int(sys.argv[2])
random.seed(7)
made = 0
while made < total:
    folder = os.path.join(root, *(f"d{random.randrange(30)}" for _ in range(3)), f"f{made}")
    os.makedirs(folder, exist_ok=True)
    for i in range(min(random.randint(1, 400), total - made)):
        with open(os.path.join(folder, f"file {i}.dat"), "wb") as f:
            f.write(b"x" * random.choice((0, 10, 5000, 70000)))
        made += 1
PY
fi
"$root/scripts/build" release zephrane-cli >&2
cli=$root/build/release/Sources/zephrane-cli/zephrane-cli
hyperfine -N -w 1 -r "$runs" --export-json "$out/result.json" \
  -n text "$cli tree $tree --keep 1000000" -n json "$cli tree $tree --keep 1000000 --json" >&2
python3 - "$out/result.json" <<'PY'
import json, sys
r = {x["command"]: x for x in json.load(open(sys.argv[1]))["results"]}
print(f"text / JSON median wall time: {r['text']['median'] / r['json']['median']:.2f}")
PY
