#include "Sequences.h"

namespace compare {

const std::vector<Sequences::Alphabet>& Sequences::alphabets() {
  static const std::vector<Alphabet> all{
      {"parts of a query",
       false,
       {"MATCH ()", " ", "CREATE ()", "WITH *", "RETURN 1", "UNION ", "UNWIND 1 AS a", "CALL a()",
        " YIELD b", " WHERE 1", "DELETE a", "WITH a", "RETURN EXISTS {", "}", ";"}},
      {"atoms at a bracket",
       true,
       {"[", "]", "(", ")", "a", " IN ", " WHERE ", "|", "=", "-", ",", ".b", "1", ":B", "{c:1}",
        ".."}},
      {"atoms at a quantifier's name",
       true,
       {"any", "count", "(", ")", "a", " IN ", " WHERE ", "*", ".b", ",", "DISTINCT ", " ", "=",
        "[", "]", "none("}},
      {"links of a path",
       true,
       {"(", ")", "a", "-", "->", "<-", "<", ">", "[", "]", ".b", ":B", "{c:1}", "*", "1", "=",
        " "}},
      {"patterns in a query",
       false,
       {"MATCH ", "CREATE ", "(", ")", "a", "=", "-", ">", "<", "[", "]", ",", ":B", " WHERE ",
        "RETURN ", ".b", " "}},
      {"calls",
       false,
       {"CALL ", "a", ".b", "(", ")", "1", " YIELD ", "*", " AS ", ",", " WHERE ", " ", "RETURN 1",
        "CREATE ()", "UNION ", "WITH *", ";"}},
      {"projections",
       false,
       {"RETURN ", "WITH ", "a", " AS ", "*", ",", " ORDER BY ", " SKIP ", "1", " WHERE ", "-", "(",
        ")", ".b", " ", "DISTINCT "}},
      {"predicates",
       true,
       {"a", " IS ", "NULL", "NOT ", " IN ", " STARTS ", "WITH ", " CONTAINS ", "-", "=", "1", "(",
        ")", " ", " AND ", "^"}},
  };
  return all;
}

Sequences::Sequences(const Alphabet& itsAlphabet, std::size_t itsShare, std::size_t itsShares)
    : alphabet(itsAlphabet), share(itsShare), shares(itsShares) {
  open.push_back({"", 0});
}

bool Sequences::next(std::string& text) {
  while (!open.empty()) {
    const Prefix& prefix = open.front();
    if (piece == alphabet.pieces.size()) {
      open.pop_front();
      piece = 0;
      continue;
    }
    last = prefix.text + alphabet.pieces[piece];
    lastLength = prefix.length + 1;
    ++piece;
    if (lastLength == 2 && pairs++ % shares != share) {
      continue;
    }
    text = last;
    return true;
  }
  return false;
}

}  // namespace compare
