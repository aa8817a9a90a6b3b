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
/// - Which columns does a query return, and what does each hold?
///   (vorn::GetOutputNamesAndTypes)
/// - Which variables does a property filter use, and what does it read from each?
///   (vorn::GetVariableUsagesInPropertyFilterOCExpression)
/// - What does a property filter read like after some of its variables are renamed?
///   (vorn::ReplaceVariableNamesInPropertyFilterOCExpression)
///
/// A property filter is one openCypher expression, such as the condition behind a `WHERE`:
/// `n.age > 30 AND n:Person`.
///
/// Text is UTF-16 on every platform. Every size of text below counts UTF-16 code units, unless it
/// names UTF-8. A byte order mark at the start of a text is skipped and is not part of any answer.
///
/// Each call stands alone: no answer depends on an earlier call, and nothing has to be set up or
/// shut down. Any number of threads may call at the same time. What a call returns belongs to the
/// caller.
///
/// **Only the syntax is checked.** The library does not know whether a label, a property or a
/// function exists.
///
/// **Text behind a filter may be dropped.** The filter `n.a = 1 RETURN n` is read as `n.a = 1`. A
/// host that stores or runs the text it was given may store or run more than was checked. The text
/// that was checked is the result of renaming with an empty map.
///
/// **Limits.** A host that reads untrusted input should bound its length, and should know these
/// limits. A query is valid if the grammar accepts it. A filter is valid if it is one expression
/// from its first to its last character, apart from white space and comments at its end.
///
/// - **Time**: a valid text is parsed in time proportional to its length. A filter that is not
///   valid may take more, up to a bound. Beyond the bound it is refused. To find the columns of a
///   query takes more than proportional time if its subqueries nest deeply, or if it has many
///   `UNION` branches with `RETURN *`.
/// - **Nesting**: a text that nests too deeply for the calling thread is refused before the stack
///   overflows. At least this many levels of brackets or of `CASE` fit:
///
///   | Stack left | in a valid text | in a filter that is not valid |
///   |---|---|---|
///   | 1 MiB | 1,000 | 250 |
///   | 8 MiB | 8,000 | 2,000 |
///
///   In a filter that is not valid, `EXISTS {` counts as two levels, and the bound on time may come
///   first.
/// - **Small stacks**: with less than 48 KiB of stack left, any text may be refused, even one that
///   does not nest. A refusal itself takes up to 20 KiB of stack, on Windows 32 KiB. With less than
///   that left, the process may end by a stack overflow.
/// - **Coroutines** on Linux: the library cannot tell how large the stack of a coroutine is. It
///   assumes that 48 KiB of the stack are left when the call begins. The stack of a coroutine must
///   not lie inside the stack of a thread, because the library would take it for the thread's.
/// - **Size**: a text of more than 1 GiB in UTF-8 is refused.
///
/// Each of these refusals is a std::length_error. From GetOutputNamesAndTypes it is status 1.
///
/// **Memory.** Between calls the library keeps only static data, whose size is bounded. The first
/// filter that is not valid builds the static data with which errors are located, so it takes
/// longer than later ones. No other call has to warm anything up.

// NOLINTBEGIN(cppcoreguidelines-macro-usage): hosts compare versions in the preprocessor.

/// The version of this header, in semantic versioning. A host that was built with it works with
/// every later library of the same major number. The build reads the version here.
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

/// UTF-16 text. Text with an unpaired surrogate is not well formed. For such text
/// GetOutputNamesAndTypes returns status 1, and the other functions throw.
using WideString = std::basic_string<WideChar>;

/// What a result column holds.
///
/// The numbers are part of the contract: hosts may store them. 1, 2, 3, 7 and 8 are reserved and
/// never returned.
enum class CypherType : std::int32_t {
  /// Anything but a bare variable of a known kind: a computed expression, a property, a literal, a
  /// function call, a parameter, a variable from `UNWIND` or `YIELD`, or a column whose kinds
  /// conflict in a `UNION`.
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
/// The columns are those of the last `RETURN` or `WITH` in the text, even if that one stands in a
/// subquery. A query with neither of them has no columns: a lone `CREATE`, for example, or a `CALL`
/// that is the whole query, with or without `YIELD`.
///
/// The name of a column is its alias or else the text of its expression. Both lose their back
/// quotes, even those inside a string literal. A doubled back quote inside a quoted name becomes a
/// single one.
///
/// `RETURN *` gives a column for each variable in scope, ordered by the bytes of the names in
/// UTF-8. Two sorts of variables are left out: those from the `YIELD` of a `CALL`, and those of
/// unknown kind that a `WITH` names without an `AS`. Named in the `RETURN`, such a variable has a
/// column.
///
/// The names and the number of the columns of a `UNION` are those of its last branch. The kinds of
/// the earlier branches are merged in by position.
///
/// @param query    The whole text of one query. It is only read.
/// @param columns  On success replaced by the answer, whatever it held. On failure left as it was.
/// @return 0 if the query was analysed, even if it has no columns. 1 if it was not: the text is no
///         openCypher query, is not well-formed UTF-16, nests too deeply for the stack or is too
///         long, or memory ran out.
/// @throws Nothing.
/// @note Thread-safe, as long as no other thread uses the same `columns` during the call.
VORN_API std::int32_t GetOutputNamesAndTypes(
    const WideString& query, std::vector<std::pair<WideString, CypherType>>& columns) noexcept;

/// One way in which a property filter uses a variable: the property path it reads, and the labels
/// it tests. All names are between back quotes, even if the text writes them without.
struct VariableAccess {
  /// The property keys, in reading order: `n.address.city` gives `` `address` `` and `` `city` ``.
  /// Empty when the variable is used without a property.
  std::vector<WideString> propertyPath;
  /// The labels that are tested behind the path: `n:Person` gives `` `Person` ``. Empty if none is.
  std::set<WideString> labels;

  /// Orders by `propertyPath`, then by `labels`. Names compare by UTF-16 code units.
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
  /// The distinct ways in which the variable is used. A bare variable, as in `n` or `n[0]`, is an
  /// access with neither path nor labels.
  std::set<VariableAccess> accesses;
};

/// Finds the variables that a property filter uses.
///
///     auto usages = vorn::GetVariableUsagesInPropertyFilterOCExpression(u"n.age > 3 AND n:Adult");
///     // usages[u"`n`"].accesses holds {path (), labels (`Adult`)} and {path (`age`), labels ()}
///
/// The expression must begin with the first character of the text. Text behind a complete
/// expression is dropped, unless it looks like a continuation:
///
/// - `n.a = 1 RETURN n` is read as `n.a = 1`.
/// - `n.a = 1 AND` is an error.
///
/// @param expression  The text of the filter. It is only read.
/// @return The usages by variable. The names of the variables are between back quotes, in ascending
///         order of their UTF-16 code units.
/// @throws std::logic_error  The filter holds a list comprehension, a pattern comprehension, a
///         quantifier (`ALL`, `ANY`, `NONE`, `SINGLE`), a pattern predicate or an existential
///         subquery. The exception has exactly this type, not a derived one. `what()` is UTF-8 and
///         names the type of the first such element.
/// @throws std::length_error  The text nests too deeply for the stack, takes too long to be
///         understood, or has more than 1 GiB in UTF-8.
/// @throws std::bad_alloc  Memory ran out.
/// @throws std::exception  Any other failure, as a type derived from it. For text that is no
///         openCypher expression, `what()` is "line L:C " and a description in UTF-8. L is the
///         line, counted from 1. C is the place in the line in code points, counted from 0.
/// @note Thread-safe.
VORN_API std::map<WideString, VariableUsage> GetVariableUsagesInPropertyFilterOCExpression(
    const WideString& expression);

/// Renames variables in a property filter and leaves every other character as it is written.
///
///     vorn::ReplaceVariableNamesInPropertyFilterOCExpression(u"n.name = 'n'", {{u"n", u"m"}});
///     // gives u"`m`.name = 'n'"
///
/// Every occurrence of a variable is renamed, even inside the elements that
/// GetVariableUsagesInPropertyFilterOCExpression rejects: this function does not validate. It
/// renames nothing else: no property key, label, relationship type, function, procedure, parameter
/// or key of a map, and nothing inside a string or a comment.
///
/// White space and comments behind the expression are left out. Other text there is dropped or
/// refused as by GetVariableUsagesInPropertyFilterOCExpression.
///
/// @param expression  The text of the filter. It is only read.
/// @param renames     New names by old names. An old name matches a variable whether either of them
///         has back quotes or not. A new name that begins with a back quote is used as it is,
///         unchecked. Any other new name, even an empty one, is put between back quotes, and back
///         quotes inside it are doubled. If two old names mean one variable, the later one in the
///         map's order wins.
/// @return The text of the expression with the names replaced.
/// @throws std::length_error  As by GetVariableUsagesInPropertyFilterOCExpression.
/// @throws std::bad_alloc  Memory ran out.
/// @throws std::exception  Any other failure, as a type derived from it: the text is no openCypher
///         expression, with the same `what()`, or the text or a name is not well formed, even if
///         the name is not used.
/// @note Thread-safe.
VORN_API WideString ReplaceVariableNamesInPropertyFilterOCExpression(
    const WideString& expression, const std::unordered_map<WideString, WideString>& renames);

}  // namespace vorn
