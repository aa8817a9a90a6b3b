#include "Hints.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <filesystem>
#include <regex>
#include <string_view>
#include <system_error>

#include "Skeleton.h"

namespace inspect {

namespace {

// A pattern is searched in the skeleton; its last match at or before the error counts. The
// replacement takes the place of its group. In the hint, {} stands for the word beside the group.
struct Rule {
  const char* pattern;
  const char* replacement;
  const char* hint;
};

// In the order in which they are tried.
constexpr std::array rules{
    // White space that must stand.
    Rule{
        R"(\b(?:WHERE|RETURN|WITH|REMOVE|SKIP|LIMIT|BY|AS|CASE|WHEN|THEN|ELSE|UNION|ALL|YIELD|CALL|MERGE|UNWIND|ON|DISTINCT|AND|X?OR|STARTS|ENDS|IS|NOT)()[^ A-Z0-9_])",
        " ", "White space must stand behind {}."},
    Rule{R"([^ A-Z_]()(?:AND|X?OR|IN|CONTAINS|STARTS|ENDS|IS|AS)\b)", " ",
         "White space must stand before {}."},

    // White space that must not stand.
    Rule{R"(^( +))", "", "Nothing may stand before a filter, neither white space nor comments."},
    Rule{R"(( +),)", "", "No white space may stand before the commas of ORDER BY."},
    Rule{
        R"([A-Z0-9_]( +):)", "",
        "No white space may stand before the colon of a label that REMOVE takes away: REMOVE n:A."},
    Rule{R"(\(( +)\()", "",
         "No white space may stand just inside the parentheses around a pattern: ((a)-->(b))."},
    Rule{R"(\)( +)\))", "",
         "No white space may stand just inside the parentheses around a pattern: ((a)-->(b))."},
    Rule{R"((?:\[|\.\.)( +))", "",
         "No white space may stand just inside the brackets of an index or a slice: [0..1]."},
    Rule{R"(( +)(?:\]|\.\.))", "",
         "No white space may stand just inside the brackets of an index or a slice: [0..1]."},
    Rule{R"([A-Z0-9_]( *\. +|  *\. *)[A-Z_])", ".",
         "No white space may stand in a qualified name: a.b(1)."},
    Rule{R"(\$( +))", "", "No white space may stand behind the $ of a parameter: $name."},

    // What does not exist, or is written in another way.
    Rule{R"((=~))", "=",
         "There is no =~ for regular expressions; STARTS WITH, ENDS WITH and CONTAINS compare "
         "strings."},
    Rule{R"(\b(EXISTS) *\()", "size",
         "EXISTS takes braces, as in EXISTS { (n)-->() }; of a property write n.a IS NOT NULL."},
    Rule{R"([0-9.]E(\+)[0-9])", "", "An exponent has no plus sign: 1e3."},
    Rule{R"(\b0(X)[0-9A-F])", "x", "The prefixes of numbers are lower case: 0x1F, 0o17."},
    Rule{R"(\b0(O)[0-7])", "o", "The prefixes of numbers are lower case: 0x1F, 0o17."},
    Rule{R"(\b(0+)[0-9])", "", "A number has no leading zeros; octal ones begin with 0o: 0o17."},
    Rule{R"([0-9](\.)(?![0-9.A-Z_]))", ".0", "Digits must stand behind a decimal point: 1.0."},
    Rule{R"([-+] *([-+]))", "", "An operand has at most one sign; write -(-2)."},
    Rule{"(\x01+)", "-", "Only the hyphen computes: 1 - 2. Other dashes are for patterns."},
    Rule{"(\x02+)", "<", "Only < and > compare: 1 > 2. Other arrow heads are for patterns."},
    Rule{"(\x03+)", ">", "Only < and > compare: 1 > 2. Other arrow heads are for patterns."},
    Rule{R"((==))", "=", "Equality is written with one equals sign: n.a = 1."},
    Rule{R"((!=))", "<>", "Inequality is written <>: n.a <> 1."},
    Rule{R"((&&))", " AND ", "Write AND for &&."},
    Rule{R"((\|\|))", " OR ", "Write OR for ||."},
    Rule{R"(\b((?:CREATE|DROP) +(?:UNIQUE +)?(?:CONSTRAINT|INDEX)\b.*)$)", "RETURN 1",
         "There are no statements about schemas, only queries."},
    Rule{R"(\bCALL +[A-Z0-9_.]+() +YIELD\b)", "()",
         "Inside a query CALL takes its arguments between parentheses: CALL a.b() YIELD c."},
    Rule{R"(\bYIELD +(\*))", "x",
         "YIELD * is for a CALL that is the whole statement; inside a query write the names: YIELD "
         "c."},
    Rule{R"(\( *(DISTINCT)\b)", "", "Only functions take DISTINCT, procedures do not."},
    Rule{R"(\{[^{}]*\} *(: *[A-Z0-9_]+))", "", "Labels stand before properties: (n:A {a: 1})."},
    Rule{R"(\*[0-9. ]*(: *[A-Z0-9_]+))", "",
         "The type of a relationship stands before its length: [r:B*1..2]."},
    Rule{R"(\[ *[A-Z0-9_]* *: *[A-Z0-9_]+ *(:))", "|",
         "Types of relationships are separated by |: [r:A|B]."},
    Rule{R"((\$)[A-Z0-9_])", "", "A name cannot begin with $, which makes it a parameter."},
    Rule{"\"x*(\x05)", "\\\\",
         R"(A string has these escapes: \\ \' \" \b \f \n \r \t, and \u with 4 or 8 digits.)"},
    Rule{
        "\x06[^\x0E]*()\x0E", " ",
        "An even number of stars before the slash does not close a comment: end it with one star."},
    Rule{"(\x04)", "", "A quotation mark or a back quote is not closed."},
    Rule{R"(()$)", " RETURN 1", "A query that only reads ends in RETURN."},
};

// clang-format off
constexpr std::array<std::string_view, 46> keywords{
    "ALL", "AND", "AS", "ASC", "BY", "CALL", "CASE", "CONTAINS", "CREATE", "DELETE", "DESC",
    "DETACH", "DISTINCT", "ELSE", "END", "ENDS", "EXISTS", "FALSE", "IN", "IS", "LIMIT", "MATCH",
    "MERGE", "NOT", "NULL", "ON", "OPTIONAL", "OR", "ORDER", "REMOVE", "RETURN", "SET", "SKIP",
    "STARTS", "THEN", "TRUE", "UNION", "UNIQUE", "UNWIND", "WHEN", "WHERE", "WITH", "XOR",
    "YIELD", "SHORTESTPATH", "ALLSHORTESTPATHS"};
// clang-format on

bool isWordPart(char character) {
  return character == '_' || std::isalnum(static_cast<unsigned char>(character)) != 0;
}

std::string upperCase(std::string_view text) {
  std::string upper(text);
  std::transform(upper.begin(), upper.end(), upper.begin(), [](unsigned char character) {
    return static_cast<char>(std::toupper(character));
  });
  return upper;
}

// A part of a text, in bytes.
struct Range {
  std::size_t start;
  std::size_t end;
};

std::string_view partOf(std::string_view text, Range range) {
  return text.substr(range.start, range.end - range.start);
}

Range wordAround(std::string_view skeleton, std::size_t place) {
  Range word{place, place};
  while (word.start > 0 && isWordPart(skeleton[word.start - 1])) {
    --word.start;
  }
  while (word.end < skeleton.size() && isWordPart(skeleton[word.end])) {
    ++word.end;
  }
  return word;
}

// Whether one letter is wrong, missing or too many, or two neighbours are swapped.
bool areOneSlipApart(std::string_view left, std::string_view right) {
  const std::size_t shorter = std::min(left.size(), right.size());
  if (left == right || std::max(left.size(), right.size()) > shorter + 1) {
    return false;
  }
  const auto same = static_cast<std::size_t>(std::distance(
      left.begin(), std::mismatch(left.begin(), left.begin() + shorter, right.begin()).first));
  left.remove_prefix(same);
  right.remove_prefix(same);
  if (left.size() != right.size()) {
    return left.size() < right.size() ? left == right.substr(1) : left.substr(1) == right;
  }
  return left.substr(1) == right.substr(1) ||
         (left.size() > 1 && left[0] == right[1] && left[1] == right[0] &&
          left.substr(2) == right.substr(2));
}

// A refused text, and the search for a change that helps.
class Refused {
 public:
  Refused(const std::string& text, std::size_t offset,
          const std::function<Analysis(const std::string&)>& ask)
      : text_(text), offset_(offset), ask_(ask), skeleton_(skeletonOf(text)) {}

  [[nodiscard]] std::optional<std::string> hint() const {
    if (standsBehindSemicolon()) {
      return "A text holds one statement, with one semicolon at most.";
    }
    for (const Rule& rule : rules) {
      if (const std::optional<Range> range = lastMatch(rule);
          range && helps(*range, rule.replacement)) {
        return hintOf(rule, *range);
      }
    }
    if (const auto keyword = misspelt()) {
      return "Did you mean " + *keyword + "?";
    }
    return reservedWord();
  }

 private:
  [[nodiscard]] bool standsBehindSemicolon() const {
    const std::size_t before = skeleton_.find_last_not_of(' ', offset_ == 0 ? 0 : offset_ - 1);
    return offset_ > 0 && before != std::string::npos && skeleton_[before] == ';';
  }

  [[nodiscard]] std::optional<Range> lastMatch(const Rule& rule) const {
    // Text farther away has nothing to do with the error, and a search takes stack for each
    // character.
    constexpr std::size_t reach = 200;
    const std::size_t start = offset_ - std::min(offset_, reach);
    const std::size_t end = std::min(skeleton_.size(), offset_ + reach);
    auto flags = std::regex_constants::match_default;
    if (start > 0) {
      flags |= std::regex_constants::match_not_bol | std::regex_constants::match_prev_avail;
    }
    if (end < skeleton_.size()) {
      flags |= std::regex_constants::match_not_eol;
    }
    const std::regex pattern(rule.pattern, std::regex_constants::icase);
    const char* const first = std::next(skeleton_.data(), static_cast<std::ptrdiff_t>(start));
    const char* const last = std::next(skeleton_.data(), static_cast<std::ptrdiff_t>(end));
    std::optional<Range> found;
    for (std::cregex_iterator match(first, last, pattern, flags), none; match != none; ++match) {
      if (start + static_cast<std::size_t>(match->position(0)) > offset_) {
        break;
      }
      const std::size_t place = start + static_cast<std::size_t>(match->position(1));
      found = {place, place + static_cast<std::size_t>(match->length(1))};
    }
    return found;
  }

  [[nodiscard]] bool helps(Range range, std::string_view replacement) const {
    const std::string changed =
        text_.substr(0, range.start) + std::string(replacement) + text_.substr(range.end);
    const std::size_t samePlace = offset_ < range.end
                                      ? std::max(offset_, range.start + replacement.size())
                                      : offset_ - (range.end - range.start) + replacement.size();
    return isAnsweredBeyond(samePlace, changed);
  }

  // A change helps a filter only if more of the filter is read; more text to drop is no help.
  [[nodiscard]] bool isAnsweredBeyond(std::size_t place, const std::string& changed) const {
    const Analysis analysis = ask_(changed);
    switch (vorn_error_kind(analysis.get())) {
      case VORN_NO_ERROR: {
        const std::size_t end = vorn_expression_end(analysis.get());
        return end == 0 || end == changed.size() || end > place;
      }
      case VORN_FORBIDDEN:
        return true;
      case VORN_SYNTAX:
        return vorn_error_line(analysis.get()) != 0 && vorn_error_offset(analysis.get()) > place;
      default:
        return false;
    }
  }

  [[nodiscard]] std::string hintOf(const Rule& rule, Range range) const {
    std::string hint = rule.hint;
    if (const std::size_t gap = hint.find("{}."); gap != std::string::npos) {
      hint.replace(gap, 2, upperCase(partOf(skeleton_, wordBeside(range.start))));
    }
    return hint;
  }

  [[nodiscard]] Range wordBeside(std::size_t place) const {
    Range word = wordAround(skeleton_, place);
    // Only one of the two sides is a keyword.
    (word.start < place && isKeyword({word.start, place}) ? word.end : word.start) = place;
    return word;
  }

  [[nodiscard]] bool isKeyword(Range range) const {
    return std::find(keywords.begin(), keywords.end(), upperCase(partOf(skeleton_, range))) !=
           keywords.end();
  }

  [[nodiscard]] std::optional<std::string> misspelt() const {
    const Range here = wordAround(skeleton_, offset_);
    const std::size_t before =
        here.start == 0 ? std::string::npos : skeleton_.find_last_not_of(' ', here.start - 1);
    for (const Range word :
         {here, before == std::string::npos ? here : wordAround(skeleton_, before)}) {
      const std::string written = upperCase(partOf(skeleton_, word));
      if (isKeyword(word) || written.size() < 2) {
        continue;
      }
      for (const std::string_view keyword : keywords) {
        if (areOneSlipApart(written, keyword) && helps(word, keyword)) {
          return std::string(keyword);
        }
      }
    }
    return std::nullopt;
  }

  // Puts the word between back quotes wherever the text writes it in the same way.
  [[nodiscard]] std::optional<std::string> reservedWord() const {
    const Range here = wordAround(skeleton_, offset_);
    const std::string word(partOf(text_, here));
    if (here.start != offset_ || word.empty() || partOf(skeleton_, here) != word) {
      return std::nullopt;
    }
    std::string changed;
    std::size_t done = 0;
    for (std::size_t at = skeleton_.find(word); at != std::string::npos;
         at = skeleton_.find(word, at + word.size())) {
      const Range found = wordAround(skeleton_, at);
      if (partOf(skeleton_, found) == word) {
        changed += text_.substr(done, at - done) + '`' + word + '`';
        done = found.end;
      }
    }
    changed += text_.substr(done);
    if (!isAnsweredBeyond(changed.size(), changed)) {
      return std::nullopt;
    }
    return word + " is a reserved word; as a name it stands between back quotes: `" + word + "`.";
  }

  const std::string& text_;
  std::size_t offset_;
  const std::function<Analysis(const std::string&)>& ask_;
  std::string skeleton_;
};

// The path stands between quotation marks if a shell would not read it as one plain argument.
std::string adviceToRead(const std::string& path) {
  const bool plain = std::all_of(path.begin(), path.end(), [](char character) {
    return isWordPart(character) ||
           std::string_view("./:~-").find(character) != std::string_view::npos ||
           static_cast<unsigned char>(character) >= 0x80U;
  });
  return "To read a file, write --file " + (plain ? path : '"' + path + '"');
}

}  // namespace

std::optional<std::string> hintFor(const std::string& text, std::size_t offset,
                                   const std::function<Analysis(const std::string&)>& ask) {
  // Each attempt takes the time of one question.
  constexpr std::size_t longest = 65536;
  return text.size() > longest ? std::nullopt : Refused(text, offset, ask).hint();
}

std::optional<std::string> hintForFile(const std::string& text) {
  constexpr std::size_t longestPath = 4096;
  std::error_code error;
  return !text.empty() && text.size() <= longestPath &&
                 std::filesystem::is_regular_file(std::filesystem::u8path(text), error)
             ? std::optional(adviceToRead(text))
             : std::nullopt;
}

std::optional<std::string> hintForPath(const std::string& text) {
  // A search in a longer text would take more stack than there is.
  constexpr std::size_t longest = 1024;
  // A path with blanks needs an extension: otherwise it could be any text behind a slash.
  static const std::regex shape(
      R"((?:[A-Z]:|\.\.?|~)?[\\/][^\s"`(){}<>*?|]+|[^\n"`(){}<>*?|]+\.(?:cypher|cyp|cql|txt))",
      std::regex_constants::icase);
  return text.size() <= longest && std::regex_match(text, shape) ? std::optional(adviceToRead(text))
                                                                 : std::nullopt;
}

}  // namespace inspect
