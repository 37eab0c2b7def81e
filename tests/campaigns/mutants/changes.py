"""What can be broken in a C++ source: every single change that the campaign of mutants knows to make.

A change is found by the words of a line as clang-format sets them: binary operators stand between blanks, template
brackets and references don't. Comments, texts, preprocessor lines and static_asserts are blanked out before, at the same
length, so that no change falls into them.
"""
import re

# What opens a brace that holds declarations, not statements.
DECLARATIONS = re.compile(r"\b(namespace|class|struct|enum|union)\b(?!.*\()")
COMPARISONS = {"==": ["!="], "!=": ["=="], "<": ["<=", ">="], "<=": ["<", ">"], ">": [">=", "<="], ">=": [">", "<"]}
# The comparison that differs only where both sides are equal.
BOUNDARIES = {"<": "<=", "<=": "<", ">": ">=", ">=": ">"}
WORDS = {"true": ("constant", "false"), "false": ("constant", "true"), "break": ("jump", "continue"),
         "continue": ("jump", "break"), "min": ("bound", "max"), "max": ("bound", "min")}
LITERALS = re.compile(
    r'//[^\n]*|/\*.*?\*/|R"(?P<mark>[^(\s]*)\(.*?\)(?P=mark)"|"(?:\\.|[^"\\\n])*"'
    r"|(?<![0-9A-Fa-f])'(?:\\.|[^'\\\n])+'|^[ \t]*#(?:\\\n|[^\n])*|\bstatic_assert\s*\(.*?\);", re.S | re.M)
NUMBER = re.compile(r"(?<![\w.'])(0x[0-9A-Fa-f']+|\d[\d']*\.\d+|\d[\d']*)(?![\w.])")
CALL = re.compile(r"(?!return\b|throw\b|if\b|for\b|while\b|else\b|switch\b|case\b|do\b|using\b|delete\b)"
                  r"(?:co_)?[\w:*(\[][\w:.\[\]\s*>()-]*?\(.*\)$", re.S)
TWO_WORDS = re.compile(r"^[\w:<>,*&\[\] ]+[\s&*>]+[\w:]+\s*(\(|\{|=|$)")
ASSIGNMENT = re.compile(r"^\*?[\w.:()\[\]]+(->[\w.:()\[\]]+)*\s[-+*/|&]?=\s.*$", re.S)


class Change:
    """One place of a source, what kind of rule is broken there and what stands there instead."""

    def __init__(self, source, start, end, kind, text, said=None):
        self.start, self.end, self.kind, self.text = start, end, kind, text
        self.line = source.count("\n", 0, start) + 1
        first = source.rfind("\n", 0, start) + 1
        last = source.find("\n", end)
        was = " ".join(source[start:end].split())
        new = " ".join((text if said is None else said).split())
        around = source[first:start] + f"[{was} -> {new}]" + source[end:last if last >= 0 else len(source)]
        # A name that holds when lines move, for as long as the line itself stays.
        self.name = kind + ": " + " ".join(around.split())

    def made(self, source):
        return source[:self.start] + self.text + source[self.end:]


def blanked(source):
    """The source with what is no code replaced by blanks; a text keeps its quotes."""
    def blank(found):
        text = found.group(0)
        inner = re.sub(r"[^\n]", " ", text)
        quoted = text[0] in "\"'R"
        return text[0] + inner[1:-1] + text[-1] if quoted else inner
    return LITERALS.sub(blank, source)


def statements(code):
    """(start, end, depth, in a function) of each statement that a semicolon ends, and (start, end) of what functions hold."""
    found, bodies, braces, parens, start = [], [], [], 0, 0
    for i, c in enumerate(code):
        if c in "([":
            parens += 1
        elif c in ")]":
            parens -= 1
        elif c == "{":
            # A brace inside parentheses is a lambda's or a list's; behind "=" or a name it is a value's.
            head = code[start:i]
            value = parens > 0 and not re.search(r"[\])]\s*(const|mutable)?\s*$", head)
            kind = "value" if value or re.search(r"=\s*$|\breturn\s*$|\w$", head) and not DECLARATIONS.search(head) \
                and not re.search(r"\b(else|do|try|const|override|noexcept)\s*$", head) else \
                "declarations" if DECLARATIONS.search(head) else "statements"
            braces.append((kind, parens, start, i))
            if kind != "value":
                parens, start = 0, i + 1
        elif c == "}" and braces:
            kind, parens, before, opened = braces.pop()
            if kind == "statements":
                bodies.append((opened, i))
            start = before if kind == "value" else (before if parens else i + 1)
        elif c == ";" and parens == 0:
            inside = next((kind for kind, *_ in reversed(braces) if kind != "value"), "declarations")
            text = code[start:i + 1]
            begin = start + len(text) - len(text.lstrip())
            found.append((begin, i + 1, len(braces), inside == "statements"))
            start = i + 1
    return found, bodies


def matching(code, opened):
    """Where the parenthesis that opens there is closed."""
    depth = 0
    for i in range(opened, len(code)):
        depth += {"(": 1, ")": -1}.get(code[i], 0)
        if depth == 0:
            return i
    return -1


def plain(text):
    """Whether a statement can be left out without a declaration going with it."""
    body = re.sub(r"^(if \(.*?\)|else|for \(.*?\)) ", "", text) if "\n" not in text else text
    body = body.rstrip(";").strip()
    if re.match(r"(return|throw|break|continue|using|delete|case|default|goto|if|for|while|else|do|switch)\b", body):
        return False
    if re.match(r"(?:\+\+|--)[\w.\->:\[\]]+$", body):
        return True
    if ASSIGNMENT.match(body):
        return True
    return bool(CALL.match(body)) and not TWO_WORDS.match(body)


def in_order(first, second):
    """Whether it can count which of two statements comes first: of two assignments, when one names the other's target or
    both read from one reader."""
    targets = [re.match(ASSIGNMENT, text) and re.split(r"\s[-+*/|&]?=\s", text)[0] for text in (first, second)]
    if all(targets):
        readers = [set(re.findall(r"(?<![\w.>])(?!m_)(\w+)\.\w+\(", text)) for text in (first, second)]
        return bool(readers[0] & readers[1]) or any(re.search(r"(?<![\w.>])" + re.escape(target) + r"(?!\w)", other)
                   for target, other in zip(targets, (second, first)))
    return first != second


class Finder:
    def __init__(self, source):
        self.source, self.code = source, blanked(source)
        self.found = []

    def add(self, *what):
        self.found.append(Change(self.source, *what))

    def line_at(self, position):
        first = self.code.rfind("\n", 0, position) + 1
        return self.code[first:self.code.find("\n", position)]

    def operators(self):
        for match in re.finditer(r"(?<= )(==|!=|<=|>=|<|>)(?=[ \n])", self.code):
            word = match.group(1)
            if re.search(r"\b(operator|template)\b", self.line_at(match.start())):
                continue
            for other in COMPARISONS[word]:
                kind = "boundary" if BOUNDARIES.get(word) == other else "comparison"
                self.add(*match.span(1), kind, other)
        for match in re.finditer(r"(?<= )(&&|\|\|)(?=[ \n])", self.code):
            self.add(*match.span(1), "logic", "||" if match.group(1) == "&&" else "&&")
        for match in re.finditer(r"(?<=[\w)\]] )([-+*/%])(?= [\w(*.-])", self.code):
            # A sum of texts is none.
            if match.group(1) == "+" and re.search(r'"|[Tt]ext|[Nn]ame|string|[Pp]ath', self.line_at(match.start())):
                continue
            other = {"+": "-", "-": "+", "*": "/", "/": "*", "%": "*"}[match.group(1)]
            self.add(*match.span(1), "arithmetic", other)
        for match in re.finditer(r"(\+\+|--)(?=\w)", self.code):
            if not self.line_at(match.start()).lstrip().startswith("for ("):
                self.add(*match.span(1), "arithmetic", "--" if match.group(1) == "++" else "++")

    def words(self):
        for match in re.finditer(r"\b(true|false|break|continue)\b|(?<=std::)(min|max)(?=\()", self.code):
            kind, other = WORDS[match.group(0)]
            default = kind == "constant" and re.search(r"= (true|false)(;|,|\))", self.code[match.start() - 2:match.end() + 1])
            in_head = not self.in_function(match.start())
            self.add(*match.span(0), "default" if default and in_head else kind, other)

    def numbers(self):
        for match in NUMBER.finditer(self.code):
            line = self.line_at(match.start())
            before = self.code[:match.start()]
            if re.search(r"(<|, )$", before) and re.match(r"[>,]", self.code[match.end():]) and "<" in line:
                continue  # an argument of a template
            if re.search(r"\b(u?int|float)$", before) or re.search(r"(\)|const) = 0;$", line):
                continue  # part of a type's name; what makes a method pure
            number = match.group(1)
            value = number.replace("'", "")
            if value.startswith("0x"):
                other = hex(int(value, 16) + 1)
            elif "." in value:
                other = str(float(value) + 1)
            else:
                other = str(int(value) + 1)
            self.add(*match.span(1), "constant" if self.in_function(match.start()) else "default", other)
            if value == "1" and self.in_function(match.start()):
                self.add(*match.span(1), "constant", "0")

    def in_function(self, position):
        return any(start <= position < end for start, end in self.bodies)

    def conditions(self):
        for match in re.finditer(r"\bif (constexpr )?\(", self.code):
            opened = match.end() - 1
            closed = matching(self.code, opened)
            inside = self.code[opened + 1:closed]
            if match.group(1) or ";" in inside or " = " in inside:
                continue
            text = self.source[opened + 1:closed]
            leaves = re.match(r"\)\s*\{?\s*(return|continue|break|throw)\b", self.code[closed:])
            self.add(opened + 1, closed, "guard", f"false && ({text})", "false")
            if not leaves:
                self.add(opened + 1, closed, "guard", f"true || ({text})", "true")
            # Without a second condition that is what a changed comparison or a removed "!" comes to.
            if re.search(r"&&|\|\|", inside) or not re.search(r"^!|[=!<>]=| [<>] ", inside):
                self.add(opened + 1, closed, "negation", f"!({text})", "not")
        for match in re.finditer(r"(?<=[ (\[{])!(?=[\w(])", self.code):
            self.add(*match.span(0), "negation", "")
        for match in re.finditer(r"(?<=[\w)\]] )\?(?= )", self.code):
            self.ternary(match.start())

    def ternary(self, question):
        """The two values of a condition that stands on one line, exchanged."""
        line_end = self.code.find("\n", question)
        depth, colon, end = 0, -1, -1
        for i in range(question + 1, line_end):
            c = self.code[i]
            depth += {"(": 1, "[": 1, "{": 1, ")": -1, "]": -1, "}": -1}.get(c, 0)
            if depth == 0 and self.code[i - 1:i + 2] == " : ":
                colon = i
            if depth < 0 or (depth == 0 and c in ";,"):
                end = i
                break
        if colon < 0 or end < 0:
            return
        first, second = self.source[question + 2:colon - 1], self.source[colon + 2:end]
        self.add(question + 2, end, "negation", f"{second} : {first}")

    def statements(self):
        before = None
        for start, end, depth, inside in self.all_statements:
            text = self.code[start:end]
            if not inside or not plain(text):
                before = None
                continue
            head = re.match(r"(if \(|for \(|while \()", text)
            begin = start
            if head:
                closed = matching(self.code, start + head.end() - 1)
                begin = closed + 1 + len(self.code[closed + 1:end]) - len(self.code[closed + 1:end].lstrip())
            elif text.startswith("else "):
                begin = start + 5
            kind = "assignment" if ASSIGNMENT.match(self.code[begin:end].rstrip(";")) else "call"
            self.add(begin, end, kind, "{ if (false) " + self.source[begin:end] + " }", "")
            whole = begin == start
            if before and whole and before[2] == depth and not self.code[before[1]:start].strip():
                first, second = self.source[before[0]:before[1]], self.source[start:end]
                if in_order(first, second):
                    between = self.source[before[1]:start]
                    self.add(before[0], end, "order", second + between + first)
            before = (start, end, depth) if whole else None

    def all(self):
        self.all_statements, self.bodies = statements(self.code)
        self.operators()
        self.words()
        self.numbers()
        self.conditions()
        self.statements()
        return sorted(self.found, key=lambda change: (change.start, change.end, change.text))


def changes(source):
    """Every change of a source, by place; two that would have one name are told apart by a number."""
    found, names = Finder(source).all(), {}
    for change in found:
        names[change.name] = names.get(change.name, 0) + 1
        if names[change.name] > 1:
            change.name += f" #{names[change.name]}"
    return found
