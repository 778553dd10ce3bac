#!/usr/bin/env python3
"""Fills a freedesktop trash folder for the trash benchmark: FILES regular files in files/, as
the top-level items of a synthetic home (make-home-tree.py, a few large trashed folders) or with
--flat as that many items trashed one by one (a tenth of them small folders), each item with its
info file in info/, as a file manager writes them.

Usage: make-trash.py TRASH FILES [--flat] [--seed S]"""
import argparse
import os
import subprocess
import sys
import time
import urllib.parse

parser = argparse.ArgumentParser()
parser.add_argument("trash")
parser.add_argument("files", type=int)
parser.add_argument("--flat", action="store_true")
parser.add_argument("--seed", type=int, default=1)
args = parser.parse_args()
here = os.path.dirname(os.path.abspath(__file__))
files, info = os.path.join(args.trash, "files"), os.path.join(args.trash, "info")
if os.path.exists(files) or os.path.exists(info):
    sys.exit(f"{args.trash} already holds files/ or info/")
if args.flat:
    subprocess.run([sys.executable, os.path.join(here, "make-removal-tree.py"), "--flat", files, str(args.files)],
                   check=True)
else:
    subprocess.run([sys.executable, os.path.join(here, "make-home-tree.py"), "--out", files,
                    "--files", str(args.files), "--seed", str(args.seed)], check=True)
os.makedirs(info)
date = time.strftime("%Y-%m-%dT%H:%M:%S")
for name in os.listdir(os.fsencode(files)):
    original = urllib.parse.quote_from_bytes(b"/home/someone/" + name, safe=b"/")
    with open(os.path.join(os.fsencode(info), name + b".trashinfo"), "w") as out:
        out.write(f"[Trash Info]\nPath={original}\nDeletionDate={date}\n")
