#!/usr/bin/env python3
"""Cuts lex-headless with SIGKILL at random moments of a run that rewrites a file, and checks
that the file is then byte for byte the old one or the new one, and that the next start
leaves no temporary file behind.

usage: kill.py config|save LEX_HEADLESS [--cuts N] [--seed S]

config: leaving rewrites a configuration of 20,000 long catalogue names.
save:   saving an unchanged 50 MB dictionary copies it over an older lex.eng.bak.
"""
import argparse
import os
import random
import shutil
import subprocess
import sys
import tempfile
import time


def temporaries(folder):
    return sorted(n for n in os.listdir(folder) if n.startswith("~lex") and n.endswith(".tmp"))


def writing(folder, new):
    """Whether a temporary file in the folder has begun to receive the new content."""
    for t in temporaries(folder):
        try:
            with open(os.path.join(folder, t), "rb") as f:
                start = f.read(64)
        except OSError:  # renamed meanwhile
            continue
        if start and new.startswith(start):
            return True
    return False


def read(path):
    with open(path, "rb") as f:
        return f.read()


def write(path, data):
    with open(path, "wb") as f:
        f.write(data)


class Scenario:
    """A program folder in a known state, the script run on it, and the file it rewrites."""

    def __init__(self, kind, work):
        self.folder = os.path.join(work, "lex")
        self.script = os.path.join(work, "script.txt")
        if kind == "config":
            self.target = "lex301.INI"
            lines = [" 1"] * 8 + ["1,11", " 1", "/nulle/part/blocnote.txt", "Courier", "10", " 1 "]
            for i in range(20000):
                name = (f"Dictionnaire {i:05d} " + "\xe9tendu " * 40)[:240]
                lines.append(f"1,txt,{name},{chr(ord('a') + i % 26)}")
            # LF line ends, which leaving rewrites as CR LF: every line of the file changes.
            self.files = {self.target: "\n".join(lines).encode("cp1252") + b"\n"}
            commands = "close\n"
        else:
            self.target = "lex.eng.bak"
            articles, size, i = [], 0, 0
            while size < 50_000_000:
                a = f"mot{i:07d} (n.)\r\nd\xe9finition num\xe9ro {i}, un mot et sa traduction\r\n\r\n"
                articles.append(a.encode("cp1252"))
                size += len(articles[-1])
                i += 1
            self.files = {"lex.eng": b"".join(articles), self.target: b"ancienne copie\r\n\r\n" * 1000}
            commands = "type a\nkey Enter\nmenu mnuEnregistrer\n"
        write(self.script, commands.encode())
        self.old = self.files[self.target]

    def fresh(self):
        shutil.rmtree(self.folder, ignore_errors=True)
        os.mkdir(self.folder)
        for name, data in self.files.items():
            write(os.path.join(self.folder, name), data)
        return self.folder


def start(exe, folder, script):
    return subprocess.Popen([exe, "--dir", folder, script], stdout=subprocess.DEVNULL, stderr=subprocess.PIPE)


def reference(exe, sc):
    """Uninterrupted runs: how long one takes, the new content, how long writing it takes."""
    t0 = time.monotonic()
    p = start(exe, sc.fresh(), sc.script)
    if p.wait() != 0:
        sys.exit(f"uninterrupted run failed: {p.stderr.read().decode(errors='replace')}")
    length = time.monotonic() - t0
    new = read(os.path.join(sc.folder, sc.target))
    if new == sc.old:
        sys.exit(f"the run leaves {sc.target} as it was: nothing to cut")
    if sc.target == "lex.eng.bak" and new != sc.files["lex.eng"]:
        sys.exit("saving does not copy lex.eng to lex.eng.bak")
    p, seen = start(exe, sc.fresh(), sc.script), []
    while p.poll() is None:
        if writing(sc.folder, new):
            seen.append(time.monotonic())
    if not seen:
        sys.exit(f"{sc.target} is not written through a temporary file")
    return length, new, seen[-1] - seen[0]


def main():
    ap = argparse.ArgumentParser()
    ap.add_argument("kind", choices=["config", "save"])
    ap.add_argument("exe")
    ap.add_argument("--cuts", type=int, default=50)
    ap.add_argument("--seed", type=int, default=int(time.time()))
    args = ap.parse_args()
    rnd = random.Random(args.seed)
    exe = os.path.abspath(args.exe)
    with tempfile.TemporaryDirectory(prefix="lex-kill-") as work:
        sc = Scenario(args.kind, work)
        length, new, lasts = reference(exe, sc)
        print(f"seed {args.seed}; a run takes {length:.3f} s, its write {lasts:.3f} s")
        failures, counts = [], {"old": 0, "new": 0, "during": 0, "finished": 0}
        for cut in range(args.cuts):
            folder = sc.fresh()
            p = start(exe, folder, sc.script)
            # The write is a small part of the run: half the cuts fall anywhere in the run, half
            # once the new content has begun to arrive.
            if cut % 2:
                while p.poll() is None and not writing(folder, new):
                    pass
                delay = rnd.uniform(0, lasts * 1.2)
            else:
                delay = rnd.uniform(0, length * 1.1)
            try:
                p.wait(timeout=delay)
                counts["finished"] += 1
            except subprocess.TimeoutExpired:
                p.kill()
                p.wait()
            counts["during"] += writing(folder, new)
            got = read(os.path.join(folder, sc.target))
            problems = []
            if got == sc.old:
                counts["old"] += 1
            elif got == new:
                counts["new"] += 1
            else:
                problems.append(f"{sc.target} is neither the old nor the new one ({len(got)} bytes)")
            for name, data in sc.files.items():
                if name != sc.target and read(os.path.join(folder, name)) != data:
                    problems.append(f"{name} was changed")
            after = subprocess.run([exe, "--dir", folder], input=b"close\n", capture_output=True)
            if after.returncode != 0 or temporaries(folder):
                problems.append(f"next start: status {after.returncode}, left {temporaries(folder)}")
            if problems:
                failures.append(f"cut {cut} ({'after the write began, ' if cut % 2 else ''}{delay:.3f} s): "
                                + "; ".join(problems))
        print(f"{args.kind}: {args.cuts} cuts, {counts['during']} during the write, {counts['old']} old, "
              f"{counts['new']} new, {counts['finished']} finished before the cut, {len(failures)} failures")
        if counts["during"] == 0:
            failures.append("no cut fell during the write")
        for f in failures:
            print("FAIL", f)
        return 1 if failures else 0


if __name__ == "__main__":
    sys.exit(main())
