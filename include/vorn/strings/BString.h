#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <type_traits>

#include "String.h"

/// The owner of one OLE automation string (BSTR).
///
///     BString greeting(String(u"Hello"));
///     greeting.Append(u", world");  // 0
///     greeting == u"Hello, world";  // true
///
///     BString answer;
///     fill(&answer);  // fill takes a BSTR* and stores a new BSTR there
///
/// The object is one BSTR, which may be null. Its length is then 0, but in a comparison null
/// differs from an empty string. The object frees its BSTR with SysFreeString. Where the platform
/// has no OLE automation, only Detach() and String::MakeBSTR() give BSTRs, and Attach() takes them
/// back to free them.
///
/// A length counts wide characters, zeros included. A comparison stops at the first zero on either
/// side and compares UTF-16 code units. `&` gives the address of the BSTR, and std::addressof the
/// address of the object.
///
/// If memory runs out, a constructor leaves the object null.
class BString {
 public:
  /// Null.
  VORN_API BString() noexcept;

  /// A string of `n` characters with no particular content, and a terminating zero behind them.
  /// Null if `n` is negative or too large.
  VORN_API explicit BString(long n) noexcept;

  /// A copy of all characters of `text`. An empty text gives an empty string, not null.
  VORN_API explicit BString(const String& text) noexcept;

  /// The wide form of `text`, read in the multibyte encoding of the current locale (LC_CTYPE). Null
  /// if `text` is null or not well formed in that encoding. Core library.
  /// @param encoding  0. Every other value means the same.
  /// @note No other thread may change the locale (setlocale) during the call.
  VORN_API BString(const char* text, int encoding) noexcept;

  /// Takes the other's string and leaves the other null.
  VORN_API BString(BString&& other) noexcept;

  BString(const BString&) = delete;
  BString& operator=(const BString&) = delete;

  /// Frees the string.
  VORN_API ~BString();

  /// Frees the own string, takes the other's and leaves the other null. Does nothing if both hold
  /// the same string, so an object can be assigned to itself.
  VORN_API BString& operator=(BString&& other) noexcept;

  /// Frees the string and gives the address of the BSTR, which is then null. The object owns a BSTR
  /// that is stored there.
  VORN_API BSTR* operator&() noexcept;

  /// All characters. For null an empty view whose pointer is null. Valid until the object is
  /// changed or destroyed.
  VORN_API operator std::basic_string_view<vorn::WideChar>() const noexcept;

  /// The length in wide characters, 0 for null.
  [[nodiscard]] VORN_API std::uint32_t GetLength() const noexcept;

  /// Whether the length is 0.
  [[nodiscard]] VORN_API bool IsEmpty() const noexcept;

  /// Two nulls are equal. A null and a string are not equal. Two strings are equal if their code
  /// units up to the first zero are the same. The pointers may be null.
  ///
  /// Narrow text is made wide as by the constructor from narrow text. So text that is not well
  /// formed equals null, and the locale must not change during the call.
  VORN_API bool operator==(const BString& right) const noexcept;
  VORN_API bool operator==(vorn::WideChar* right) const noexcept;
  VORN_API bool operator==(const String& right) const noexcept;
  VORN_API bool operator==(const char* right) const noexcept;
  /// Whether the string is null.
  VORN_API bool operator==(std::nullptr_t) const noexcept;

  /// The opposite of `==`.
  VORN_API bool operator!=(const BString& right) const noexcept;
  VORN_API bool operator!=(vorn::WideChar* right) const noexcept;
  VORN_API bool operator!=(const String& right) const noexcept;
  VORN_API bool operator!=(const char* right) const noexcept;
  VORN_API bool operator!=(std::nullptr_t) const noexcept;

  /// Null comes before every string, and nothing comes before null. Narrow text as for `==`.
  VORN_API bool operator<(const BString& right) const noexcept;
  VORN_API bool operator<(vorn::WideChar* right) const noexcept;
  VORN_API bool operator<(char* right) const noexcept;

  // For constant text, such as a literal. The members above take pointers to writable text because
  // the platform's hosts link them by these types. They do not write to it.
  // NOLINTBEGIN(cppcoreguidelines-pro-type-const-cast)
  bool operator==(const vorn::WideChar* right) const noexcept {
    return *this == const_cast<vorn::WideChar*>(right);
  }
  bool operator!=(const vorn::WideChar* right) const noexcept {
    return *this != const_cast<vorn::WideChar*>(right);
  }
  bool operator<(const vorn::WideChar* right) const noexcept {
    return *this < const_cast<vorn::WideChar*>(right);
  }
  bool operator<(const char* right) const noexcept { return *this < const_cast<char*>(right); }
  // NOLINTEND(cppcoreguidelines-pro-type-const-cast)

  /// Appends the first `n` characters at `s`, zeros among them included. `s` may lie in the string
  /// itself.
  /// @return 0 (S_OK) if they are appended. 1 (S_FALSE) if `s` is null or `n` is 0. 0x8007000E
  ///         (E_OUTOFMEMORY) if memory runs out, the whole would be too long, or `n` is negative.
  ///         Unless 0 is returned, the object does not change, and a null one stays null.
  VORN_API std::int32_t Append(const vorn::WideChar* s, int n) noexcept;

  /// Appends all characters of `other`, which may be the object itself. Returns as above, and 1 if
  /// `other` is null or empty.
  VORN_API std::int32_t Append(const BString& other) noexcept;

  /// Appends `s` up to its terminating zero. Returns as above.
  VORN_API std::int32_t Append(const vorn::WideChar* s) noexcept;

  /// Appends all characters of `s`, which stays the caller's. Returns as above.
  VORN_API std::int32_t AppendBSTR(BSTR s) noexcept;

  /// Appends all characters of `other`, or nothing when that fails.
  VORN_API BString& operator+=(const BString& other) noexcept;

  /// Frees the held string and holds `s` from now on. Does nothing if `s` is the held string.
  VORN_API void Attach(BSTR s) noexcept;

  /// Frees the held string, takes the other's and leaves the other null. An object attached to
  /// itself stays as it is.
  VORN_API void Attach(BString& other) noexcept;

  /// Leaves the object null and gives the string to the caller, who then owns it.
  VORN_API BSTR Detach() noexcept;

 private:
  BSTR string;
};

static_assert(std::is_standard_layout_v<BString> && sizeof(BString) == sizeof(BSTR),
              "hosts rely on a BString being one BSTR");
