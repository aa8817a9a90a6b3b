#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "SymbolicName.h"

using vorn::quoteSymbolicName;
using vorn::unquoteSymbolicName;

namespace {

std::string genName() {
  return *rc::gen::container<std::string>(rc::gen::element('`', '`', 'a', ' ', '\0', '\xC3', '\\'));
}

// Unquotes one back quote at a time. Each is erased; if another one follows a closing quote, the
// name goes on.
std::string unquotedStepByStep(std::string text) {
  bool escaped = false;
  std::size_t position = 0;
  while (position < text.size()) {
    position = text.find('`', position);
    if (position == std::string::npos) {
      break;
    }
    text.erase(position, 1);
    if (!escaped) {
      escaped = true;
    } else if (position < text.size()) {
      if (text[position] == '`') {
        ++position;
      } else {
        escaped = false;
      }
    }
  }
  return text;
}

TEST(QuoteSymbolicName, PutsANameBetweenBackQuotes) {
  EXPECT_EQ(quoteSymbolicName("n"), "`n`");
  EXPECT_EQ(quoteSymbolicName("名前"), "`名前`");
}

TEST(QuoteSymbolicName, DoublesBackQuotesInside) {
  EXPECT_EQ(quoteSymbolicName("a`b"), "`a``b`");
  EXPECT_EQ(quoteSymbolicName("a``"), "`a`````");
}

TEST(QuoteSymbolicName, TakesALeadingBackQuoteForQuoted) {
  EXPECT_EQ(quoteSymbolicName("`n`"), "`n`");
  EXPECT_EQ(quoteSymbolicName("`n"), "`n");
  EXPECT_EQ(quoteSymbolicName("`"), "`");
}

TEST(QuoteSymbolicName, MakesTwoBackQuotesOfNothing) { EXPECT_EQ(quoteSymbolicName(""), "``"); }

TEST(UnquoteSymbolicName, TakesTheBackQuotesAway) {
  EXPECT_EQ(unquoteSymbolicName("`my var`"), "my var");
  EXPECT_EQ(unquoteSymbolicName("`a``b`"), "a`b");
  EXPECT_EQ(unquoteSymbolicName("n.`first name`"), "n.first name");
  EXPECT_EQ(unquoteSymbolicName("n"), "n");
  EXPECT_EQ(unquoteSymbolicName(""), "");
}

RC_GTEST_PROP(UnquoteSymbolicName, IsTheWayBackFromQuoting, ()) {
  const std::string name = genName();
  RC_PRE(name.empty() || name.front() != '`');
  RC_ASSERT(unquoteSymbolicName(quoteSymbolicName(name)) == name);
}

RC_GTEST_PROP(UnquoteSymbolicName, GivesWhatErasingOneBackQuoteAfterTheOtherGives, ()) {
  const std::string text = genName();
  RC_ASSERT(unquoteSymbolicName(text) == unquotedStepByStep(text));
}

RC_GTEST_PROP(QuoteSymbolicName, OfAQuotedNameChangesNothing, ()) {
  const std::string quoted = quoteSymbolicName(genName());
  RC_ASSERT(quoteSymbolicName(quoted) == quoted);
}

}  // namespace
