#pragma once

#include <array>
#include <map>
#include <ostream>
#include <set>
#include <stdexcept>
#include <string>
#include <string_view>
#include <typeinfo>
#include <unordered_map>
#include <utility>
#include <vector>

#include "support/Text.h"
#include "vorn/vorn.h"

/// One access in UTF-8: property path and labels.
using Access = std::pair<std::vector<std::string>, std::set<std::string>>;

/// The usage of one variable in UTF-8.
struct Usage {
  std::set<std::string> writtenForms;
  std::set<Access> accesses;

  friend bool operator==(const Usage& left, const Usage& right) {
    return left.writtenForms == right.writtenForms && left.accesses == right.accesses;
  }
};

using Usages = std::map<std::string, Usage>;
using Renames = std::unordered_map<std::string, std::string>;

inline std::ostream& operator<<(std::ostream& out, const Usage& usage) {
  out << "written";
  for (const std::string& form : usage.writtenForms) {
    out << " " << form;
  }
  for (const auto& [keys, labels] : usage.accesses) {
    out << ", reads";
    for (const std::string& key : keys) {
      out << " ." << key;
    }
    for (const std::string& label : labels) {
      out << " :" << label;
    }
  }
  return out;
}

inline std::vector<std::string> narrowAll(const std::vector<vorn::WideString>& names) {
  std::vector<std::string> all;
  for (const vorn::WideString& name : names) {
    all.push_back(narrow(name));
  }
  return all;
}

inline std::set<std::string> narrowAll(const std::set<vorn::WideString>& names) {
  std::set<std::string> all;
  for (const vorn::WideString& name : names) {
    all.insert(narrow(name));
  }
  return all;
}

inline Usages usagesOf(const vorn::WideString& filter) {
  Usages usages;
  for (const auto& [name, usage] : vorn::GetVariableUsagesInPropertyFilterOCExpression(filter)) {
    Usage& narrowed = usages[narrow(name)];
    narrowed.writtenForms = narrowAll(usage.writtenForms);
    for (const vorn::VariableAccess& access : usage.accesses) {
      narrowed.accesses.emplace(narrowAll(access.propertyPath), narrowAll(access.labels));
    }
  }
  return usages;
}

inline Usages usagesOf(std::string_view filter) { return usagesOf(wide(filter)); }

inline std::string renamed(std::string_view filter, const Renames& renames) {
  std::unordered_map<vorn::WideString, vorn::WideString> wideRenames;
  for (const auto& [oldName, newName] : renames) {
    wideRenames.emplace(wide(oldName), wide(newName));
  }
  return narrow(vorn::ReplaceVariableNamesInPropertyFilterOCExpression(wide(filter), wideRenames));
}

/// The exception of a call, as a host sees it that has only the public header.
struct Failure {
  enum class Kind { none, forbidden, other };
  Kind kind;
  std::string message;

  friend bool operator==(const Failure& left, const Failure& right) {
    return left.kind == right.kind && left.message == right.message;
  }
};

inline std::ostream& operator<<(std::ostream& out, const Failure& failure) {
  constexpr std::array kinds = {"none", "forbidden", "other"};
  return out << kinds.at(static_cast<std::size_t>(failure.kind)) << ": " << failure.message;
}

template <typename Call>
Failure failureOf(const Call& call) {
  try {
    call();
    return {Failure::Kind::none, ""};
  } catch (const std::exception& exception) {
    const bool forbidden = typeid(exception) == typeid(std::logic_error);
    return {forbidden ? Failure::Kind::forbidden : Failure::Kind::other, exception.what()};
  }
}

inline Failure failureOfUsages(std::string_view filter) {
  return failureOf([&] { usagesOf(filter); });
}

inline Failure failureOfRenaming(std::string_view filter, const Renames& renames) {
  return failureOf([&] { renamed(filter, renames); });
}

/// The failure of a filter with a forbidden element of this type.
inline Failure forbidden(const std::string& typeName) {
  return {Failure::Kind::forbidden, "The openCypher element '' of type '" + typeName +
                                        "' is forbidden in a property filter expression."};
}

/// Whether the failure is a syntax error.
inline bool isSyntaxError(const Failure& failure) {
  return failure.kind == Failure::Kind::other && failure.message.rfind("line ", 0) == 0;
}
