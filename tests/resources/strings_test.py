"""The reader of our tables refuses what it should."""

import unittest

from strings import StringsError, read_strings


class Reader(unittest.TestCase):
    def test_reads_entries(self):
        source = '/* One. */\n"A" = "a";\n\n/* Two\n   lines. */\n"B" = "\\"b\\"\\n";\n'
        self.assertEqual(read_strings(source), {"A": "a", "B": '\\"b\\"\\n'})

    def test_reads_nothing_from_nothing(self):
        self.assertEqual(read_strings("\n"), {})

    def refuses(self, source, reason):
        with self.assertRaisesRegex(StringsError, reason):
            read_strings(source)

    def test_refuses_mistakes(self):
        self.refuses('"A" = "a";\n', "a comment expected behind line 1")
        self.refuses('/* One. */\n"A" = "a"\n', "an entry expected behind line 1")
        self.refuses('/* One. */\n"A" = "a;\n', "an entry")
        self.refuses('/* One. */\n"A = "a";\n', "an entry")
        self.refuses('/* One. */\n"A" "a";\n', "an entry")
        self.refuses('/* One. */\n"A" = "\\q";\n', "an entry")
        self.refuses('/* One. \n"A" = "a";\n', "a comment")
        self.refuses('/* One. */\n"A" = "a";\njunk', "a comment expected behind line 3")
        self.refuses('/* */\n"A" = "a";\n', "empty comment")
        self.refuses('/* One. */\n"A" = "a";\n/* Two. */\n"A" = "b";\n', "comes twice")
