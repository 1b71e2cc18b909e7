#!/usr/bin/env python3
"""Finds what must not be committed: reminders, and paths of one machine.

usage: words.py FILE...
"""

import re
import sys

# In parts, so that this file passes its own check.
FORBIDDEN = re.compile(
    r"\b(" + "|".join(["TO" + "DO", "FIX" + "ME", "XX" + "X", "HA" + "CK"]) + r")\b"
    r"|(?<![\w.}])/(work|root)/\w"
)


def problems(path, text):
    return [
        f"{path}:{number}: '{match.group(0)}' must not be committed"
        for number, line in enumerate(text.splitlines(), start=1)
        if (match := FORBIDDEN.search(line))
    ]


def main(paths):
    found = []
    for path in paths:
        try:
            with open(path, encoding="utf-8") as file:
                found += problems(path, file.read())
        except UnicodeDecodeError:
            pass  # a picture
    print("\n".join(found), end="\n" if found else "")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
