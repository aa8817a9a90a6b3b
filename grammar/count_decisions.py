#!/usr/bin/env python3
"""Prints how many tokens the decisions of the parser take, and how large the lexer's automaton is.

A decision is a place where a text may go on in several ways.
"""

import re
from pathlib import Path

from compile_grammar import STARTS, TRIALS
from cypher_grammar import Grammar
from lexer_automaton import LexerAutomaton
from lookahead import LONGEST_LOOKAHEAD, Lookahead, Network
from rule_forms import rules_as_written, rules_to_compile, with_shared_beginnings

GENERATED = Path(__file__).parent / "generated"


def tokens(outcome: "list | tuple") -> int:
    """How many tokens tell the alternatives apart; LONGEST_LOOKAHEAD + 1 if that many do not."""
    if isinstance(outcome, list):
        return 1 + max(tokens(one.outcome) for one in outcome)
    return 0 if len(outcome) == 1 else LONGEST_LOOKAHEAD + 1


def decisions(rules: dict) -> dict:
    """The rules of the decisions, by the number of tokens that a decision takes."""
    network = Network(rules, STARTS)
    lookahead = Lookahead(network)
    found = {count: [] for count in range(1, LONGEST_LOOKAHEAD + 2)}
    for one in network.decisions:
        found[min(tokens(lookahead.choices(one)), LONGEST_LOOKAHEAD + 1)].append(one.rule)
    return found


def main() -> None:
    grammar = Grammar()
    written = rules_as_written(grammar)
    forms = {
        "as written": decisions(written),
        "shared beginnings": decisions({name: with_shared_beginnings(body) for name, body in written.items()}),
        "as compiled": decisions(rules_to_compile(grammar, STARTS)),
    }
    print("decisions         all  one token  two  three  more")
    for form, found in forms.items():
        one, two, three, more = (len(rules) for rules in found.values())
        print(f"{form:17} {one + two + three + more:3}  {one:9}  {two:3}  {three:5}  {more:4}")
    print("by three tokens:  " + ", ".join(forms["as compiled"][3]))
    print("tried in order:   " + ", ".join(sorted(rule for rule, _ in TRIALS)))
    predicted = set(re.findall(r"adaptivePredict\(_input, (\d+),", (GENERATED / "CypherParser.cpp").read_text("utf-8")))
    compiled = set(re.findall(r"case (\d+):  //", (GENERATED / "compiled/Lookahead.cpp").read_text("utf-8")))
    print(f"fallback: {len(predicted)} decisions predicted, {len(predicted & compiled)} of them by lookahead first")
    automaton = LexerAutomaton(grammar)
    print(f"lexer: {len(automaton.accepts)} states, {automaton.class_count - 1} classes of characters")


if __name__ == "__main__":
    main()
