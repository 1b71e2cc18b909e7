import unittest

from words import problems


class Words(unittest.TestCase):
    def test_reminders_are_found(self):
        for word in ("TO" + "DO", "FIX" + "ME"):
            self.assertEqual(len(problems("a.cpp", f"// {word}: later")), 1)

    def test_paths_of_one_machine_are_found(self):
        self.assertEqual(len(problems("a.md", "see /wor" + "k/main/file")), 1)
        self.assertEqual(len(problems("a.md", "see /roo" + "t/file")), 1)

    def test_other_text_passes(self):
        self.assertEqual(problems("a.cpp", "mastodon, $HOME/x, /usr/share, and/or, frame/wor" + "k/flow"), [])


if __name__ == "__main__":
    unittest.main()
