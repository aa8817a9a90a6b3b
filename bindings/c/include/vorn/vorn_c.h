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
 * A property filter is one openCypher expression, such as the condition behind a `WHERE`.
 *
 * Each question exists for UTF-8 and for UTF-16. It gives an answer. The host reads the parts of
 * the answer and then releases it:
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
 * **Only the syntax is checked.** The library does not know whether a label, a property or a
 * function exists.
 *
 * **Text behind a filter may be dropped.** The filter `n.a = 1 RETURN n` is read as `n.a = 1`. A
 * host may store or run the text that vorn_renamed_utf8() gives. A host that stores or runs the
 * text it was given should refuse a text whose length is not vorn_expression_end().
 *
 * **Text** is given by a pointer to its first unit and its length in units. A unit is a byte of
 * UTF-8, or a code unit of UTF-16 in the byte order of the machine. The text needs no zero at its
 * end and may hold zeros. The library only reads the text, and only during the call. A null pointer
 * with a length of zero is an empty text. A null pointer with another length is an error of kind
 * VORN_BAD_ARGUMENT. A byte order mark at the start is skipped and is not part of any answer, but
 * counts in every offset.
 *
 * **Strings of an answer** are in the encoding of the question. They belong to the answer and are
 * valid until the answer is released. A zero, which the length does not count, follows each string.
 * The accessor for the other encoding gives a null pointer and a length of zero. Each accessor
 * stores the length, in units, where its last argument points to. This argument may be a null
 * pointer.
 *
 * **Indices** count from 0. For an index that is too large, an accessor gives a null pointer, zero
 * or VORN_UNKNOWN. It does the same for an answer of another kind: neither the usages of a filter
 * nor an error, for example, have columns.
 *
 * **Errors are values**: no C++ exception leaves a function, and none ends the process. Only the
 * questions can fail, and their answers then tell the error. All other functions but vorn_release()
 * need an answer and must not be given a null pointer.
 *
 * **Threads**: any number of threads may ask questions at the same time, and may read the same
 * answer at the same time. Any thread may release an answer, but only while no other thread reads
 * it. No answer depends on an earlier call, and nothing has to be set up or shut down.
 *
 * **Stack and time**: a text that nests too deeply for the calling thread's stack is refused, and
 * so is a filter that is not valid and takes too much work. A host that reads untrusted input
 * should bound its length.
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

/** Why a question failed. The numbers are part of the contract. */
enum vorn_error {
  /** The question did not fail. */
  VORN_NO_ERROR = 0,
  /** The text is no openCypher query, or does not begin with an openCypher expression. */
  VORN_SYNTAX = 1,
  /**
   * The filter holds a forbidden element: a list comprehension, a pattern comprehension, a
   * quantifier, a pattern predicate or an existential subquery.
   */
  VORN_FORBIDDEN = 2,
  /** The text nests too deeply for the stack that the calling thread has left. */
  VORN_TOO_DEEP = 3,
  /** The text or a name is not well-formed UTF-8 or UTF-16. */
  VORN_NOT_WELL_FORMED = 4,
  /** Memory, or another resource of the system, ran out. */
  VORN_OUT_OF_MEMORY = 5,
  /**
   * A filter that is not valid takes too much work, the text or a name has more than 1 GiB in
   * UTF-8, or there are more than 2^30 new names. A length beyond these limits is refused without
   * reading the text.
   */
  VORN_TOO_LARGE = 6,
  /** A pointer is null and its length, or the count of what it points to, is not zero. */
  VORN_BAD_ARGUMENT = 7
};

/** What a result column holds. The numbers are part of the contract. Others may be added. */
enum vorn_type {
  /**
   * Anything but a bare variable of a known kind: a computed expression, a property, a literal, a
   * parameter, a variable from `UNWIND` or `YIELD`, or a column whose kinds conflict in a `UNION`.
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

/** The answer to one question: columns, variables, a text or an error. */
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

/* The questions. They never return a null pointer: if memory runs out, the answer is an error that
   says so. Each answer belongs to the caller, who releases it by vorn_release(). */

/**
 * Finds the columns that an openCypher query returns.
 *
 * The columns are those of the last `RETURN` or `WITH` in the text, even if that one stands in a
 * subquery. A query with neither of them has no columns: a lone `CREATE`, for example, or a `CALL`
 * that is the whole query, with or without `YIELD`.
 *
 * The name of a column is its alias or else the text of its expression. Both lose their back
 * quotes, even those inside a string literal. A doubled back quote inside a quoted name becomes a
 * single one.
 *
 * `RETURN *` gives a column for each variable in scope, ordered by the bytes of the names in UTF-8.
 * Two sorts of variables are left out: those from the `YIELD` of a `CALL`, and those of unknown
 * type that a `WITH` names without an `AS`.
 *
 * The names and the number of the columns of a `UNION` are those of its last branch. The types of
 * the earlier branches are merged in by position.
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
 * The expression must begin with the first character of the text. Text behind a complete
 * expression is dropped, unless it looks like a continuation. vorn_expression_end() tells where the
 * expression ends.
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
 * Every occurrence of a variable is renamed, even inside the elements that vorn_usages_utf8()
 * refuses. White space and comments behind the expression are left out. Other text there is dropped
 * or refused as by vorn_usages_utf8().
 *
 * An old name matches a variable whether either of them has back quotes or not. A new name that
 * begins with a back quote is used as it is, unchecked. Any other new name is put between back
 * quotes, and back quotes inside it are doubled. If two old names mean one variable, the later one
 * in the array wins.
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
 * @param answer  The answer of a question. A null pointer is ignored. An answer must not be
 * released twice: a debug build of this library then ends the process with a message, and other
 *         builds have undefined behaviour.
 */
VORN_C_API void vorn_release(vorn_answer* answer);

/* Errors. */

/** Whether there is an error, and of which kind: one of enum vorn_error. */
VORN_C_API int32_t vorn_error_kind(const vorn_answer* answer);

/**
 * The line of an error of kind VORN_SYNTAX, counted from 1. Lines end at a line feed. The line is 0
 * for every other kind. It is also 0 if a query that is not valid nests too deeply, or takes too
 * much work, for the place of the error to be found.
 */
VORN_C_API size_t vorn_error_line(const vorn_answer* answer);
/** The place in that line, in code points, counted from 0. A byte order mark is not counted. */
VORN_C_API size_t vorn_error_column(const vorn_answer* answer);
/**
 * The same place in the text as it was given, in units of its encoding: bytes or code units. A byte
 * order mark is counted. If the text ends too early, the offset is the length of the text.
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

/* Usages. Variables, the written forms of a variable and labels are in ascending order. Accesses
   are in ascending order of property paths, then of labels. Names compare by their code units in
   UTF-16, whatever the encoding of the question. */

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
 * In how many distinct ways the filter uses the variable. Each way, called an access, is a property
 * path with the labels that are tested behind it. A bare variable, as in `n` or `n[0]`, has neither
 * path nor labels.
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
 * Where the expression of a filter ends in the text as it was given, in units of its encoding. This
 * is the length of the text if only white space and comments stand behind the expression. Otherwise
 * it is the end of the expression's last token, and the text behind it was dropped.
 */
VORN_C_API size_t vorn_expression_end(const vorn_answer* answer);

/**
 * The version of the library that is loaded, such as "1.0.0", in ASCII. The string is valid as long
 * as the library is loaded.
 */
VORN_C_API const char* vorn_version(void);

/** @cond */
#ifdef __cplusplus
}
#endif
/** @endcond */
/* NOLINTEND(modernize-deprecated-headers,modernize-use-using) */

#endif
