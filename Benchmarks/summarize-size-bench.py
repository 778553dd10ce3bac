#!/usr/bin/env python3
"""Markdown table of a run-size-bench.sh result: each command's median and fastest wall time and
its CPU time (user + system), each as a ratio to `du -s` and to the fastest reference walker."""
import json
import statistics
import sys

results = json.load(open(sys.argv[1]))["results"]
wall = {r["command"]: statistics.median(r["times"]) for r in results}
fastest = {r["command"]: min(r["times"]) for r in results}
cpu = {r["command"]: r["user"] + r["system"] for r in results}
floors = [c for c in wall if c.startswith("floor-walk")]
best = min(floors, key=wall.get)
print(f"Best reference walker in this run: {best}.\n")
print("| command | median s | x du | x best floor | min s | x du (min) | x best floor (min) | user+sys s | x du (cpu) | x best floor (cpu) |")
print("|---|---:|---:|---:|---:|---:|---:|---:|---:|---:|")
for r in results:
    c = r["command"]
    print(f"| {c} | {wall[c]:.2f} | {wall[c] / wall['du -s']:.2f} | {wall[c] / wall[best]:.2f} "
          f"| {fastest[c]:.2f} | {fastest[c] / fastest['du -s']:.2f} | {fastest[c] / fastest[best]:.2f} "
          f"| {cpu[c]:.2f} | {cpu[c] / cpu['du -s']:.2f} | {cpu[c] / cpu[best]:.2f} |")
