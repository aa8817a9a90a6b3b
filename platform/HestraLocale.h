#pragma once

#include <cstdint>

/// The locale queries of the host platform's core library. The replacement takes LC_CTYPE as it is
/// at the call (that of the calling thread when it has one of its own), and on Windows the user's
/// default locale. No thread may change LC_CTYPE meanwhile, as the C library itself demands.
namespace HestraLocale {

/// The primary language identifier as Windows has it: Japanese 17, Korean 18, Chinese 4. Off
/// Windows every other language is 0.
std::uint16_t GetLangID() noexcept;

/// The country identifier of a Chinese locale: Taiwan 1, mainland 2, Hong Kong 3, Singapore 4,
/// Macao
/// 5. Off Windows every other locale has 0, and so has Chinese without a country.
std::uint16_t GetCountryID() noexcept;

}  // namespace HestraLocale
