#pragma once

#include <cstdint>
#include <string_view>
#include <type_traits>

#include "vorn/vorn.h"

/// @file
/// String, the counted wide string of the host platform. String, BString and StringArray stand in
/// the global namespace, as the platform's hosts expect.
///
/// A wide character (`vorn::WideChar`) is one UTF-16 code unit on every platform. Unless a member
/// says otherwise, lengths count wide characters, a member throws nothing, and any number of
/// threads may read one object while none changes it.

/// A loaded module with string resources, as Windows declares it.
struct HINSTANCE__;  // NOLINT(clang-diagnostic-reserved-identifier)
using HINSTANCE = HINSTANCE__*;

/// An OLE automation string: wide characters with a terminating zero, behind a 32-bit length in
/// bytes. A null BSTR is an empty string.
using BSTR = vorn::WideChar*;

/// A wide string that knows its length and owns its storage.
///
///     String name(u"Ada");
///     name.ConcatImpl(u" Lovelace", 9);
///     name.GetLength();                          // 12
///     name.CompareNoCase(u"ADA LOVELACE") == 0;  // true
///
/// The object is one pointer to the first character of a zero-terminated buffer. The length in
/// bytes stands directly before that character, as an unsigned 32-bit number. The pointer is null
/// only after the move constructor has taken the buffer away. Such an object can be destroyed,
/// assigned to, emptied, converted to a pointer and asked CompareNoCase, and nothing else.
///
/// The platform's core library makes the storage. Members marked "core library" come from there. If
/// there is no such library, they come from the replacement in VornLib.
class String {
 public:
  /// An empty string. Core library.
  /// @throws std::bad_alloc
  VORN_API String();

  /// A copy of `text` up to its terminating zero. Empty if `text` is null. Core library.
  /// @throws std::bad_alloc
  VORN_API explicit String(const vorn::WideChar* text);

  /// Takes the other's buffer and leaves the other with a null pointer.
  VORN_API String(String&& other) noexcept;

  /// Loads the string resource `id` of `module`. Empty if there is none.
  /// @throws std::bad_alloc
  VORN_API String(int id, HINSTANCE module);

  String(const String&) = delete;
  String& operator=(const String&) = delete;

  /// Releases the buffer. Core library.
  VORN_API ~String();

  /// Swaps the two buffers, so the other object releases the one that was held here. An object may
  /// be assigned to itself.
  VORN_API String& operator=(String&& other) noexcept;

  /// The first character of the buffer, which stays the object's own. It is valid until the object
  /// is changed or destroyed.
  VORN_API operator const vorn::WideChar*() const noexcept;

  /// All characters, zeros among them included. Valid as long as the pointer is.
  VORN_API operator std::basic_string_view<vorn::WideChar>() const noexcept;

  /// The character at `i`, which must be from 0 to GetLength() and is not checked. The terminating
  /// zero stands at GetLength().
  [[nodiscard]] VORN_API vorn::WideChar GetAt(int i) const noexcept;

  /// The length in wide characters.
  [[nodiscard]] VORN_API std::uint32_t GetLength() const noexcept;

  /// The length in bytes of the text in the multibyte encoding of the current locale (LC_CTYPE),
  /// up to its first zero. If some of that text cannot be encoded, the length is estimated from
  /// the number of wide characters: two bytes for each in a Japanese, Korean or Chinese locale, one
  /// byte in any other.
  /// @note No other thread may change the locale (setlocale) during the call, as for every function
  ///       of the C library that reads the locale.
  [[nodiscard]] VORN_API std::uint32_t GetByteLength() const noexcept;

  /// GetByteLength(), or twice that in the Chinese locales of Taiwan and Hong Kong (country
  /// identifiers 1 and 3), whether the text can be encoded or not.
  [[nodiscard]] VORN_API std::uint32_t GetEucByteLength() const noexcept;

  /// Whether the length in bytes that stands before the first character is below 2.
  [[nodiscard]] VORN_API bool IsEmpty() const noexcept;

  /// Makes the string empty.
  /// @throws std::bad_alloc
  VORN_API void Empty();

  /// Appends `s`, which must be `n` characters long: `s` is copied up to its terminating zero, and
  /// the length grows by `n`, unchecked. If `n` is 0, nothing is done, and `s` may be null. `s` may
  /// lie in the string itself.
  /// @return The object.
  /// @throws std::bad_alloc  Memory ran out. The string does not change.
  /// @throws std::length_error  The length in bytes would not fit in 32 bits. The string does not
  ///         change.
  VORN_API const String& ConcatImpl(const vorn::WideChar* s, unsigned long n);

  /// Compares up to the first zero on either side. Letters that differ in case only are equal:
  /// each UTF-16 code unit is compared as towlower of the current locale makes it.
  /// @return Below, equal to or above 0 as this string comes before, with or after `s`. 2147483647
  ///         if `s` or the own pointer is null.
  /// @note The locale as for GetByteLength().
  [[nodiscard]] VORN_API int CompareNoCase(const vorn::WideChar* s) const noexcept;

  /// Compares UTF-16 code units up to the first zero on either side. Neither pointer may be null.
  /// @return Below, equal to or above 0 as this string comes before, with or after `s`.
  [[nodiscard]] VORN_API int Compare(const vorn::WideChar* s) const noexcept;

  /// A new BSTR with all characters, which the caller owns. Null if memory runs out. Core library.
  [[nodiscard]] VORN_API BSTR MakeBSTR() const noexcept;

  /// Replaces the text by the string resource `id` of `module`. Core library.
  /// @return Whether there is such a resource. If there is none, the string is empty afterwards. On
  ///         platforms without string resources there is never one.
  /// @throws std::bad_alloc
  VORN_API bool LoadStringW(unsigned int id, HINSTANCE module);

 private:
  /// Makes room for `length` characters and sets the length to `length`. Keeps as much of the
  /// present text as fits, or nothing of it. Core library.
  void CreateStringData(unsigned long length, bool keepContents, unsigned long reserved);

  /// Writes the length, `n` characters, before the first character, which must exist. Changes no
  /// character.
  VORN_API void SetLengthImpl(unsigned long n) noexcept;

  vorn::WideChar* characters;
};

static_assert(std::is_standard_layout_v<String> && sizeof(String) == sizeof(void*),
              "hosts rely on a String being one pointer");
