// The questions. The interrogators answer each in UTF-8. Then places and strings are converted into
// the encoding of the question.

#include <Exceptions.h>
#include <utf8.h>

#include <algorithm>
#include <exception>
#include <map>
#include <memory>
#include <new>
#include <stdexcept>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>

#include "Answer.h"
#include "CypherInterrogator.h"
#include "PropertyFilterExpressionInterrogator.h"
#include "SymbolicName.h"
#include "TooDeep.h"
#include "antlr/ThrowingErrorListener.h"
#include "strings/StringUtf8ImplDetail.h"

namespace vorn {

namespace {

class BadArgument : public std::exception {};
class NotWellFormed : public std::exception {};

// The bound on units in a text and on items in a list. More units are more than 1 GiB in UTF-8.
constexpr std::size_t maxLength = std::size_t{1} << 30U;

template <typename Item>
void requireReadable(const Item* first, std::size_t length) {
  if (first == nullptr && length != 0) {
    throw BadArgument();
  }
  if (length > maxLength) {
    throw std::length_error("the text, a name or the number of names is too large");
  }
}

// A text of the host as UTF-8.
class Utf8 {
 public:
  Utf8(const char* first, std::size_t length) {
    requireReadable(first, length);
    view_ = std::string_view(first, length);
    if (utf8::find_invalid(view_.begin(), view_.end()) != view_.end()) {
      throw NotWellFormed();
    }
  }

  Utf8(const std::uint16_t* first, std::size_t length) {
    requireReadable(first, length);
    try {
      own_ = StringUtf8ImplDetail::StringWideCharToUtf8Impl(WideString(first, first + length));
    } catch (const std::bad_alloc&) {
      throw;
    } catch (const std::exception&) {
      throw NotWellFormed();
    }
    view_ = own_;
  }

  Utf8(const Utf8&) = delete;
  Utf8& operator=(const Utf8&) = delete;
  Utf8(Utf8&&) = delete;
  Utf8& operator=(Utf8&&) = delete;
  ~Utf8() = default;

  [[nodiscard]] std::string_view view() const { return view_; }

 private:
  std::string own_;  // the converted text; empty if the host gave UTF-8
  std::string_view view_;
};

bool beginsCodePoint(char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U; }

bool takesTwoUtf16Units(char firstByte) { return static_cast<unsigned char>(firstByte) >= 0xF0U; }

// The length of a UTF-8 text in the units of an encoding.
template <typename Unit>
std::size_t unitCount(std::string_view text);

template <>
std::size_t unitCount<char>(std::string_view text) {
  return text.size();
}

template <>
std::size_t unitCount<std::uint16_t>(std::string_view text) {
  return static_cast<std::size_t>(std::count_if(text.begin(), text.end(), beginsCodePoint) +
                                  std::count_if(text.begin(), text.end(), takesTwoUtf16Units));
}

// Remembers the place and the message of the error that ends a parse.
class FirstError final : public ThrowingErrorListener {
 public:
  [[noreturn]] void syntaxError(antlr4::Recognizer* recognizer, antlr4::Token* offendingSymbol,
                                std::size_t line, std::size_t charPositionInLine,
                                const std::string& message, std::exception_ptr exception) override {
    line_ = line;
    column_ = charPositionInLine;
    message_ = message;
    ThrowingErrorListener::syntaxError(recognizer, offendingSymbol, line, charPositionInLine,
                                       message, std::move(exception));
  }

  [[nodiscard]] bool isKnown() const { return line_ != 0; }
  [[nodiscard]] std::size_t line() const { return line_; }
  [[nodiscard]] std::size_t column() const { return column_; }
  [[nodiscard]] const std::string& message() const { return message_; }

  // The place in the text, in bytes.
  [[nodiscard]] std::size_t placeIn(std::string_view text) const {
    constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
    std::size_t place = text.substr(0, byteOrderMark.size()) == byteOrderMark ? 3 : 0;
    for (std::size_t line = 1; line != line_; ++line) {
      place = text.find('\n', place) + 1;
    }
    for (std::size_t column = 0; column != column_; ++column) {
      ++place;
      while (place < text.size() && !beginsCodePoint(text[place])) {
        ++place;
      }
    }
    return place;
  }

 private:
  std::size_t line_ = 0;
  std::size_t column_ = 0;
  std::string message_;
};

// An answer in the making.
template <typename Unit>
class Writer {
 public:
  Writer() {
    answer_->error.message = nothing<Unit>;
    answer_->error.element = nothing<Unit>;
  }

  vorn_answer& answer() { return *answer_; }
  vorn_answer* finish() { return answer_.release(); }

  Text keep(std::string_view utf8) {
    if constexpr (sizeof(Unit) == 1) {
      return copy(utf8);
    } else {
      return copy(StringUtf8ImplDetail::StringUtf8ToWideCharImpl(utf8));
    }
  }

  Text keep(const WideString& wide) {
    if constexpr (sizeof(Unit) == 1) {
      return copy(StringUtf8ImplDetail::StringWideCharToUtf8Impl(wide));
    } else {
      return copy(wide);
    }
  }

  // Keeps all of them in their order.
  template <typename Names>
  std::vector<Text> keepAll(const Names& names) {
    std::vector<Text> kept;
    kept.reserve(names.size());
    for (const WideString& name : names) {
      kept.push_back(keep(name));
    }
    return kept;
  }

  void fail(vorn_error kind, std::string_view message) {
    answer_->error.message = keep(message);
    answer_->error.kind = kind;
  }

  void failAt(const FirstError& error, std::string_view text) {
    fail(VORN_SYNTAX, error.message());
    answer_->error.line = error.line();
    answer_->error.column = error.column();
    answer_->error.offset = unitCount<Unit>(text.substr(0, error.placeIn(text)));
  }

 private:
  template <typename String>
  Units<Unit> copy(const String& text) {
    auto* const units = static_cast<Unit*>(
        answer_->memory.allocate((text.size() + 1) * sizeof(Unit), alignof(Unit)));
    *std::copy(text.begin(), text.end(), units) = 0;
    return {units, text.size()};
  }

  std::unique_ptr<vorn_answer> answer_ = std::make_unique<vorn_answer>();
};

// Asks the question, and turns each failure into an answer. `ask` takes the text as UTF-8, the
// listener for the first error, and the writer of the answer.
template <typename Unit, typename Ask>
vorn_answer* answerTo(const Unit* first, std::size_t length, const Ask& ask) noexcept {
  try {
    Writer<Unit> writer;
    try {
      const Utf8 text(first, length);
      FirstError error;
      try {
        ask(text.view(), error, writer);
      } catch (const antlr4::ParseCancellationException& exception) {
        if (error.isKnown()) {
          writer.failAt(error, text.view());
        } else {
          writer.fail(VORN_SYNTAX, exception.what());
        }
      }
    } catch (const BadArgument&) {
      writer.fail(VORN_BAD_ARGUMENT, "a pointer is null, but its length is not zero");
    } catch (const NotWellFormed&) {
      writer.fail(VORN_NOT_WELL_FORMED, sizeof(Unit) == 1
                                            ? "the text or a name is not well-formed UTF-8"
                                            : "the text or a name is not well-formed UTF-16");
    } catch (const TooDeep& refusal) {
      writer.fail(VORN_TOO_DEEP, refusal.what());
    } catch (const std::length_error& refusal) {
      writer.fail(VORN_TOO_LARGE, refusal.what());
    }
    return writer.finish();
  } catch (...) {
    return &outOfMemory<Unit>();
  }
}

template <typename Unit>
vorn_answer* columnsOf(const Unit* query, std::size_t length) noexcept {
  return answerTo(query, length, [](std::string_view text, FirstError& error, auto& writer) {
    CypherInterrogator interrogator(text, error);
    const auto& columns = interrogator.getResultColumnNamesAndTypes();
    writer.answer().columns.reserve(columns.size());
    for (const auto& [name, type] : columns) {
      writer.answer().columns.push_back({writer.keep(name), static_cast<std::int32_t>(type)});
    }
  });
}

template <typename Unit>
vorn_answer* usagesOf(const Unit* expression, std::size_t length) noexcept {
  return answerTo(expression, length, [](std::string_view text, FirstError& error, auto& writer) {
    const PropertyFilterExpressionInterrogator interrogator(text, error);
    vorn_answer& answer = writer.answer();
    std::string_view forbiddenType;
    std::map<WideString, VariableUsage> usages;
    try {
      usages = interrogator.computeVariablesUsages(&forbiddenType);
    } catch (const std::logic_error& exception) {
      if (forbiddenType.empty()) {
        throw;
      }
      writer.fail(VORN_FORBIDDEN, exception.what());
      answer.error.element = writer.keep(forbiddenType);
      return;
    }
    answer.variables.reserve(usages.size());
    for (const auto& [name, usage] : usages) {
      Variable& variable = answer.variables.emplace_back();
      variable.name = writer.keep(name);
      variable.writtenForms = writer.keepAll(usage.writtenForms);
      variable.accesses.reserve(usage.accesses.size());
      for (const VariableAccess& access : usage.accesses) {
        variable.accesses.push_back(
            {writer.keepAll(access.propertyPath), writer.keepAll(access.labels)});
      }
    }
    answer.expressionEnd = unitCount<Unit>(text.substr(0, interrogator.expressionEnd()));
  });
}

template <typename Unit, typename Pair>
vorn_answer* renamingOf(const Unit* expression, std::size_t length, const Pair* renames,
                        std::size_t count) noexcept {
  return answerTo(expression, length, [&](std::string_view text, FirstError& error, auto& writer) {
    const PropertyFilterExpressionInterrogator interrogator(text, error);
    requireReadable(renames, count);
    std::unordered_map<std::string, std::string> quoted;
    for (const Pair* pair = renames; pair != renames + count; ++pair) {
      const Utf8 from(pair->from, pair->from_length);
      const Utf8 to(pair->to, pair->to_length);
      quoted.insert_or_assign(quoteSymbolicName(from.view()), quoteSymbolicName(to.view()));
    }
    writer.answer().renamed = writer.keep(interrogator.replaceQuotedNames(quoted));
    writer.answer().expressionEnd = unitCount<Unit>(text.substr(0, interrogator.expressionEnd()));
  });
}

}  // namespace

}  // namespace vorn

vorn_answer* vorn_columns_utf8(const char* query, std::size_t length) {
  return vorn::columnsOf(query, length);
}

vorn_answer* vorn_columns_utf16(const std::uint16_t* query, std::size_t length) {
  return vorn::columnsOf(query, length);
}

vorn_answer* vorn_usages_utf8(const char* expression, std::size_t length) {
  return vorn::usagesOf(expression, length);
}

vorn_answer* vorn_usages_utf16(const std::uint16_t* expression, std::size_t length) {
  return vorn::usagesOf(expression, length);
}

vorn_answer* vorn_rename_utf8(const char* expression, std::size_t length,
                              const vorn_rename_pair_utf8* renames, std::size_t count) {
  return vorn::renamingOf(expression, length, renames, count);
}

vorn_answer* vorn_rename_utf16(const std::uint16_t* expression, std::size_t length,
                               const vorn_rename_pair_utf16* renames, std::size_t count) {
  return vorn::renamingOf(expression, length, renames, count);
}
