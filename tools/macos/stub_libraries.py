"""Reads what the stub libraries (.tbd) of Apple's frameworks export."""

import re
from pathlib import Path

import yaml


class StubLoader(yaml.CSafeLoader):
    pass


StubLoader.add_constructor("!tapi-tbd", lambda loader, node: loader.construct_mapping(node, deep=True))

# How the kinds of an export that are no plain symbols are called in object files.
OBJECTIVE_C_PREFIXES = {
    "objc-classes": ["_OBJC_CLASS_$_", "_OBJC_METACLASS_$_"],
    "objc-ivars": ["_OBJC_IVAR_$_"],
    "objc-eh-types": ["_OBJC_EHTYPE_$_"],
}
PLAIN_KINDS = ["symbols", "weak-symbols", "thread-local-symbols"]


def exported_symbols(section):
    """The names of one section as object files have them."""
    for kind in PLAIN_KINDS:
        yield from section.get(kind, [])
    for kind, prefixes in OBJECTIVE_C_PREFIXES.items():
        for name in section.get(kind, []):
            for prefix in prefixes:
                yield prefix + name


def documents(text, target):
    """Of each library of a stub file: its install name, its exports for the target, and what it exports again."""
    for document in yaml.load_all(text, StubLoader):
        sections = document.get("exports", []) + document.get("reexports", [])
        symbols = {
            str(symbol)
            for section in sections
            if target in section["targets"]
            for symbol in exported_symbols(section)
        }
        again = {
            library
            for section in document.get("reexported-libraries", [])
            if target in section["targets"]
            for library in section["libraries"]
        }
        yield document["install-name"], symbols, again


class StubFolder:
    """A folder with Frameworks/*.framework/*.tbd and lib/*.tbd."""

    def __init__(self, folder, target):
        self.folder = Path(folder)
        self.target = target

    def framework_file(self, name):
        return self.folder / "Frameworks" / f"{name}.framework" / f"{name}.tbd"

    def library_file(self, name):
        return self.folder / "lib" / f"{name}.tbd"

    def file_of(self, install_name):
        """The stub of a library that another one exports again; None for one that this folder does not hold."""
        if match := re.fullmatch(r"/System/Library/Frameworks/(.+)", install_name):
            path = re.sub(r"/Versions/[^/]+", "", match[1])
            file = self.folder / "Frameworks" / f"{path}.tbd"
        else:
            file = self.library_file(Path(install_name).stem)
        return file if file.is_file() else None

    def exports(self, files):
        """What the stubs export, with all that they pass on of other libraries."""
        symbols = set()
        waiting = list(files)
        seen = set()
        while waiting:
            file = waiting.pop()
            if file in seen:
                continue
            seen.add(file)
            for _, own, again in documents(file.read_text(), self.target):
                symbols |= own
                waiting += [other for name in again if (other := self.file_of(name)) is not None]
        return symbols
