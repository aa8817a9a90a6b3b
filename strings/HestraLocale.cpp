#include "strings/HestraLocale.h"

#if defined(_WIN32)
#include <windows.h>
#else
#include <langinfo.h>

#include <algorithm>
#include <array>
#include <clocale>
#include <string_view>
#endif

namespace HestraLocale {

#if defined(_WIN32)

std::uint16_t GetLangID() noexcept { return PRIMARYLANGID(GetUserDefaultLangID()); }

// The sublanguages of Chinese on Windows are the country identifiers, by the same numbers.
std::uint16_t GetCountryID() noexcept { return SUBLANGID(GetUserDefaultLangID()); }

#else

namespace {

struct Identifier {
  std::string_view name;
  std::uint16_t value;
};

// The long names are aliases of the C library.
constexpr std::array languages{Identifier{"ja", japanese}, Identifier{"japanese", japanese},
                               Identifier{"ko", korean}, Identifier{"korean", korean},
                               Identifier{"zh", chinese}};

constexpr std::array chineseCountries{Identifier{"TW", taiwan}, Identifier{"CN", 2},
                                      Identifier{"HK", hongKong}, Identifier{"SG", 4},
                                      Identifier{"MO", 5}};

template <typename Identifiers>
std::uint16_t find(const Identifiers& identifiers, std::string_view name) {
  const auto* found = std::find_if(identifiers.begin(), identifiers.end(),
                                   [&](const Identifier& each) { return each.name == name; });
  return found == identifiers.end() ? std::uint16_t{0} : found->value;
}

// The name of a locale is language[_country][.encoding][@variant].
std::string_view nameOfLocale() {
#if defined(__GLIBC__)
  // A thread may have a locale of its own, which the C library's conversions follow. setlocale does
  // not tell it.
  return nl_langinfo(_NL_LOCALE_NAME(LC_CTYPE));
#else
  return std::setlocale(LC_CTYPE, nullptr);
#endif
}

std::string_view language() {
  const std::string_view name = nameOfLocale();
  return name.substr(0, name.find_first_of("_.@"));
}

std::string_view country() {
  std::string_view name = nameOfLocale();
  name = name.substr(0, name.find_first_of(".@"));
  return name.substr(std::min(name.find('_'), name.size() - 1) + 1);
}

}  // namespace

std::uint16_t GetLangID() noexcept { return find(languages, language()); }

std::uint16_t GetCountryID() noexcept {
  return GetLangID() == chinese ? find(chineseCountries, country()) : std::uint16_t{0};
}

#endif

}  // namespace HestraLocale
