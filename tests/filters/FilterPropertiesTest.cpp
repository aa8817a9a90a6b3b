#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "FilterGenerator.h"
#include "support/Filters.h"
#include "support/Gaps.h"

namespace {

const std::string absent = "`absent`";

// Draws the back-quoted name of one of the filter's variables. The filter must have some.
std::string drawVariableOf(const GeneratedFilter& filter) {
  std::vector<std::string> names;
  for (const auto& entry : filter.usages) {
    names.push_back(entry.first);
  }
  return *rc::gen::elementOf(names);
}

rc::Gen<GeneratedFilter> genFilterWithVariables() {
  return rc::gen::suchThat(genFilter(),
                           [](const GeneratedFilter& filter) { return !filter.usages.empty(); });
}

// Draws text that can never continue an expression.
std::string drawTrailingText() {
  return *rc::gen::element<std::string>(")", " )", " RETURN n", ";", "}", " n.x", " 1", ",n",
                                        " | x", "]", " WHERE n.x", " $n");
}

RC_GTEST_PROP(GeneratedFilters, HaveTheUsagesTheyAreMadeWith, ()) {
  const GeneratedFilter filter = *genFilter();
  RC_ASSERT(usagesOf(plain(filter.text)) == filter.usages);
}

RC_GTEST_PROP(GeneratedFilters, HaveTheSameUsagesWithOtherWhiteSpaceAndComments, ()) {
  const GeneratedFilter filter = *genFilter();
  RC_ASSERT(usagesOf(withDrawnGaps(filter.text)) == filter.usages);
}

RC_GTEST_PROP(GeneratedFilters, ComeBackUnchangedWithoutRenames, ()) {
  const std::string text = withDrawnGaps((*genFilter()).text);
  RC_ASSERT(renamed(text, {}) == text);
}

RC_GTEST_PROP(GeneratedFilters, ComeBackUnchangedWhenOnlyAbsentNamesAreRenamed, ()) {
  const std::string text = withDrawnGaps((*genFilter()).text);
  RC_ASSERT(renamed(text, {{absent, "x"}}) == text);
}

RC_GTEST_PROP(GeneratedFilters, LoseTextThatFollowsThem, ()) {
  const GeneratedFilter filter = *genFilter();
  const std::string text = withDrawnGaps(filter.text);
  const std::string longer = text + drawTrailingText();
  RC_ASSERT(renamed(longer, {}) == text);
  RC_ASSERT(usagesOf(longer) == filter.usages);
}

RC_GTEST_PROP(GeneratedFilters, UseARenamedVariableUnderItsNewNameAndNothingElseChanges, ()) {
  const GeneratedFilter filter = *genFilterWithVariables();
  const std::string name = drawVariableOf(filter);
  Usages expected = filter.usages;
  auto node = expected.extract(name);
  node.key() = absent;
  node.mapped().writtenForms = {absent};
  expected.insert(std::move(node));
  RC_ASSERT(usagesOf(renamed(plain(filter.text), {{name, absent}})) == expected);
}

RC_GTEST_PROP(GeneratedFilters, ReadTheSameAfterRenamingThereAndBack, ()) {
  const GeneratedFilter filter = *genFilter();
  Renames there;
  Renames back;
  Usages expected = filter.usages;
  for (auto& [name, usage] : expected) {
    const std::string other = "v" + std::to_string(there.size());
    there.emplace(name, other);
    back.emplace(other, name);
    usage.writtenForms = {name};
  }
  const std::string text = renamed(renamed(plain(filter.text), there), back);
  RC_ASSERT(usagesOf(text) == expected);
  RC_ASSERT(renamed(text, {}) == text);
}

RC_GTEST_PROP(GeneratedFilters, HoldEveryWrittenForm, ()) {
  const std::string text = plain((*genFilter()).text);
  for (const auto& entry : usagesOf(text)) {
    for (const std::string& form : entry.second.writtenForms) {
      RC_ASSERT(text.find(form) != std::string::npos);
    }
  }
}

RC_GTEST_PROP(ForbiddenFilters, AreRejectedWithTheSameMessageHoweverTheyAreSpaced, ()) {
  const GeneratedFilter filter = *genForbiddenFilter();
  RC_ASSERT(failureOfUsages(plain(filter.text)) == forbidden(filter.forbiddenType));
  RC_ASSERT(failureOfUsages(withDrawnGaps(filter.text)) == forbidden(filter.forbiddenType));
}

RC_GTEST_PROP(ForbiddenFilters, ComeBackUnchangedWithoutRenames, ()) {
  const std::string text = withDrawnGaps((*genForbiddenFilter()).text);
  RC_ASSERT(renamed(text, {}) == text);
}

RC_GTEST_PROP(DamagedFilters, AreExpressionsForBothFunctionsOrForNeither, ()) {
  std::string text = plain((*genForbiddenFilter()).text);
  const auto at = *rc::gen::inRange<std::size_t>(0, text.size());
  text.erase(at, *rc::gen::inRange<std::size_t>(1, 4));
  text.insert(std::min(at, text.size()),
              *rc::gen::element<std::string>("", "(", "`", "'", " ", "..", "{"));
  const std::string valid = wellFormed(text);
  const Failure renaming = failureOfRenaming(valid, {});
  const Failure usages = failureOfUsages(valid);
  if (renaming.kind == Failure::Kind::none) {
    RC_ASSERT(usages.kind != Failure::Kind::other);
    const std::string taken = renamed(valid, {});
    RC_ASSERT(valid.compare(0, taken.size(), taken) == 0);
  } else {
    RC_ASSERT(isSyntaxError(renaming));
    RC_ASSERT(usages == renaming);
  }
}

}  // namespace
