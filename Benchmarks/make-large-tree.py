#!/usr/bin/env python3
"""A home-like tree for the large-file benchmark, the same for the same seed.

Usage: make-large-tree.py --out PATH [--files N] [--large K] [--seed S]

N regular files (default 1,000,000) in about N/15 folders under a home's usual top folders, a
third of them below hidden folders (".cache", ".local/share", ".config") as in a used home, plus
"Library" and ".Trash" at the top. Almost every file is empty, so the tree costs inodes and not
blocks; K of them (default 40) are large, 55 to 400 MB, allocated with posix_fallocate (blocks
reserved, nothing written), spread over the visible folders, the hidden ones and "Library".
Names with spaces and bytes that are not UTF-8 here and there, a few links (to a large file, to
a folder, to "/"). Prints one summary line.
"""
import argparse
import os
import random
import sys
import time

VISIBLE = ["Documents", "Downloads", "Pictures", "Music", "Videos", "projects", "Desktop", "Library"]
HIDDEN = [".cache", ".local/share", ".config"]
WORDS = ["src", "lib", "docs", "notes", "photos", "2023", "2024", "backup", "assets", "build",
         "data", "old", "misc", "work", "family", "travel", "node_modules", "tests"]
EXTENSIONS = [".txt", ".pdf", ".jpg", ".png", ".json", ".c", ".h", ".js", ".md", ""]
LARGE = [".iso", ".mkv", ".mp4", ".zip", ".tar.gz", ".img", ".mov", ".flac", ".bin", ".qcow2"]


def main():
    ap = argparse.ArgumentParser()
    ap.add_argument("--out", required=True)
    ap.add_argument("--files", type=int, default=1_000_000)
    ap.add_argument("--large", type=int, default=40)
    ap.add_argument("--seed", type=int, default=1)
    a = ap.parse_args()
    if os.path.exists(a.out) and os.listdir(a.out):
        sys.exit(f"{a.out} exists and is not empty")
    rng, start = random.Random(a.seed), time.time()
    os.makedirs(a.out, exist_ok=True)

    # Folders: each top folder grows a random tree, depth up to 10; hidden ones take a third.
    folders = []
    tops = [(name, 2 / (3 * len(VISIBLE))) for name in VISIBLE] + [(name, 1 / (3 * len(HIDDEN))) for name in HIDDEN]
    target = max(len(tops), a.files // 15)
    for top, share in tops:
        base = os.path.join(a.out, top)
        os.makedirs(base, exist_ok=True)
        mine = [(base, 0)]
        for i in range(max(1, int(target * share))):
            parent, depth = mine[rng.randrange(len(mine))] if rng.random() < 0.7 else mine[-1]
            if depth >= 10:
                parent, depth = base, 0
            name = rng.choice(WORDS) + f"-{i}"
            if rng.random() < 0.01:
                name += " with space"
            elif rng.random() < 0.005:
                name = name.encode() + b"\xff"
                name = name.decode("utf-8", "surrogateescape")
            path = os.path.join(parent, name)
            os.mkdir(path)
            mine.append((path, depth + 1))
        folders.append((top, mine))
    os.makedirs(os.path.join(a.out, ".Trash"), exist_ok=True)

    # Files: spread by each top's share, a log-normal count per folder.
    flat = []
    for top, mine in folders:
        flat.extend(path for path, _ in mine)
    made = 0
    while made < a.files:
        folder = flat[rng.randrange(len(flat))]
        count = min(a.files - made, max(1, int(rng.lognormvariate(2.3, 1.0))))
        for _ in range(count):
            name = f"{rng.choice(WORDS)}{made}{rng.choice(EXTENSIONS)}"
            fd = os.open(os.path.join(folder, name), os.O_WRONLY | os.O_CREAT | os.O_EXCL, 0o644)
            if made % 50 == 0:
                os.write(fd, b"z" * rng.randrange(1, 6000))
            os.close(fd)
            made += 1

    # Large files, allocated without writing: most where a person keeps them, some hidden or in
    # Library, where find sees them and the scan does not.
    large = []
    for i in range(a.large):
        if i % 5 == 4:
            top = rng.choice(HIDDEN + ["Library"])
        else:
            top = rng.choice([v for v in VISIBLE if v != "Library"])
        mine = dict(folders)[top]
        folder = mine[rng.randrange(len(mine))][0]
        path = os.path.join(folder, f"large-{i}{rng.choice(LARGE)}")
        fd = os.open(path, os.O_WRONLY | os.O_CREAT | os.O_EXCL, 0o644)
        os.posix_fallocate(fd, 0, rng.randrange(55, 400) * 1_000_000)
        os.close(fd)
        large.append(path)
        made += 1
    if large:
        os.symlink(large[0], os.path.join(a.out, "Desktop", "link to large"))
    os.symlink(os.path.join(a.out, "Videos"), os.path.join(a.out, "Desktop", "link to Videos"))
    os.symlink("/", os.path.join(a.out, "Desktop", "link to root"))

    print(f"out={a.out} files={made} folders={len(flat) + 1} large={len(large)} "
          f"seconds={time.time() - start:.0f}")


if __name__ == "__main__":
    main()
