#pragma once

#include <cstdint>
#include <string_view>
#include <type_traits>

#include "vorn/vorn.h"

/// @file
/// String, the counted wide string of the host platform. Together with BString and StringArray it
/// stands in the global namespace, as the platform's hosts expect.
///
/// A wide character (`vorn::WideChar`) is one UTF-16 code unit on every platform. Unless a member
/// says otherwise, lengths count wide characters, a member throws nothing, and any number of
/// threads may read one object while none changes it.

/// A loaded module with string resources, as Windows declares it.
struct HINSTANCE__;  // NOLINT(bugprone-reserved-identifier,cert-dcl37-c,cert-dcl51-cpp)
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
/// The object is one pointer to the first character of a zero-terminated buffer. Directly before
/// that character stands the length in bytes as an unsigned 32-bit number. The pointer is null only
/// in an object whose buffer the move constructor has taken away; such an object can be destroyed,
/// assigned to, emptied, converted to a pointer and asked CompareNoCase, and nothing else.
///
/// The storage is the business of the platform's core library. Members marked "core library" come
/// from there, or from the replacement that VornLib carries where there is no such library.
class String {
 public:
  /// An empty string. Core library.
  /// @throws std::bad_alloc
  VORN_API String();

  /// A copy of `text` up to its terminating zero; of nothing when `text` is null. Core library.
  /// @throws std::bad_alloc
  VORN_API explicit String(const vorn::WideChar* text);

  /// Takes the other's buffer and leaves the other with a null pointer.
  VORN_API String(String&& other) noexcept;

  /// Loads the string resource `id` of `module`; empty when there is none.
  /// @throws std::bad_alloc
  VORN_API String(int id, HINSTANCE module);

  String(const String&) = delete;
  String& operator=(const String&) = delete;

  /// Releases the buffer. Core library.
  VORN_API ~String();

  /// Swaps the two buffers: the other object releases the one that was held here. Safe on itself.
  VORN_API String& operator=(String&& other) noexcept;

  /// The first character of the buffer, which stays the object's own. It is valid until the object
  /// is changed or destroyed.
  VORN_API operator const vorn::WideChar*() const noexcept;

  /// All characters, zeros among them included. Valid as long as the pointer is.
  VORN_API operator std::basic_string_view<vorn::WideChar>() const noexcept;

  /// The character at `i`, which must be from 0 to GetLength(): nothing checks it. At GetLength()
  /// stands the terminating zero.
  [[nodiscard]] VORN_API vorn::WideChar GetAt(int i) const noexcept;

  /// The length in wide characters.
  [[nodiscard]] VORN_API std::uint32_t GetLength() const noexcept;

  /// The length in bytes of the text in the multibyte encoding of the current locale (LC_CTYPE),
  /// up to its first zero. When some of that text cannot be encoded, an estimate from the length in
  /// wide characters: two bytes for each in a Japanese, Korean or Chinese locale, one in any other.
  /// @note As for every function of the C library that reads the locale, no other thread may
  ///       change it (setlocale) meanwhile.
  [[nodiscard]] VORN_API std::uint32_t GetByteLength() const noexcept;

  /// As GetByteLength(), and twice that in the Chinese locales of Taiwan and Hong Kong (country
  /// identifiers 1 and 3), whether the text could be encoded or not.
  [[nodiscard]] VORN_API std::uint32_t GetEucByteLength() const noexcept;

  /// Whether the length in bytes that stands before the first character is below 2.
  [[nodiscard]] VORN_API bool IsEmpty() const noexcept;

  /// Makes the string empty.
  /// @throws std::bad_alloc
  VORN_API void Empty();

  /// Appends `s`, which must be `n` characters long: it is copied up to its terminating zero, and
  /// the length grows by `n`, unchecked. When `n` is 0 nothing is done and `s` may be null. `s` may
  /// lie in the string itself.
  /// @return The object.
  /// @throws std::bad_alloc, or std::length_error when the length in bytes would not fit in 32
  /// bits;
  ///         the string is then as it was.
  VORN_API const String& ConcatImpl(const vorn::WideChar* s, unsigned long n);

  /// Compares up to the first zero on either side, letters that differ in case only being equal
  /// (as towlower of the current locale tells, one UTF-16 code unit at a time).
  /// @return Below, equal to or above 0 as this string comes before, with or after `s`; 2147483647
  ///         when `s` or the own pointer is null.
  /// @note The locale as for GetByteLength().
  [[nodiscard]] VORN_API int CompareNoCase(const vorn::WideChar* s) const noexcept;

  /// Compares UTF-16 code units up to the first zero on either side. Neither pointer may be null.
  /// @return Below, equal to or above 0 as this string comes before, with or after `s`.
  [[nodiscard]] VORN_API int Compare(const vorn::WideChar* s) const noexcept;

  /// A new BSTR with all characters, which the caller owns; null when memory runs out. Core
  /// library.
  [[nodiscard]] VORN_API BSTR MakeBSTR() const noexcept;

  /// Replaces the text by the string resource `id` of `module`. Core library.
  /// @return Whether there is one. When there is none, and always where the platform has no string
  ///         resources, the string is empty afterwards.
  /// @throws std::bad_alloc
  VORN_API bool LoadStringW(unsigned int id, HINSTANCE module);

 private:
  /// Makes room for `length` characters, sets the length to it and keeps what fits of the present
  /// text, or nothing of it. Core library.
  void CreateStringData(unsigned long length, bool keepContents, unsigned long reserved);

  /// Writes the length in characters `n` before the first character, which must be there, and
  /// touches no character.
  VORN_API void SetLengthImpl(unsigned long n) noexcept;

  vorn::WideChar* characters;
};

static_assert(std::is_standard_layout_v<String> && sizeof(String) == sizeof(void*),
              "hosts rely on a String being one pointer");
