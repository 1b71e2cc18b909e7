"""Holds the source release to its promise: the same commit makes the same bytes."""

import os
import pathlib
import subprocess
import tarfile
import tempfile
import unittest

SCRIPT = pathlib.Path(__file__).resolve().parent / "source"


def git(*arguments, folder):
    return subprocess.run(["git", *arguments], cwd=folder, check=True, capture_output=True, text=True).stdout


def release(folder, target, **circumstances):
    """The file that the script leaves, in a folder that holds a clone."""
    printed = subprocess.run(
        [SCRIPT, target], cwd=folder, check=True, capture_output=True, text=True, **circumstances
    ).stdout
    return pathlib.Path(folder, printed.strip())


class SourceRelease(unittest.TestCase):
    def setUp(self):
        temporary = tempfile.TemporaryDirectory()
        self.addCleanup(temporary.cleanup)
        self.folder = pathlib.Path(temporary.name)
        self.makeProject()

    def makeProject(self):
        project = self.folder / "project"
        (project / "tools").mkdir(parents=True)
        (project / "CMakeLists.txt").write_text('project(Quorvel VERSION 2.3.4 DESCRIPTION "A project")\n')
        (project / "README.md").write_text("Read me.\n" * 1000)
        (project / "tools" / "run").write_text("#!/bin/sh\n")
        (project / "tools" / "run").chmod(0o755)
        git("init", "--quiet", folder=project)
        git("add", ".", folder=project)
        person = ["-c", "user.name=Somebody", "-c", "user.email=somebody@quorvel.example"]
        git(*person, "commit", "--quiet", "--message", "begin", folder=project)

    def clone(self, name):
        git("clone", "--quiet", "project", name, folder=self.folder)
        return self.folder / name

    def test_the_same_commit_makes_the_same_bytes_elsewhere_and_for_others(self):
        here = release(self.clone("here"), "build", umask=0o022)
        there = release(
            self.clone("a place with a longer name"),
            self.folder / "out",
            umask=0o077,
            env={**os.environ, "TZ": "Asia/Tokyo", "LC_ALL": "C", "XZ_OPT": "-9", "GIT_CONFIG_COUNT": "1"}
            | {"GIT_CONFIG_KEY_0": "tar.umask", "GIT_CONFIG_VALUE_0": "0077"},
        )
        self.assertEqual(here.name, there.name)
        self.assertTrue(here.read_bytes() == there.read_bytes())

    def test_it_holds_what_the_commit_holds_and_the_times_are_those_of_the_commit(self):
        clone = self.clone("here")
        (clone / "README.md").write_text("changed and not committed")
        time = int(git("log", "-1", "--format=%ct", folder=clone))
        file = release(clone, "build")
        self.assertEqual(file.name, "quorvel-2.3.4.tar.xz")
        with tarfile.open(file) as archive:
            members = [member for member in archive.getmembers() if not member.isdir()]
            readme = archive.extractfile("quorvel-2.3.4/README.md").read().decode()
            script = archive.getmember("quorvel-2.3.4/tools/run")
        names = [member.name.removeprefix("quorvel-2.3.4/") for member in members]
        self.assertEqual(sorted(names), sorted(git("ls-tree", "-r", "--name-only", "HEAD", folder=clone).splitlines()))
        self.assertEqual({(member.uid, member.gid, member.mtime) for member in members}, {(0, 0, time)})
        self.assertEqual(readme, git("show", "HEAD:README.md", folder=clone))
        self.assertEqual(script.mode, 0o755)


if __name__ == "__main__":
    unittest.main()
