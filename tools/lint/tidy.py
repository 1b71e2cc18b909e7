#!/usr/bin/env python3
"""Runs clang-tidy over the sources that changed since they last passed.

usage: tidy.py BUILD_FOLDER [FILE...]

A source has changed when its text, a project header that it includes, its compile command or the configuration has. What
passed is remembered under BUILD_FOLDER/../tidied, so it survives a fresh configuration. With files only the sources that
include one of them are looked at.

clang-tidy walks all headers of the system again for each source, which takes far longer than the source itself. So a
dozen sources are read as one; those that do not get on with the others, say by two private things of one name, go into
another dozen.
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
COMPILER = "clang++-19"
UNIT_SIZE = 12
ROOT = Path(__file__).resolve().parents[2]
INCLUDE = re.compile(rb'^\s*#\s*(?:include|import)\s+"([^"]+)"', re.MULTILINE)
INCLUDE_FOLDERS = [ROOT / "src", ROOT / "tests", ROOT]
SOURCES = {".cpp", ".mm"}
ERROR = re.compile(r"^(/[^:\n]+):\d+:\d+: (?:fatal )?error: ", re.MULTILINE)


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


def project_files(source):
    """The hash of each project file that the source is made of."""
    seen = {}
    waiting = [source]
    while waiting:
        current = waiting.pop()
        if current not in seen:
            digest, headers = direct_includes(current)
            seen[current] = digest
            waiting += headers
    return seen


def content_key(files, flags, configuration):
    """A hash over everything that decides what clang-tidy says about the source."""
    parts = [configuration, *flags, *(f"{path} {digest}" for path, digest in sorted(files.items()))]
    return hashlib.sha256("\n".join(parts).encode()).hexdigest()


def configuration_of():
    version = subprocess.run([TIDY, "--version"], capture_output=True, text=True, check=True).stdout
    files = subprocess.run(
        ["git", "ls-files", ".clang-tidy", "*/.clang-tidy"], capture_output=True, text=True, check=True, cwd=ROOT
    ).stdout.split()
    return version + "".join((ROOT / file).read_text() for file in files)


def flags_of(command):
    """What a compile command says about the language and the search for headers, an option with its value in one."""
    words = iter(shlex.split(command))
    flags = []
    for word in words:
        if word == "-isystem":
            flags.append(word + next(words))
        elif word.startswith(("-I", "-D", "-std=", "-fobjc-", "-fblocks")):
            flags.append(word)
    return flags


def united(lists):
    return list(dict.fromkeys(flag for flags in lists for flag in flags))


def checks_for(source):
    """The configuration that is nearest to the source."""
    return next(folder / ".clang-tidy" for folder in source.parents if (folder / ".clang-tidy").is_file())


def dozens(sources):
    """Neighbours together; languages, and what other checks are meant for, apart."""
    areas = {}
    for source in sorted(sources):
        areas.setdefault((checks_for(source), source.suffix), []).append(source)
    for area in areas.values():
        count = -(-len(area) // UNIT_SIZE)
        for first in range(count):
            yield area[first * len(area) // count : (first + 1) * len(area) // count]


def compatible_groups(sources, clashing):
    """The sources in groups that can be read as one. `clashing` answers which sources of a group have errors in it."""
    if len(sources) == 1:
        return [sources]
    bad = clashing(sources)
    if not bad:
        return [sources]
    if bad == set(sources):
        half = len(sources) // 2
        return compatible_groups(sources[:half], clashing) + compatible_groups(sources[half:], clashing)
    # The first of two that clash has no error, so those without one get on.
    apart = [source for source in sources if source in bad]
    rest = [source for source in sources if source not in bad]
    return [rest, *compatible_groups(apart, clashing)]


class Unit:
    """Sources read as one file."""

    def __init__(self, folder, sources, flags):
        self.sources = sources
        self.flags = united(flags[source] for source in sources)
        name = hashlib.sha256("\n".join(map(str, sources)).encode()).hexdigest()[:16]
        self.file = folder / (name + sources[0].suffix)
        self.file.write_text("".join(f'#include "{source}"\n' for source in sources))

    def clashing(self):
        result = subprocess.run(
            [COMPILER, "-fsyntax-only", "-w", "-ferror-limit=0", *self.flags, self.file],
            capture_output=True,
            text=True,
            cwd=ROOT,
        )
        if result.returncode == 0:
            return set()
        return {Path(file) for file in ERROR.findall(result.stderr)} & set(self.sources) or set(self.sources)

    def tidy(self):
        result = subprocess.run(
            [
                TIDY,
                "--quiet",
                "--warnings-as-errors=*",
                f"--config-file={checks_for(self.sources[0])}",
                self.file,
                "--",
                *self.flags,
            ],
            capture_output=True,
            text=True,
            cwd=ROOT,
        )
        return result.returncode, result.stdout


def main(build_folder, only):
    build_folder = Path(build_folder).resolve()
    passed_folder = build_folder.parent / "tidied"
    unit_folder = passed_folder / "units"
    unit_folder.mkdir(parents=True, exist_ok=True)
    configuration = configuration_of()
    flags = {}
    marks = {}
    for entry in json.loads((build_folder / "compile_commands.json").read_text()):
        source = (Path(entry["directory"]) / entry["file"]).resolve()
        if ROOT not in source.parents or build_folder in source.parents or source.suffix not in SOURCES:
            continue
        files = project_files(source)
        if only and not any(file in files for file in only):
            continue
        own = flags_of(entry["command"])
        mark = passed_folder / content_key(files, own, configuration)
        if not mark.exists():
            flags[source] = own
            marks[source] = mark

    def check(dozen):
        results = []
        for group in compatible_groups(dozen, lambda sources: Unit(unit_folder, sources, flags).clashing()):
            status, output = Unit(unit_folder, group, flags).tidy()
            if "[clang-diagnostic-error" in output and len(group) > 1:
                half = len(group) // 2
                results += check(group[:half]) + check(group[half:])
            else:
                results.append((group, status, output))
        return results

    failures = 0
    units = 0
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        for done in concurrent.futures.as_completed([pool.submit(check, dozen) for dozen in dozens(flags)]):
            for group, status, output in done.result():
                units += 1
                if status == 0:
                    for source in group:
                        marks[source].touch()
                else:
                    failures += 1
                    print(output, flush=True)
    print(f"clang-tidy: {len(flags)} changed files in {units} units, {failures} units with findings")
    return 1 if failures else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1], [Path(argument).resolve() for argument in sys.argv[2:]]))
