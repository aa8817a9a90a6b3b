"""Tells the alternatives of each decision of the parser rules apart by the tokens ahead.

The rules become a network of states, as the ANTLR tool builds it: silent edges, edges for sets of
tokens, and calls of rules. Each alternative of a decision is followed for a few tokens. At the end of
the decision's rule the way goes on behind every call of that rule. If two alternatives can do the same
within the rule, it belongs to the earlier one.
"""

from typing import Iterator, NamedTuple, Union

LONGEST_LOOKAHEAD = 3
# The lookahead for the runtime's prediction goes further where only few tokens leave the decision open,
# as in names with dots.
LONGEST_NARROW_WAY = 7
NARROW_WAY = 2
END_OF_TEXT = 0  # a token type; the end of the text is followed by itself


class Choice(NamedTuple):
    """What some tokens ahead mean: one alternative, several to be tried, or a look at the next token."""

    tokens: frozenset
    outcome: Union[tuple, list]  # numbers of alternatives, from 1 on, or further choices


class Decision(NamedTuple):
    rule: str
    ordinal: int  # within the rule, in the order of the text
    expression: tuple  # a choice, an optional, a star or a plus
    ways: tuple  # the states that the alternatives begin with
    number: int  # as the ANTLR tool counts, from 0 on


class Network:
    """The rules as a network. Expressions are those of cypher_grammar, but with ("token", types)."""

    def __init__(self, rules: dict, starts: tuple) -> None:
        self.edges = []  # by state: ("silent", target), (types, target) or ("call", rule, target)
        self.begins = {name: self._state() for name in rules}
        self.ends = {name: self._state() for name in rules}
        self.rule_of_end = {state: name for name, state in self.ends.items()}
        self.callers = {name: [] for name in rules}  # the states behind the calls
        self.decisions = []
        for self._rule, body in rules.items():
            self._ordinal = 0
            last = self._build(body, self.begins[self._rule])
            self.edges[last].append(("silent", self.ends[self._rule]))
        # Behind a whole text only its end follows.
        over = self._state()
        self.edges[over].append((frozenset({END_OF_TEXT}), over))
        for name in starts:
            self.callers[name].append(over)

    def _state(self) -> int:
        self.edges.append([])
        return len(self.edges) - 1

    def _decide(self, ordinal: int, expression: tuple, ways: tuple) -> None:
        self.decisions.append(Decision(self._rule, ordinal, expression, ways, len(self.decisions)))

    def _next_ordinal(self) -> int:
        self._ordinal += 1
        return self._ordinal - 1

    def _build(self, expression: tuple, first: int) -> int:
        """Builds the expression from the state `first` on and returns its last state."""
        kind = expression[0]
        if kind == "sequence":
            for part in expression[1]:
                first = self._build(part, first)
            return first
        if kind in ("choice", "optional"):
            return self._alternatives(expression, first)
        if kind == "star":
            return self._loop(expression, first)
        if kind == "plus":
            body, after = self._state(), self._state()
            self.edges[first].append(("silent", body))
            ordinal = self._next_ordinal()
            last = self._build(expression[1], body)
            self.edges[last] += [("silent", body), ("silent", after)]
            self._decide(ordinal, expression, (body, after))
            return after
        last = self._state()
        if kind == "token":
            self.edges[first].append((expression[1], last))
        else:
            self.edges[first].append(("call", expression[1], last))
            self.callers[expression[1]].append(last)
        return last

    def _alternatives(self, expression: tuple, first: int) -> int:
        ordinal = self._next_ordinal()
        parts = expression[1] if expression[0] == "choice" else branches(expression[1])
        ways = []
        after = self._state()
        for part in parts:
            way = self._state()
            self.edges[first].append(("silent", way))
            self.edges[self._build(part, way)].append(("silent", after))
            ways.append(way)
        if expression[0] == "optional":
            self.edges[first].append(("silent", after))
            ways.append(after)
        self._decide(ordinal, expression, tuple(ways))
        return after

    def _loop(self, expression: tuple, entry: int) -> int:
        ordinal = self._next_ordinal()
        loop, body, after = self._state(), self._state(), self._state()
        self.edges[entry].append(("silent", loop))
        self.edges[loop] += [("silent", body), ("silent", after)]
        self.edges[self._build(expression[1], body)].append(("silent", loop))
        self._decide(ordinal, expression, (body, after))
        return after


def branches(expression: tuple) -> tuple:
    """The alternatives of an optional expression. An optional choice is one decision, not two."""
    return expression[1] if expression[0] == "choice" else (expression,)


class Lookahead:
    """Follows the alternatives of decisions.

    A configuration is (state, stack, popped). `stack` is a number for the calls since the decision.
    `popped` tells whether the way has left the rule of the decision.
    """

    def __init__(self, network: Network) -> None:
        self._network = network
        self._stacks = [None]  # 0 is empty, others are (state behind the call, number of the rest)
        self._numbers = {}

    def choices(self, decision: Decision) -> list:
        return self._choices(self._fronts(decision), 1)

    def exact_choices(self, decision: Decision) -> list:
        """The choices of the runtime's prediction, as long as no two alternatives share a configuration.

        An empty outcome means that the choice is not known. The last choice is for all other tokens, by
        which no alternative goes on: there the runtime takes the first one that has left the rule.
        """
        fronts = self._fronts(decision)
        # Where one token always tells, the generated parser asks for no prediction.
        is_told_by_one = all(len(nexts) == 1 for _, nexts in self._by_token(fronts))
        return [] if is_told_by_one else self._exact_choices(fronts, 1)

    def _fronts(self, decision: Decision) -> list:
        return [(way, self._closure([(state, 0, False)])) for way, state in enumerate(decision.ways, 1)]

    def _push(self, state: int, rest: int) -> int:
        key = (state, rest)
        if key not in self._numbers:
            self._numbers[key] = len(self._stacks)
            self._stacks.append(key)
        return self._numbers[key]

    def _closure(self, configurations: list) -> dict:
        """The configurations in front of a set of tokens that can be reached without a token."""
        network = self._network
        seen = set(configurations)
        waiting = list(configurations)
        found = {}

        def reach(configuration: tuple) -> None:
            if configuration not in seen:
                seen.add(configuration)
                waiting.append(configuration)

        while waiting:
            state, stack, popped = waiting.pop()
            if state in network.rule_of_end and stack:
                reach((*self._stacks[stack], popped))
            elif state in network.rule_of_end:
                for caller in network.callers[network.rule_of_end[state]]:
                    reach((caller, 0, True))
            for edge in network.edges[state]:
                if edge[0] == "silent":
                    reach((edge[1], stack, popped))
                elif edge[0] == "call":
                    reach((network.begins[edge[1]], self._push(edge[2], stack), popped))
                else:
                    found[(state, stack, popped)] = edge
        return found

    def _by_token(self, fronts: list) -> Iterator[tuple]:
        """Sets of tokens that lead on from the same configurations, with their targets by alternative."""
        by_token = {}
        for alternative, found in fronts:
            for configuration, (types, _) in found.items():
                for token in types:
                    by_token.setdefault(token, []).append((alternative, configuration))
        groups = {}
        for token, leading in by_token.items():
            groups.setdefault(tuple(leading), set()).add(token)
        for leading, tokens in groups.items():
            nexts = {}
            for alternative, configuration in leading:
                _, stack, popped = configuration
                target = self._network.edges[configuration[0]][0][1]
                nexts.setdefault(alternative, []).append((target, stack, popped))
            yield frozenset(tokens), nexts

    def _choices(self, fronts: list, depth: int) -> list:
        result = []
        for tokens, nexts in self._by_token(fronts):
            if len(nexts) > 1:
                behind = self._without_repeated([(one, self._closure(next_)) for one, next_ in nexts.items()])
            else:
                behind = [(one, None) for one in nexts]
            alternatives = tuple(one for one, _ in behind)
            if len(alternatives) == 1 or depth == LONGEST_LOOKAHEAD:
                result.append(Choice(tokens, alternatives))
            else:
                result.append(Choice(tokens, self._choices(behind, depth + 1)))
        return joined(result)

    @staticmethod
    def _without_repeated(fronts: list) -> list:
        """Drops what an earlier alternative can do as well. Ways that have left the rule are kept."""
        earlier = set()
        left = []
        for alternative, found in fronts:
            own = {key: edge for key, edge in found.items() if key[2] or key not in earlier}
            earlier.update(found)
            if own:
                left.append((alternative, own))
        return left

    def _exact_choices(self, fronts: list, depth: int) -> list:
        result = []
        ways = list(self._by_token(fronts))
        is_narrow = sum(len(nexts) > 1 for _, nexts in ways) <= NARROW_WAY
        longest = LONGEST_NARROW_WAY if is_narrow else LONGEST_LOOKAHEAD
        for tokens, nexts in ways:
            alternatives = tuple(nexts)
            if len(alternatives) == 1:
                result.append(Choice(tokens, alternatives))
                continue
            behind = [(one, self._closure(next_)) for one, next_ in nexts.items()]
            keys = [{key[:2] for key in found} for _, found in behind]
            is_exact = depth < longest and sum(map(len, keys)) == len(set().union(*keys))
            result.append(Choice(tokens, self._exact_choices(behind, depth + 1) if is_exact else ()))
        finished = [one for one, found in fronts if any(popped for _, _, popped in found)]
        default = tuple(finished[:1])
        told_apart = []
        for tokens, outcome in joined(result):
            if isinstance(outcome, list) and len(outcome) == 1:
                outcome = outcome[0].outcome
            if outcome != default:
                told_apart.append(Choice(tokens, outcome))
        return [*joined(told_apart), Choice(None, default)]


def joined(choices: list) -> list:
    """Joins the tokens with the same outcome, in the order of the tokens."""
    together = {}
    outcomes = {}
    for choice in choices:
        key = repr(choice.outcome)
        together.setdefault(key, set()).update(choice.tokens)
        outcomes[key] = choice.outcome
    ordered = sorted(together.items(), key=lambda item: sorted(item[1]))
    return [Choice(Tokens(tokens), outcomes[key]) for key, tokens in ordered]


class Tokens(frozenset):
    """A set whose text form always has the same order."""

    def __repr__(self) -> str:
        return repr(sorted(self))
