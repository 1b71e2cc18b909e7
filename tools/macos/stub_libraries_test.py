import tempfile
import unittest
from pathlib import Path

from stub_libraries import StubFolder

WINDOWS = """--- !tapi-tbd
tbd-version:     4
targets:         [ x86_64-macos, arm64-macos ]
install-name:    '/System/Library/Frameworks/Windows.framework/Versions/A/Windows'
reexported-libraries:
  - targets:         [ x86_64-macos, arm64-macos ]
    libraries:       [ '/System/Library/Frameworks/Umbrella.framework/Versions/A/Frameworks/Basics.framework/Versions/C/Basics',
                       '/usr/lib/libmemory.1.dylib', '/System/Library/PrivateFrameworks/Hidden.framework/Hidden' ]
exports:
  - targets:         [ x86_64-macos ]
    symbols:         [ _openOldWindow ]
  - targets:         [ x86_64-macos, arm64-macos ]
    symbols:         [ _openWindow ]
    weak-symbols:    [ _closeWindow ]
    objc-classes:    [ Window ]
    objc-ivars:      [ Window.frame ]
...
"""
BASICS = """--- !tapi-tbd
targets:         [ arm64-macos ]
install-name:    '/System/Library/Frameworks/Umbrella.framework/Versions/A/Frameworks/Basics.framework/Versions/C/Basics'
exports:
  - targets:         [ arm64-macos ]
    symbols:         [ _basics ]
...
"""
MEMORY = """--- !tapi-tbd
targets:         [ arm64-macos ]
install-name:    '/usr/lib/libmemory.1.dylib'
exports:
  - targets:         [ arm64-macos ]
    symbols:         [ _allocate ]
...
"""


class StubFolderTest(unittest.TestCase):
    def setUp(self):
        holder = tempfile.TemporaryDirectory()
        self.addCleanup(holder.cleanup)
        self.folder = Path(holder.name)
        self.write("Frameworks/Windows.framework/Windows.tbd", WINDOWS)
        self.write("Frameworks/Umbrella.framework/Frameworks/Basics.framework/Basics.tbd", BASICS)
        self.write("lib/libmemory.1.tbd", MEMORY)

    def write(self, name, text):
        file = self.folder / name
        file.parent.mkdir(parents=True)
        file.write_text(text)

    def exports(self, target):
        stubs = StubFolder(self.folder, target)
        return stubs.exports([stubs.framework_file("Windows")])

    def test_names_are_those_of_object_files(self):
        self.assertLessEqual(
            {"_openWindow", "_closeWindow", "_OBJC_CLASS_$_Window", "_OBJC_METACLASS_$_Window",
             "_OBJC_IVAR_$_Window.frame"},
            self.exports("arm64-macos"),
        )  # fmt: skip

    def test_what_a_library_exports_again_counts(self):
        self.assertLessEqual({"_basics", "_allocate"}, self.exports("arm64-macos"))

    def test_another_targets_exports_do_not_count(self):
        self.assertNotIn("_openOldWindow", self.exports("arm64-macos"))
        self.assertIn("_openOldWindow", self.exports("x86_64-macos"))
        self.assertNotIn("_basics", self.exports("x86_64-macos"))


if __name__ == "__main__":
    unittest.main()
