#!/usr/bin/env python3
"""Holds the layers: who may include whom, and where a platform may be seen.

usage: include_arrows.py FILE...    paths relative to the repository
"""

import re
import sys

# Each layer sees itself and those before it.
LAYERS = ["base", "platform", "settings", "system", "layouts", "preferences", "app", "doctor"]

# Libraries that run everywhere; any other header with a folder or a suffix belongs to a platform.
PORTABLE_LIBRARIES = re.compile(r"(fmt|nlohmann)/|(utf8proc|expat)\.h$")
TEST_LIBRARIES = re.compile(r"(gtest|gmock|benchmark)/")
STANDARD_HEADER = re.compile(r"[a-z_]+$")

# Tests and benchmarks that run on a real platform.
PLATFORM_FOLDERS = re.compile(r"(src/main|src/platform/[a-z0-9]+|(tests|bench)/((unit|contract|fuzz)/)?(support|x11|e2e|soak|macos))/")
PLATFORM_MACRO = re.compile(r"\b(__APPLE__|__linux__|__unix__|_WIN32|Q_OS_[A-Z]+)\b")

INCLUDE = re.compile(r'^\s*#\s*(?:include|import)\s+(?:"([^"]+)"|<([^>]+)>)')


def layer_of(path):
    """The layer of a path below src/; an adapter is a layer of its own: platform/x11."""
    parts = path.split("/")
    if parts[0] == "platform" and len(parts) > 2:
        return "/".join(parts[:2])
    return parts[0]


def may_see(user, used):
    if user == used or user == "main":
        return True
    if user.startswith("platform/"):
        return used in ("base", "platform")
    if user not in LAYERS or used not in LAYERS:
        return False
    return LAYERS.index(used) <= LAYERS.index(user)


def project_include_problem(path, included):
    used = layer_of(included)
    if path.startswith("src/"):
        if not may_see(layer_of(path.removeprefix("src/")), used):
            return f"{layer_of(path.removeprefix('src/'))} must not include {included}"
    elif path.startswith("tests/support/"):
        if used not in ("base", "support"):
            return f"the harness knows no product code but base: {included}"
    elif used.startswith("platform/") and used != "platform/simulated" and not PLATFORM_FOLDERS.match(path):
        return f"a portable test must not include {included}"
    return None


def system_include_problem(path, included):
    if PLATFORM_FOLDERS.match(path) or STANDARD_HEADER.match(included) or PORTABLE_LIBRARIES.match(included):
        return None
    if not path.startswith("src/") and TEST_LIBRARIES.match(included):
        return None
    return f"platform header <{included}> in portable code"


def problems(path, text):
    """Lines such as 'src/a.h:3: …' for everything that breaks a rule."""
    found = []
    for number, line in enumerate(text.splitlines(), start=1):
        problem = None
        include = INCLUDE.match(line)
        if include and include.group(1):
            problem = project_include_problem(path, include.group(1))
        elif include:
            problem = system_include_problem(path, include.group(2))
        elif PLATFORM_MACRO.search(line) and not PLATFORM_FOLDERS.match(path):
            problem = "a platform's macro in portable code"
        if problem:
            found.append(f"{path}:{number}: {problem}")
    if path.endswith(".h") and not text.startswith("#pragma once\n"):
        found.append(f"{path}:1: a header starts with #pragma once")
    return found


def main(paths):
    found = []
    for path in paths:
        with open(path, encoding="utf-8") as file:
            found += problems(path, file.read())
    print("\n".join(found), end="\n" if found else "")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
