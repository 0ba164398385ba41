"""Lists the small changes (mutants) that can be made to a C++ source file.

Comments, literals and preprocessor lines are masked before operators are searched. The sources must be
formatted by clang-format: binary operators have blanks around them; the brackets of templates, references and
pointers do not; and a function ends with a brace in the first column.
"""

import re
from dataclasses import dataclass


@dataclass(frozen=True, order=True)
class Mutant:
    """Replaces the text from start to end; `source` is the line with the number `line`, without its
    indent."""

    start: int
    end: int
    replacement: str
    line: int
    source: str
    change: str


LITERAL = "\x01"  # replaces the characters of a masked literal

TOKENS = re.compile(
    r"""(?P<comment>//[^\n]*|/\*.*?\*/)
      | (?P<raw>\b(?:u8|u|U|L)?R"(?P<mark>[^()\\\s]*)\(.*?\)(?P=mark)")
      | (?P<text>"(?:\\.|[^"\\\n])*")
      | (?P<char>(?<![0-9A-Fa-f])'(?:\\.[^'\n]*|[^'\\\n])')
      | (?P<directive>^[ \t]*\#(?:\\\n|[^\n])*)""",
    re.VERBOSE | re.DOTALL | re.MULTILINE,
)


def blank(text: str, by: str) -> str:
    return "".join(char if char == "\n" else by for char in text)


# Code after #else is for another platform.
OTHER_BRANCH = re.compile(r"^[ \t]*#[ \t]*else\b.*?^[ \t]*#[ \t]*endif\b", re.DOTALL | re.MULTILINE)


def mask(text: str) -> tuple[str, list[tuple[int, int, str]]]:
    """The text with everything but code masked, at the same length, and the ranges of its literals."""
    literals = []
    text = OTHER_BRANCH.sub(lambda match: blank(match.group(), " "), text)

    def masked(match):
        kind = match.lastgroup if match.lastgroup != "mark" else "raw"
        whole = match.group()
        if kind in ("comment", "directive"):
            return blank(whole, " ")
        literals.append((match.start(), match.end(), kind))
        return whole[0] + blank(whole[1:-1], LITERAL) + whole[-1]

    return TOKENS.sub(masked, text), literals


# The replacement of each binary operator.
BINARY = {
    "<": "<=",
    "<=": "<",
    ">": ">=",
    ">=": ">",
    "==": "!=",
    "!=": "==",
    "&&": "||",
    "||": "&&",
    "+": "-",
    "-": "+",
    "*": "/",
    "/": "*",
    "%": "/",
    "&": "|",
    "|": "&",
    "<<": ">>",
    ">>": "<<",
    "+=": "-=",
    "-=": "+=",
    "|=": "&=",
    "&=": "|=",
}
BINARY_OPERATOR = re.compile(
    "(?<= )(" + "|".join(re.escape(sign) for sign in sorted(BINARY, key=len, reverse=True)) + r")(?=[ \n])"
)
STEP_OPERATOR = re.compile(r"\+\+|--")
NOT_OPERATOR = re.compile(r"(?<![\w)\]])!(?=[\w(:])")
WORD = re.compile(r"\b(true|false)\b")
NUMBER = re.compile(r"(?<![\w.'])(?P<digits>0[xX][0-9A-Fa-f']+|\d[\d']*)(?P<suffix>[uUlLzZ]*)(?![\w.'])")
CHOICE = re.compile(r"(?<=[ \n])\?(?= )")
CONDITION = re.compile(r"\b(?:if|while) \(")
RETURN = re.compile(r"\breturn (?=[^;])")
LOGIC = re.compile(r" (?:<|>|<=|>=|==|!=|&&|\|\|) |!|=|;")
NOTHING = re.compile(r"(?:\{\}|false|true|0|nullptr|std::nullopt|[A-Z][\w:]*(?:<[\w:]+>)?(?:\(\)|\{\}))")
STRING_BEFORE = re.compile(r'"(?:_s|_L1)?$')
STRING_AFTER = re.compile(r'u?"|(?:QStringLiteral|QLatin1String|QLatin1Char|QChar|QString|QByteArray)\(')

WITHOUT_EFFECT = re.compile(r"static_assert|NVX_ASSERT|[\w.]+\.reserve\(")  # that a test could detect
NO_STATEMENT = re.compile(r"(?:return|break|continue|case|default|using|static_assert|friend)\b")
BEFORE_STATEMENT = re.compile(r"(?:[;{}:]|\belse)$|^(?:else )?(?:if|for) \(.*\)$")
DECLARATION = re.compile(
    r"(?:(?:static|constexpr|const|mutable|auto|using|explicit|virtual|friend|enum|template|typedef|Q_\w+)\b"
    r"|(?!(?:return|delete|throw|goto|else|case)\b)[A-Za-z_][\w:]*(?:<.*>)?(?:::\w+)? [*&]*[A-Za-z_]\w*"
    r"(?: =|;|\(|\{|\[|,)|.*\) const;|.*= (?:default|delete);|.*\boverride;)"
)
ASSIGNMENT = re.compile(r"((\w+)[\w.>\-]*(?:\[.*\])?) (?:=|\+=|\|=) (.*);$")
DECLARED_NAME = re.compile(r"[*& ]([A-Za-z_]\w*)(?: =|;|\(|\{|\[)")


def are_independent(line: str, following: str) -> bool:
    """Whether two assignments are independent of each other; at most one of them contains a call."""
    first, second = ASSIGNMENT.match(line), ASSIGNMENT.match(following)
    if not first or not second or ("(" in first[3] and "(" in second[3]):
        return False
    names = [re.findall(r"\w+", re.sub(r"\[.*\]", "", match[1]))[-1] for match in (first, second)]
    return names[0] not in re.findall(r"\w+", following) and names[1] not in re.findall(r"\w+", line)


class Finder:
    """Collects the mutants of one file."""

    def __init__(self, text: str) -> None:
        self.text = text
        self.code, self.literals = mask(text)
        self.lines = text.split("\n")
        self.code_lines = self.code.split("\n")
        self.starts = [0]
        for line in self.lines:
            self.starts.append(self.starts[-1] + len(line) + 1)
        self.found: list[Mutant] = []

    def line_of(self, offset: int) -> int:
        return self.code.count("\n", 0, offset) + 1

    def add(self, start: int, end: int, replacement: str, change: str) -> None:
        line = self.line_of(start)
        source = self.lines[line - 1].strip()
        if not WITHOUT_EFFECT.match(source):
            self.found.append(Mutant(start, end, replacement, line, source, change))

    def replace(self, start: int, end: int, replacement: str) -> None:
        self.add(start, end, replacement, f"{self.text[start:end].strip()} to {replacement.strip()}")

    def operators(self) -> None:
        for match in BINARY_OPERATOR.finditer(self.code):
            sign = match.group()
            if sign in ("+", "+=") and self.joins_strings(match):
                continue  # joining strings has no opposite
            self.replace(match.start(), match.end(), BINARY[sign])
        for match in STEP_OPERATOR.finditer(self.code):
            self.replace(match.start(), match.end(), "--" if match.group() == "++" else "++")
        for match in NOT_OPERATOR.finditer(self.code):
            self.add(match.start(), match.end(), "", "drop !")
        for match in CHOICE.finditer(self.code):
            self.add(match.start(), match.start(), "|| true ", "always the first of the choice")
            self.add(match.start(), match.start(), "&& false ", "always the second of the choice")

    def joins_strings(self, match: re.Match[str]) -> bool:
        before = self.code[: match.start()].rstrip()
        after = self.code[match.end() :].lstrip()
        return bool(STRING_BEFORE.search(before) or STRING_AFTER.match(after))

    def constants(self) -> None:
        for match in WORD.finditer(self.code):
            self.replace(match.start(), match.end(), "false" if match.group() == "true" else "true")
        for match in NUMBER.finditer(self.code):
            digits = match["digits"].replace("'", "")
            value = int(digits, 8 if re.fullmatch(r"0[0-7]+", digits) else 0) + 1
            written = hex(value) if digits[:2] in ("0x", "0X") else str(value)
            self.replace(match.start(), match.end(), written + match["suffix"])

    def texts(self) -> None:
        for start, end, kind in self.literals:
            place = self.place_to_change(start, end, kind)
            if place is not None:
                old = self.text[place]
                new = {"z": "y", "Z": "Y", "9": "8"}.get(old, chr(ord(old) + 1) if old.isalnum() else "q")
                changed = self.text[start:place] + new + self.text[place + 1 : end]
                self.replace(start, end, changed)

    def place_to_change(self, start: int, end: int, kind: str) -> int | None:
        """A character that is not part of an escape sequence or a place marker."""
        inside = self.text[start:end]
        first = inside.index("(") + 1 if kind == "raw" else 1
        plain = []
        at = first
        while at < len(inside) - 1:
            if kind != "raw" and inside[at] == "\\":
                if kind == "char":
                    return None if inside[at + 1].isdigit() else start + at + 1
                at += 2
            elif inside[at] == "%" and inside[at + 1].isdigit():
                at += 2
            else:
                plain.append(at)
                at += 1
        letters = [at for at in plain if inside[at].isalnum() and inside[at].isascii()]
        return start + (letters or plain)[0] if plain else None

    def conditions(self) -> None:
        """Negates conditions without an operator."""
        for match in CONDITION.finditer(self.code):
            opened = match.end()
            closed = self.closing(opened, ")")
            if closed and not LOGIC.search(self.code[opened:closed]):
                self.add(opened, closed, f"!({self.text[opened:closed]})", "negate the condition")

    def returns(self) -> None:
        for match in RETURN.finditer(self.code):
            closed = self.closing(match.end(), ";")
            if not closed or NOTHING.fullmatch(self.code[match.end() : closed].strip()):
                continue
            self.add(match.end(), closed, "{}", "return nothing")
            value = self.text[match.end() : closed]
            if self.returns_bool(match.start()) and not LOGIC.search(self.code[match.end() : closed]):
                self.add(match.end(), closed, f"!({value})", "return the contrary")

    def closing(self, start: int, end_sign: str) -> int | None:
        """The position of the sign that ends the expression at `start`, outside inner brackets."""
        depth = 0
        for at in range(start, len(self.code)):
            sign = self.code[at]
            if depth == 0 and sign == end_sign:
                return at
            if sign in "([{":
                depth += 1
            elif sign in ")]}":
                depth -= 1
                if depth < 0:
                    return None
        return None

    def returns_bool(self, offset: int) -> bool:
        heads = re.findall(r"^ *(?:[\w:]+ )*?bool [\w:]+\(.*$|^}", self.code[:offset], re.MULTILINE)
        return bool(heads) and heads[-1] != "}"

    def statements(self) -> None:
        """Drops a statement of one line, or exchanges it with the next."""
        for number in range(1, len(self.code_lines) - 1):
            if not self.is_statement(number):
                continue
            line = self.code_lines[number]
            declares = bool(DECLARATION.match(line.strip()))
            if not declares:
                indent = len(line) - len(line.lstrip())
                start = self.starts[number] + indent
                self.add(start, start + len(line.rstrip()) - indent, ";", "drop the statement")
            if self.may_swap(number, declares):
                self.swap(number)

    def is_statement(self, number: int) -> bool:
        line = self.code_lines[number]
        before = next((text.strip() for text in reversed(self.code_lines[:number]) if text.strip()), "")
        return (
            line.startswith("    ")
            and line.rstrip().endswith(";")
            and line.strip() != ";"
            and line.count("(") == line.count(")")
            and line.count("{") == line.count("}")
            and not NO_STATEMENT.match(line.strip())
            and BEFORE_STATEMENT.search(before) is not None
        )

    def may_swap(self, number: int, declares: bool) -> bool:
        line, following = self.code_lines[number], self.code_lines[number + 1]
        indent = len(line) - len(line.lstrip())
        guarded = not self.code_lines[number - 1].rstrip().endswith((";", "{", "}", ":"))
        if guarded or not self.is_statement(number + 1) or len(following) - len(following.lstrip()) != indent:
            return False
        if not declares:
            return not DECLARATION.match(following.strip()) and not are_independent(
                line.strip(), following.strip()
            )
        name = DECLARED_NAME.search(line.strip())
        used = name is None or re.search(rf"\b{name[1]}\b", following)
        return not used and not DECLARATION.match(following.strip())

    def swap(self, number: int) -> None:
        start, end = self.starts[number], self.starts[number + 2] - 1
        first, second = self.lines[number], self.lines[number + 1]
        indent = len(first) - len(first.lstrip())
        self.add(start + indent, end, f"{second.strip()}\n{first}", "change places with the next statement")


def mutants_of(text: str) -> list[Mutant]:
    """All mutants of a source file, in the order of the file."""
    finder = Finder(text)
    for look in (
        finder.operators,
        finder.constants,
        finder.texts,
        finder.conditions,
        finder.returns,
        finder.statements,
    ):
        look()
    return sorted(finder.found)


def mutated(text: str, mutant: Mutant) -> str:
    return text[: mutant.start] + mutant.replacement + text[mutant.end :]
