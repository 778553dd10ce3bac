#!/usr/bin/env bash
# Times `zephrane-cli large` against find and fd on the same home-like tree, in one run with the
# commands interleaved round by round (so a change of the machine's load hits all of them alike),
# after one warm-up round: wall time, CPU time (user + system) and peak resident memory of each,
# the last two from GNU time around every run. Prints a markdown table with ratios to `find`.
#
# Usage: Benchmarks/run-large-bench.sh [RUNS] [TREE]
#   RUNS  timed rounds after the warm-up (default 5).
#   TREE  default /tmp/large-bench-tree (1,000,000 files, made by make-large-tree.py when missing).
# Needs GNU time and fd-find (`fdfind`; ZEPHRANE_WITH_BENCH_TOOLS=1 scripts/install-deps), python3.
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
runs=${1:-5}
tree=${2:-/tmp/large-bench-tree}

[[ -d $tree ]] || python3 "$root/Benchmarks/make-large-tree.py" --out "$tree" >&2
"$root/scripts/build" release zephrane-cli >&2
cli=$root/build/release/Sources/zephrane-cli/zephrane-cli

python3 - "$runs" "$tree" "$cli" <<'PY'
import os, statistics, subprocess, sys, tempfile, time

runs, tree, cli = int(sys.argv[1]), sys.argv[2], sys.argv[3]
commands = [
    ("zephrane-cli large", [cli, "large", tree, "--min", "50000000"]),
    ("find -type f -size +50M", ["find", tree, "-type", "f", "-size", "+50M"]),
    ("find, hidden pruned", ["find", tree, "-name", ".*", "-prune", "-o", "-type", "f", "-size", "+50M", "-print"]),
]
if subprocess.run(["sh", "-c", "command -v fdfind"], capture_output=True).returncode == 0:
    commands += [("fd --size +50m", ["fdfind", "-t", "f", "-S", "+50m", ".", tree]),
                 ("fd -u --size +50m", ["fdfind", "-u", "-t", "f", "-S", "+50m", ".", tree])]

usage = tempfile.NamedTemporaryFile(suffix=".time").name

def once(argv):
    start = time.perf_counter()
    out = subprocess.run(["/usr/bin/time", "-f", "%U %S %M", "-o", usage] + argv, stdout=subprocess.PIPE,
                         stderr=subprocess.DEVNULL).stdout
    wall = time.perf_counter() - start
    user, system, kib = open(usage).read().split()[-3:]
    return wall, float(user) + float(system), int(kib) / 1024, out.count(b"\n")

results = {name: [] for name, _ in commands}
for round in range(runs + 1):
    for name, argv in commands:
        sample = once(argv)
        if round > 0:  # the first round only warms the cache
            results[name].append(sample)

base = "find -type f -size +50M"
wall = {n: statistics.median(s[0] for s in r) for n, r in results.items()}
cpu = {n: statistics.median(s[1] for s in r) for n, r in results.items()}
print(f"\n{tree}, {runs} rounds, load average before: {os.getloadavg()[0]:.1f}\n")
print("| command | median s | min-max s | x find | user+sys s | x find (cpu) | peak RSS MiB | found |")
print("|---|---:|---:|---:|---:|---:|---:|---:|")
for name, samples in results.items():
    times = [s[0] for s in samples]
    print(f"| {name} | {wall[name]:.2f} | {min(times):.2f}-{max(times):.2f} | {wall[name] / wall[base]:.2f} | "
          f"{cpu[name]:.2f} | {cpu[name] / cpu[base]:.2f} | {max(s[2] for s in samples):.1f} | {samples[-1][3]} |")
PY
