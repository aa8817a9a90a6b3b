#pragma once

#include <cstdint>

/// The locale queries of the host platform's core library. The stand-in takes LC_CTYPE as it is at
/// the call (that of the calling thread if the thread has one of its own), and on Windows the
/// user's default locale. No thread may change LC_CTYPE meanwhile, as the C library itself demands.
namespace HestraLocale {

// The primary language identifiers of Windows.
constexpr std::uint16_t japanese = 17;
constexpr std::uint16_t korean = 18;
constexpr std::uint16_t chinese = 4;

// Country identifiers of Chinese locales.
constexpr std::uint16_t taiwan = 1;
constexpr std::uint16_t hongKong = 3;

/// The primary language identifier of Windows. On other systems every language that is not named
/// above is 0.
std::uint16_t GetLangID() noexcept;

/// The country identifier of a Chinese locale: 1 for Taiwan, 2 for the mainland, 3 for Hong Kong,
/// 4 for Singapore, 5 for Macao. On other systems every other locale has 0, and so has Chinese
/// without a country.
std::uint16_t GetCountryID() noexcept;

}  // namespace HestraLocale
