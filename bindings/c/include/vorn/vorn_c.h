#ifndef VORN_VORN_C_H
#define VORN_VORN_C_H

/* NOLINTBEGIN(modernize-deprecated-headers,modernize-use-using): this is C. */
#include <stddef.h>
#include <stdint.h>

/**
 * @file
 * VornLib for every language: its three questions about openCypher text as functions of C99.
 *
 * - Which columns does a query return, and what does each hold? (vorn_columns_utf8)
 * - Which variables does a property filter use, and what does it read from each?
 *   (vorn_usages_utf8)
 * - What does a property filter read like after some of its variables are renamed?
 *   (vorn_rename_utf8)
 *
 * Each exists for UTF-8 and for UTF-16. A question gives an answer, which is asked for its parts
 * and then released:
 *
 *     const char *query = "MATCH (n) RETURN n, n.age AS age";
 *     vorn_answer *answer = vorn_columns_utf8(query, strlen(query));
 *     if (vorn_error_kind(answer) == VORN_NO_ERROR) {
 *       for (size_t i = 0; i != vorn_column_count(answer); ++i) {
 *         printf("%s: %d\n", vorn_column_name_utf8(answer, i, NULL),
 *                (int)vorn_column_type(answer, i));
 *       }
 *     } else {
 *       fprintf(stderr, "%s\n", vorn_error_message_utf8(answer, NULL));
 *     }
 *     vorn_release(answer);
 *
 * **What an answer is not.** Only the syntax is checked. Whether a label, a property or a function
 * exists is not known here. A filter is read as far as it is an expression; what stands behind a
 * complete one may be dropped. A host that stores or runs the text it was given, and not the text
 * of the answer, should refuse it unless vorn_expression_end() is its length.
 *
 * **Text** is given by its first unit and its length in units: bytes of UTF-8, code units of
 * UTF-16 in the byte order of the machine. It needs no zero at its end and may hold zeros. It is
 * only read, and not needed any more when the function returns. A null pointer with a length of
 * zero is an empty text; with another length it is an error of kind VORN_BAD_ARGUMENT. A byte order
 * mark at the start is skipped and is not part of any answer, but counts in every offset.
 *
 * **Strings of an answer** are in the encoding of the question, and belong to the answer: they are
 * valid until it is released. A zero follows each, which its length does not count. The accessor
 * for the other encoding gives a null pointer and a length of zero. Each of these functions stores
 * the length, in units, where its last argument points to; that may be a null pointer.
 *
 * **Indices** count from 0. One beyond the count, and a question that does not fit the answer, such
 * as for the columns of a filter or of an error, gives a null pointer, zero or VORN_UNKNOWN.
 *
 * **Errors are values**: no C++ exception leaves a function, and none ends the process. The
 * questions may fail, and their answers then tell of it; the other functions cannot fail. To all
 * but vorn_release() an answer must be given, not a null pointer.
 *
 * **Threads**: any number of threads may ask at the same time, and read one answer at the same
 * time. An answer may be released on another thread than it was given to, but only while nobody
 * reads it. Nothing is kept between calls, and nothing has to be set up or shut down.
 *
 * **Stack and time**: a text that nests too deeply for the calling thread's stack is refused, and
 * so is a wrong filter that takes too much work. Bound the length of text that you did not write.
 */

/** @cond */
#if defined(_WIN32)
#if defined(vorn_c_EXPORTS)
#define VORN_C_API __declspec(dllexport)
#else
#define VORN_C_API __declspec(dllimport)
#endif
#else
#define VORN_C_API __attribute__((visibility("default")))
#endif

#ifdef __cplusplus
extern "C" {
#endif
/** @endcond */

/** Why a question has no answer. The numbers are part of the contract. */
enum vorn_error {
  /** There is an answer. */
  VORN_NO_ERROR = 0,
  /** The text is no openCypher query, or does not begin with an openCypher expression. */
  VORN_SYNTAX = 1,
  /**
   * The filter holds an element that has no place in one: a list comprehension, a pattern
   * comprehension, a quantifier, a pattern predicate or an existential subquery.
   */
  VORN_FORBIDDEN = 2,
  /** The text nests too deeply for the stack that the calling thread has left. */
  VORN_TOO_DEEP = 3,
  /** The text or a name is no well-formed UTF-8 or UTF-16. */
  VORN_NOT_WELL_FORMED = 4,
  /** Memory, or another resource of the system, ran out. */
  VORN_OUT_OF_MEMORY = 5,
  /**
   * A wrong filter takes more work than is done for one, the text or a name has more than 1 GiB in
   * UTF-8, or there are more than 2^30 new names. A length beyond that is refused unread.
   */
  VORN_TOO_LARGE = 6,
  /** A pointer is null and its length, or the count of what it points to, is not zero. */
  VORN_BAD_ARGUMENT = 7
};

/** What a result column holds. The numbers are part of the contract; others may be added. */
enum vorn_type {
  /**
   * Anything but a bare variable of a known kind: a computed expression, a property, a literal, a
   * parameter, a variable bound by `UNWIND`, or kinds that conflict in a `UNION`.
   */
  VORN_UNKNOWN = 0,
  /** A variable bound in a node pattern: `n` of `MATCH (n)`. */
  VORN_NODE = 4,
  /** A variable bound in a relationship pattern: `r` of `()-[r]->()`. */
  VORN_RELATIONSHIP = 5,
  /** A path variable: `p` of `MATCH p = ()-->()`. */
  VORN_PATH = 6,
  /** A node in one branch of a `UNION` and a relationship in another. */
  VORN_NODE_OR_RELATIONSHIP = 9
};

/** The answer to one question: what was asked for, or an error. */
typedef struct vorn_answer vorn_answer;

/** A new name for a variable, in UTF-8. A null pointer with a length of zero is an empty name. */
typedef struct vorn_rename_pair_utf8 {
  const char* from;   /**< The name of the variable, with or without back quotes. */
  size_t from_length; /**< In bytes. */
  const char* to;     /**< The new name. */
  size_t to_length;   /**< In bytes. */
} vorn_rename_pair_utf8;

/** A new name for a variable, in UTF-16. A null pointer with a length of zero is an empty name. */
typedef struct vorn_rename_pair_utf16 {
  const uint16_t* from; /**< The name of the variable, with or without back quotes. */
  size_t from_length;   /**< In code units. */
  const uint16_t* to;   /**< The new name. */
  size_t to_length;     /**< In code units. */
} vorn_rename_pair_utf16;

/* The questions. None returns a null pointer: where there is no memory for an answer, there is one
   that says so. Each answer is the caller's, who releases it by vorn_release(). */

/**
 * Finds the columns that an openCypher query returns.
 *
 * A column is named by its alias or else by the text of its expression. In both cases back quotes
 * are taken out, wherever they stand. A query without a projection, such as a lone `CREATE`, has no
 * columns. Of a `UNION`, names and number are those of the last branch; the types of the earlier
 * ones are merged in by position.
 *
 * @param query  The whole text of one query, in UTF-8.
 * @param length  Its length in bytes.
 * @return Columns, or an error of any kind but VORN_FORBIDDEN. To be released.
 */
VORN_C_API vorn_answer* vorn_columns_utf8(const char* query, size_t length);
/**
 * The same for UTF-16.
 *
 * @param query  The whole text of one query, in UTF-16.
 * @param length  Its length in code units.
 * @return As by vorn_columns_utf8(). To be released.
 */
VORN_C_API vorn_answer* vorn_columns_utf16(const uint16_t* query, size_t length);

/**
 * Finds the variables that a property filter, which is one openCypher expression, uses.
 *
 * The expression must begin with the first character of the text. What stands behind a complete
 * one is dropped if it cannot continue it; vorn_expression_end() tells.
 *
 * @param expression  The text of the filter, in UTF-8.
 * @param length  Its length in bytes.
 * @return Variables, or an error of any kind. To be released.
 */
VORN_C_API vorn_answer* vorn_usages_utf8(const char* expression, size_t length);
/**
 * The same for UTF-16.
 *
 * @param expression  The text of the filter, in UTF-16.
 * @param length  Its length in code units.
 * @return As by vorn_usages_utf8(). To be released.
 */
VORN_C_API vorn_answer* vorn_usages_utf16(const uint16_t* expression, size_t length);

/**
 * Renames variables in a property filter and leaves every other character as it is written.
 *
 * Every occurrence is renamed, also inside the elements that vorn_usages_utf8() refuses. White
 * space and comments behind the expression are left out; other text there is treated as by
 * vorn_usages_utf8(). Back quotes make no difference, neither around an old
 * name nor around a variable in the text. A new name that begins with a back quote is used as it
 * is, unchecked; any other one is put between back quotes, those inside it doubled. If two old
 * names mean one variable, the later one in the array wins.
 *
 * @param expression  The text of the filter, in UTF-8.
 * @param length  Its length in bytes.
 * @param renames  The new names. Only read; a null pointer with a count of zero stands for none.
 * @param count  How many new names these are.
 * @return A text, or an error of any kind but VORN_FORBIDDEN. A name that is not well formed is an
 *         error even if it is not used. To be released.
 */
VORN_C_API vorn_answer* vorn_rename_utf8(const char* expression, size_t length,
                                         const vorn_rename_pair_utf8* renames, size_t count);
/**
 * The same for UTF-16.
 *
 * @param expression  The text of the filter, in UTF-16.
 * @param length  Its length in code units.
 * @param renames  The new names. Only read; a null pointer with a count of zero stands for none.
 * @param count  How many new names these are.
 * @return As by vorn_rename_utf8(). To be released.
 */
VORN_C_API vorn_answer* vorn_rename_utf16(const uint16_t* expression, size_t length,
                                          const vorn_rename_pair_utf16* renames, size_t count);

/**
 * Releases an answer and all its strings.
 *
 * @param answer  What a question returned; a null pointer is ignored. To release an answer twice is
 *         an error of the host's: in a debug build of this library it ends the process with a
 *         message, in others it does what it likes.
 */
VORN_C_API void vorn_release(vorn_answer* answer);

/* Errors. */

/** Whether there is an error, and of which kind: one of enum vorn_error. */
VORN_C_API int32_t vorn_error_kind(const vorn_answer* answer);

/**
 * The line of an error of kind VORN_SYNTAX, counted from 1. Lines end at a line feed. It is 0 for
 * every other kind, and where a query is wrong but nests too deeply or takes too much work to be
 * searched for the place.
 */
VORN_C_API size_t vorn_error_line(const vorn_answer* answer);
/** The place in that line, in code points, counted from 0. A byte order mark is not counted. */
VORN_C_API size_t vorn_error_column(const vorn_answer* answer);
/**
 * The same place in the text as it was given, in units of its encoding: bytes or code units. A byte
 * order mark is counted. It is the length of the text where an end was not expected.
 */
VORN_C_API size_t vorn_error_offset(const vorn_answer* answer);

/** What is wrong, in English and without the place. Empty if there is no error. */
VORN_C_API const char* vorn_error_message_utf8(const vorn_answer* answer, size_t* length);
/** The same of a question in UTF-16. */
VORN_C_API const uint16_t* vorn_error_message_utf16(const vorn_answer* answer, size_t* length);

/**
 * The type of the first element that the filter must not hold: OC_ListComprehension,
 * OC_PatternComprehension, OC_Quantifier, OC_PatternPredicate or OC_ExistentialSubquery. Empty if
 * the kind is not VORN_FORBIDDEN.
 */
VORN_C_API const char* vorn_error_element_utf8(const vorn_answer* answer, size_t* length);
/** The same of a question in UTF-16. */
VORN_C_API const uint16_t* vorn_error_element_utf16(const vorn_answer* answer, size_t* length);

/* Columns, in the order of the query. */

/** How many columns the query returns. */
VORN_C_API size_t vorn_column_count(const vorn_answer* answer);

/** The name of a column, without back quotes. */
VORN_C_API const char* vorn_column_name_utf8(const vorn_answer* answer, size_t column,
                                             size_t* length);
/** The same of a question in UTF-16. */
VORN_C_API const uint16_t* vorn_column_name_utf16(const vorn_answer* answer, size_t column,
                                                  size_t* length);

/** What a column holds: one of enum vorn_type. */
VORN_C_API int32_t vorn_column_type(const vorn_answer* answer, size_t column);

/* Usages. Variables stand in ascending order of their names, and so do the forms in which one is
   written, and labels; accesses in ascending order of property paths, then of labels. Names compare
   by their code units in UTF-16, whatever the question's encoding. */

/** How many variables the filter uses. */
VORN_C_API size_t vorn_variable_count(const vorn_answer* answer);

/** The name of a variable, between back quotes. */
VORN_C_API const char* vorn_variable_name_utf8(const vorn_answer* answer, size_t variable,
                                               size_t* length);
/** The same of a question in UTF-16. */
VORN_C_API const uint16_t* vorn_variable_name_utf16(const vorn_answer* answer, size_t variable,
                                                    size_t* length);

/** In how many forms the text writes the variable's name. */
VORN_C_API size_t vorn_written_form_count(const vorn_answer* answer, size_t variable);

/** One of these forms, as the text has it: with or without back quotes. */
VORN_C_API const char* vorn_written_form_utf8(const vorn_answer* answer, size_t variable,
                                              size_t form, size_t* length);
/** The same of a question in UTF-16. */
VORN_C_API const uint16_t* vorn_written_form_utf16(const vorn_answer* answer, size_t variable,
                                                   size_t form, size_t* length);

/**
 * In how many distinct ways the filter uses the variable. Each is a property path with the labels
 * that are tested behind it. A bare use, a subscript included, has neither.
 */
VORN_C_API size_t vorn_access_count(const vorn_answer* answer, size_t variable);

/** How many property keys the path of an access has: 2 for `n.address.city`. */
VORN_C_API size_t vorn_property_count(const vorn_answer* answer, size_t variable, size_t access);

/** One of the keys, in the order of the path, between back quotes. */
VORN_C_API const char* vorn_property_utf8(const vorn_answer* answer, size_t variable, size_t access,
                                          size_t property, size_t* length);
/** The same of a question in UTF-16. */
VORN_C_API const uint16_t* vorn_property_utf16(const vorn_answer* answer, size_t variable,
                                               size_t access, size_t property, size_t* length);

/** How many labels are tested behind the path of an access: 1 for `n:Person`. */
VORN_C_API size_t vorn_label_count(const vorn_answer* answer, size_t variable, size_t access);

/** One of the labels, between back quotes. */
VORN_C_API const char* vorn_label_utf8(const vorn_answer* answer, size_t variable, size_t access,
                                       size_t label, size_t* length);
/** The same of a question in UTF-16. */
VORN_C_API const uint16_t* vorn_label_utf16(const vorn_answer* answer, size_t variable,
                                            size_t access, size_t label, size_t* length);

/* Renaming. */

/** The filter with the new names. */
VORN_C_API const char* vorn_renamed_utf8(const vorn_answer* answer, size_t* length);
/** The same of a question in UTF-16. */
VORN_C_API const uint16_t* vorn_renamed_utf16(const vorn_answer* answer, size_t* length);

/**
 * Of usages and renaming: where the expression ends in the text as it was given, in units of its
 * encoding. It is the length of the text if nothing but white space and comments stands behind the
 * expression. Otherwise it is where the last token of the expression ends, and what follows was
 * dropped.
 */
VORN_C_API size_t vorn_expression_end(const vorn_answer* answer);

/** The version of the library that is loaded, such as "1.0.0", in ASCII. Valid for ever. */
VORN_C_API const char* vorn_version(void);

/** @cond */
#ifdef __cplusplus
}
#endif
/** @endcond */
/* NOLINTEND(modernize-deprecated-headers,modernize-use-using) */

#endif
