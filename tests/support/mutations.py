"""What scripts/mutants tries: a source file with one operator, number, truth value, condition or call changed."""
import re
from dataclasses import dataclass
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
NOT_CODE = re.compile(r'//[^\n]*|/\*.*?\*/|^[ \t]*#[^\n]*|L?"(?:\\.|[^"\\\n])*"|L?\'(?:\\.|[^\'\\\n])+\'', re.S | re.M)

# Operators stand between blanks (clang-format sees to it); those of types do not.
SWAPPED = {
    "<": ["<=", ">="], "<=": ["<", ">"], ">": [">=", "<="], ">=": [">", "<"], "==": ["!="], "!=": ["=="],
    "&&": ["||"], "||": ["&&"], "+": ["-"], "-": ["+"], "*": ["/"], "/": ["*"], "%": ["/"],
    "+=": ["-="], "-=": ["+="], "&": ["|"], "|": ["&"], "<<": [">>"], ">>": ["<<"],
}
OPERATOR = re.compile(r"(?<=\s)(?:[<>=!]=|&&|\|\||[+-]=|<<|>>|[<>+*/%&|-])(?=\s)")
NUMBER = re.compile(r"(?<![\w.])(?:0[xX][0-9a-fA-F]+|\d+\.?\d*(?:[eE][+-]?\d+)?)(?![\w.])")
TRUTH = re.compile(r"\b(?:true|false)\b")
SIGN = re.compile(r"(?<=[(\[,?:=\s])-(?=[\w(])")
NOT = re.compile(r"!(?=[\w(:])")
IF = re.compile(r"\bif \(")
CALL = re.compile(r"(?<=[;{})])\s+((?:delete |[\w:]+(?:\[[^\]]*\])?(?:\.|->))*[\w:]+)(?=\(|;)")


@dataclass(frozen=True)
class Mutant:
    file: str
    start: int
    end: int
    text: str
    line: int
    before: str
    after: str
    function: str

    def __str__(self):
        return f"{self.file}:{self.line}: {self.before} -> {self.after}"

    @property
    def key(self):
        return f"{self.file} {self.function}".strip(), self.before, self.after


def blanked(source):
    """The source without comments, texts and preprocessor lines, every place where it was."""
    return NOT_CODE.sub(lambda found: re.sub(r"[^\n]", " ", found.group()), source)


def other_number(text):
    if re.fullmatch(r"0[xX].*|\d+", text):
        return str(int(text, 0) + 1)
    return "1.0" if float(text) == 0 else repr(2 * float(text))


def closing(code, start):
    """Where the parenthesis opened at start is closed."""
    depth = 0
    for at in range(start, len(code)):
        depth += {"(": 1, ")": -1}.get(code[at], 0)
        if depth == 0:
            return at
    raise ValueError("a parenthesis stays open")


def calls(code):
    """Whole statements that only call something."""
    for found in CALL.finditer(code):
        start, end = found.start(1), found.end(1)
        if re.match(r"(?:return|if|for|while|switch|break|continue|else|do)\b", found.group(1)):
            continue
        while end < len(code) and code[end] == "(":
            end = closing(code, end) + 1
            chained = re.match(r"\s*(?:\.|->)\w+(?=\()", code[end:])
            end += chained.end() if chained else 0
        if code[end:end + 1] == ";" and (code[end - 1] == ")" or found.group(1).startswith("delete ")):
            yield start, end, ""


def is_turned_by_an_operator(condition):
    """Whether the change of its one operator is that of the whole already."""
    is_one = "&&" not in condition and "||" not in condition and "?" not in condition
    return is_one and (condition.startswith("(!") or re.search(r" [<>=!]=? | [=!]= ", condition))


def changes(code):
    for found in OPERATOR.finditer(code):
        for other in SWAPPED[found.group()]:
            yield found.start(), found.end(), other
    for found in NUMBER.finditer(code):
        yield found.start(), found.end(), other_number(found.group())
    for found in TRUTH.finditer(code):
        yield found.start(), found.end(), "false" if found.group() == "true" else "true"
    for pattern in (SIGN, NOT):
        for found in pattern.finditer(code):
            yield found.start(), found.end(), ""
    for found in IF.finditer(code):
        start = found.end() - 1
        end = closing(code, start) + 1
        if not is_turned_by_an_operator(code[start:end]):
            yield start, end, "(!"
    yield from calls(code)


def function_at(code, at):
    names = re.findall(r"^[A-Za-z][^\n;=]*?([\w:~]+)\(", code[:at], re.M)
    return names[-1].split("::")[-1] if names else ""


def on_one_line(source, start, end):
    first = source.rfind("\n", 0, start) + 1
    last = source.find("\n", end)
    return first, len(source) if last < 0 else last


def mutants_of(file):
    source = (ROOT / file).read_text(encoding="utf-8")
    code = blanked(source)
    for start, end, text in sorted(changes(code)):
        if text == "(!":
            text = f"(!{source[start:end]})"
        first, last = on_one_line(source, start, end)
        before = " ".join(source[first:last].split())
        after = " ".join((source[first:start] + text + source[end:last]).split())
        yield Mutant(file, start, end, text, source.count("\n", 0, start) + 1, before, after,
                     function_at(code, start))
