"""Finds the constants of the platform that sources name.

The compiler decides what is a constant: of all names that look like the platform's, those that it takes for a number
while it compiles.
"""

import re
import subprocess

# Names of the platform: kCGEventKeyDown, NSWindowStyleMaskTitled, SMAppServiceStatusEnabled, cmdKey, noErr.
NAME = re.compile(r"\b(?:k[A-Z]\w+|(?:NS|SM|CF|CG|AX)[A-Z]\w+|(?:cmd|shift|option|control|alpha)Key|noErr|type[A-Z]\w+|[a-z]\w+Err)\b")
COMMENT_OR_TEXT = re.compile(r'//[^\n]*|/\*.*?\*/|"(?:\\.|[^"\\\n])*"', re.DOTALL)
PROBE_LINE = re.compile(r"probe\.mm:(\d+):\d+: (?:fatal )?error:")


def names(text):
    return set(NAME.findall(COMMENT_OR_TEXT.sub(" ", text)))


def probe(headers, candidates):
    """A source with one line for each candidate that compiles only if it is a constant."""
    includes = [f"#import <{header}>" for header in headers]
    lines = [f"constexpr auto probe_{name} = static_cast<long long>({name});" for name in candidates]
    return "\n".join(includes + lines) + "\n"


def constants(candidates, headers, compiler, folder):
    """Those of the candidates that are numbers for the compiler, a command that reads probe.mm in the folder."""
    candidates = sorted(candidates)
    (folder / "probe.mm").write_text(probe(headers, candidates))
    result = subprocess.run(
        [*compiler, "-fsyntax-only", "-w", "-ferror-limit=0", "-fno-caret-diagnostics", str(folder / "probe.mm")],
        capture_output=True,
        text=True,
        check=False,
    )
    refused = {int(line) - 1 - len(headers) for line in PROBE_LINE.findall(result.stderr)}
    if any(index < 0 for index in refused):
        raise RuntimeError(result.stderr)
    return [name for index, name in enumerate(candidates) if index not in refused]
