#!/usr/bin/python3
"""Compiles Cypher.g4 to C++: tables for the lexer and a function for each parser rule.

    grammar/compile_grammar.py FOLDER   write the sources into the folder

Fails if three tokens do not decide between alternatives at a place that TRIALS does not name.
"""

import sys
from pathlib import Path
from typing import Iterator

from cypher_grammar import Grammar
from lexer_automaton import LexerAutomaton
from lookahead import END_OF_TEXT, Decision, Lookahead, Network
from rule_forms import names_in, rules_as_written, rules_to_compile

STARTS = ("oC_Cypher", "oC_Expression")

# Decisions whose alternatives are tried in order. The first one that matches is taken. So each decision
# needs a reason why the text behind the match never needs a later alternative.
TRIALS = {
    # A regular query takes all clauses behind its CALL. Behind a standalone call the text must end, so a
    # standalone call could not take them.
    ("oC_Query", 0),
    # Only a call with arguments goes on with a parenthesis.
    ("oC_StandaloneCall", 0),
    # Every text that may stand behind an operand may stand behind an atom. An earlier alternative takes
    # as much of the text as a later one, or more operands: behind `[`, `(` and a quantifier's name each
    # alternative ends with the same closing bracket, and a pattern takes `(a)` and the operators and
    # operands behind it. Behind a name with dots only a function goes on with a parenthesis.
    ("oC_Atom", 0),
    # The longest pattern is taken. If a link were left out, it would have to be read as operators and
    # operands, and every text that may stand behind these may stand behind the pattern.
    ("oC_RelationshipsPattern", 0),
}

# The rules whose nodes some analysis asks for. None of them matches an empty text, so the ranges of the
# nodes show how they nest.
TREE_RULES = (
    "oC_Union",
    "oC_Unwind",
    "oC_With",
    "oC_ProjectionItems",
    "oC_ProjectionItem",
    "oC_PatternPart",
    "oC_NodePattern",
    "oC_RelationshipDetail",
    "oC_LabelName",
    "oC_Expression",
    "oC_PropertyOrLabelsExpression",
    "oC_Atom",
    "oC_ListComprehension",
    "oC_PatternComprehension",
    "oC_Quantifier",
    "oC_PatternPredicate",
    "oC_ExistentialSubquery",
    "oC_Variable",
    "oC_PropertyKeyName",
)

# The rules that check the stack. Every recursion passes one of them.
STACK_CHECKS = ("oC_Expression", "oC_PatternElement", "oC_ExistentialSubquery")

HEADER = "// Written by grammar/compile_grammar.py from grammar/Cypher.g4; not to be edited.\n"
WIDTH = 100
FEW = 4  # up to so many tokens are compared one by one


def fail(message: str) -> None:
    raise SystemExit(f"compile_grammar.py: {message}")


def filled(items: list, indent: str = "    ") -> str:
    lines = [indent]
    for item in items:
        if len(lines[-1]) + len(item) + 2 > WIDTH:
            lines.append(indent)
        lines[-1] += ("" if lines[-1] == indent else " ") + item + ","
    return "\n".join(lines)


def nested_array(declaration: str, values: list) -> str:
    return f"{declaration} = {{{{\n{filled(values)}\n}}}};\n"


def array(declaration: str, values: list) -> str:
    return f"{declaration} = {{\n{filled([str(value) for value in values])}\n}};\n"


class LexerTables:
    """The automaton, packed into a few KiB, so that it fits the processor's cache.

    Most states differ from some other state in one or two transitions only: a state within a keyword is
    nearly like the state within any other name. So a state has only its own transitions, and the number
    of the state that has the others. The transitions of all states lie in one list, and the rows fill
    the gaps of each other.

    Half of all tokens are a single ASCII character, such as a blank or a parenthesis. For these the lexer
    only checks that the next character cannot belong to the token.
    """

    def __init__(self, automaton: LexerAutomaton) -> None:
        self._automaton = automaton
        self._rows = [{number: target for number, target in enumerate(row) if target} for row in automaton.transitions]
        self._likes = self._alike()
        self._pages, self._page_of = self._divide()
        self._pack()
        self._begin()

    def _differences(self, state: int, other: int) -> dict:
        """The transitions that `state` must have itself if it shares all others with `other`."""
        row, base = self._rows[state], self._rows[other]
        own = {number: target for number, target in row.items() if base.get(number) != target}
        return own | {number: 0 for number in base if number not in row}

    def _alike(self) -> list:
        """By state: the state that it shares transitions with, which shares none itself, or the dead state."""
        states = range(len(self._rows))
        likes = [0 for _ in states]
        needed = [len(row) for row in self._rows]
        roots = set()
        while True:
            free = [state for state in states if not likes[state] or state in roots]
            saved = {}
            for other in (state for state in free if state > 1):
                gains = {one: needed[one] - len(self._differences(one, other)) for one in states if one not in roots | {other}}
                saved[other] = {one: gain for one, gain in gains.items() if gain > 0}
            best = max(saved, key=lambda one: sum(saved[one].values()))
            if sum(saved[best].values()) < len(self._rows):
                return likes
            roots.add(best)
            for one, gain in saved[best].items():
                likes[one] = best
                needed[one] -= gain

    def _pack(self) -> None:
        own = [self._differences(state, like) for state, like in enumerate(self._likes)]
        taken = {}
        self._places = [0 for _ in own]
        for state in sorted(range(len(own)), key=lambda one: -len(own[one])):
            place = 0
            while any(place + number in taken for number in own[state]):
                place += 1
            self._places[state] = place
            taken |= {place + number: (state, target) for number, target in own[state].items()}
        length = max(self._places) + self._automaton.class_count
        self._entries = [taken.get(place, (0, 0)) for place in range(length)]

    def _begin(self) -> None:
        """Finds for each ASCII character the state behind it and the ASCII characters that end a token there."""
        numbers = {}
        self._beginnings = []
        for first in range(128):
            state = self._rows[1].get(self._pages[0][first], 0)
            stops = sum(1 << one for one in range(128) if self._pages[0][one] not in self._rows[state])
            self._beginnings.append((state, numbers.setdefault(stops, len(numbers))))
        self._stops = list(numbers)

    def _divide(self) -> tuple:
        """The distinct pages with the classes of 256 code points, and the page of each 256 code points."""
        by_code_point = [number for first, last, number in self._automaton.classes for _ in range(first, last + 1)]
        known = {}
        page_of = []
        for first in range(0, len(by_code_point), 256):
            page = tuple(by_code_point[first : first + 256])
            page_of.append(known.setdefault(page, len(known)))
        return list(known), page_of

    def header(self) -> str:
        return f"""{HEADER}#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace vorn {{

/// The automaton of the lexer over classes of characters.
struct LexerTables {{
  static constexpr std::uint16_t dead = 0;
  static constexpr std::uint16_t start = 1;

  struct State {{
    std::uint16_t place;  // where its transitions begin
    std::uint16_t like;   // the state that has those which it lacks
    std::uint8_t type;    // of the token that ends there, or 0
    std::uint8_t typeAtEnd;  // the same where the text ends
  }};
  struct Transition {{
    std::uint16_t state;  // whose it is; of the dead state there are none
    std::uint16_t target;
  }};

  static const std::array<State, {len(self._places)}> states;
  static const std::array<Transition, {len(self._entries)}> transitions;

  struct Beginning {{
    std::uint16_t state;
    std::uint8_t stops;  // the set of characters that lead nowhere from there
  }};
  /// By character of ASCII.
  static const std::array<Beginning, {len(self._beginnings)}> beginnings;
  /// Sets of characters of ASCII: bits of bytes, in words.
  static const std::array<std::array<std::uint64_t, 4>, {len(self._stops)}> stopSets;

  /// By code point, divided by 256: the page of its class.
  static const std::array<std::uint8_t, {len(self._page_of)}> pageOf;
  static const std::array<std::array<std::uint8_t, 256>, {len(self._pages)}> pages;

  static std::uint8_t classOf(std::uint32_t codePoint) {{
    return pages[pageOf[codePoint / 256]][codePoint % 256];
  }}

  static std::uint8_t typeOf(std::uint16_t state) {{ return states[state].type; }}
  static std::uint8_t typeAtEnd(std::uint16_t state) {{ return states[state].typeAtEnd; }}

  static bool stops(const Beginning& beginning, unsigned char byte) {{
    return (stopSets[beginning.stops][byte / 64U] >> (byte % 64U) & 1U) != 0;
  }}

  static std::uint16_t next(std::uint16_t state, std::uint8_t characterClass) {{
    const Transition& own = transitions[states[state].place + std::size_t{{characterClass}}];
    if (own.state == state) {{
      return own.target;
    }}
    const std::uint16_t like = states[state].like;
    const Transition& other = transitions[states[like].place + std::size_t{{characterClass}}];
    return other.state == like ? other.target : dead;
  }}
}};

}}  // namespace vorn
"""

    def source(self) -> str:
        automaton = self._automaton
        states = [
            f"{{{place}, {like}, {accepted}, {at_end}}}"
            for place, like, accepted, at_end in zip(self._places, self._likes, automaton.accepts, automaton.accepts_at_end)
        ]
        transitions = [f"{{{state}, {target}}}" for state, target in self._entries]
        beginnings = [f"{{{state}, {stops}}}" for state, stops in self._beginnings]
        stop_sets = [f"{{{one & (1 << 64) - 1:#x}, {one >> 64:#x}, 0, 0}}" for one in self._stops]
        pages = "\n".join("    {{\n" + filled([str(one) for one in page], "        ") + "\n    }}," for page in self._pages)
        parts = [
            nested_array(f"const std::array<LexerTables::State, {len(states)}> LexerTables::states", states),
            nested_array(f"const std::array<LexerTables::Transition, {len(transitions)}> LexerTables::transitions", transitions),
            nested_array(f"const std::array<LexerTables::Beginning, {len(beginnings)}> LexerTables::beginnings", beginnings),
            nested_array(f"const std::array<std::array<std::uint64_t, 4>, {len(stop_sets)}> LexerTables::stopSets", stop_sets),
            array(f"const std::array<std::uint8_t, {len(self._page_of)}> LexerTables::pageOf", self._page_of),
            f"const std::array<std::array<std::uint8_t, 256>, {len(self._pages)}> LexerTables::pages = {{{{\n{pages}\n}}}};\n",
        ]
        return f'{HEADER}#include "LexerTables.h"\n\nnamespace vorn {{\n\n' + "\n".join(parts) + "\n}  // namespace vorn\n"


class RuleFunctions:
    """The C++ of the parser rules."""

    def __init__(self, grammar: Grammar) -> None:
        self._rules = rules_to_compile(grammar, STARTS)
        self._white_space = grammar.token_types["SP"]
        self._names = {number: name for name, number in grammar.token_types.items()} | {0: "the end"}
        network = Network(self._rules, STARTS)
        lookahead = Lookahead(network)
        self._decisions = {(one.rule, one.ordinal): one for one in network.decisions}
        self._choices = {place: lookahead.choices(one) for place, one in self._decisions.items()}
        self._sets = {}
        self._functions = []
        self._check_trials()
        self._check_recursion()

    def _check_trials(self) -> None:
        undecided = set()
        for place, choices in self._choices.items():
            for tokens, alternatives in self._undecided(choices):
                undecided.add(place)
                if place not in TRIALS:
                    ahead = " ".join("{" + ", ".join(self._names[one] for one in sorted(some)) + "}" for some in tokens)
                    fail(f"decision {place[1]} of {place[0]}: alternatives {alternatives} both go on with {ahead}.")
        for rule, ordinal in TRIALS - undecided:
            fail(f"decision {ordinal} of {rule} needs no trial.")

    def _undecided(self, choices: list, before: tuple = ()) -> Iterator[tuple]:
        for tokens, outcome in choices:
            if isinstance(outcome, list):
                yield from self._undecided(outcome, (*before, tokens))
            elif len(outcome) > 1:
                yield (*before, tokens), outcome

    def _check_recursion(self) -> None:
        done = set(STACK_CHECKS)

        def visit(name: str, path: tuple) -> None:
            if name in path:
                fail(f"the recursion {' '.join((*path, name))} passes no check of the stack.")
            if name not in done:
                for called in self._called(name):
                    visit(called, (*path, name))
                done.add(name)

        for name in self._rules:
            visit(name, ())

    def _called(self, name: str) -> list:
        """The rules that a rule calls."""
        loops = self._loops(name)
        return [one for one in names_in(self._rules[name]) if not (loops and one == name)]

    def _loops(self, name: str) -> bool:
        """Whether a rule calls itself only at its very end, so that the call becomes a loop."""
        body = self._rules[name]
        return name in names_in(body) and name not in names_in_front(body)

    def source(self) -> str:
        bodies = [self._function(name) for name in self._rules]
        declarations = "\n".join(f"  bool {name}();" for name in [*self._rules, *(name for name, _ in self._functions)])
        extra = [f"bool Rules::{name}() {{\n{body}  return true;\n}}\n" for name, body in self._functions]
        sets = "".join(
            f"constexpr TokenSet {name}{{{', '.join(map(str, sorted(types)))}}};\n" for types, name in self._sets.items()
        )
        return f"""{HEADER}#include "parser/CompiledParser.h"
#include "parser/RuleParser.h"

namespace vorn {{

namespace {{

{sets}
class Rules final : public RuleParser<Rules> {{
 public:
  using RuleParser::RuleParser;

{declarations}
}};

{chr(10).join([*bodies, *extra])}
}}  // namespace

Verdict parseQuery(SyntaxTree& tree) {{ return Rules(tree).parse(&Rules::{STARTS[0]}); }}

Verdict parseExpression(SyntaxTree& tree) {{
  return Rules(tree).parse(&Rules::{STARTS[1]}, {self._white_space});
}}

}}  // namespace vorn
"""

    def _function(self, name: str) -> str:
        self._rule, self._ordinal = name, 0
        body = self._rules[name]
        loops = self._loops(name)
        code = self._code(body, "    " if loops else "  ", loops)
        if name in STACK_CHECKS:
            code = "  if (isStackUsedUp()) {\n    return false;\n  }\n" + code
        if name in TREE_RULES:
            code = f"  const std::uint32_t node = open(TreeRule::{name});\n{code}  close(node);\n"
        if loops:
            return f"bool Rules::{name}() {{\n  while (true) {{\n{code}    return true;\n  }}\n}}\n"
        return f"bool Rules::{name}() {{\n{code}  return true;\n}}\n"

    def _next_decision(self) -> Decision:
        self._ordinal += 1
        return self._decisions[(self._rule, self._ordinal - 1)]

    def _code(self, expression: tuple, indent: str, is_last: bool = False) -> str:
        """With `is_last`, a call of the rule itself may become a `continue` of its loop."""
        kind = expression[0]
        if kind == "sequence":
            return self._sequence(expression[1], indent, is_last)
        if kind == "rule" and is_last and expression[1] == self._rule:
            return f"{indent}continue;\n"
        if kind == "rule":
            return unless(f"{expression[1]}()", indent)
        if kind == "token":
            return unless(self._take(expression[1]), indent)
        if kind == "choice" or (kind == "optional" and expression[1][0] == "choice"):
            return self._choice(expression, indent, is_last)
        return self._repetition(expression, indent, is_last)

    def _sequence(self, parts: tuple, indent: str, is_last: bool) -> str:
        code = ""
        place = 0
        while place < len(parts):
            separators = separators_of(parts[place : place + 2])
            if separators:
                code += self._list(parts[place], separators, indent)
                place += 2
            else:
                code += self._code(parts[place], indent, is_last and place == len(parts) - 1)
                place += 1
        return code

    def _list(self, element: tuple, separators: tuple, indent: str) -> str:
        """Calls the element's rule in one place only, so the C++ compiler can inline it and saves frames."""
        element_code = self._code(element, indent + "  ")
        decision = self._next_decision()
        condition = self._condition(self._choices[(decision.rule, decision.ordinal)])
        separator_code = self._sequence(separators, indent + "  ", False)
        return (
            f"{indent}while (true) {{\n{element_code}{indent}  if (!({condition})) {{\n"
            f"{indent}    break;\n{indent}  }}\n{separator_code}{indent}}}\n"
        )

    def _repetition(self, expression: tuple, indent: str, is_last: bool) -> str:
        kind, body = expression
        decision = self._next_decision()
        if (decision.rule, decision.ordinal) in TRIALS:
            return self._loop_by_trial(decision, indent)
        code = self._code(body, indent + "  ", is_last and kind == "optional")
        condition = self._condition(self._choices[(decision.rule, decision.ordinal)])
        if kind == "optional" and body[0] == "token" and condition == self._is(body[1], 0):
            return f"{indent}skip({min(body[1])});\n" if len(body[1]) == 1 else f"{indent}skipOneOf({self._set(body[1])});\n"
        if kind == "plus":
            return f"{indent}do {{\n{code}{indent}}} while ({condition});\n"
        word = {"optional": "if", "star": "while"}[kind]
        return f"{indent}{word} ({condition}) {{\n{code}{indent}}}\n"

    def _loop_by_trial(self, decision: Decision, indent: str) -> str:
        kind, body = decision.expression
        if kind != "plus":
            fail(f"decision {decision.ordinal} of {decision.rule}: only a + can be tried again.")
        name = self._function_of_alternative(body, f"{decision.rule}_link")
        choices = self._choices[(decision.rule, decision.ordinal)]
        return (
            unless(f"{name}()", indent)
            + f"{indent}while (({self._condition(choices)}) && takeIfMatches(&Rules::{name})) {{\n{indent}}}\n"
        )

    def _function_of_alternative(self, expression: tuple, name: str) -> str:
        if expression[0] == "rule":
            return expression[1]
        self._functions.append((name, self._code(expression, "  ")))
        return name

    def _choice(self, expression: tuple, indent: str, is_last: bool) -> str:
        decision = self._next_decision()
        place = (decision.rule, decision.ordinal)
        parts = expression[1] if expression[0] == "choice" else expression[1][1]
        if place in TRIALS:
            functions = [self._function_of_alternative(part, f"{decision.rule}_{number}") for number, part in enumerate(parts, 1)]
            codes = [unless(f"{name}()", indent + "    ") for name in functions]
        else:
            functions = []
            codes = [self._code(part, indent + "    ", is_last) for part in parts]
        default = "break" if expression[0] == "optional" else "return false"
        return self._switch(self._choices[place], Alternatives(codes, functions, default), indent)

    def _switch(self, choices: list, alternatives: "Alternatives", indent: str) -> str:
        """If one token does not tell, the code first finds the alternative, so each one is written once."""
        if not all(isinstance(one.outcome, tuple) and len(one.outcome) == 1 for one in choices):
            lists = sorted({outcome for _, outcome in self._undecided(choices)})
            cases = "".join(
                f"{indent}  case {code_of(outcome)}: {{\n"
                f"{indent}    static constexpr std::array candidates{{"
                + ", ".join(f"&Rules::{alternatives.functions[one - 1]}" for one in outcome)
                + f"}};\n{indent}    if (!takeFirstOf(candidates)) {{\n{indent}      return false;\n{indent}    }}\n"
                + f"{indent}    break;\n{indent}  }}\n"
                for outcome in lists
            )
            numbers = sorted(self._alternatives_in(choices))
            return (
                f"{indent}unsigned chosen = 0;\n{self._find(choices, 0, indent)}{indent}switch (chosen) {{\n"
                + "".join(alternatives.cases([str(one)], one, indent) for one in numbers)
                + cases
                + f"{indent}  default:\n{indent}    {alternatives.default};\n{indent}}}\n"
            )
        body = "".join(
            alternatives.cases([str(one) for one in sorted(choice.tokens)], choice.outcome[0], indent) for choice in choices
        )
        return f"{indent}switch (ahead(0)) {{\n{body}{indent}  default:\n{indent}    {alternatives.default};\n{indent}}}\n"

    def _alternatives_in(self, choices: list) -> set:
        found = set()
        for _, outcome in choices:
            if isinstance(outcome, list):
                found |= self._alternatives_in(outcome)
            elif len(outcome) == 1:
                found.add(outcome[0])
        return found

    def _find(self, choices: list, depth: int, indent: str) -> str:
        code = f"{indent}switch (ahead({depth})) {{\n"
        for tokens, outcome in choices:
            code += labels([str(one) for one in sorted(tokens)], indent)
            if isinstance(outcome, list):
                code += self._find(outcome, depth + 1, indent + "    ")
            else:
                code += f"{indent}    chosen = {code_of(outcome)};\n"
            code += f"{indent}    break;\n"
        return f"{code}{indent}}}\n"

    def _condition(self, choices: list, depth: int = 0) -> str:
        """A C++ condition: is the first alternative possible?"""
        terms = []
        for tokens, outcome in choices:
            if isinstance(outcome, list):
                inner = self._condition(outcome, depth + 1)
                if inner:
                    terms.append(f"({self._is(tokens, depth)} && {f'({inner})' if ' || ' in inner else inner})")
            elif 1 in outcome:
                terms.append(self._is(tokens, depth))
        return " || ".join(terms)

    def _set(self, types: frozenset) -> str:
        return self._sets.setdefault(types, f"set{len(self._sets)}")

    def _is(self, types: frozenset, depth: int) -> str:
        if len(types) > FEW:
            return f"{self._set(types)}.holds(ahead({depth}))"
        terms = " || ".join(f"ahead({depth}) == {one}" for one in sorted(types))
        return f"({terms})" if len(types) > 1 else terms

    def _take(self, types: frozenset) -> str:
        if len(types) == 1:
            return f"take({min(types)})"
        return f"takeOneOf({self._set(types)})"


class Alternatives:
    """The code of each alternative of a choice."""

    def __init__(self, codes: list, functions: list, default: str) -> None:
        self._codes = codes
        self.functions = functions
        self.default = default

    def cases(self, tokens: list, number: int, indent: str) -> str:
        if number > len(self._codes):
            return ""
        code = self._codes[number - 1]
        ending = "" if code.endswith("continue;\n") else f"{indent}    break;\n"
        return f"{labels(tokens, indent)}{code}{ending}"


def separators_of(parts: tuple) -> tuple:
    """The separators if the parts are `rule ( separators rule )*`, else nothing."""
    if len(parts) != 2 or parts[0][0] != "rule" or parts[1][0] != "star" or parts[1][1][0] != "sequence":
        return ()
    *separators, last = parts[1][1][1]
    return tuple(separators) if last == parts[0] else ()


def names_in_front(expression: tuple) -> list:
    """The rules that an expression calls before its end."""
    kind = expression[0]
    if kind == "sequence":
        *parts, last = expression[1]
        return [name for part in parts for name in names_in(part)] + names_in_front(last)
    if kind == "choice":
        return [name for part in expression[1] for name in names_in_front(part)]
    if kind == "optional":
        return names_in_front(expression[1])
    return [] if kind == "rule" else names_in(expression)


def labels(values: list, indent: str) -> str:
    """The labels of one case, in lines of at most WIDTH characters."""
    lines = [f"{indent} "]
    for value in values:
        label = f" case {value}:"
        if len(lines[-1]) + len(label) > WIDTH:
            lines.append(f"{indent} ")
        lines[-1] += label
    return "\n".join(lines) + "\n"


def code_of(outcome: tuple) -> int:
    """A number for one alternative or for several that are to be tried."""
    code = 0
    for one in outcome:
        code = code * 100 + one
    return code


def unless(call: str, indent: str) -> str:
    return f"{indent}if (!{call}) {{\n{indent}  return false;\n{indent}}}\n"


def tree_rules(grammar: Grammar) -> str:
    rules = [name for name in grammar.parser_rules if name in TREE_RULES]
    numbers = [str(rules.index(name)) if name in rules else "-1" for name in grammar.parser_rules]
    names = "\n".join(f"  {name}," for name in rules)
    return f"""{HEADER}#pragma once

#include <array>
#include <cstdint>

namespace vorn {{

/// The rules whose nodes stand in a SyntaxTree.
enum class TreeRule : std::uint8_t {{
{names}
}};

/// By the index of a parser rule: its TreeRule, or -1.
constexpr std::array<std::int8_t, {len(numbers)}> treeRuleOfParserRule = {{
{filled(numbers)}
}};

}}  // namespace vorn
"""


def tree_listener(grammar: Grammar) -> str:
    rules = [name for name in grammar.parser_rules if name in TREE_RULES]
    operations = [name[0].upper() + name[1:] for name in rules]
    empty = "\n".join(
        f"  void enter{name}(const SyntaxTree::Node& /*node*/) {{}}\n  void exit{name}(const SyntaxTree::Node& /*node*/) {{}}"
        for name in operations
    )

    def told(verb: str) -> str:
        return "\n".join(
            f"    case TreeRule::{rule}:\n      return listener.{verb}{name}(node);" for rule, name in zip(rules, operations)
        )

    return f"""{HEADER}#pragma once

#include "parser/SyntaxTree.h"

namespace vorn {{

/// Hears of nothing. A listener derives from it and has the operations that it needs, which hide the
/// empty ones here; the walk knows its type, so none is virtual.
class TreeListener {{
 public:
{empty}
}};

template <typename Listener>
void tellOfEntering(Listener& listener, const SyntaxTree::Node& node) {{
  switch (node.rule) {{
{told("enter")}
  }}
}}

template <typename Listener>
void tellOfLeaving(Listener& listener, const SyntaxTree::Node& node) {{
  switch (node.rule) {{
{told("exit")}
  }}
}}

}}  // namespace vorn
"""


class AntlrLookahead:
    """The compiled lookahead for the decisions of the parser that the ANTLR tool generates."""

    def __init__(self, grammar: Grammar) -> None:
        network = Network(rules_as_written(grammar), ())
        lookahead = Lookahead(network)
        self._choices = [(one, lookahead.exact_choices(one)) for one in network.decisions]

    def source(self) -> str:
        cases = "".join(
            f"    case {decision.number}:  // {decision.rule}\n{self._switch(choices, 1, '      ')}"
            for decision, choices in self._choices
            if len(choices) > 1
        )
        return f"""{HEADER}#include "antlr/Lookahead.h"

#include <Token.h>
#include <TokenStream.h>

namespace vorn {{

std::size_t lookaheadAlternative(std::size_t decision, antlr4::TokenStream& tokens) {{
  switch (decision) {{
{cases}    default:
      return 0;
  }}
}}

}}  // namespace vorn
"""

    def _switch(self, choices: list, depth: int, indent: str) -> str:
        code = f"{indent}switch (tokens.LA({depth})) {{\n"
        for tokens, outcome in choices:
            if tokens is None:
                code += f"{indent}  default:\n"
            else:
                code += labels(["antlr4::Token::EOF" if one == END_OF_TEXT else str(one) for one in sorted(tokens)], indent)
            if isinstance(outcome, list):
                code += self._switch(outcome, depth + 1, indent + "    ")
            else:
                code += f"{indent}    return {outcome[0] if outcome else 0};\n"
        return f"{code}{indent}}}\n"


def main() -> None:
    folder = Path(sys.argv[1])
    grammar = Grammar()
    tables = LexerTables(LexerAutomaton(grammar))
    for name, text in (
        ("LexerTables.h", tables.header()),
        ("LexerTables.cpp", tables.source()),
        ("ParserRules.cpp", RuleFunctions(grammar).source()),
        ("Lookahead.cpp", AntlrLookahead(grammar).source()),
        ("TreeRule.h", tree_rules(grammar)),
        ("TreeListener.h", tree_listener(grammar)),
    ):
        (folder / name).write_text(text, encoding="utf-8")


if __name__ == "__main__":
    main()
