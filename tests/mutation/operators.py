"""The small wrong changes. Each operator gives edits for one cursor of the syntax tree.

An edit is (operator, start, end, replacement, context): the bytes from start to end become the
replacement; the context is the text that tells which of several it is, None: what is replaced.
Whether the result compiles, a compiler says later."""

from syntax import LITERALS, CursorKind, bare, is_expression, span

COMPARISONS = {"<": "<=", "<=": "<", ">": ">=", ">=": ">", "==": "!=", "!=": "=="}
ARITHMETIC = {
    "+": "-", "-": "+", "*": "/", "/": "*", "%": "/", "&": "|", "|": "&", "<<": ">>", ">>": "<<",
    "+=": "-=", "-=": "+=", "*=": "/=", "/=": "*=", "&=": "|=", "|=": "&=",
}
# What puts work off, by name: how the same work is done at once. {last} is the last argument.
QUEUES = {
    "onMain": "({last})()",
    "onMainAfter": "({last})()",
    "performSelectorAfterDelay": 'objc::send<void, "performSelector:">({object}, {first})',
}
STATEMENT_PARENTS = {CursorKind.COMPOUND_STMT, CursorKind.IF_STMT, CursorKind.FOR_STMT,
                     CursorKind.WHILE_STMT, CursorKind.CXX_FOR_RANGE_STMT, CursorKind.CASE_STMT,
                     CursorKind.DEFAULT_STMT}
EFFECTS = {CursorKind.CALL_EXPR, CursorKind.BINARY_OPERATOR, CursorKind.UNARY_OPERATOR,
           CursorKind.COMPOUND_ASSIGNMENT_OPERATOR}
# For these there is another operator, or none.
VALUES = LITERALS | {CursorKind.LAMBDA_EXPR, CursorKind.INIT_LIST_EXPR}


def edits(source, cursor):
    """All edits of this cursor, not of those inside it."""
    if cursor.kind in STATEMENT_PARENTS:
        yield from left_out(source, cursor)
    if cursor.kind == CursorKind.COMPOUND_STMT:
        yield from swapped(cursor)
    if cursor.kind in CONDITIONS:
        yield from negated(source, cursor)
    for operator in BY_KIND.get(cursor.kind, []):
        yield from operator(source, cursor)


# Statements

def statements(source, parent):
    """The statements right below, without those of an if's or a loop's parentheses."""
    children = list(parent.get_children())
    if parent.kind == CursorKind.COMPOUND_STMT:
        return children
    if parent.kind in (CursorKind.CASE_STMT, CursorKind.DEFAULT_STMT):
        return children[-1:]
    end = parentheses(source, parent)[1]
    return [child for child in children if span(child)[0] >= end]


def has_effect(source, statement):
    inner = bare(statement)
    return (statement.kind.is_expression() and inner.kind in EFFECTS
            and not source.of(inner).startswith("("))


def left_out(source, parent):
    children = statements(source, parent)
    for at, child in enumerate(children):
        start, end = span(child)
        if has_effect(source, child):
            yield "leave-out", start, end, "{}" if parent.kind != CursorKind.COMPOUND_STMT else ""
        elif child.kind == CursorKind.RETURN_STMT:
            inner = list(child.get_children())
            if inner and inner[0].type.spelling == "void":
                yield "leave-out", start, end, "return"
            elif not inner and (parent.kind != CursorKind.COMPOUND_STMT or at + 1 == len(children)):
                # In front of the end of a function it says nothing; the compiler finds that out.
                yield "leave-out", start, end, "{}" if parent.kind == CursorKind.IF_STMT else ""


def swapped(parent):
    def call(statement):
        if statement.kind == CursorKind.RETURN_STMT:
            inner = list(statement.get_children())
            if not inner or inner[0].type.spelling != "void":
                return None
            statement = inner[0]
        inner = bare(statement)
        is_call = statement.kind.is_expression() and inner.kind == CursorKind.CALL_EXPR
        return inner if is_call else None

    children = list(parent.get_children())
    for one, other in zip(children, children[1:]):
        first, second = call(one), call(other)
        if first and second and one.kind != CursorKind.RETURN_STMT:
            yield "swap", span(first), span(second), None


# Conditions

def parentheses(source, statement):
    """Where what stands in the parentheses of an if or a loop begins and ends."""
    at = source.tokens.index_at(span(statement)[0])
    while source.tokens.all[at][2] != "(":
        at += 1
    return source.tokens.all[at][1], source.tokens.all[source.tokens.closing(at)][0]


def negated(source, cursor):
    children = list(cursor.get_children())
    if cursor.kind == CursorKind.CONDITIONAL_OPERATOR:
        yield negation(source, children[0])
        return
    start, end = parentheses(source, cursor)
    inside = [child for child in children if start <= span(child)[0] < end]
    if cursor.kind == CursorKind.FOR_STMT:
        first = source.tokens.find(";", start, end)
        second = source.tokens.find(";", first[1], end)
        inside = [child for child in inside if first[1] <= span(child)[0] < second[0]]
    variables = [child for child in inside if child.kind == CursorKind.VAR_DECL]
    if variables and source.tokens.find(";", start, end) is None:
        yield "negate", end, end, f"; !{variables[0].spelling}"
    else:
        conditions = [child for child in inside if is_expression(child)]
        if conditions:
            yield negation(source, conditions[-1])


def negation(source, condition):
    start, end = span(condition)
    inner = bare(condition)
    if inner.kind == CursorKind.UNARY_OPERATOR and source.of(inner).startswith("!"):
        return "negate", start, start + 1, "", source.of(inner)
    found = infix(source, inner)
    if found and found[2] in ("==", "!="):
        return "negate", found[0], found[1], COMPARISONS[found[2]], source.of(inner)
    return "negate", start, end, f"!({source.slice(start, end)})"


def negated_value(source, cursor):
    """A bool that is returned, and any other value left out."""
    inner = list(cursor.get_children())
    if not inner or inner[0].type.spelling == "void":
        return
    value = bare(inner[0])
    start, end = span(inner[0])
    if value.kind in VALUES:
        return
    if value.type.get_canonical().spelling == "bool":
        yield negation(source, inner[0])
    else:
        yield "return-nothing", start, end, "{}"


# Operators of the language

def infix(source, cursor):
    """Where the operator stands between two operands, and which; None without."""
    children = list(cursor.get_children())
    if cursor.kind == CursorKind.CALL_EXPR:
        if not cursor.spelling.startswith("operator") or len(children) != 3:
            return None
        operands = sorted((children[0], children[2]), key=span)
        if span(children[1])[0] < span(operands[0])[1]:
            operands = sorted(children, key=span)[::2]
    elif cursor.kind in (CursorKind.BINARY_OPERATOR, CursorKind.COMPOUND_ASSIGNMENT_OPERATOR):
        operands = children
    else:
        return None
    if len(operands) != 2:
        return None
    between = source.tokens.between(span(operands[0])[1], span(operands[1])[0])
    for start, end, spelling, _ in between:
        if spelling not in "()":
            return start, end, spelling
    return None


def binary(source, cursor):
    found = infix(source, cursor)
    if not found:
        return
    start, end, spelling = found
    if spelling in COMPARISONS:
        operator = "negate" if spelling in ("==", "!=") else "boundary"
        yield operator, start, end, COMPARISONS[spelling], source.of(cursor)
    elif spelling in ARITHMETIC:
        yield "arithmetic", start, end, ARITHMETIC[spelling], source.of(cursor)
    elif spelling in ("&&", "||"):
        left, right = list(cursor.get_children())
        if (infix(source, bare(left)) or [None])[-1] != spelling:
            yield "drop-operand", span(left)[0], span(right)[0], ""
        yield "drop-operand", span(left)[1], span(right)[1], ""


def unary(source, cursor):
    start, end = span(cursor)
    text = source.of(cursor)
    if text.startswith(("++", "--")):
        yield "arithmetic", start, start + 2, "--" if text[0] == "+" else "++", text
    elif text.endswith(("++", "--")):
        yield "arithmetic", end - 2, end, "--" if text[-1] == "+" else "++", text
    elif text.startswith("!"):
        yield "negate", start, start + 1, "", text
    elif text.startswith("-"):
        yield "arithmetic", start, start + 1, "", text


# Calls

def arguments(source, cursor):
    """Those that stand in the call's own parentheses."""
    end = span(cursor)[1]
    if source.text[end - 1:end] != b")":
        return []
    found = [argument for argument in cursor.get_arguments() if argument is not None]
    return [a for a in found if span(a)[0] < span(a)[1] < end]


def dropped(source, cursor):
    if cursor.spelling.startswith("operator"):
        return
    for argument in arguments(source, cursor):
        start, end = span(argument)
        inner = bare(argument)
        text = source.of(inner)
        # Without its receiver a message is the same as left out.
        if text.startswith('"') or text in ("*this", "cls()") or inner.kind in VALUES:
            continue
        kind = f"decltype(({source.slice(start, end)}))"
        yield "argument", start, end, f"mutation::Nothing<{kind}>{{}}"


def link_left_out(source, cursor):
    """One call of a chain that hands its object on, as lists of what is registered are written."""
    children = list(cursor.get_children())
    if not children or children[0].kind != CursorKind.MEMBER_REF_EXPR:
        return
    inner = list(children[0].get_children())
    if not inner or not is_expression(inner[0]):
        return
    if inner[0].type.get_canonical().spelling == cursor.type.get_canonical().spelling:
        yield "leave-out", span(inner[0])[1], span(cursor)[1], ""


def done_at_once(source, cursor):
    pattern = QUEUES.get(cursor.spelling)
    found = arguments(source, cursor)
    if not pattern or not found:
        return
    callee = next(cursor.get_children())
    while list(callee.get_children()) and callee.kind != CursorKind.MEMBER_REF_EXPR:
        callee = next(callee.get_children())
    of = list(callee.get_children())
    names = {"first": source.of(found[0]), "last": source.of(found[-1]),
             "object": source.of(of[0]) if of else "*this"}
    yield ("at-once", *span(cursor), pattern.format(**names))


# Values

def next_name(source, cursor):
    """Another enumerator of the same enumeration."""
    enumerator = cursor.referenced
    if enumerator is None or enumerator.kind != CursorKind.ENUM_CONSTANT_DECL:
        return
    names = [child.spelling for child in enumerator.semantic_parent.get_children()
             if child.kind == CursorKind.ENUM_CONSTANT_DECL]
    if len(names) > 1:
        end = span(cursor)[1]
        other = names[(names.index(enumerator.spelling) + 1) % len(names)]
        yield "constant", end - len(enumerator.spelling), end, other


def not_converted(source, cursor):
    """A number in its wider or finer type."""
    if cursor.type.get_canonical().kind.name in ("BOOL", "RECORD", "POINTER", "DEPENDENT"):
        return
    inner = [child for child in cursor.get_children() if is_expression(child)]
    if inner and bare(inner[-1]).kind not in LITERALS:
        yield ("no-cast", *span(cursor), f"({source.of(inner[-1])})")


def constant(spelling):
    """Another value for a literal; None: leave it."""
    if spelling in ("true", "false"):
        return "false" if spelling == "true" else "true"
    if spelling.endswith('"') or '"_' in spelling:
        start = spelling.index('"') + 1
        return spelling[:start] + "X" + spelling[start:]
    digits = spelling.replace("'", "")
    if digits.isdigit():
        return str(int(digits, 8 if digits[0] == "0" and digits != "0" else 10) + 1)
    if spelling[0].isdigit() or spelling[0] == ".":
        return f"({spelling} + 1)"
    return None


CONDITIONS = {CursorKind.IF_STMT, CursorKind.WHILE_STMT, CursorKind.FOR_STMT,
              CursorKind.CONDITIONAL_OPERATOR}
BY_KIND = {
    CursorKind.RETURN_STMT: [negated_value],
    CursorKind.BINARY_OPERATOR: [binary],
    CursorKind.COMPOUND_ASSIGNMENT_OPERATOR: [binary],
    CursorKind.UNARY_OPERATOR: [unary],
    CursorKind.CALL_EXPR: [binary, dropped, link_left_out, done_at_once],
    CursorKind.DECL_REF_EXPR: [next_name],
    CursorKind.CXX_FUNCTIONAL_CAST_EXPR: [not_converted],
    CursorKind.CXX_STATIC_CAST_EXPR: [not_converted],
}
