# SPDX-License-Identifier: MIT
"""Small wrong changes to a line of C++."""
import re
from dataclasses import dataclass

SWAPS = [
    ("comparison", " < ", " <= "), ("comparison", " <= ", " < "), ("comparison", " > ", " >= "),
    ("comparison", " >= ", " > "), ("comparison", " == ", " != "), ("comparison", " != ", " == "),
    ("arithmetic", " + ", " - "), ("arithmetic", " - ", " + "), ("arithmetic", " * ", " / "),
    ("arithmetic", " / ", " * "), ("arithmetic", " += ", " -= "), ("arithmetic", " -= ", " += "),
    ("arithmetic", "++", "--"), ("logic", " && ", " || "), ("logic", " || ", " && "),
    ("constant", "true", "false"), ("constant", "false", "true"), ("constant", "kTrue", "kFalse"),
    ("constant", "kFalse", "kTrue"),
]
NUMBER = re.compile(r"(?<![\w.'\"])(\d+)(?![\w.'])")
# A call or an assignment that fills the line.
STATEMENT = re.compile(r"^\s*(?!return\b|const\b|auto\b|using\b|break\b|continue\b|static_assert\b|case\b|throw\b)"
                       r"[\w:\]\[.()*>-]+(\s*([-+|&]?=)\s.*|\(.*\)|\+\+)?;$")
DECLARATION = re.compile(r"^\s*[\w:<>,*& ]+[ &*]\w+(\{.*\}|\(.*\))?( = .*)?;$")
RETURN = re.compile(r"^(\s*(?:if \(.*\) )?return )(.+);$")
CONDITION = re.compile(r"^(\s*(?:\} else )?if \()(.+)(\) (?:\{|return.*;|.*;)|\))$")
NO_CODE = re.compile(r"^\s*(//|#|static_assert|using |namespace|template)")


@dataclass(frozen=True)
class Mutant:
    file: str
    line: int  # from 1
    kind: str
    before: str
    after: str

    def name(self) -> str:
        return f"{self.file}: {self.before.strip()} -> {self.after.strip()}"


def masked(line: str) -> str:
    """With blanks for what stands in quotes and comments, so that places stay the same."""
    line = re.sub(r'"(?:\\.|[^"\\])*"|\'(?:\\.|[^\'\\])\'', lambda m: "\x01" * len(m.group()), line)
    return re.sub(r"//.*", lambda m: "\x01" * len(m.group()), line)


def balanced(text: str) -> bool:
    depth = 0
    for character in text:
        depth += {"(": 1, ")": -1}.get(character, 0)
        if depth < 0:
            return False
    return depth == 0


def of_line(line: str) -> list[tuple[str, str]]:
    """Kind and changed line of each mutant."""
    code = masked(line)
    if NO_CODE.match(line) or not code.strip("\x01 "):
        return []
    found = []
    for kind, old, new in SWAPS:
        word = old.isalpha()
        for match in re.finditer(rf"\b{old}\b" if word else re.escape(old), code):
            found.append((kind, line[:match.start()] + new + line[match.end():]))
    for match in NUMBER.finditer(code):
        found.append(("constant", line[:match.start()] + str(int(match.group()) + 1) + line[match.end():]))
    if (match := RETURN.match(line)) and match.group(2) not in ("{}", "true", "false", "std::nullopt"):
        found.append(("return", f"{match.group(1)}{{}};"))
        found.append(("return", f"{match.group(1)}!({match.group(2)});"))
    if (match := CONDITION.match(line)) and balanced(match.group(2)) and ";" not in match.group(2):
        found.append(("condition", f"{match.group(1)}!({match.group(2)}){match.group(3)}"))
    if STATEMENT.match(line) and (not DECLARATION.match(line) or " = " in line and " " not in line.strip().split(" = ")[0]):
        found.append(("statement", re.match(r"\s*", line).group() + ";"))
    return [(kind, after) for kind, after in found if after != line]


def of_file(name: str, text: str) -> list[Mutant]:
    return [Mutant(name, number, kind, line, after)
            for number, line in enumerate(text.splitlines(), 1) for kind, after in of_line(line)]
