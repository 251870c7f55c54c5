# SPDX-License-Identifier: MIT
"""Finds the places of the sources that mutate.py changes, and writes files that hold their
original and the changed places side by side, to choose from while the program runs."""
import re

# What stands for itself in each text: strings, characters, comments and the preprocessor's.
OPAQUE = re.compile(r'R"\((?:.|\n)*?\)"|"(?:\\.|[^"\\\n])*"|\'(?:\\.|[^\'\\\n])+\''
                    r"|//[^\n]*|/\*(?:.|\n)*?\*/|^[ \t]*#[^\n]*", re.MULTILINE)

# Binary operators have a space on each side, which tells them from template brackets,
# pointers and signs. The higher, the tighter an operator binds.
BINDING = {"||": 1, "&&": 2, "|": 3, "^": 4, "&": 5, "==": 6, "!=": 6, "<": 7, "<=": 7,
           ">": 7, ">=": 7, "<<": 8, ">>": 8, "+": 9, "-": 9, "*": 10, "/": 10, "%": 10}
# These end an expression on either side, as do assignments.
LOOSEST = 0
BINARY = re.compile(r"(?<= )(?:\|\||&&|[=!<>]=|<<|>>|[-+*/%|^&<>]|[-+*/%|^&]?=|\?|:)(?=[ \n])")

# Name, what is changed, and what it becomes.
OPERATORS = [
    ("comparison", r" == ", " != "), ("comparison", r" != ", " == "),
    ("comparison", r" < ", " <= "), ("comparison", r" <= ", " < "),
    ("comparison", r" > ", " >= "), ("comparison", r" >= ", " > "),
    ("arithmetic", r" \+ ", " - "), ("arithmetic", r" - ", " + "),
    ("arithmetic", r" \* ", " / "), ("arithmetic", r" / ", " * "),
    ("arithmetic", r" % ", " / "), ("assignment", r" \+= ", " -= "),
    ("assignment", r" -= ", " += "), ("step", r"\+\+", "--"), ("step", r"(?<!-)--", "++"),
    ("boolean", r" && ", " || "), ("boolean", r" \|\| ", " && "),
    ("negation", r"(?<=[ (])!(?=[A-Za-z(])", "!!"),
    ("constant", r"\btrue\b", "false"), ("constant", r"\bfalse\b", "true"),
    ("constant", r"(?<![\w.'])\d+(?![\w.'])", lambda found: str(int(found) + 1)),
    ("constant", r"(?<![\w.'])[1-9]\d*(?![\w.'])", lambda found: str(int(found) - 1)),
    # A whole call or assignment on a line of its own.
    ("statement", r"(?m)(?<=[;{})]\n)[ \t]+(?!return\b|using\b|break\b|continue\b|throw\b|case\b)"
                  r"[\w:.>\-\[\]*]+(?: [+\-|]?= |\(|\+\+|--)[^;{}\n]*;$", "nothing"),
    ("return value", r"(?<=\b)return (?!(?:0|false|nullptr|std::nullopt);)[^;{}\n]+;",
     "return {};"),
]


def blanked(text):
    """The text with spaces in the place of comments, and nothing but quotes in literals."""
    def blank(found):
        return re.sub(r"[^\n]", found.group()[0] if found.group()[0] in "\"'" else " ",
                      found.group())
    return OPAQUE.sub(blank, text)


def _end_of_operand(code, place, direction, binding):
    """How far the operand of an operator reaches from there: to the first bracket that was
    not opened within it, to what separates, or to an operator that binds no tighter."""
    opening, closing = ("([{", ")]}") if direction > 0 else (")]}", "([{")
    operators = {}
    depth = 0
    for found in BINARY.finditer(code, max(0, place - 2000), place + 2000):
        for each in range(*found.span()):
            operators[each] = found
    end = place
    while 0 <= end < len(code):
        sign = code[end]
        if direction < 0 and depth == 0 and sign in ")}" and _ends_statement(code, end):
            return end + 1
        if sign in opening:
            depth += 1
        elif sign in closing:
            if depth == 0:
                break
            depth -= 1
        elif depth == 0:
            if sign in ";,":
                break
            if end in operators:
                found = operators[end]
                other = BINDING.get(found.group(), LOOSEST)
                if other < binding or (direction > 0 and other == binding):
                    break
                end = found.end() if direction > 0 else found.start() - 1
                continue
            word = re.compile(r"\b(?:return|throw|case|else|do)\b").match(code, end)
            if direction < 0 and word and not code[end - 1].isalnum():
                return word.end()
        end += direction
    return end if direction > 0 else end + 1


def _ends_statement(code, place):
    """Whether nothing that continues an expression follows this bracket on its line or
    at the beginning of the next one."""
    rest = re.compile(r"[ \t]*\n\s*(\S)").match(code, place + 1)
    return bool(rest) and rest.group(1) not in ".-?:"


def _expression(code, name, span):
    """The span of the whole expression that an operator at that span belongs to."""
    start, end = span
    if name == "negation":
        return start, _end_of_operand(code, end, 1, max(BINDING.values()))
    if name == "step":
        if code[end].isalpha() or code[end] in "_*(":
            return start, _end_of_operand(code, end, 1, max(BINDING.values()))
        operand = re.search(r"[\w.>\-\[\]]+$", code[max(0, start - 100):start])
        return start - len(operand.group()) if operand else start, end
    binding = BINDING.get(code[start:end].strip(), LOOSEST)
    return (_end_of_operand(code, start - 1, -1, binding), _end_of_operand(code, end, 1, binding))


class Mutant:
    """One change of one file."""

    def __init__(self, path, text, code, name, span, replacement):
        self.path = path
        self.changed = span
        self.replacement = replacement
        self.name = name
        if name in ("constant", "statement", "return value"):
            self.span = span
        else:
            start, end = _expression(code, name, span)
            while start < end and code[start].isspace():
                start += 1
            while end > start and code[end - 1].isspace():
                end -= 1
            self.span = start, end
        self.first_line = text.count("\n", 0, self.span[0]) + 1
        self.last_line = text.count("\n", 0, self.span[1]) + 1
        line = text.count("\n", 0, span[0]) + 1
        place = span[0] - text.rfind("\n", 0, span[0])
        before = " ".join(text[slice(*span)].split())
        self.title = f"{path}:{line}:{place}\t{name}\t{before} -> {replacement.strip()}"

    def overlaps(self, other):
        return self.span[0] < other.span[1] and other.span[0] < self.span[1]

    def alternatives(self, text, number):
        """The text of its span, with a question which of both it is."""
        start, end = self.span
        original = text[start:end]
        if self.name == "statement":
            return f"{{ if (!::mutation::on({number})) {original.strip()} }}"
        if self.name == "return value":
            return f"{{ if (::mutation::on({number})) return {{}}; {original} }}"
        changed = text[start:self.changed[0]] + self.replacement + text[self.changed[1]:end]
        return f"(::mutation::on({number}) ? ({changed}) : ({original}))"


def mutants_of(path, text):
    code = blanked(text)
    for name, pattern, replacement in OPERATORS:
        for found in re.finditer(pattern, code):
            new = replacement(found.group()) if callable(replacement) else replacement
            yield Mutant(path, text, code, name, found.span(), new)


def with_alternatives(text, numbered, header):
    """The text of a file with those mutants, by their numbers, to choose from. Lines stay
    where they were, but for one that is added at the beginning."""
    for number, mutant in sorted(numbered.items(), key=lambda each: -each[1].span[0]):
        start, end = mutant.span
        text = text[:start] + mutant.alternatives(text, number) + text[end:]
    # What is known when a file is compiled could not be chosen later.
    text = re.sub(r"\bconstexpr (?=[\w:]+ \w+ = [^;]*mutation::on)", "const ", text)
    return f'#include "{header}"\n{text}'
