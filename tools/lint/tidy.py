#!/usr/bin/env python3
"""Runs clang-tidy over the units of a unity build that changed since they last passed.

usage: tidy.py BUILD_FOLDER [FILE...]

A unit has changed when one of its sources, a project header that they include, its compile command or the configuration
has. What passed is remembered under BUILD_FOLDER/../tidied, so it survives a fresh configuration. With files only the
units that hold them are looked at.
"""

import concurrent.futures
import functools
import hashlib
import json
import os
import re
import shlex
import subprocess
import sys
from pathlib import Path

TIDY = "clang-tidy-19"
ROOT = Path(__file__).resolve().parents[2]
SOURCES = {".cpp", ".mm"}
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


def project_files(unit):
    """The hash of each project file that the unit is made of."""
    seen = {}
    waiting = [unit]
    while waiting:
        current = waiting.pop()
        if current not in seen:
            digest, headers = direct_includes(current)
            seen[current] = digest
            waiting += headers
    return seen


def content_key(files, command, configuration):
    """A hash over everything that decides what clang-tidy says about the unit."""
    parts = [configuration, command, *(f"{path} {digest}" for path, digest in sorted(files.items()))]
    return hashlib.sha256("\n".join(parts).encode()).hexdigest()


def is_unit(file, build_folder):
    """A source of the project, or several of them; not what a tool made."""
    return file.name.startswith("unity_") if build_folder in file.parents else ROOT in file.parents


def configuration_of():
    version = subprocess.run([TIDY, "--version"], capture_output=True, text=True, check=True).stdout
    files = subprocess.run(
        ["git", "ls-files", ".clang-tidy", "*/.clang-tidy"], capture_output=True, text=True, check=True, cwd=ROOT
    ).stdout.split()
    return version + "".join((ROOT / file).read_text() for file in files)


def run_tidy(arguments):
    result = subprocess.run(
        [TIDY, "--quiet", "--warnings-as-errors=*", *arguments], capture_output=True, text=True, cwd=ROOT
    )
    return result.returncode, result.stdout


def flags_of(command):
    """What a compile command says about the language and the search for headers."""
    words = iter(shlex.split(command))
    flags = []
    for word in words:
        if word in {"-o", "-c", "-MT", "-MF"}:
            next(words)
        elif word.startswith("-") and word != "-MD":
            flags.append(word)
        elif flags and flags[-1] == "-isystem":
            flags.append(word)
    return flags


def check(build_folder, unit, sources, command):
    """Whole, or source by source where they do not get on in one unit, say by two private things of one name."""
    status, output = run_tidy(["-p", str(build_folder), str(unit)])
    if "[clang-diagnostic-error" not in output or len(sources) == 1:
        return status, output
    results = [run_tidy([str(source), "--", *flags_of(command)]) for source in sources]
    return max(status for status, _ in results), "".join(output for _, output in results)


def main(build_folder, only):
    build_folder = Path(build_folder).resolve()
    passed_folder = build_folder.parent / "tidied"
    passed_folder.mkdir(exist_ok=True)
    configuration = configuration_of()
    waiting = []
    for entry in json.loads((build_folder / "compile_commands.json").read_text()):
        unit = (Path(entry["directory"]) / entry["file"]).resolve()
        if not is_unit(unit, build_folder):
            continue
        files = project_files(unit)
        if only and not any(file in files for file in only):
            continue
        mark = passed_folder / content_key(files, entry["command"], configuration)
        if not mark.exists():
            sources = sorted(file for file in files if file.suffix in SOURCES)
            waiting.append((unit, sources, entry["command"], mark))

    failures = 0
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        checks = {
            pool.submit(check, build_folder, unit, sources, command): (unit, mark)
            for unit, sources, command, mark in waiting
        }
        for done in concurrent.futures.as_completed(checks):
            unit, mark = checks[done]
            status, output = done.result()
            if status == 0:
                mark.touch()
            else:
                failures += 1
                print(f"{unit.relative_to(ROOT)}:\n{output}", flush=True)
    count = sum(len(sources) for _, sources, _, _ in waiting)
    print(f"clang-tidy: {count} changed files in {len(waiting)} units, {failures} units with findings")
    return 1 if failures else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1], [Path(argument).resolve() for argument in sys.argv[2:]]))
