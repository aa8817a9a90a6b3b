#include "Templates.h"

#include <algorithm>

namespace compare {

namespace {

// @Q, @E, @P and @L are the holes. The first template of each kind is the plain filling.
constexpr const char* queries[] = {
    "RETURN 1",
    "RETURN @E",
    "RETURN @E, @E",
    "RETURN @E AS a ORDER BY @E",
    "RETURN *",
    "MATCH @P @Q",
    "MATCH @P, @P @Q",
    "MATCH a=@P WHERE @E @Q",
    "OPTIONAL MATCH @P @Q",
    "CREATE @P",
    "CREATE @P @Q",
    "CREATE () WITH * CREATE ()",
    "MERGE @P",
    "MERGE @P @Q",
    "MERGE @P ON CREATE SET a = @E @Q",
    "DELETE @E",
    "DELETE @E, @E @Q",
    "SET a.b = @E",
    "SET @E.b = @E @Q",
    "SET a:B @Q",
    "REMOVE a.b @Q",
    "REMOVE a:B",
    "WITH * @Q",
    "WITH @E AS a @Q",
    "WITH a WHERE @E @Q",
    "UNWIND @E AS a @Q",
    "@Q UNION @Q",
    "@Q UNION ALL @Q",
    "MATCH @P RETURN * UNION MATCH @P RETURN * ORDER BY @E UNION @Q",
    "CALL a",
    "CALL a.b",
    "CALL a()",
    "CALL a.b(@E)",
    "CALL a(@E, @E)",
    "CALL a YIELD *",
    "CALL a YIELD b",
    "CALL a YIELD b AS c WHERE @E",
    "CALL a(@E) YIELD *",
    "CALL a(@E) YIELD b",
    "CALL a(@E) YIELD b, c WHERE @E",
    "CALL a(@E) @Q",
    "CALL a.b(@E) YIELD b @Q",
    "CALL a YIELD b @Q",
    "CALL a YIELD * @Q",
};

constexpr const char* expressions[] = {
    "a",
    "1",
    "any",
    "count",
    "none",
    "single",
    "a.b",
    "a.b.c",
    "any.count",
    "a:B",
    "a.b:B:C",
    "count(*)",
    "count ( * )",
    "(a)",
    "()",
    "[]",
    "[a]",
    "{a:1}",
    "$a",
    "'s'",
    "any()",
    "a.b()",
    "a .b()",
    "[@E]",
    "[@E, @E]",
    "[ @E ]",
    "[a IN @E]",
    "[ a IN @E ]",
    "[a IN @E WHERE @E]",
    "[a IN @E|@E]",
    "[a IN @E WHERE @E | @E]",
    "[any IN @E]",
    "[@P|@E]",
    "[@P WHERE @E|@E]",
    "[a=@P|@E]",
    "[a = @P WHERE @E | @E]",
    "[a=@E]",
    "[a=@E|@E]",
    "[@P]",
    "@P",
    "(a)@L",
    "(a)-[b]-(c)@L",
    "(a)@L@L",
    "(@P)",
    "(@E)",
    "( @E )",
    "(@E:B)",
    "({a:@E})",
    "(a{b:@E})",
    "any(a IN @E)",
    "any(a IN @E WHERE @E)",
    "none( a IN @E WHERE @E )",
    "single (a IN @E)",
    "all(a IN @E WHERE @E)",
    "all(@E)",
    "any(@E)",
    "none(@E, @E)",
    "count(@E)",
    "count(DISTINCT @E)",
    "count(a IN @E)",
    "a(@E)",
    "a.b(@E)",
    "a.any(@E)",
    "any.b(@E, @E)",
    "@E.b",
    "@E .b",
    "@E:B",
    "@E[@E]",
    "@E [@E]",
    "@E[@E..@E]",
    "@E[..]",
    "@E=@E",
    "@E = @E",
    "@E < @E",
    "@E<-@E",
    "@E<@E",
    "@E > @E",
    "@E->@E",
    "@E -@E",
    "@E-@E",
    "@E - @E",
    "@E--@E",
    "@E-[@E]-@E",
    "@E-[@E]->@E",
    "@E<-[@E]-@E",
    "@E-[a:B]-@E",
    "-@E",
    "NOT @E",
    "@E IN @E",
    "@E AND @E",
    "@E*@E",
    "@E IS NULL",
    "@E STARTS WITH @E",
    "{a:@E}",
    "{any:@E, b:@E}",
    "CASE @E WHEN @E THEN @E END",
    "EXISTS {@P}",
    "EXISTS { @P WHERE @E }",
    "EXISTS{@Q}",
    "EXISTS { @Q }",
};

constexpr const char* paths[] = {
    "()--()",       "(a)@L",      "(a) @L", "()@L@L",  "(a) @L @L", "(a:B {b:@E})@L",
    "({b:@E})@L@L", "(a:B $c)@L", "(@E)@L", "((a)@L)", "(a)",       "(a {b:@E})",
    "()",
};

constexpr const char* links[] = {
    "--()",
    "-->(a)",
    "<--(a)",
    "<-->()",
    "-[b]-(c)",
    "-[b]->(c.d)",
    "-[d]-(e.f)",
    "--(a.b)",
    "-[@E]-(a)",
    "-[@E]->(@E)",
    "-(@E)",
    "- (@E)",
    "<(@E)",
    "<-(@E)",
    "<-[@E]-(@E)",
    "- -(@E)",
    "-[a IN @E]-(b)",
    "-[*]-()",
    "-[b:C|D*1..2 {e:@E}]-(f {g:@E})",
    "-[{e:@E}]->()",
    "-[]-()",
    "-[a:B]-(@E)",
    "-(a)-(@E)",
    "-[@E]@L",
    "- [ b ] - ( c )",
    "--@P",
};

Templates::Kind kindOf(char letter) {
  switch (letter) {
    case 'Q':
      return Templates::Kind::Query;
    case 'E':
      return Templates::Kind::Expression;
    case 'P':
      return Templates::Kind::Path;
    default:
      return Templates::Kind::Link;
  }
}

}  // namespace

Templates::Templates() {
  for (const char* text : queries) {
    add(Kind::Query, text);
  }
  for (const char* text : expressions) {
    add(Kind::Expression, text);
  }
  for (const char* text : paths) {
    add(Kind::Path, text);
  }
  for (const char* text : links) {
    add(Kind::Link, text);
  }
  firstPairs.push_back(0);
  for (const Hole& hole : holes) {
    firstPairs.push_back(firstPairs.back() + of(hole.kind).size());
  }
  for (std::size_t depth = 0; depth <= deepest; ++depth) {
    std::uint64_t sums[kindCount] = {};
    for (std::size_t kind = 0; kind < kindCount; ++kind) {
      for (std::size_t i = 0; i < templates[kind].size(); ++i) {
        sums[kind] += countFrom(static_cast<Kind>(kind), i, depth);
      }
    }
    for (std::size_t kind = 0; kind < kindCount; ++kind) {
      counts[kind].push_back(sums[kind]);
    }
  }
}

void Templates::add(Kind kind, const char* text) {
  Template one;
  one.written = text;
  for (const char* at = text; *at != '\0'; ++at) {
    if (*at == '@') {
      ++at;
      one.holes.push_back({kindOf(*at), one.text.size(), holes.size()});
      holes.push_back(one.holes.back());
      holeNames.push_back(std::string(text) + ", hole " + std::to_string(one.holes.size()) + ",");
    } else {
      one.text += *at;
    }
  }
  templates[static_cast<std::size_t>(kind)].push_back(std::move(one));
}

// A chain ends where a template has no hole, or with the plain filling.
std::uint64_t Templates::countFrom(Kind kind, std::size_t index, std::size_t depth) const {
  if (depth == 0) {
    return index == 0 ? 1 : 0;
  }
  const Template& one = of(kind)[index];
  std::uint64_t sum = one.holes.empty() ? 1 : 0;
  for (const Hole& hole : one.holes) {
    sum += count(hole.kind, depth - 1);
  }
  return sum;
}

std::uint64_t Templates::count(Kind kind, std::size_t depth) const {
  return counts[static_cast<std::size_t>(kind)][depth];
}

Templates::Text Templates::chain(Kind kind, std::size_t depth, std::uint64_t number) const {
  Text result;
  append(kind, depth, number, result);
  return result;
}

std::size_t Templates::append(Kind kind, std::size_t depth, std::uint64_t number,
                              Text& result) const {
  std::size_t index = 0;
  for (; number >= countFrom(kind, index, depth); ++index) {
    number -= countFrom(kind, index, depth);
  }
  const Template& one = of(kind)[index];
  std::size_t filled = 0;
  for (; depth > 0 && filled < one.holes.size(); ++filled) {
    const std::uint64_t ways = count(one.holes[filled].kind, depth - 1);
    if (number < ways) {
      break;
    }
    number -= ways;
  }
  std::size_t at = 0;
  for (std::size_t i = 0; i < one.holes.size(); ++i) {
    const Hole& hole = one.holes[i];
    result.text.append(one.text, at, hole.place - at);
    at = hole.place;
    if (depth > 0 && i == filled) {
      const std::size_t inside = append(hole.kind, depth - 1, number, result);
      result.pairs.push_back(firstPairs[hole.number] + inside);
    } else {
      append(hole.kind, 0, 0, result);
    }
  }
  result.text.append(one.text, at, std::string::npos);
  return index;
}

std::string Templates::tree(Kind kind, std::size_t depth, Random& random) const {
  const Template& one = of(kind)[depth == 0 ? 0 : random.below(of(kind).size())];
  std::string text;
  std::size_t at = 0;
  for (const Hole& hole : one.holes) {
    text.append(one.text, at, hole.place - at);
    at = hole.place;
    text += tree(hole.kind, depth == 0 ? 0 : depth - 1, random);
  }
  return text.append(one.text, at, std::string::npos);
}

std::string Templates::nameOf(std::size_t pair) const {
  const auto behind = std::upper_bound(firstPairs.begin(), firstPairs.end(), pair);
  const auto number = static_cast<std::size_t>(behind - firstPairs.begin()) - 1;
  return holeNames[number] + " with " + of(holes[number].kind)[pair - firstPairs[number]].written;
}

}  // namespace compare
