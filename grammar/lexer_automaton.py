"""The lexer rules as one deterministic automaton over classes of characters.

First the rules become a nondeterministic automaton with silent edges (`_add_token`). Characters that
no edge tells apart form a class (`_divide_characters`). Sets of states become the states of the
deterministic automaton (`_determine`), and states that nothing tells apart are merged (`_minimise`).

Of several matches the longest wins, of equally long ones that of the first rule: an accepting state
has the type of the first rule that ends there. The end of the text counts as a character, which only
a line comment asks for.
"""

from cypher_grammar import LAST_CODE_POINT, Grammar


class LexerAutomaton:
    """Classes by code point, and for each state its transitions by class and its token types.

    `classes` holds (first, last, class) without gaps. State 0 is dead, state 1 is the start. `accepts`
    holds by state the type of the token that ends there, or 0. `accepts_at_end` holds the same for the
    end of the text.
    """

    def __init__(self, grammar: Grammar) -> None:
        self._grammar = grammar
        self._edges = []  # of the states of the nondeterministic automaton: (ranges, target)
        self._silent = []
        self._ends = {}
        self._start = self._state()
        for name in grammar.token_names:
            self._add_token(name)
        self._divide_characters()
        self._determine()
        self._minimise()

    def _state(self) -> int:
        self._edges.append([])
        self._silent.append([])
        return len(self._edges) - 1

    def _add_token(self, name: str) -> None:
        grammar = self._grammar
        body = ("literal", name[1:-1]) if name.startswith("'") else grammar.lexer_rules[name]
        first, last = self._build(body)
        self._silent[self._start].append(first)
        self._ends[last] = grammar.token_types[name]

    def _build(self, expression: tuple) -> tuple:
        """The first and the last state of an automaton for the expression."""
        kind = expression[0]
        if expression == ("name", "EOF"):
            return self._one_character([("end", "end")])
        if kind == "name" and not self._is_character(expression):
            return self._build(self._grammar.lexer_rules[expression[1]])
        if self._is_character(expression):
            return self._one_character(self._grammar.characters(expression))
        if kind == "literal":
            return self._chain([("literal", character) for character in expression[1]])
        if kind == "sequence":
            return self._chain(expression[1])
        first, last = self._state(), self._state()
        for part in expression[1] if kind == "choice" else [expression[1]]:
            inner_first, inner_last = self._build(part)
            self._silent[first].append(inner_first)
            self._silent[inner_last].append(last)
            if kind in ("star", "plus"):
                self._silent[inner_last].append(inner_first)
        if kind in ("star", "optional"):
            self._silent[first].append(last)
        return first, last

    def _is_character(self, expression: tuple) -> bool:
        try:
            self._grammar.characters(expression)
        except (ValueError, KeyError):
            return False
        return True

    def _one_character(self, ranges: list) -> tuple:
        first, last = self._state(), self._state()
        self._edges[first].append((ranges, last))
        return first, last

    def _chain(self, expressions: list) -> tuple:
        first = last = self._state()
        for expression in expressions:
            inner_first, inner_last = self._build(expression)
            self._silent[last].append(inner_first)
            last = inner_last
        return first, last

    def _divide_characters(self) -> None:
        """Characters that no rule tells apart share a class. Class 0 is the end of the text."""
        edges = [edge for edges in self._edges for edge in edges]
        events = {}
        for index, (ranges, _) in enumerate(edges):
            for first, last in ranges:
                if first != "end":
                    events.setdefault(first, []).append(index)
                    events.setdefault(last + 1, []).append(index)
        self.classes = []
        self._classes_of_edges = [{0} if ranges[0][0] == "end" else set() for ranges, _ in edges]
        known = {}
        inside = set()
        places = sorted({0, *events} - {LAST_CODE_POINT + 1})
        for place, after in zip(places, [*places[1:], LAST_CODE_POINT + 1]):
            inside.symmetric_difference_update(events.get(place, ()))
            number = known.setdefault(frozenset(inside), len(known) + 1)
            self.classes.append((place, after - 1, number))
        for members, number in known.items():
            for index in members:
                self._classes_of_edges[index].add(number)
        self.class_count = len(known) + 1

    def _closure(self, states: set) -> frozenset:
        reached = set(states)
        waiting = list(states)
        while waiting:
            for target in self._silent[waiting.pop()]:
                if target not in reached:
                    reached.add(target)
                    waiting.append(target)
        return frozenset(reached)

    def _determine(self) -> None:
        numbers = iter(range(sum(map(len, self._edges))))
        edges = [[(self._classes_of_edges[next(numbers)], target) for _, target in edges] for edges in self._edges]
        start = self._closure({self._start})
        known = {frozenset(): 0, start: 1}
        waiting = [start]
        self.transitions = [[0] * self.class_count]
        self.accepts = [0]
        while waiting:
            states = waiting.pop(0)
            targets = {}
            for state in states:
                for classes, target in edges[state]:
                    for number in classes:
                        targets.setdefault(number, set()).add(target)
            row = [0] * self.class_count
            for number in sorted(targets):
                closed = self._closure(targets[number])
                if closed not in known:
                    known[closed] = len(known)
                    waiting.append(closed)
                row[number] = known[closed]
            self.transitions.append(row)
            self.accepts.append(min((self._ends[state] for state in states if state in self._ends), default=0))

    def _minimise(self) -> None:
        """Merges states that nothing tells apart, and numbers them anew in the order of discovery."""
        blocks = list(self.accepts)
        while True:
            known = {}
            refined = [
                known.setdefault((block, *(blocks[target] for target in row)), len(known))
                for block, row in zip(blocks, self.transitions)
            ]
            if len(known) == len(set(blocks)):
                break
            blocks = refined
        representatives = {}
        for state, block in enumerate(blocks):
            representatives.setdefault(block, state)
        order = [0, 1]
        numbers = {blocks[0]: 0, blocks[1]: 1}
        for state in order:
            for target in self.transitions[state]:
                if blocks[target] not in numbers:
                    numbers[blocks[target]] = len(order)
                    order.append(representatives[blocks[target]])
        rows = [[numbers[blocks[target]] for target in self.transitions[state]] for state in order]
        self.accepts = [self.accepts[state] for state in order]
        self.accepts_at_end = [self.accepts[row[0]] or accepted for row, accepted in zip(rows, self.accepts)]
        # `accepts_at_end` has the result of the edges for the end of the text, so these are dropped.
        self.transitions = [[0, *row[1:]] for row in rows]
