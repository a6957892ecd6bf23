"""The mutants of a source file: small faults, found by rules that know the code's form and not its
content, so that they follow the code as it changes.

Comments, preprocessor lines, static_asserts and declarations are left alone.
"""

import re
from dataclasses import dataclass
from pathlib import Path
from typing import Callable, Iterator


@dataclass(frozen=True)
class Mutant:
    rule: str
    file: str
    start: int  # text[start:end] becomes replacement
    end: int
    replacement: str
    text: str  # of the whole file

    def mutated(self) -> str:
        return self.text[: self.start] + self.replacement + self.text[self.end :]

    def line(self) -> int:
        return self.text.count("\n", 0, self.start) + 1

    def diff(self) -> str:
        """The lines concerned, "- before" and "+ after", without indentation."""
        first = self.text.rfind("\n", 0, self.start) + 1
        last = self.text.find("\n", max(self.start, self.end - 1))
        before = self.text[first:last]
        after = self.text[first : self.start] + self.replacement + self.text[self.end : last]
        return "\n".join(
            f"{sign} {line.strip()}".rstrip()
            for sign, lines in (("-", before), ("+", after))
            for line in lines.splitlines()
        )


Edit = tuple[str, int, int, str]  # rule, start, end, replacement


def blanked(text: str, pattern: str) -> str:
    """The text with each match of pattern as blanks, so that offsets stay as they are."""
    return re.sub(
        pattern,
        lambda match: re.sub(r"[^\n]", " ", match[0]),
        text,
        flags=re.DOTALL | re.MULTILINE,
    )


def code_of(text: str) -> str:
    """C++ without comments, preprocessor lines and static_asserts; strings keep their quotes."""
    code = re.sub(
        r'//[^\n]*|"(?:\\.|[^"\\\n])*"',
        lambda m: '"' + "_" * (len(m[0]) - 2) + '"' if m[0][0] == '"' else " " * len(m[0]),
        text,
    )
    code = blanked(code, r"^#(?:[^\n]*\\\n)*[^\n]*$")
    return blanked(code, r"\bstatic_assert\(.*?\);")


def closing(code: str, opening: int) -> int:
    """The offset behind the bracket that closes the one at opening."""
    depth = 0
    for at in range(opening, len(code)):
        depth += (code[at] in "([{") - (code[at] in ")]}")
        if depth == 0:
            return at + 1
    raise ValueError("a bracket is not closed")


# --- Statements


def segments(code: str) -> Iterator[tuple[int, int]]:
    """What stands between the semicolons and braces of each block, lambdas' blocks included."""
    starts, depths = [0], [0]
    for at, char in enumerate(code):
        depths[-1] += (char in "([") - (char in ")]")
        if char == "{":
            starts.append(at + 1)
            depths.append(0)
        elif char == "}":
            starts.pop()
            depths.pop()
            if depths[-1] == 0:
                starts[-1] = at + 1
        elif char == ";" and depths[-1] == 0:
            yield starts[-1], at + 1
            starts[-1] = at + 1


LABEL = re.compile(r"\s*(?:else\b|case [\w:]+:|default:|(?:public|private|protected):|@\w+@)")
CONTROL = re.compile(r"\s*(?:if|for|while|switch)(?: constexpr)? (?=\()")
# Calls, assignments, increments, output and deletes; not a declaration, which has a type, a blank
# and a name.
EFFECT = re.compile(
    r"delete \w|(?:\+\+|--)\w|return;$|\w+ << |"
    r"[*\w.\->\[\]:()&]+ [-+*/|&]?= (?!default;|delete;)|"
    r"(?!ZOR_)[*(:\w](?:[\w:.>*-]|\(|\)|<[\w:, ]*>)*\(.*\);$",
    re.DOTALL,
)


def effects(code: str) -> list[tuple[int, int]]:
    """The statements that could be left out."""
    found = []
    for start, end in segments(code):
        while match := LABEL.match(code, start, end) or CONTROL.match(code, start, end):
            start = match.end()
            if match.re is CONTROL:
                start = closing(code, start)
        start += len(code[start:end]) - len(code[start:end].lstrip())
        if EFFECT.match(code[start:end]):
            found.append((start, end))
    return sorted(found)


# Neighbours whose order shows nowhere.
UNORDERED = (
    # Each of these concerns one child, its slot and its field only.
    r"static_cast<void>\(held->release_|delete \w+_;|zorpb::(?:handOn|remakeChild)\(",
    # Each writes members of its own, but for the high-pass coefficients.
    r"zorpb::writeChild\((?!hpfCoef_)|\w+Fields::\w+\(zorpb::writing\(",
    # Each sets fields of its own.
    r"fresh->set_|\w+Fields::\w+\(zorpb::(?:loading|reading)\(",
)


def statement_edits(code: str, text: str) -> Iterator[Edit]:
    found = effects(code)
    for start, end in found:
        yield "drop-statement", start, end, ";"
    for start, middle in found:
        second, end = next((other for other in found if other[0] >= middle), (middle, middle))
        one, other = code[start:middle], code[second:end]
        neighbours = code[:start].rstrip()[-1:] in ";{}" and not code[middle:second].strip()
        if not neighbours or other in ("", one) or "return" in one + other:
            continue
        if any(re.match(pattern, one) and re.match(pattern, other) for pattern in UNORDERED):
            continue
        swapped = text[second:end] + text[middle:second] + text[start:middle]
        yield "swap-statements", start, end, swapped


def condition_edits(code: str, text: str) -> Iterator[Edit]:
    for match in re.finditer(r"\bif(?: constexpr)? \(", code):
        start, end = match.end(), closing(code, match.end() - 1) - 1
        # The comparison's own mutant says the same.
        if re.fullmatch(r"[^&|]* [=!]= [^&|]*", code[start:end]):
            continue
        declared = re.match(r"[^=;()]*[ *&](\w+) = ", code[start:end])
        if declared:
            yield "negate-if", end, end, f"; !{declared[1]}"
        else:
            yield "negate-if", start, end, f"!({text[start:end]})"


# --- Tokens

OPERATORS = {
    "==": "!=",
    "!=": "==",
    "<": "<=",
    "<=": "<",
    ">": ">=",
    ">=": ">",
    "&&": "||",
    "||": "&&",
    "+": "-",
    "-": "+",
    "*": "/",
    "/": "*",
}
WORDS = {
    "true": "false",
    "false": "true",
    "std::min": "std::max",
    "std::max": "std::min",
    # An owner that keeps what it was to hand over.
    "fresh.release()": "fresh.get()",
}


def token_edits(code: str, _text: str) -> Iterator[Edit]:
    # A blank on either side tells an operator from a template's bracket or a reference; beside a
    # string a plus joins text, and nothing else compiles there.
    for match in re.finditer(r'(?<=[^"] )(?:[=!<>]=|[<>+*/-]|&&|\|\|)(?= [^"])', code):
        yield "operator", match.start(), match.end(), OPERATORS[match[0]]
    for match in re.finditer("|".join(rf"(?<![\w:]){re.escape(word)}" for word in WORDS), code):
        yield "word", match.start(), match.end(), WORDS[match[0]]
    # Every element has the same size.
    for match in re.finditer(r"(?<![\w.])-?\d+\b", blanked(code, r"\bsizeof\([^()]*\)")):
        for change in (1, -1):
            changed = int(match[0]) + change
            if changed >= 0 or match[0][0] == "-":
                yield "integer", match.start(), match.end(), str(changed)
    for match in re.finditer(r'"_+"', code):
        yield "string", match.start() + 1, match.start() + 1, "~"


def enumerator_edits(code: str, enums: dict[str, list[str]]) -> Iterator[Edit]:
    for match in re.finditer(r"\b(\w+)::(k\w+)\b(?!:)", code):
        names = enums.get(match[1], [])
        # A case label that stands twice does not compile.
        if match[2] in names and not code[: match.start()].endswith("case "):
            other = names[(names.index(match[2]) + 1) % len(names)]
            yield "enumerator", match.start(2), match.end(2), other


# --- Forms of their own

# The kind that a field could be taken for.
KINDS = {
    "ZOR_SCALAR": "ZOR_UNLOADED_SCALAR",
    "ZOR_UNLOADED_SCALAR": "ZOR_SCALAR",
    "ZOR_LIST": "ZOR_OPEN_LIST",
    "ZOR_FULL_LIST": "ZOR_LIST",
    "ZOR_OPEN_LIST": "ZOR_LIST",
    "ZOR_UNBOUNDED_LIST": "ZOR_OPEN_LIST",
    "ZOR_NESTED": "ZOR_NESTED_TO_MESSAGE",
    "ZOR_NESTED_TO_MESSAGE": "ZOR_NESTED",
}


def field_edits(code: str, _text: str) -> Iterator[Edit]:
    """In the lists of fields, one line a field."""
    found = list(re.finditer(r"^ +(ZOR_\w+)\(\w+(?:, \w+)?\);\n", code, re.MULTILINE))
    for match in found:
        yield "drop-field", match.start(), match.end(), ""
        if match[1] in KINDS:
            yield "field-kind", match.start(1), match.end(1), KINDS[match[1]]
    for one, other in zip(found, found[1:]):
        if one.end() == other.start():
            yield "double-field", other.start(), other.end(), one[0]


def member_edits(code: str, text: str) -> Iterator[Edit]:
    """In the structs: the names of neighbours of one type change places."""
    found = list(re.finditer(r"^  (\w+_t|struct \w+) (\w+)(\[\d+\])?;[^\n]*\n", code, re.MULTILINE))
    for one, other in zip(found, found[1:]):
        if one.end() == other.start() and (one[1], one[3]) == (other[1], other[3]):
            between = text[one.end(2) : other.start(2)]
            yield "swap-members", one.start(2), other.end(2), other[2] + between + one[2]


def cmake_edits(text: str, _text: str) -> Iterator[Edit]:
    code = blanked(text, r'^ *#[^\n]*$|(?<!\\)"(?:\\.|[^"\\])*"')
    kept = r"(?:end)?(?:function|foreach|if)|else|include|cmake_minimum_required|message"
    for match in re.finditer(rf"^ *(?!(?:{kept})\()\w+(?=\()", code, re.MULTILINE):
        yield "drop-statement", match.start(), closing(code, match.end()), ""
    for match in re.finditer(r"(?<=if\()NOT (?=\w+ EQUAL)", code):
        yield "negate-if", match.start(), match.end(), ""
    for match in re.finditer(r"(?<=expect_count\()[^)]* (\d)", code):
        yield "integer", match.start(1), match.end(1), str(int(match[1]) + 1)


# --- All of them

SOURCES = ("jni/*.h", "jni/*.cpp", "check/*.h", "check/*.cpp", "cmake/registration.cc.in")
CMAKE_SOURCE = "cmake/ZorcsAdaptGenerated.cmake"
# Compile-time assertions and nothing else.
ASSERTIONS = ("jni/ZorEngineLayout.cpp", "jni/ZorPbLayout.cpp")


def enums_of(codes: Iterator[str]) -> dict[str, list[str]]:
    return {
        match[1]: re.findall(r"\bk\w+", match[2])
        for code in codes
        for match in re.finditer(r"\benum class (\w+) \{(.*?)\}", code, re.DOTALL)
    }


def mutants(root: Path) -> list[Mutant]:
    """Every mutant there is, by file, then by place."""
    files = [path for pattern in SOURCES for path in sorted(root.glob(pattern))]
    texts = {path.relative_to(root).as_posix(): path.read_text() for path in files}
    for assertions in ASSERTIONS:
        del texts[assertions]
    enums = enums_of(code_of(text) for text in texts.values())

    rules: tuple[Callable[[str, str], Iterator[Edit]], ...] = (
        field_edits,
        member_edits,
        statement_edits,
        condition_edits,
        token_edits,
        lambda code, _text: enumerator_edits(code, enums),
    )
    found = [
        Mutant(rule, file, start, end, replacement, text)
        for file, text in texts.items()
        for edits in rules
        for rule, start, end, replacement in edits(code_of(text), text)
    ]
    text = (root / CMAKE_SOURCE).read_text()
    found += [
        Mutant(rule, CMAKE_SOURCE, start, end, replacement, text)
        for rule, start, end, replacement in cmake_edits(text, text)
    ]
    return sorted(found, key=lambda m: (m.file, m.start, m.end, m.rule, m.replacement))
