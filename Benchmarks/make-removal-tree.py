#!/usr/bin/env python3
"""Deterministic tree for the removal benchmark: FILES files of 0-8 KiB spread over nested
folders (about 100 per folder, three levels), or with --flat, FILES entries directly in OUT
(a tenth of them small folders), the shape of a trash selection."""
import argparse
import os
import random

parser = argparse.ArgumentParser()
parser.add_argument("out")
parser.add_argument("files", type=int)
parser.add_argument("--flat", action="store_true")
args = parser.parse_args()
rng = random.Random(1)
payload = os.urandom(8192)


def write(folder_fd, name):
    fd = os.open(name, os.O_CREAT | os.O_WRONLY | os.O_EXCL, 0o644, dir_fd=folder_fd)
    os.write(fd, payload[: rng.choice((0, 100, 1000, 4096, 8192))])
    os.close(fd)


os.makedirs(args.out)
root = os.open(args.out, os.O_RDONLY | os.O_DIRECTORY)
if args.flat:
    for i in range(args.files):
        if i % 10 == 0:
            os.mkdir(f"item {i}", dir_fd=root)
            sub = os.open(f"item {i}", os.O_RDONLY | os.O_DIRECTORY, dir_fd=root)
            write(sub, "inside.txt")
            os.close(sub)
        else:
            write(root, f"item {i}.dat")
else:
    made = 0
    for a in range(100):
        for b in range(10):
            path = f"{a:02d}/{b}"
            os.makedirs(os.path.join(args.out, path))
            fd = os.open(os.path.join(args.out, path), os.O_RDONLY | os.O_DIRECTORY)
            for c in range(args.files // 1000):
                write(fd, f"file-{c}.bin")
                made += 1
            os.close(fd)
            if made >= args.files:
                break
os.close(root)
