#!/usr/bin/env python3
"""Synthetic home folder for the benchmarks, the same for the same seed and file count.

Usage: make-home-tree.py --out PATH [--files N] [--seed S] [--max-gb G]

The shape is a well-used home: a large ".cache" of hashed names in shard folders (about 45% of
the files), source repositories with ".git" objects and one very deep "node_modules" chain,
".local/share" and ".config" application data, documents in nested folders, photo folders by
year and month, a mail folder of one very wide folder, and a few large files (disk images,
videos) allocated without writing. Names are awkward here and there: spaces, tabs, newlines,
decomposed and precomposed Unicode side by side, bytes that are not UTF-8, leading dashes,
"._" sidecars, 255-byte names. Symbolic links point at files, at folders, nowhere, outside the
tree, at each other in a loop and at their own parent; some files carry extra hard links.

Exactly N regular files are made (default 1,000,000); symbolic links and extra hard-link
names come on top. Sizes come from the seed and are scaled down as a whole to fit --max-gb
(default 3 per million files), of which large files take at most a third.
"""
import argparse
import math
import os
import random
import sys
import time
import unicodedata

WORDS = ("alpha", "notes", "report", "draft", "budget", "photos", "backup", "assets", "src",
         "lib", "docs", "tests", "tools", "data", "old", "archive", "invoices", "scans",
         "travel", "family", "work", "school", "music", "mix", "samples", "config", "themes",
         "plugins", "cache", "logs", "sessions", "profiles", "templates", "exports", "shared")
APPS = ("mozilla", "chromium", "thumbnails", "pip", "npm", "yarn", "go-build", "fontconfig",
        "mesa_shader_cache", "gstreamer-1.0", "JetBrains", "spotify", "discord", "Code",
        "evolution", "tracker3", "gnome-software", "flatpak", "vlc", "libreoffice", "ccache",
        "bazel", "cargo", "gradle", "electron", "steam", "zoom", "slack", "thunderbird", "gimp")
EXTENSIONS = (".txt", ".pdf", ".odt", ".docx", ".png", ".jpg", ".json", ".xml", ".csv",
              ".log", ".html", ".md", ".py", ".cpp", ".hpp", ".js", ".ts", ".rs", ".go")

# Awkward names; each entry is one file name, or several that must share one folder.
AWKWARD = [
    [b"notes with spaces.txt"],
    [b"line\nbreak.txt"],
    [b"tab\there.txt"],
    [unicodedata.normalize("NFC", "R\u00e9sum\u00e9.pdf").encode(),
     unicodedata.normalize("NFD", "R\u00e9sum\u00e9.pdf").encode()],
    [b"latin1-\xe9t\xe9.txt"],
    [b"\xff\xfe invalid bytes.bin"],
    [b"-starts-with-dash"],
    [b" leading space.txt"],
    [b"trailing space .txt"],
    [b"trailing dot."],
    [b"*?[glob] & $HOME.txt"],
    [b"quote's \"double\".txt"],
    [b"back\\slash.txt"],
    ["track \U0001f3b5 01.mp3".encode()],
    ["\u65e5\u672c\u8a9e\u306e\u30d5\u30a1\u30a4\u30eb.txt".encode()],
    ["\u05e2\u05d1\u05e8\u05d9\u05ea.txt".encode()],
    [b"long-" + b"x" * 246 + b".txt"],
    [b"UPPER.TXT", b"upper.txt"],
    [b".DS_Store"],
    [b"CON", b"nul.txt"],
]
AWKWARD_FOLDERS = [b"My Documents (old)", "Caf\u00e9".encode(),
                   unicodedata.normalize("NFD", "Caf\u00e9").encode(), b"folder\xa0with nbsp",
                   b"latin1 \xe0 folder", b"new\nline folder", b" spaced "]

# Size profiles: median bytes, log-normal sigma, share of empty files, largest size.
PROFILES = {
    "cache": (1024, 1.3, 0.03, 2 << 20),
    "source": (1536, 1.0, 0.02, 512 << 10),
    "git": (700, 1.2, 0.0, 1 << 20),
    "appdata": (2048, 1.4, 0.05, 4 << 20),
    "config": (400, 1.0, 0.05, 64 << 10),
    "document": (6 << 10, 1.5, 0.01, 8 << 20),
    "photo": (20 << 10, 0.7, 0.0, 4 << 20),
    "mail": (3 << 10, 1.0, 0.0, 1 << 20),
    "download": (48 << 10, 2.0, 0.02, 16 << 20),
}
WRITE_LIMIT = 1 << 20  # larger files are allocated, not written


class Folder:
    __slots__ = ("path", "files", "profile", "names", "awkward")

    def __init__(self, path, files, profile, names, awkward=0.0):
        self.path, self.files, self.profile, self.names, self.awkward = path, files, profile, names, awkward


class Plan:
    def __init__(self, rng):
        self.rng = rng
        self.folders = []  # in creation order: a parent always before its children
        self.empty = []  # folders without files
        self.large = []  # (folder path, name, drawn size)
        self.links = []  # (path of the link, target)

    def folder(self, path, files, profile, names, awkward=0.0):
        self.folders.append(Folder(path, files, profile, names, awkward))

    def tree(self, base, count, profile, names, per_folder, fanout, depth, awkward=0.0,
             folder_names=WORDS):
        """A nested tree under BASE holding exactly COUNT files."""
        rng = self.rng
        here = count if depth == 0 else min(count, max(1, int(rng.expovariate(1 / per_folder))))
        self.folder(base, here, profile, names, awkward)
        rest = count - here
        if rest <= 0:
            return
        children = rng.randint(1, fanout)
        weights = [rng.random() + 0.05 for _ in range(children)]
        total = sum(weights)
        shares = [int(rest * w / total) for w in weights]
        shares[0] += rest - sum(shares)
        used = set()
        for i, share in enumerate(shares):
            name = folder_names[rng.randrange(len(folder_names))]
            if rng.random() < awkward * 0.2:
                name = AWKWARD_FOLDERS[rng.randrange(len(AWKWARD_FOLDERS))]
            name = name if isinstance(name, bytes) else name.encode()
            while name in used:
                name += b"-%d" % i
            used.add(name)
            self.tree(base + b"/" + name, share, profile, names, per_folder, fanout, depth - 1,
                      awkward, folder_names)

    def shards(self, base, count, profile, per_shard, levels=1):
        """COUNT hashed names spread over two-hex-digit shard folders, the way caches store them."""
        shards = max(1, math.ceil(count / per_shard))
        if levels == 2 and shards > 16:
            outer = math.ceil(shards / 16)
            for i in range(outer):
                part = count // outer + (1 if i < count % outer else 0)
                self.shards(base + b"/%02x" % i, part, profile, per_shard, 1)
            return
        for i in range(shards):
            part = count // shards + (1 if i < count % shards else 0)
            self.folder(base + b"/%02x" % (i * 7 % 256) + (b"-%d" % i if i >= 256 else b""),
                        part, profile, "hash")


def split(total, weights):
    shares = [int(total * w / sum(weights)) for w in weights]
    shares[0] += total - sum(shares)
    return shares


def plan_home(files, rng):
    plan = Plan(rng)
    large = max(3, files // 20000)
    files -= large
    areas = dict(zip(("cache", "projects", "local", "config", "documents", "photos", "mail",
                      "downloads", "desktop"),
                     split(files, (45, 22, 10, 3, 8, 5, 3, 2, 2))))

    plan.folder(b"", 3, "config", "dotfile")
    plan.folder(b".cache", 1, "cache", "word")
    areas["cache"] -= 4
    # .cache: one folder per application, the biggest holding most; shards of up to ~1,500.
    apps = min(len(APPS), 12 + files // 50000)
    weights = [1 / (i + 1) ** 0.9 for i in range(apps)]
    for app, count in zip(APPS, split(areas["cache"], weights)):
        root = b".cache/" + app.encode()
        if count > 20000:
            plan.shards(root + b"/cache2/entries", count, "cache", 1500, levels=2)
        elif count > 1000:
            plan.shards(root + b"/Cache_Data", count, "cache", 1200)
        else:
            plan.tree(root, count, "cache", "hash", 60, 3, 3)

    # Projects: repositories with nested sources and a .git of sharded objects.
    repos = max(2, 8 + files // 40000)
    plan.empty.append(b"Projects")
    counts = split(areas["projects"], [rng.random() + 0.3 for _ in range(repos)])
    for r, count in enumerate(counts):
        repo = b"Projects/%s-%d" % (WORDS[r % len(WORDS)].encode(), r)
        objects = count * 2 // 5
        sources = count - objects - 4
        plan.folder(repo, 2, "source", "source")
        plan.folder(repo + b"/.git", 2, "git", "word")
        plan.shards(repo + b"/.git/objects", objects, "git", 400)
        if count == max(counts) and sources > 100:  # a package manager's nesting, deeper than the rest
            chain = repo
            for level in range(40):
                chain += b"/node_modules/pkg-%d" % level
                plan.folder(chain, 1, "source", "source")
            sources -= 40
        plan.tree(repo + b"/src", sources, "source", "source", 25, 5, 8, awkward=0.01)
        plan.empty.append(repo + b"/build")
        plan.links.append((repo + b"/compile_commands.json", b"build/compile_commands.json"))
    plan.links.append((b"Projects/current", b"%s-1" % WORDS[1].encode()))

    plan.folder(b".local", 0, "appdata", "word")
    plan.folder(b".local/share", 0, "appdata", "word")
    for app, count in zip(APPS[::-1], split(areas["local"], [1 / (i + 1) for i in range(12)])):
        plan.tree(b".local/share/" + app.encode(), count, "appdata", "word", 40, 4, 5)
    plan.tree(b".config", areas["config"], "config", "word", 12, 6, 3)
    plan.tree(b"Documents", areas["documents"], "document", "human", 30, 6, 6, awkward=0.25)
    photos = areas["photos"]
    plan.folder(b"Pictures", 0, "photo", "photo")
    years = [b"Pictures/%d" % y for y in range(2015, 2027)]
    for y, count in zip(years, split(photos, [1] * len(years))):
        plan.folder(y, 0, "photo", "photo")
        for m, part in zip(range(1, 13), split(count, [1] * 12)):
            plan.folder(y + b"/%02d" % m, part, "photo", "photo", awkward=0.2)
    mail = areas["mail"]
    plan.folder(b"Mail", 0, "mail", "mail")
    plan.folder(b"Mail/INBOX", 0, "mail", "mail")
    plan.folder(b"Mail/INBOX/cur", min(mail, 30000), "mail", "mail")  # one very wide folder
    if mail > 30000:
        plan.tree(b"Mail/Archive", mail - 30000, "mail", "mail", 2000, 4, 2)
    plan.folder(b"Downloads", areas["downloads"], "download", "human", awkward=1.0)
    plan.tree(b"Desktop", areas["desktop"], "document", "human", 50, 3, 2, awkward=0.5)
    for folder in (b"Videos", b"Music", b".local/share/gnome-boxes/images", b"Templates"):
        plan.empty.append(folder)

    homes = (b"Videos", b"Downloads", b".local/share/gnome-boxes/images")
    for i in range(large):
        size = int(math.exp(rng.uniform(math.log(16 << 20), math.log(512 << 20))))
        plan.large.append((homes[i % len(homes)], b"large-%03d.%s" % (i, (b"mkv", b"iso", b"qcow2")[i % 3]), size))

    plan.links += [
        (b"Desktop/Documents", b"../Documents"),  # a folder through a link
        (b".steam", b".local/share/steam"),
        (b"system-docs", b"/usr/share/doc"),  # outside the tree
        (b"loop-a", b"loop-b"), (b"loop-b", b"loop-a"),
        (b"Documents/up", b".."),  # its own parent
        (b"Downloads/gone.pdf", b"nowhere/gone.pdf"),  # dangling
    ]
    return plan


def draw_size(profile, rng):
    median, sigma, empty, cap = PROFILES[profile]
    if rng.random() < empty:
        return 0
    return min(cap, int(rng.lognormvariate(math.log(median), sigma)))


def file_names(folder, rng):
    """FOLDER.files distinct names, awkward ones among them now and then."""
    names, count = [], folder.files
    if count and rng.random() < folder.awkward:
        group = AWKWARD[rng.randrange(len(AWKWARD))]
        names += group[:count]
    style = folder.names
    i = 0
    while len(names) < count:
        if style == "hash":
            name = b"%016x" % rng.getrandbits(64)
        elif style == "source":
            name = b"%s_%d%s" % (rng.choice(WORDS).encode(), i, rng.choice(EXTENSIONS[10:]).encode())
        elif style == "photo":
            name = b"IMG_%05d.jpg" % (i + 1)
            if folder.awkward and rng.random() < 0.05 and len(names) + 1 < count:
                names.append(b"._" + name)  # sidecar a Mac left behind when copying
        elif style == "mail":
            name = b"%d.%d_%d.host:2,S" % (1600000000 + i * 37, i, rng.getrandbits(20))
        elif style == "dotfile":
            name = (b".bashrc", b".profile", b".gitconfig")[i % 3]
        else:
            name = b"%s %d%s" % (rng.choice(WORDS).capitalize().encode(), i, rng.choice(EXTENSIONS).encode())
        names.append(name)
        i += 1
    return names


def folder_rng(seed, index):
    return random.Random(seed * 1_000_003 + index)


def main():
    parser = argparse.ArgumentParser(description=__doc__.split("\n\n")[0])
    parser.add_argument("--out", required=True)
    parser.add_argument("--files", type=int, default=1_000_000)
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("--max-gb", type=float, help="default: 3 per million files")
    args = parser.parse_args()
    if args.files < 1000:
        parser.error("--files must be at least 1000")
    if os.path.exists(args.out) and os.listdir(args.out):
        parser.error(f"{args.out} exists and is not empty")

    started = time.monotonic()
    plan = plan_home(args.files, random.Random(args.seed))

    # First pass: the drawn sizes, to scale them into the budget.
    drawn = 0
    for index, folder in enumerate(plan.folders):
        rng = folder_rng(args.seed, index)
        drawn += sum(draw_size(folder.profile, rng) for _ in range(folder.files))
    budget = (args.max_gb or 3 * args.files / 1e6) * (1 << 30)
    large_drawn = sum(size for _, _, size in plan.large)
    large_scale = min(1.0, budget / 3 / large_drawn)
    small_scale = min(1.0, (budget - large_drawn * large_scale) / max(1, drawn))
    need = drawn * small_scale + large_drawn * large_scale
    os.makedirs(args.out, exist_ok=True)
    space = os.statvfs(args.out)
    if space.f_bavail * space.f_frsize < need * 1.3 or (space.f_favail and space.f_favail < args.files * 1.1):
        sys.exit(f"not enough room in {args.out}: about {need / (1 << 30):.1f} GB and "
                 f"{args.files:,} inodes are needed")

    payload = memoryview(random.Random(args.seed).randbytes(WRITE_LIMIT))
    root = os.open(args.out, os.O_RDONLY | os.O_DIRECTORY)
    made = {b""}

    def mkdirs(path):
        if path in made:
            return
        parent = path.rpartition(b"/")[0]
        mkdirs(parent)
        os.mkdir(path, dir_fd=root)
        made.add(path)

    def write_file(folder_fd, name, size):
        fd = os.open(name, os.O_CREAT | os.O_EXCL | os.O_WRONLY, 0o644, dir_fd=folder_fd)
        try:
            if size > WRITE_LIMIT:
                os.posix_fallocate(fd, 0, size)
            elif size:
                os.write(fd, payload[:size])
        finally:
            os.close(fd)

    files = written = 0
    linkable, first_names = [], {}
    for index, folder in enumerate(plan.folders):
        rng = folder_rng(args.seed, index)
        sizes = [int(draw_size(folder.profile, rng) * small_scale) for _ in range(folder.files)]
        mkdirs(folder.path)
        folder_fd = os.open(folder.path or b".", os.O_RDONLY | os.O_DIRECTORY, dir_fd=root)
        names = file_names(folder, rng)
        if names:
            first_names[index] = names[0]
        for name, size in zip(names, sizes):
            write_file(folder_fd, name, size)
            if rng.random() < 0.0004:
                linkable.append((folder.path, name))
        os.close(folder_fd)
        files += folder.files
        written += sum(sizes)
    for path in plan.empty:
        mkdirs(path)
    for path, name, size in plan.large:
        mkdirs(path)
        folder_fd = os.open(path, os.O_RDONLY | os.O_DIRECTORY, dir_fd=root)
        write_file(folder_fd, name, int(size * large_scale))
        os.close(folder_fd)
        files += 1
        written += int(size * large_scale)

    # Extra names for some files: a backup folder of hard links, and a second name beside others.
    mkdirs(b"Backups/hard-links")
    for i, (path, name) in enumerate(linkable):
        source = os.path.join(path, name) if path else name
        target = b"Backups/hard-links/%d-%s" % (i, name) if i % 2 else os.path.join(path, b"copy of " + name)
        if len(os.path.basename(target)) <= 255:
            try:
                os.link(source, target, src_dir_fd=root, dst_dir_fd=root)
            except FileExistsError:
                pass
    # Symbolic links: the fixed ones, then links all over the tree to a file beside them or to
    # their folder's parent.
    links = list(plan.links)
    pick = random.Random(args.seed + 1)
    indexes = sorted(first_names)
    for i in range(max(10, args.files // 2000)):
        index = indexes[pick.randrange(len(indexes))]
        path = plan.folders[index].path
        target = b".." if i % 5 == 4 else first_names[index]
        links.append((os.path.join(path, b"latest-%d" % i) if path else b"latest-%d" % i, target))
    symlinks = 0
    for path, target in links:
        mkdirs(path.rpartition(b"/")[0])
        try:
            os.symlink(target, path, dir_fd=root)
            symlinks += 1
        except FileExistsError:
            pass
    os.close(root)
    print(f"{args.out}: {files:,} files in {len(made):,} folders, {symlinks:,} symbolic links, "
          f"{len(linkable):,} extra hard links, {written:,} bytes of data, "
          f"{time.monotonic() - started:.0f} s", file=sys.stderr)


if __name__ == "__main__":
    main()
