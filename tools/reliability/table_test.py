import unittest

from table import document, problems, rows_in, rows_of


def record(fault="a fault", tried=1, survived=1, seen=(), desktop="X11"):
    return {"desktop": desktop, "fault": fault, "tried": tried, "survived": survived, "seen": list(seen)}


class Table(unittest.TestCase):
    def test_records_of_one_fault_become_one_row(self):
        rows = rows_of([record(tried=2, survived=1, seen=["b"]), record(tried=3, survived=3, seen=["a", ""])])
        self.assertEqual(rows, {("X11", "a fault"): (5, 4, "a; b")})

    def test_nothing_seen_is_said(self):
        self.assertEqual(rows_of([record(seen=[""])])[("X11", "a fault")][2], "nothing")

    def test_a_document_tells_its_rows(self):
        rows = rows_of([record("z"), record("a | b", seen=["x | y"]), record("k", desktop="memory")])
        read = rows_in(document(rows))
        self.assertEqual(read[("X11", "a \\| b")], (1, 1, "x \\| y"))
        self.assertEqual(list(read), [("X11", "a \\| b"), ("X11", "z"), ("memory", "k")])
        self.assertEqual(problems(rows, read), [])

    def test_a_fault_that_the_table_lacks_is_told(self):
        self.assertEqual(problems(rows_of([record()]), {}), ["not in the table: X11: a fault"])

    def test_another_result_is_told(self):
        committed = rows_in(document(rows_of([record(seen=["a line"])])))
        self.assertEqual(
            problems(rows_of([record()]), committed), ["the table has another result: X11: a fault: nothing"]
        )

    def test_a_fault_that_was_not_survived_is_told(self):
        recorded = rows_of([record(tried=3, survived=2)])
        self.assertEqual(
            problems(recorded, rows_in(document(recorded))), ["not survived: X11: a fault: 2 of 3"]
        )

    def test_how_often_a_fault_was_tried_may_differ(self):
        committed = rows_in(document(rows_of([record(tried=9, survived=9)])))
        self.assertEqual(problems(rows_of([record()]), committed), [])


if __name__ == "__main__":
    unittest.main()
