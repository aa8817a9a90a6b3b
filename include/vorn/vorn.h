#pragma once

#include <cstdint>
#include <map>
#include <set>
#include <string>
#include <tuple>
#include <unordered_map>
#include <utility>
#include <vector>

/// @file
/// VornLib answers three questions about openCypher text without running it:
///
/// - which columns does a query return, and what does each hold?
///   (vorn::GetOutputNamesAndTypes)
/// - which variables does a property filter use, and what does it read from each?
///   (vorn::GetVariableUsagesInPropertyFilterOCExpression)
/// - what does a property filter read like after some of its variables are renamed?
///   (vorn::ReplaceVariableNamesInPropertyFilterOCExpression)
///
/// Text is UTF-16 on every platform, and every size of text below counts UTF-16 code units. Each
/// call stands alone: no answer depends on an earlier call, nothing has to be set up or shut down,
/// and any number of threads may call at the same time. What a call returns belongs to the caller.
///
/// A byte order mark at the start of a text is skipped and is not part of any answer.
///
/// **What an answer is not.** Only the syntax is checked. Whether a label, a property or a function
/// exists is not known here. A filter is read as far as it is an expression; what stands behind a
/// complete one may be dropped. A host that stores or runs the text it was given stores or runs
/// more than was checked then. Renaming with no names returns the text that was.
///
/// Nothing is kept between calls, so no memory grows and no call has to warm anything up. One thing
/// is built once, by the first filter that is not valid from its first to its last character: the
/// static data by which the place and the kind of an error are found.
///
/// What a host should know that reads untrusted input:
///
/// - **Time** to parse a valid text grows as its length does. A filter that is not valid from its
///   first to its last character may take more, up to a bound. Beyond it the filter is refused.
///   So bound the length of what you accept.
/// - **Nesting** takes stack. A text that nests too deeply for the calling thread is refused before
///   the stack overflows. So many levels of brackets and of `CASE` fit:
///
///   | Stack left | in a valid text | in any other filter |
///   |---|---|---|
///   | 1 MiB | 1,000 | 250 |
///   | 8 MiB | 8,000 | 2,000 |
///
///   In a filter that is not valid `EXISTS {` counts as two levels.
/// - **Small stacks**: from 48 KiB on every call is answered or refused. With less, any text may be
///   refused. Less than 20 KiB, on Windows 32 KiB, may not suffice to throw the refusal: the
///   process then ends by an overflow.
/// - **Coroutines** on Linux: their stacks are taken to have 64 KiB. Such a stack must not lie
///   inside that of a thread, whose size would be taken for its own.
/// - **Size**: a text of more than 1 GiB in UTF-8 is refused.
///
/// Each of these refusals is a std::length_error, and status 1 from GetOutputNamesAndTypes.

// NOLINTBEGIN(cppcoreguidelines-macro-usage): hosts compare versions in the preprocessor.

/// The version of this header: semantic, so a host that was built with one works with every later
/// library of the same major number. The build reads it here.
#define VORN_VERSION_MAJOR 1
/// Grows when something is added.
#define VORN_VERSION_MINOR 0
/// Grows when something is repaired.
#define VORN_VERSION_PATCH 0

// NOLINTEND(cppcoreguidelines-macro-usage)

/// @cond
#if defined(VORN_STATIC)
#define VORN_API
#elif defined(_WIN32)
#if defined(VornLib_EXPORTS)
#define VORN_API __declspec(dllexport)
#else
#define VORN_API __declspec(dllimport)
#endif
#else
#define VORN_API __attribute__((visibility("default")))
#endif
/// @endcond

/// What the library offers a host.
namespace vorn {

/// One UTF-16 code unit: `wchar_t` on Windows, where it has 16 bits, and `char16_t` elsewhere.
#if defined(_WIN32)
using WideChar = wchar_t;
#else
using WideChar = char16_t;
#endif

/// UTF-16 text. Text with an unpaired surrogate is not well formed: every function below fails on
/// it in its own way, by a status or by an exception.
using WideString = std::basic_string<WideChar>;

/// What a result column holds.
///
/// The numbers are part of the contract: hosts may store them. 1, 2, 3, 7 and 8 are reserved and
/// never returned.
enum class CypherType : std::int32_t {
  /// Anything but a bare variable of a known kind: a computed expression, a property, a literal, a
  /// function call, a parameter, a variable bound by `UNWIND`, or kinds that conflict in a `UNION`.
  Unknown = 0,
  /// A variable bound in a node pattern: `n` of `MATCH (n)`.
  Node = 4,
  /// A variable bound in a relationship pattern, of variable length or not: `r` of `()-[r]->()`.
  Relationship = 5,
  /// A path variable: `p` of `MATCH p = ()-->()`.
  Path = 6,
  /// A node in one branch of a `UNION` and a relationship in another.
  NodeOrRelationship = 9,
};

/// Finds the columns that an openCypher query returns, in order.
///
///     std::vector<std::pair<vorn::WideString, vorn::CypherType>> columns;
///     if (vorn::GetOutputNamesAndTypes(u"MATCH (n) RETURN n, n.age AS age", columns) == 0) {
///       // columns is {{u"n", CypherType::Node}, {u"age", CypherType::Unknown}}
///     }
///
/// A column is named by its alias or else by the text of its expression. In both cases back quotes
/// are taken out, wherever they stand, string literals included; of a doubled one inside a quoted
/// name one is left.
///
/// The columns are those of the last `RETURN` or `WITH` in the text; a query without any, such as a
/// lone `CREATE`, has none. Names and number of the columns of a `UNION` are those of its last
/// branch; the kinds of the earlier branches are merged in by position.
///
/// @param query    The whole text of one query. It is only read.
/// @param columns  On success replaced by the answer, whatever it held; on failure left as it was.
/// @return 0 when the query was analysed, even if it has no columns; 1 when it was not, because the
///         text is no openCypher query, is not well-formed UTF-16, nests too deeply for the stack,
///         is too long, or because memory ran out.
/// @throws Nothing.
/// @note Thread-safe, as long as no other thread uses `columns` meanwhile.
VORN_API std::int32_t GetOutputNamesAndTypes(
    const WideString& query, std::vector<std::pair<WideString, CypherType>>& columns) noexcept;

/// One way in which a property filter uses a variable: what it reads from it, and which labels it
/// tests there. All names are back-quoted, whether the text writes them so or not.
struct VariableAccess {
  /// The property keys, in reading order: `n.address.city` gives `` `address` `` and `` `city` ``.
  /// Empty when the variable is used without a property.
  std::vector<WideString> propertyPath;
  /// The labels tested after the path: `n:Person` gives `` `Person` ``. Empty without a test.
  std::set<WideString> labels;

  /// Orders by `propertyPath`, then by `labels`; names compare by UTF-16 code units.
  friend bool operator<(const VariableAccess& left, const VariableAccess& right) {
    return std::tie(left.propertyPath, left.labels) < std::tie(right.propertyPath, right.labels);
  }
  /// The same path and the same labels.
  friend bool operator==(const VariableAccess& left, const VariableAccess& right) {
    return left.propertyPath == right.propertyPath && left.labels == right.labels;
  }
};

/// How a property filter uses one variable.
struct VariableUsage {
  /// The forms in which the text writes the variable's name: `n`, `` `n` `` or both.
  std::set<WideString> writtenForms;
  /// The distinct ways in which the variable is used. A bare use, a subscript included (`n`,
  /// `n[0]`), is an access with neither path nor labels.
  std::set<VariableAccess> accesses;
};

/// Finds the variables that a property filter (one openCypher expression) uses.
///
///     auto usages = vorn::GetVariableUsagesInPropertyFilterOCExpression(u"n.age > 3 AND n:Adult");
///     // usages[u"`n`"].accesses holds {path (), labels (`Adult`)} and {path (`age`), labels ()}
///
/// The expression must begin with the first character of the text. Text after a complete expression
/// is dropped if it cannot continue the expression, unless the parser reads an error in it first.
///
/// @param expression  The text of the filter. It is only read.
/// @return The variables by name, back-quoted, in ascending order of UTF-16 code units.
/// @throws std::logic_error  The filter holds a list comprehension, a pattern comprehension, a
///         quantifier (`ALL`, `ANY`, `NONE`, `SINGLE`), a pattern predicate or an existential
///         subquery. The exception is of this very type, not of one derived from it; `what()` is
///         UTF-8 and names the type of the first such element.
/// @throws std::length_error  The text nests too deeply for the stack, takes too long to be
///         understood, or has more than 1 GiB in UTF-8.
/// @throws std::bad_alloc  Memory ran out.
/// @throws std::exception  Any other failure, as a type derived from it. For text that is no
///         openCypher expression `what()` is "line L:C " and a description in UTF-8, with L the
///         line, counted from 1, and C the place in the line in code points, counted from 0.
/// @note Thread-safe.
VORN_API std::map<WideString, VariableUsage> GetVariableUsagesInPropertyFilterOCExpression(
    const WideString& expression);

/// Renames variables in a property filter and leaves every other character as it is written.
///
///     vorn::ReplaceVariableNamesInPropertyFilterOCExpression(u"n.name = 'n'", {{u"n", u"m"}});
///     // gives u"`m`.name = 'n'"
///
/// Every occurrence of a variable is renamed, also inside the elements that
/// GetVariableUsagesInPropertyFilterOCExpression rejects: this function does not validate. Nothing
/// else is renamed: no property key, label, relationship type, function, procedure, parameter, key
/// of a map, nor what a string or a comment holds. White space and comments behind the expression
/// are left out. Other text there is treated as by GetVariableUsagesInPropertyFilterOCExpression.
///
/// @param expression  The text of the filter. It is only read.
/// @param renames     New names by old names. Back quotes make no difference, neither around an old
///         name nor around a variable in the text. A new name that begins with a back quote is used
///         as it is, unchecked; any other one, be it empty, is put between back quotes, those
///         inside it doubled. If two old names mean one variable, the later one in the map's order
///         wins.
/// @return The text of the expression with the names replaced.
/// @throws std::length_error  As by GetVariableUsagesInPropertyFilterOCExpression.
/// @throws std::bad_alloc  Memory ran out.
/// @throws std::exception  Any other failure, as a type derived from it: a text that is no
///         openCypher expression, as above, or a text or a name, even an unused one, that is not
///         well formed.
/// @note Thread-safe.
VORN_API WideString ReplaceVariableNamesInPropertyFilterOCExpression(
    const WideString& expression, const std::unordered_map<WideString, WideString>& renames);

}  // namespace vorn
