#include "vorn/strings/String.h"

#include <cstring>
#include <functional>
#include <limits>
#include <string>
#include <utility>

#include "platform/WideCharacters.h"
#include "strings/HestraLocale.h"

namespace {

using Header = std::uint32_t;

Header byteLengthBefore(const vorn::WideChar* characters) {
  Header bytes = 0;
  std::memcpy(&bytes, reinterpret_cast<const char*>(characters) - sizeof bytes, sizeof bytes);
  return bytes;
}

bool writesTwoBytesPerCharacter(std::uint16_t language) {
  return language == HestraLocale::japanese || language == HestraLocale::korean ||
         language == HestraLocale::chinese;
}

bool lengthDoublesInEuc() {
  if (HestraLocale::GetLangID() != HestraLocale::chinese) {
    return false;
  }
  const std::uint16_t country = HestraLocale::GetCountryID();
  return country == HestraLocale::hongKong || country == HestraLocale::taiwan;
}

// Saturates: a sum that does not fit is then refused as too long, not taken for a small one.
unsigned long sum(unsigned long a, unsigned long b) {
  constexpr auto most = std::numeric_limits<unsigned long>::max();
  return b > most - a ? most : a + b;
}

}  // namespace

String::String(String&& other) noexcept : characters(std::exchange(other.characters, nullptr)) {}

String::String(int id, HINSTANCE module) : characters(nullptr) {
  LoadStringW(static_cast<unsigned int>(id), module);
}

String& String::operator=(String&& other) noexcept {
  std::swap(characters, other.characters);
  return *this;
}

String::operator const vorn::WideChar*() const noexcept { return characters; }

String::operator std::basic_string_view<vorn::WideChar>() const noexcept {
  return {characters, GetLength()};
}

vorn::WideChar String::GetAt(int i) const noexcept { return characters[i]; }

std::uint32_t String::GetLength() const noexcept {
  return byteLengthBefore(characters) / sizeof(vorn::WideChar);
}

std::uint32_t String::GetByteLength() const noexcept {
  constexpr auto cannotBeEncoded = std::numeric_limits<std::uint32_t>::max();
  const auto bytes = static_cast<std::uint32_t>(vorn::platform::multibyteLength(characters));
  if (bytes != cannotBeEncoded) {
    return bytes;
  }
  const std::uint32_t length = GetLength();
  return writesTwoBytesPerCharacter(HestraLocale::GetLangID()) ? 2 * length : length;
}

std::uint32_t String::GetEucByteLength() const noexcept {
  const std::uint32_t bytes = GetByteLength();
  return lengthDoublesInEuc() ? 2 * bytes : bytes;
}

bool String::IsEmpty() const noexcept {
  return byteLengthBefore(characters) < sizeof(vorn::WideChar);
}

void String::Empty() { CreateStringData(0, false, 0); }

const String& String::ConcatImpl(const vorn::WideChar* s, unsigned long n) {
  if (n == 0) {
    return *this;
  }
  const std::uint32_t old = GetLength();
  // `s` may point into this string, whose characters are about to move.
  vorn::WideString copy;
  if (std::less_equal<>()(characters, s) && std::less_equal<>()(s, characters + old)) {
    copy = s;
    s = copy.c_str();
  }
  const unsigned long length = sum(old, n);
  CreateStringData(length, true, 0);
  vorn::platform::wcscpy(characters + old, s);
  SetLengthImpl(length);
  return *this;
}

int String::CompareNoCase(const vorn::WideChar* s) const noexcept {
  if (characters == nullptr || s == nullptr) {
    return std::numeric_limits<std::int32_t>::max();
  }
  return vorn::platform::wcsicmp(characters, s);
}

int String::Compare(const vorn::WideChar* s) const noexcept {
  return vorn::platform::wcscmp(characters, s);
}

void String::SetLengthImpl(unsigned long n) noexcept {
  const auto bytes = static_cast<Header>(n * sizeof(vorn::WideChar));
  std::memcpy(reinterpret_cast<char*>(characters) - sizeof bytes, &bytes, sizeof bytes);
}
