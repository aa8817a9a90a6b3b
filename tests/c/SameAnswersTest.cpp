// The C interface answers as the C++ functions do and, where these say only that a query is wrong,
// as the ANTLR pipeline does.

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "Ask.h"
#include "robustness/Questions.h"
#include "robustness/RandomTexts.h"
#include "support/SyntaxErrors.h"
#include "support/Text.h"

using namespace c_interface;

namespace {

constexpr Calls cpp = {vorn::GetOutputNamesAndTypes,
                       vorn::GetVariableUsagesInPropertyFilterOCExpression,
                       vorn::ReplaceVariableNamesInPropertyFilterOCExpression};

Kind kindOf(Question::Kind kind) {
  switch (kind) {
    case Question::Kind::columns:
      return Kind::Columns;
    case Question::Kind::usages:
      return Kind::Usages;
    default:
      return Kind::Renaming;
  }
}

Renames sameRenames() {
  Renames all;
  for (const auto& [from, to] : renames()) {
    all.emplace_back(narrow(from), narrow(to));
  }
  return all;
}

// An exception tells a message up to its first zero.
std::string untilZero(const std::string& message) { return message.substr(0, message.find('\0')); }

std::string placeOf(const Told& told) {
  return "line " + std::to_string(told.line) + ":" + std::to_string(told.column) + " ";
}

// What a C++ host gets, put as `answer` puts it.
std::string toldAsInCpp(const Question& question, const Told& told) {
  if (told.error == VORN_SYNTAX) {
    const std::string message = untilZero(placeOf(told) + told.message);
    return question.kind == Question::Kind::columns ? message : "failed: " + message;
  }
  if (told.error != VORN_NO_ERROR) {
    return (told.error == VORN_FORBIDDEN ? "forbidden: " : "failed: ") + untilZero(told.message);
  }
  if (question.kind == Question::Kind::columns) {
    std::string line = "status 0";
    for (const auto& [name, type] : told.columns) {
      line += ", " + name + " " + std::to_string(type);
    }
    return line;
  }
  if (question.kind == Question::Kind::renaming) {
    return told.renamed.value_or("nothing");
  }
  std::string line;
  for (const Variable& variable : told.variables) {
    line += lineOf(variable) + ", ";
  }
  return line;
}

std::string expectedAnswer(const Question& question) {
  const std::string line = answer(cpp, question);
  return line.rfind("status 1", 0) == 0 ? syntaxErrorOfQuery(narrow(question.text)) : line;
}

// The text from its beginning to what the place in units tells.
std::string beginningOf(Encoding encoding, const std::string& text, std::size_t units) {
  return encoding == Encoding::Utf8 ? text.substr(0, units) : narrow(wide(text).substr(0, units));
}

// Counts as the runtime does what stands before the place.
std::string placeBehind(const std::string& beginning) {
  const std::size_t line = beginning.rfind('\n') + 1;  // none is the largest number
  const bool isMarked = line == 0 && beginning.rfind("\uFEFF", 0) == 0;
  const auto lines = 1 + std::count(beginning.begin(), beginning.end(), '\n');
  const auto column =
      utf8::distance(beginning.begin() + static_cast<std::ptrdiff_t>(line), beginning.end()) -
      (isMarked ? 1 : 0);
  return "line " + std::to_string(lines) + ":" + std::to_string(column) + " ";
}

void expectSameAnswers(const Question& question) {
  const std::string expected = expectedAnswer(question);
  const std::string text = narrow(question.text);
  for (const Encoding encoding : {Encoding::Utf8, Encoding::Utf16}) {
    const Told told = ask(encoding, kindOf(question.kind), text, sameRenames());
    ASSERT_EQ(toldAsInCpp(question, told), expected) << encoding << " " << text;
    if (told.error == VORN_SYNTAX) {
      ASSERT_EQ(placeBehind(beginningOf(encoding, text, told.offset)), placeOf(told)) << text;
    } else if (told.error == VORN_NO_ERROR && question.kind != Question::Kind::columns) {
      // The beginning alone gives the same answer, and is an expression from end to end.
      const std::string beginning = beginningOf(encoding, text, told.expressionEnd);
      const Told again = ask(encoding, kindOf(question.kind), beginning, sameRenames());
      ASSERT_EQ(lineOf(again), lineOf(told)) << text;
      ASSERT_EQ(again.expressionEnd, lengthIn(encoding, beginning)) << text;
    }
  }
}

TEST(SameAnswers, ToTheExamples) {
  int count = 0;
  for (const char* folder : {"queries", "filters"}) {
    for (const auto& entry :
         std::filesystem::directory_iterator(std::filesystem::path(VORN_EXAMPLES) / folder)) {
      std::ifstream file(entry.path(), std::ios::binary);
      const vorn::WideString text = wide(std::string{std::istreambuf_iterator<char>(file), {}});
      for (const auto kind :
           {Question::Kind::columns, Question::Kind::usages, Question::Kind::renaming}) {
        expectSameAnswers({kind, text});
        ++count;
      }
    }
  }
  EXPECT_GE(count, 3 * 28);
}

TEST(SameAnswers, ToQuestionsOfAllKinds) {
  for (const Question& question : questions()) {
    // Half a surrogate has no UTF-8.
    if ((question.text.empty() ? 0 : question.text.back()) != 0xD800) {
      expectSameAnswers(question);
    }
  }
}

TEST(SameAnswers, ToRandomTexts) {
  RandomTexts texts(20261122);
  int wrong = 0;
  for (int i = 0; i < 2000; ++i) {
    const Question question = randomQuestion(texts);
    expectSameAnswers(question);
    if (HasFatalFailure()) {
      return;
    }
    const Told told = ask(Encoding::Utf8, kindOf(question.kind), narrow(question.text));
    wrong += told.error == VORN_SYNTAX ? 1 : 0;
  }
  EXPECT_GT(wrong, 300);
}

}  // namespace
