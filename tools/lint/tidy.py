#!/usr/bin/env python3
"""Runs clang-tidy over the compiled files that changed since they last passed.

usage: tidy.py BUILD_FOLDER [FILE...]

A file has changed when it, a project header it includes, its compile command or the configuration has. What passed is
remembered under BUILD_FOLDER/../tidy, so it survives a fresh configuration.
"""

import concurrent.futures
import functools
import hashlib
import json
import os
import re
import subprocess
import sys
from pathlib import Path

TIDY = "clang-tidy-19"
ROOT = Path(__file__).resolve().parents[2]
INCLUDE = re.compile(rb'^\s*#\s*(?:include|import)\s+"([^"]+)"', re.MULTILINE)
INCLUDE_FOLDERS = [ROOT / "src", ROOT / "tests", ROOT]


@functools.cache
def direct_includes(file):
    """The project headers that a file names, and the hash of its own text."""
    text = file.read_bytes()
    headers = []
    for name in INCLUDE.findall(text):
        for folder in [file.parent, *INCLUDE_FOLDERS]:
            header = folder / name.decode()
            if header.is_file():
                headers.append(header.resolve())
                break
    return hashlib.sha256(text).hexdigest(), headers


def content_key(file, command, configuration):
    """A hash over everything that decides what clang-tidy says about the file."""
    seen = {}
    waiting = [file]
    while waiting:
        current = waiting.pop()
        if current not in seen:
            digest, headers = direct_includes(current)
            seen[current] = digest
            waiting += headers
    parts = [configuration, command, *(f"{path} {digest}" for path, digest in sorted(seen.items()))]
    return hashlib.sha256("\n".join(parts).encode()).hexdigest()


def configuration_of():
    version = subprocess.run([TIDY, "--version"], capture_output=True, text=True, check=True).stdout
    files = subprocess.run(
        ["git", "ls-files", ".clang-tidy", "*/.clang-tidy"], capture_output=True, text=True, check=True, cwd=ROOT
    ).stdout.split()
    return version + "".join((ROOT / file).read_text() for file in files)


def check(build_folder, file):
    result = subprocess.run(
        [TIDY, "-p", str(build_folder), "--quiet", "--warnings-as-errors=*", str(file)], capture_output=True, text=True
    )
    return result.returncode, result.stdout


def main(build_folder, only):
    build_folder = Path(build_folder).resolve()
    passed_folder = build_folder.parent / "tidy"
    passed_folder.mkdir(exist_ok=True)
    configuration = configuration_of()
    waiting = []
    for entry in json.loads((build_folder / "compile_commands.json").read_text()):
        file = (Path(entry["directory"]) / entry["file"]).resolve()
        if ROOT not in file.parents or build_folder in file.parents or (only and file not in only):
            continue
        mark = passed_folder / content_key(file, entry["command"], configuration)
        if not mark.exists():
            waiting.append((file, mark))

    failures = 0
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        checks = {pool.submit(check, build_folder, file): (file, mark) for file, mark in waiting}
        for done in concurrent.futures.as_completed(checks):
            file, mark = checks[done]
            status, output = done.result()
            if status == 0:
                mark.touch()
            else:
                failures += 1
                print(f"{file.relative_to(ROOT)}:\n{output}", flush=True)
    print(f"clang-tidy: {len(waiting)} changed files, {failures} with findings")
    return 1 if failures else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1], [Path(argument).resolve() for argument in sys.argv[2:]]))
