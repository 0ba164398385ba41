"""The documents' links have targets, and the files and the code that they name exist."""

import re
import subprocess
import unittest

from documents import DOCUMENTS, ROOT, anchors_of, blocks_of, code_of, links_of, rows_of, text_of

# The first folder of a path in a document.
FOLDERS = ("Utility", "FileIO", "Config", "Client", "source", "resource", "sample")
FOLDERS += ("tests", "fuzz", "bench", "docs", "tools", "cmake", "installer")
_PATH = re.compile(rf"^(?:{'|'.join(FOLDERS)})/[\w./*-]*$")
# Names in capitals, except those of documents.
_PLACE_MARKER = re.compile(r"(?<![A-Za-z])(?!(?:README|CHANGELOG|CONTRIBUTING)\.)[A-Z]{3,}(?![a-z])")
# A name in code: a call, or several words without blanks.
_NAME = re.compile(r"^(?:\w+::)*([a-z]+[A-Z]\w+|[A-Z][a-z]+[A-Z]\w+|\w+_\w+)(?:\(\))?$")


def named_paths(document):
    """The paths of this project that a document names, without the files of its examples. A name in capitals
    is a place marker."""
    own = {block.name for block in blocks_of(document) if block.what == "file"}
    paths = [code.split()[0] for code in code_of(document) if _PATH.match(code.split()[0])]
    return [_PLACE_MARKER.sub("*", path) for path in paths if path not in own]


def named_code(document):
    """The functions, classes and targets that a document names, without their namespaces."""
    found = (_NAME.match(code) for code in code_of(document))
    return [match.group(1) for match in found if match]


def words_of_sources():
    """Every word of every file of the project, without the documents."""
    files = subprocess.run(
        ["git", "ls-files", "-co", "--exclude-standard", "--", ":!*.md", ":!*.png", ":!*.ico"],
        cwd=ROOT,
        stdout=subprocess.PIPE,
        check=True,
    )
    words = set()
    for name in files.stdout.decode().splitlines():
        path = ROOT / name
        if path.is_file():
            words.update(re.findall(r"\w+", path.read_text(encoding="utf-8", errors="replace")))
            words.update(re.findall(r"\w+", name))
    return words


class Documents(unittest.TestCase):
    def test_every_link_has_a_target(self):
        missing = []
        count = 0
        for document in DOCUMENTS:
            for link in links_of(document.read_text(encoding="utf-8")):
                count += 1
                place, _, anchor = link.partition("#")
                target = (document.parent / place).resolve() if place else document
                if not target.is_file():
                    missing.append(f"{document.name}: {link}")
                elif anchor and anchor not in anchors_of(target.read_text(encoding="utf-8")):
                    missing.append(f"{document.name}: {link}")
        self.assertEqual(missing, [])
        self.assertGreater(count, 20)

    def test_every_document_is_linked_from_the_readme_or_its_links(self):
        reached, waiting = set(), [ROOT / "README.md"]
        while waiting:
            document = waiting.pop()
            if document in reached or document.suffix != ".md" or not document.is_file():
                continue
            reached.add(document)
            links = links_of(document.read_text(encoding="utf-8"))
            waiting += [(document.parent / link.partition("#")[0]).resolve() for link in links]
        self.assertEqual(sorted(path.name for path in set(DOCUMENTS) - reached), [])

    def test_every_named_path_exists(self):
        missing = []
        count = 0
        for document in DOCUMENTS:
            for path in named_paths(document.read_text(encoding="utf-8")):
                count += 1
                if not list(ROOT.glob(path.rstrip("/"))):
                    missing.append(f"{document.name}: {path}")
        self.assertEqual(missing, [])
        self.assertGreater(count, 40)

    def test_the_named_code_exists(self):
        words = words_of_sources()
        for name in ("CONTRIBUTING.md", "docs/architecture.md"):
            with self.subTest(name):
                named = named_code(text_of(name))
                self.assertGreater(len(named), 5)
                # The example of a recipe is fictitious.
                real = [code for code in named if "Nordcad" not in code]
                self.assertEqual([code for code in real if code not in words], [])


class DocumentChecks(unittest.TestCase):
    """What is read from a small document."""

    DOCUMENT = """# One page
See [there](docs/there.md#deep-down), ![picture](a.png) and `tools/nothing --all`, `docs/NAME/README.md`,
not `tools`.
## Deep, down: `in` it
```
[no link](in a block) `tools/in-a-block`
```
Call `Nvx::Util::wholeFile()` or `nvx_test`, not `word`.
| head | |
|---|---|
| `-I` | a `|` less |
"""

    def test_links_are_found(self):
        self.assertEqual(links_of(self.DOCUMENT), ["docs/there.md#deep-down", "a.png"])

    def test_headings_have_anchors(self):
        self.assertEqual(anchors_of(self.DOCUMENT), {"one-page", "deep-down-in-it"})

    def test_paths_are_found(self):
        self.assertEqual(named_paths(self.DOCUMENT), ["tools/nothing", "docs/*/README.md"])

    def test_names_of_code_are_found(self):
        self.assertEqual(named_code(self.DOCUMENT), ["wholeFile", "nvx_test"])

    def test_rows_of_tables_are_read(self):
        self.assertEqual(rows_of("| a | b |\n|---|---|\n| c | d |\ntext\n"), [["c", "d"]])


if __name__ == "__main__":
    unittest.main()
