#!/usr/bin/env python3
"""Makes the table of faults from what the tests recorded.

usage: table.py write FOLDER DOCUMENT    writes the document from the records in the folder
       table.py check FOLDER DOCUMENT    tells which of the records the document does not have
"""

import json
import pathlib
import re
import sys

PREAMBLE = """# Reliability

What tests let go wrong, how often, and what came of it. *Survived* means: afterwards no key was held back, no window
of Quorvel was left, the settings were as before, and the same work succeeded the next time. Quotation marks stand
around lines of the log.

This page is generated. The command that made it:

```sh
./dev reliability
```

[Testing](testing.md#reliability) tells how a test gets its row here.
"""

COLUMNS = "| fault | tried | survived | what the person saw |\n|---|---|---|---|\n"

ROW = re.compile(r"^\| (?P<fault>.+) \| (?P<tried>\d+) \| (?P<survived>\d+) \| (?P<seen>.+) \|$")
HEADING = re.compile(r"^## (?P<desktop>.+)$")
NOTHING = "nothing"


def rows_of(records):
    """(desktop, fault) -> (tried, survived, seen), summed over all records of one fault."""
    rows = {}
    for record in records:
        key = (record["desktop"], record["fault"])
        tried, survived, seen = rows.get(key, (0, 0, frozenset()))
        rows[key] = (tried + record["tried"], survived + record["survived"], seen | frozenset(record["seen"]))
    return {key: (tried, survived, seen_text(seen)) for key, (tried, survived, seen) in rows.items()}


def seen_text(seen):
    """What was seen, in one line; nothing counts only where there is nothing else."""
    told = sorted(text for text in seen if text)
    return cell("; ".join(told)) if told else NOTHING


def cell(text):
    return text.replace("|", "\\|").replace("\n", " ")


def document(rows):
    text = PREAMBLE
    for desktop in sorted({key[0] for key in rows}):
        text += f"\n## {desktop}\n\n" + COLUMNS
        for key in sorted(rows):
            if key[0] == desktop:
                tried, survived, seen = rows[key]
                text += f"| {cell(key[1])} | {tried} | {survived} | {seen} |\n"
    return text


def rows_in(text):
    rows = {}
    desktop = None
    for line in text.splitlines():
        if heading := HEADING.match(line):
            desktop = heading["desktop"]
        elif desktop and (row := ROW.match(line)):
            rows[(desktop, row["fault"])] = (int(row["tried"]), int(row["survived"]), row["seen"])
    return rows


def problems(recorded, committed):
    """What the committed rows do not tell of the recorded ones. How often a fault was tried may differ."""
    found = []
    for key, (tried, survived, seen) in sorted(recorded.items()):
        name = f"{key[0]}: {key[1]}"
        if survived < tried:
            found.append(f"not survived: {name}: {survived} of {tried}")
        present = committed.get((key[0], cell(key[1])))
        if present is None:
            found.append(f"not in the table: {name}")
        elif present[2] != seen:
            found.append(f"the table has another result: {name}: {seen}")
    return found


def records_in(folder):
    records = []
    for path in sorted(pathlib.Path(folder).glob("*.jsonl")):
        records += [json.loads(line) for line in path.read_text(encoding="utf-8").splitlines()]
    return records


def main(arguments):
    if len(arguments) != 3 or arguments[0] not in ("write", "check"):
        print(__doc__.strip(), file=sys.stderr)
        return 2
    recorded = rows_of(records_in(arguments[1]))
    path = pathlib.Path(arguments[2])
    if arguments[0] == "write":
        path.write_text(document(recorded), encoding="utf-8")
        print(f"{len(recorded)} faults, {sum(row[0] for row in recorded.values())} times tried; see {path}")
        return 0 if all(row[0] == row[1] for row in recorded.values()) else 1
    found = problems(recorded, rows_in(path.read_text(encoding="utf-8")) if path.exists() else {})
    if found:
        print("\n".join(found))
        print(f"{path} is not true any more; ./dev reliability writes it")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
