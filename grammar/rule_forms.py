"""Brings the parser rules into the form that they are compiled from.

This form accepts the same texts as the grammar and gives the same tree. Single tokens become sets of
types. Alternatives that begin alike share their beginning, so the parser decides between them only
behind it.
"""

from cypher_grammar import Grammar

# Equivalent forms of the rules that a few tokens ahead cannot decide.
EQUIVALENT = {
    # Only the WITH at the end of a part tells that another part follows. The last part and the others
    # begin alike, and none of their rules has nodes. So a part is read up to its end, and then the
    # rest of the query as a query of its own.
    "oC_SingleQuery": """
        ( oC_ReadingClause SP? )*
        ( oC_Return
        | oC_With SP? oC_SingleQuery
        | oC_UpdatingClause ( SP? oC_UpdatingClause )* ( SP? oC_Return | SP? oC_With SP? oC_SingleQuery )?
        )""",
}

NOTHING = ("sequence", ())


def with_token_types(expression: tuple, grammar: Grammar) -> tuple:
    """The expression with ("token", types) and ("rule", name) in place of names and literals."""
    kind = expression[0]
    if kind in ("sequence", "choice"):
        parts = tuple(with_token_types(part, grammar) for part in expression[1])
        if kind == "choice" and all(part[0] == "token" for part in parts):
            return ("token", frozenset().union(*(part[1] for part in parts)))
        return (kind, parts)
    if kind in ("optional", "star", "plus"):
        return (kind, with_token_types(expression[1], grammar))
    name = f"'{expression[1]}'" if kind == "literal" else expression[1]
    if name in grammar.parser_rules:
        return ("rule", name)
    return ("token", frozenset({0 if name == "EOF" else grammar.token_types[name]}))


def rules_as_written(grammar: Grammar) -> dict:
    return {name: with_token_types(body, grammar) for name, body in grammar.parser_rules.items()}


def rules_to_compile(grammar: Grammar, starts: tuple) -> dict:
    rules = rules_as_written(grammar)
    for name, text in EQUIVALENT.items():
        rules[name] = with_token_types(grammar.parsed(text), grammar)
    rules = {name: with_shared_beginnings(body) for name, body in rules.items()}
    needed = set()
    waiting = list(starts)
    while waiting:
        name = waiting.pop()
        if name not in needed:
            needed.add(name)
            waiting += names_in(rules[name])
    return {name: body for name, body in rules.items() if name in needed}


def names_in(expression: tuple) -> list:
    if expression[0] == "rule":
        return [expression[1]]
    if expression[0] == "token":
        return []
    parts = expression[1] if expression[0] in ("sequence", "choice") else (expression[1],)
    return [name for part in parts for name in names_in(part)]


def elements(expression: tuple) -> tuple:
    return expression[1] if expression[0] == "sequence" else (expression,)


def sequence(parts: tuple) -> tuple:
    return parts[0] if len(parts) == 1 else ("sequence", tuple(parts))


def with_shared_beginnings(expression: tuple) -> tuple:
    kind = expression[0]
    if kind in ("rule", "token"):
        return expression
    if kind == "sequence":
        return ("sequence", tuple(with_shared_beginnings(part) for part in expression[1]))
    if kind != "choice":
        return (kind, with_shared_beginnings(expression[1]))
    return choice([elements(with_shared_beginnings(part)) for part in expression[1]])


def choice(alternatives: list) -> tuple:
    """A choice between sequences of elements, in which neighbours share their beginning."""
    ending = shared_ending(alternatives)
    if ending and len(alternatives) > 1:
        heads = [alternative[:-len(ending)] for alternative in alternatives]
        if all(len(head) == 1 and head[0][0] == "token" for head in heads):
            types = frozenset().union(*(head[0][1] for head in heads))
            return sequence((("token", types), *ending))
        if () in heads:
            return sequence((("optional", choice([head for head in heads if head])), *ending))
    groups = []
    for alternative in alternatives:
        if groups and groups[-1][0][:1] == alternative[:1]:
            groups[-1].append(alternative)
        else:
            groups.append([alternative])
    if len(groups) == len(alternatives):
        expanded = with_optional_beginning_expanded(alternatives)
        if expanded:
            return choice(expanded)
    parts = [shared(group) for group in groups]
    return parts[0] if len(parts) == 1 else ("choice", tuple(parts))


def shared(group: list) -> tuple:
    if len(group) == 1:
        return sequence(group[0])
    length = 0
    while len({alternative[length:length + 1] for alternative in group}) == 1 and group[0][length:]:
        length += 1
    rests = [alternative[length:] for alternative in group]
    if () not in rests:
        return sequence((*group[0][:length], *elements(choice(rests))))
    rest = choice([one for one in rests if one])
    return sequence((*group[0][:length], ("optional", rest)))


def shared_ending(alternatives: list) -> tuple:
    length = 0
    shortest = min(map(len, alternatives))
    while length < shortest and len({one[-length - 1] for one in alternatives}) == 1:
        length += 1
    return alternatives[0][len(alternatives[0]) - length:]


def with_optional_beginning_expanded(alternatives: list) -> list:
    """Splits `x? …` beside `x …` into the alternatives `x …` and `…`; empty if there is no such pair."""
    for place in range(len(alternatives) - 1):
        first, second = alternatives[place : place + 2]
        for mandatory, optional, at in ((first, second, place + 1), (second, first, place)):
            if optional[0] == ("optional", mandatory[0]):
                both = [(mandatory[0], *optional[1:]), optional[1:]]
                both = both if at > place else both[::-1]
                return [*alternatives[:at], *both, *alternatives[at + 1 :]]
    return []
