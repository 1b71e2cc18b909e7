"""Tests of how clang-tidy's sources are put together."""

import unittest

from tidy import ROOT, compatible_groups, dozens, flags_of


class Dozens(unittest.TestCase):
    def test_those_with_other_checks_are_apart_and_nothing_is_lost(self):
        sources = [ROOT / area / f"{number}.cpp" for area in ("src", "tests") for number in range(20)]
        groups = list(dozens(sources))
        self.assertEqual(sorted(source for group in groups for source in group), sorted(sources))
        for group in groups:
            self.assertEqual(len({source.relative_to(ROOT).parts[0] for source in group}), 1)
        self.assertEqual([len(group) for group in groups], [10, 10, 10, 10])


class CompatibleGroups(unittest.TestCase):
    def groups(self, sources, owner):
        """In groups where each private name has one owner."""

        def clashing(group):
            seen = set()
            bad = set()
            for source in group:
                (bad if owner[source] in seen else seen).add(source if owner[source] in seen else owner[source])
            return bad

        return compatible_groups(sources, clashing)

    def test_those_that_get_on_stay_together(self):
        self.assertEqual(self.groups(["a", "b"], {"a": 1, "b": 2}), [["a", "b"]])

    def test_each_that_clashes_goes_to_the_next_group(self):
        owner = {"a": 1, "b": 1, "c": 2, "d": 1}
        self.assertEqual(self.groups(list("abcd"), owner), [["a", "c"], ["b"], ["d"]])

    def test_where_all_have_errors_halves_are_tried_down_to_single_sources(self):
        self.assertEqual(compatible_groups(list("abc"), set), [["a"], ["b"], ["c"]])


class Flags(unittest.TestCase):
    def test_only_the_language_and_the_search_for_headers_are_kept(self):
        command = "ccache c++ -DX=1 -I/a -isystem /b -g -Wall -std=c++23 -MD -MT x.o -MF x.d -o x.o -c x.cpp"
        self.assertEqual(flags_of(command), ["-DX=1", "-I/a", "-isystem/b", "-std=c++23"])


if __name__ == "__main__":
    unittest.main()
