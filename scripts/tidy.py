#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""scripts/tidy.py BUILD [PART...]: clang-tidy over the sources in BUILD's compile database.

With PARTs, only over files whose path contains one of them. What passed once is remembered in the
user's cache folder under a hash of the preprocessed text and of the configuration, and not looked
at again. Exits 1 when clang-tidy has anything to say.
"""
import concurrent.futures
import hashlib
import json
import os
import pathlib
import shlex
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
CACHE = pathlib.Path(os.environ.get("XDG_CACHE_HOME") or pathlib.Path.home() / ".cache")
PASSED = CACHE / "idrova-tidy"


def output(*command, **options):
    return subprocess.run(command, capture_output=True, check=True, **options).stdout


def configuration():
    texts = [output("clang-tidy", "--version")]
    texts += [path.read_bytes() for path in sorted(ROOT.glob(".clang-tidy")) + sorted(ROOT.glob("*/.clang-tidy"))]
    return b"\0".join(texts)


def mark_of(entry, settings):
    """The file whose existence says that this very text has passed."""
    command = shlex.split(entry["command"])
    if "ccache" in command[0]:
        command = command[1:]
    command[command.index("-o") + 1] = "-"
    command.remove("-c")
    # Comments stay: some of them switch a check off.
    text = output(*command, "-E", "-P", "-C", cwd=entry["directory"])
    return PASSED / hashlib.sha256(b"\0".join([settings, entry["file"].removeprefix(str(ROOT)).encode(), text])).hexdigest()


def tidy(entry, build, settings):
    try:
        mark = mark_of(entry, settings)
    except subprocess.CalledProcessError as failure:
        return failure.stderr.decode()
    if mark.exists():
        return ""
    done = subprocess.run(["clang-tidy", "--quiet", "-p", build, entry["file"]],
                          capture_output=True, text=True)
    if done.returncode == 0 and not done.stdout:
        mark.touch()
        return ""
    return done.stdout or done.stderr


def main():
    build, parts = pathlib.Path(sys.argv[1]), sys.argv[2:]
    PASSED.mkdir(parents=True, exist_ok=True)
    settings = configuration()
    ours = tuple(f"{ROOT}/{folder}/" for folder in ("src", "tests", "bench", "tools"))
    entries = [entry for entry in json.loads((build / "compile_commands.json").read_text())
               if entry["file"].startswith(ours)
               and (not parts or any(part in entry["file"] for part in parts))]
    if not entries:
        sys.exit(f"{build}: no sources to look at")
    faulty = 0
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        for said in pool.map(lambda entry: tidy(entry, build, settings), entries):
            if said:
                faulty += 1
                print(said, flush=True)
    print(f"clang-tidy: {len(entries)} files, {faulty} with faults")
    sys.exit(1 if faulty else 0)


main()
