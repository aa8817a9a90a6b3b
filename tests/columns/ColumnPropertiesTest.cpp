#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <thread>

#include "QueryGenerator.h"
#include "support/Columns.h"
#include "support/Gaps.h"

using vorn::CypherType;
using vorn::WideString;

namespace {

// Damages a text in one place: removes, doubles, swaps or inserts characters.
std::string damaged(std::string text) {
  const auto at = *rc::gen::inRange<std::size_t>(0, text.size());
  const auto length = *rc::gen::inRange<std::size_t>(1, 6);
  switch (*rc::gen::inRange(0, 4)) {
    case 0:
      text.erase(at, length);
      break;
    case 1:
      text.insert(at, text.substr(at, length));
      break;
    case 2:
      std::swap(text[at], text[text.size() - 1 - at]);
      break;
    default:
      text.insert(at, *rc::gen::element<std::string>("`", "'", "(", "]", ",", " ", "?", "RETURN",
                                                     "/*", ";", "\xF0\x9F\x98\x80", ".", "`\\"));
  }
  return text;
}

RC_GTEST_PROP(GeneratedQueries, HaveTheColumnsTheyAreMadeWith, ()) {
  const GeneratedQuery query = *genQuery();
  RC_ASSERT(analyse(plain(query.textWithOwnAliases())) == answered(query.columns));
}

RC_GTEST_PROP(GeneratedQueries, HaveTheSameColumnsWithOtherWhiteSpaceAndComments, ()) {
  const GeneratedQuery query = *genQuery();
  RC_ASSERT(analyse(withDrawnGaps(query.textWithOwnAliases())) == answered(query.columns));
}

RC_GTEST_PROP(GeneratedQueries, HaveTheSameColumnsWithWhiteSpaceAndCommentsAroundThem, ()) {
  const std::string text = plain((*genQuery()).textWithOwnAliases());
  RC_ASSERT(analyse(*genGap() + text + *genGap() + ";" + *genGap()) == analyse(text));
}

RC_GTEST_PROP(GeneratedQueries, RenameTheirColumnsAndNothingElseWithTheirAliases, ()) {
  const GeneratedQuery query = *genQuery();
  std::vector<std::string> renamed;
  Columns expected = query.columns;
  for (std::size_t i = 0; i < query.aliases.size(); ++i) {
    renamed.push_back("`new " + std::to_string(i) + "`");
    expected[query.aliasColumns[i]].first = "new " + std::to_string(i);
  }
  RC_ASSERT(analyse(plain(query.textWith(renamed))) == answered(expected));
}

RC_GTEST_PROP(DamagedQueries, NeverChangeTheVectorWhenTheyAreRefused, ()) {
  const WideString query = wide(wellFormed(damaged(plain((*genQuery()).textWithOwnAliases()))));
  const std::vector<std::pair<WideString, CypherType>> before{{wide("x"), CypherType::Path}};
  auto columns = before;
  if (vorn::GetOutputNamesAndTypes(query, columns) == 1) {
    RC_TAG("refused");
    RC_ASSERT(columns == before);
  } else {
    RC_TAG("answered");
    std::vector<std::pair<WideString, CypherType>> fromEmpty;
    RC_ASSERT(vorn::GetOutputNamesAndTypes(query, fromEmpty) == 0);
    RC_ASSERT(columns == fromEmpty);
  }
}

RC_GTEST_PROP(AnyText, IsAnsweredOrRefused, (const std::vector<std::uint16_t>& units)) {
  WideString text;
  for (const std::uint16_t unit : units) {
    text += static_cast<vorn::WideChar>(unit);
  }
  const ColumnsAnswer answer = analyse(text);
  RC_ASSERT(answer.status == 0 || answer == refused());
}

TEST(GeneratedQueries, GetTheSameAnswerOnEveryThread) {
  rc::check([] {
    const auto texts = *rc::gen::container<std::vector<GeneratedQuery>>(20, genQuery());
    std::vector<ColumnsAnswer> here;
    for (const GeneratedQuery& query : texts) {
      here.push_back(analyse(plain(query.textWithOwnAliases())));
    }
    std::vector<std::vector<ColumnsAnswer>> there(4);
    std::vector<std::thread> threads;
    for (std::vector<ColumnsAnswer>& answers : there) {
      threads.emplace_back([&texts, &answers] {
        for (const GeneratedQuery& query : texts) {
          answers.push_back(analyse(plain(query.textWithOwnAliases())));
        }
      });
    }
    for (std::thread& thread : threads) {
      thread.join();
    }
    for (const std::vector<ColumnsAnswer>& answers : there) {
      RC_ASSERT(answers == here);
    }
  });
}

}  // namespace
