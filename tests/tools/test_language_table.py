"""Tests how the scripts read the table of languages from its header."""

import unittest

from languages import parse_languages

ROW = """Language{{
    .locale = "{locale}"_L1,
    .name = QT_TRANSLATE_NOOP("WelcomePage", "Chinese (Simplified), v.2"),
    .translatorsCode = "chs"_L1, // as they call it
    .installerName = "SimpChinese"_L1,
    .fonts = {{"A Sans"_L1, "B Sans"_L1}},
    .optionPlace = 4,
}},
"""


def row(locale="zh-CN"):
    return ROW.format(locale=locale)


class Languages(unittest.TestCase):
    def test_every_row_is_read_with_its_columns_that_have_strings(self):
        languages = parse_languages("struct Language\n{ int a; };\n" + row() + row("zh-TW"))
        self.assertEqual([language["locale"] for language in languages], ["zh-CN", "zh-TW"])
        self.assertEqual(
            languages[0],
            {
                "locale": "zh-CN",
                "name": "Chinese (Simplified), v.2",
                "translatorsCode": "chs",
                "installerName": "SimpChinese",
                "fonts": "B Sans",
            },
        )

    def test_line_breaks_do_not_matter(self):
        self.assertEqual(
            parse_languages(" ".join(row().replace(" // as they call it", "").split())),
            parse_languages(row()),
        )

    def test_a_comment_is_no_row(self):
        self.assertEqual(len(parse_languages(row() + '// Language{.locale = "xx-XX"_L1},\n')), 1)

    def test_a_row_without_a_required_column_is_refused(self):
        for column in ("name", "translatorsCode", "installerName"):
            with self.assertRaisesRegex(ValueError, f"row 2 has no {column}"):
                parse_languages(row() + row().replace("." + column, ".x" + column))

    def test_a_header_without_rows_is_refused(self):
        with self.assertRaisesRegex(ValueError, "no rows"):
            parse_languages("struct Language\n{\n    int optionPlace = 0;\n};\n")


if __name__ == "__main__":
    unittest.main()
