#include <gtest/gtest.h>

#include "support/Filters.h"

using vorn::VariableAccess;
using vorn::WideString;

namespace {

const Access bare;

Access reads(std::vector<std::string> path, std::set<std::string> labels = {}) {
  return {std::move(path), std::move(labels)};
}

TEST(Usages, OfAPropertyAreItsPath) {
  EXPECT_EQ(usagesOf("n.name = 'x'"), (Usages{{"`n`", {{"n"}, {reads({"`name`"})}}}}));
}

TEST(Usages, CountEqualAccessesOnce) {
  EXPECT_EQ(usagesOf("n.a = 1 AND n.a > 0"), (Usages{{"`n`", {{"n"}, {reads({"`a`"})}}}}));
}

TEST(Usages, TakeAQuotedAndAnUnquotedNameForOneVariable) {
  EXPECT_EQ(usagesOf("`n`.a = 1 AND n.b = 2"),
            (Usages{{"`n`", {{"n", "`n`"}, {reads({"`a`"}), reads({"`b`"})}}}}));
}

TEST(Usages, OfALabelTestAreItsLabels) {
  EXPECT_EQ(usagesOf("n:Person"), (Usages{{"`n`", {{"n"}, {reads({}, {"`Person`"})}}}}));
  EXPECT_EQ(usagesOf("n:Person:Employee"),
            (Usages{{"`n`", {{"n"}, {reads({}, {"`Employee`", "`Person`"})}}}}));
  EXPECT_EQ(usagesOf("n:A:A"), (Usages{{"`n`", {{"n"}, {reads({}, {"`A`"})}}}}));
  EXPECT_EQ(usagesOf("n : A :`A`"), (Usages{{"`n`", {{"n"}, {reads({}, {"`A`"})}}}}));
}

TEST(Usages, OfALabelTestAfterAPropertyAreBothInOneAccess) {
  EXPECT_EQ(usagesOf("n.kind:Tag"), (Usages{{"`n`", {{"n"}, {reads({"`kind`"}, {"`Tag`"})}}}}));
}

TEST(Usages, OfAChainOfPropertiesAreOnePath) {
  EXPECT_EQ(usagesOf("n.address . city = 1"),
            (Usages{{"`n`", {{"n"}, {reads({"`address`", "`city`"})}}}}));
}

TEST(Usages, KeepQuotedKeysAsTheyAre) {
  EXPECT_EQ(usagesOf("n.`my key`"), (Usages{{"`n`", {{"n"}, {reads({"`my key`"})}}}}));
  EXPECT_EQ(usagesOf("n.`a``b`:`c``d`"),
            (Usages{{"`n`", {{"n"}, {reads({"`a``b`"}, {"`c``d`"})}}}}));
}

TEST(Usages, KeepTheCaseOfKeysAndLabels) {
  EXPECT_EQ(usagesOf("n.Name + n.name"),
            (Usages{{"`n`", {{"n"}, {reads({"`Name`"}), reads({"`name`"})}}}}));
  EXPECT_EQ(usagesOf("n.MATCH:return"),
            (Usages{{"`n`", {{"n"}, {reads({"`MATCH`"}, {"`return`"})}}}}));
}

TEST(Usages, OfABareVariableAreAnEmptyAccess) {
  for (const char* filter : {"n", "n IS NULL", "n = 1", "count(n)", "n[0]", "n['key']", "n[0..1]",
                             "[n]", "{k: n}", "(n)", "(n).a", "-n", "n[0].a"}) {
    EXPECT_EQ(usagesOf(filter), (Usages{{"`n`", {{"n"}, {bare}}}})) << filter;
  }
}

TEST(Usages, OfTwoVariablesStandSideBySide) {
  EXPECT_EQ(usagesOf("a.x = b.y"),
            (Usages{{"`a`", {{"a"}, {reads({"`x`"})}}}, {"`b`", {{"b"}, {reads({"`y`"})}}}}));
}

TEST(Usages, AreFoundAtAnyDepth) {
  EXPECT_EQ(usagesOf("CASE WHEN f([{k: n.a}])[m.b] THEN k END"),
            (Usages{{"`n`", {{"n"}, {reads({"`a`"})}}},
                    {"`m`", {{"m"}, {reads({"`b`"})}}},
                    {"`k`", {{"k"}, {bare}}}}));
}

TEST(Usages, OfAnExpressionWithoutVariablesAreNone) {
  for (const char* filter :
       {"$p = 1", "1 = 1", "$n.a", "f()", "'n'", "{n: 1}", "{n: 1}.n", "count(*)", "n.f(1) = 1"}) {
    EXPECT_EQ(usagesOf(filter), Usages{}) << filter;
  }
}

TEST(Usages, KnowNamesByTheirQuotedForm) {
  EXPECT_EQ(usagesOf("`a b`.x"), (Usages{{"`a b`", {{"`a b`"}, {reads({"`x`"})}}}}));
  EXPECT_EQ(usagesOf("`a``b`"), (Usages{{"`a``b`", {{"`a``b`"}, {bare}}}}));
  EXPECT_EQ(usagesOf("``.x"), (Usages{{"``", {{"``"}, {reads({"`x`"})}}}}));
  EXPECT_EQ(usagesOf("名前.年齢"), (Usages{{"`名前`", {{"名前"}, {reads({"`年齢`"})}}}}));
}

TEST(Usages, DistinguishVariablesByCase) {
  EXPECT_EQ(usagesOf("n = N"), (Usages{{"`n`", {{"n"}, {bare}}}, {"`N`", {{"N"}, {bare}}}}));
}

TEST(Usages, LeaveTextAfterTheExpressionUnread) {
  EXPECT_EQ(usagesOf("n.a = 1 RETURN m.b"), (Usages{{"`n`", {{"n"}, {reads({"`a`"})}}}}));
  EXPECT_EQ(usagesOf("n.a)m"), (Usages{{"`n`", {{"n"}, {reads({"`a`"})}}}}));
}

TEST(Usages, DoNotCountTheFirstPartsOfAFunctionName) {
  EXPECT_EQ(usagesOf("n.f(m)"), (Usages{{"`m`", {{"m"}, {bare}}}}));
}

// U+FF21 is less than U+1D400 as a code point and in UTF-8; in UTF-16 the surrogate 0xD835 is less
// than 0xFF21.
TEST(UsagesOrder, OfVariablesIsThatOfUtf16CodeUnits) {
  std::vector<WideString> names;
  for (const auto& entry :
       vorn::GetVariableUsagesInPropertyFilterOCExpression(wide("\uFF21 = \U0001D400 AND z = a"))) {
    names.push_back(entry.first);
  }
  EXPECT_EQ(names, (std::vector<WideString>{wide("`a`"), wide("`z`"), wide("`\U0001D400`"),
                                            wide("`\uFF21`")}));
}

TEST(UsagesOrder, OfKeysAndLabelsIsThatOfUtf16CodeUnits) {
  const auto usages = vorn::GetVariableUsagesInPropertyFilterOCExpression(
      wide("n.\uFF21 = n.\U0001D400 AND n:\uFF21:\U0001D400"));
  const auto& accesses = usages.at(wide("`n`")).accesses;
  std::vector<VariableAccess> inOrder(accesses.begin(), accesses.end());
  ASSERT_EQ(inOrder.size(), 3U);
  EXPECT_TRUE(inOrder[0].propertyPath.empty());
  EXPECT_EQ(*inOrder[0].labels.begin(), wide("`\U0001D400`"));
  EXPECT_EQ(inOrder[1].propertyPath.front(), wide("`\U0001D400`"));
  EXPECT_EQ(inOrder[2].propertyPath.front(), wide("`\uFF21`"));
}

TEST(UsagesOrder, OfWrittenFormsPutsAQuotedFormByItsBackQuote) {
  const auto usages =
      vorn::GetVariableUsagesInPropertyFilterOCExpression(wide("`n` = n AND `A` = A"));
  EXPECT_EQ(*usages.at(wide("`n`")).writtenForms.begin(), wide("`n`"));
  EXPECT_EQ(*usages.at(wide("`A`")).writtenForms.begin(), wide("A"));
}

VariableAccess access(const std::vector<std::string>& path, const std::set<std::string>& labels) {
  VariableAccess made;
  for (const std::string& key : path) {
    made.propertyPath.push_back(wide(key));
  }
  for (const std::string& label : labels) {
    made.labels.insert(wide(label));
  }
  return made;
}

TEST(VariableAccessOrder, ComparesPathsThenLabels) {
  const std::vector<VariableAccess> ascending = {access({}, {}),
                                                 access({}, {"`A`"}),
                                                 access({}, {"`A`", "`B`"}),
                                                 access({}, {"`B`"}),
                                                 access({"`a`"}, {}),
                                                 access({"`a`"}, {"`A`"}),
                                                 access({"`a`", "`a`"}, {}),
                                                 access({"`a`", "`b`"}, {}),
                                                 access({"`aa`"}, {}),
                                                 access({"`b`"}, {})};
  for (std::size_t i = 0; i < ascending.size(); ++i) {
    for (std::size_t j = 0; j < ascending.size(); ++j) {
      EXPECT_EQ(ascending[i] < ascending[j], i < j) << i << " " << j;
      EXPECT_EQ(ascending[i] == ascending[j], i == j) << i << " " << j;
    }
  }
}

}  // namespace
