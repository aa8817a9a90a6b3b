#include "vorn/strings/BString.h"

#include <algorithm>
#include <utility>

#include "platform/WideCharacters.h"
#include "strings/OleStrings.h"

namespace platform = vorn::platform;

namespace {

constexpr std::int32_t sOk = 0;
constexpr std::int32_t sFalse = 1;
constexpr auto eOutOfMemory = static_cast<std::int32_t>(0x8007000E);

bool equal(const vorn::WideChar* left, const vorn::WideChar* right) {
  if (left == nullptr || right == nullptr) {
    return left == right;
  }
  return platform::wcscmp(left, right) == 0;
}

bool less(const vorn::WideChar* left, const vorn::WideChar* right) {
  if (left == nullptr || right == nullptr) {
    return left == nullptr && right != nullptr;
  }
  return platform::wcscmp(left, right) < 0;
}

void release(BSTR string) {
  if (string != nullptr) {
    platform::SysFreeString(string);
  }
}

}  // namespace

BString::BString() noexcept : string(nullptr) {}

// A negative length becomes a far too large one, for which the allocation fails.
BString::BString(long n) noexcept
    : string(platform::SysAllocStringLen(nullptr, static_cast<std::size_t>(n))) {}

BString::BString(const String& text) noexcept : string(text.MakeBSTR()) {}

BString::BString(BString&& other) noexcept : string(other.Detach()) {}

BString::~BString() { release(string); }

BString& BString::operator=(BString&& other) noexcept {
  if (string != other.string) {
    release(string);
    string = other.Detach();
  }
  return *this;
}

BSTR* BString::operator&() noexcept {
  release(Detach());
  return &string;
}

BString::operator std::basic_string_view<vorn::WideChar>() const noexcept {
  return {string, GetLength()};
}

std::uint32_t BString::GetLength() const noexcept { return platform::SysStringLen(string); }

bool BString::IsEmpty() const noexcept { return GetLength() == 0; }

bool BString::operator==(const BString& right) const noexcept {
  return equal(string, right.string);
}

bool BString::operator==(vorn::WideChar* right) const noexcept { return equal(string, right); }

bool BString::operator==(const String& right) const noexcept { return equal(string, right); }

bool BString::operator==(const char* right) const noexcept { return *this == BString(right, 0); }

bool BString::operator==(std::nullptr_t) const noexcept { return string == nullptr; }

bool BString::operator!=(const BString& right) const noexcept { return !(*this == right); }

bool BString::operator!=(vorn::WideChar* right) const noexcept { return !(*this == right); }

bool BString::operator!=(const String& right) const noexcept { return !(*this == right); }

bool BString::operator!=(const char* right) const noexcept { return !(*this == right); }

bool BString::operator!=(std::nullptr_t) const noexcept { return !(*this == nullptr); }

bool BString::operator<(const BString& right) const noexcept { return less(string, right.string); }

bool BString::operator<(vorn::WideChar* right) const noexcept { return less(string, right); }

bool BString::operator<(char* right) const noexcept { return *this < BString(right, 0); }

std::int32_t BString::Append(const vorn::WideChar* s, int n) noexcept {
  if (s == nullptr || n == 0) {
    return sFalse;
  }
  if (n < 0) {
    return eOutOfMemory;
  }
  const std::size_t own = GetLength();
  const auto added = static_cast<std::size_t>(n);
  BSTR joined = platform::SysAllocStringLen(nullptr, own + added);
  if (joined == nullptr) {
    return eOutOfMemory;
  }
  std::copy_n(string, own, joined);
  std::copy_n(s, added, joined + own);
  joined[own + added] = 0;
  Attach(joined);
  return sOk;
}

std::int32_t BString::Append(const BString& other) noexcept { return AppendBSTR(other.string); }

std::int32_t BString::Append(const vorn::WideChar* s) noexcept {
  return Append(s, platform::lstrlenW(s));
}

std::int32_t BString::AppendBSTR(BSTR s) noexcept {
  return Append(s, static_cast<int>(platform::SysStringLen(s)));
}

BString& BString::operator+=(const BString& other) noexcept {
  AppendBSTR(other.string);
  return *this;
}

void BString::Attach(BSTR s) noexcept {
  if (s != string) {
    release(string);
    string = s;
  }
}

void BString::Attach(BString& other) noexcept {
  // `other` gives up its string before anything is freed. So attaching an object to itself is safe.
  Attach(other.Detach());
}

BSTR BString::Detach() noexcept { return std::exchange(string, nullptr); }
