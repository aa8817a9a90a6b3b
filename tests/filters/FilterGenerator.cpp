#include "FilterGenerator.h"

#include "support/Gaps.h"

namespace {

// A name as it may be written, and its back-quoted form. Both are written out, so that expected
// usages do not depend on the library.
struct Name {
  std::string written;
  std::string quoted;
};

Name drawVariable() {
  static const std::vector<Name> all = {
      {"n", "`n`"},
      {"`n`", "`n`"},
      {"m", "`m`"},
      {"a", "`a`"},
      {"F", "`F`"},
      {"count", "`count`"},
      {"Filter", "`Filter`"},
      {"`my node`", "`my node`"},
      {"`we``ird`", "`we``ird`"},
      {"名前", "`名前`"},
      {"`名前`", "`名前`"},
      {"𠮷", "`𠮷`"},
      {"``", "``"},
  };
  return *rc::gen::elementOf(all);
}

Name drawSchemaName() {
  static const std::vector<Name> all = {
      {"k", "`k`"}, {"`k`", "`k`"},         {"MATCH", "`MATCH`"}, {"name", "`name`"},
      {"n", "`n`"}, {"`a key`", "`a key`"}, {"値", "`値`"},       {"`a``b`", "`a``b`"},
  };
  return *rc::gen::elementOf(all);
}

int drawInt(int below) { return *rc::gen::inRange(0, below); }

// Writes expressions that are complete wherever they are put. It never draws a minus sign, which
// between parentheses can look like a pattern.
class FilterWriter {
 public:
  GeneratedFilter write(bool withForbidden) {
    forbiddenWanted = withForbidden;
    std::string text = expression(4);
    if (withForbidden && forbiddenType.empty()) {
      text += "\x02OR\x02" + forbiddenElement();
    }
    return {text, usages, forbiddenType};
  }

 private:
  std::string expression(int depth) {
    if (depth == 0) {
      return drawInt(3) == 0 ? literal() : access();
    }
    switch (drawInt(12)) {
      case 0:
        return "(\x01" + expression(depth - 1) + "\x01)";
      case 1: {
        const std::string operation = *rc::gen::element<std::string>("AND", "or", "Xor");
        std::string left = expression(depth - 1);
        return left + mustGap + operation + mustGap + expression(depth - 1);
      }
      case 2: {
        const std::string operation = *rc::gen::element<std::string>(
            "=", "<>", "<", ">", "<=", ">=", "+", "*", "\x02/ ", "%", "^");
        std::string left = operand(depth - 1);
        return left + mayGap + operation + mayGap + operand(depth - 1);
      }
      case 3:
        return "NOT\x02" + operand(depth - 1);
      case 4:
        return operand(depth - 1) + "\x02IS\x02" + (drawInt(2) == 0 ? "NULL" : "NOT\x02null");
      case 5: {
        const std::string operation =
            *rc::gen::element<std::string>("STARTS\x02with", "ENDS\x02WITH", "CONTAINS");
        std::string left = operand(depth - 1);
        return left + mustGap + operation + mustGap + operand(depth - 1);
      }
      case 6: {
        std::string left = operand(depth - 1);
        return "(" + left + "\x02IN\x02" + operand(depth - 1) + ")";
      }
      case 7: {
        const std::string name = *rc::gen::element<std::string>("size", "n", "my.n", "COUNT");
        return name + "\x01(\x01" + (drawInt(3) == 0 ? "DISTINCT\x02" : "") + list(depth) + ")";
      }
      case 8:
        return "[\x01" + list(depth) + "]";
      case 9: {
        std::string key = drawSchemaName().written;
        return "{\x01" + key + "\x01:\x01" + expression(depth - 1) + "\x01}";
      }
      case 10: {
        std::string text = "CASE\x02WHEN\x02" + expression(depth - 1);
        text += "\x02THEN\x02" + expression(depth - 1);
        return text +
               "\x02"
               "END";
      }
      default:
        if (forbiddenWanted && forbiddenType.empty() && drawInt(2) == 0) {
          return forbiddenElement();
        }
        std::string text = "(" + expression(depth - 1) + ")\x01[" + expression(depth - 1);
        return text + (drawInt(2) == 0 ? "]" : "..]");
    }
  }

  std::string operand(int depth) { return "(\x01" + expression(depth) + "\x01)"; }

  std::string list(int depth) {
    std::string text;
    const int items = drawInt(3);
    for (int i = 0; i < items; ++i) {
      text += (i == 0 ? "" : ",\x01") + operand(depth - 1) + mayGap;
    }
    return text;
  }

  static std::string literal() {
    return *rc::gen::element<std::string>("1", "0x1F", "1.5e-3", "'n `n` \\' '", "\"n\"", "null",
                                          "TRUE", "$n", "$0", "count(\x01*\x01)", "[]", "{}");
  }

  std::string access() {
    const Name variable = drawVariable();
    std::string text = variable.written;
    Access access;
    for (int i = drawInt(3); i > 0; --i) {
      const Name key = drawSchemaName();
      text += "\x01.\x01" + key.written;
      access.first.push_back(key.quoted);
    }
    for (int i = drawInt(4) == 0 ? 1 + drawInt(2) : 0; i > 0; --i) {
      const Name label = drawSchemaName();
      text += "\x01:\x01" + label.written;
      access.second.insert(label.quoted);
    }
    Usage& usage = usages[variable.quoted];
    usage.writtenForms.insert(variable.written);
    usage.accesses.insert(access);
    return text;
  }

  std::string forbiddenElement() {
    switch (drawInt(5)) {
      case 0:
        forbiddenType = "OC_ListComprehension";
        return "[\x01x\x02IN\x02n.list\x01|\x01(x)-->()\x01]";
      case 1:
        forbiddenType = "OC_PatternComprehension";
        return "[\x01p\x01=\x01(n)\x01-\x01[r]\x01-\x01>\x01(m)\x01|\x01p\x01]";
      case 2:
        forbiddenType = "OC_Quantifier";
        return "none\x01(\x01x\x02IN\x02n.list\x02where\x02x\x01>\x01"
               "1\x01)";
      case 3:
        forbiddenType = "OC_PatternPredicate";
        return "(\x01n\x01)\x01<\x01-\x01-\x01(\x01)";
      default:
        forbiddenType = "OC_ExistentialSubquery";
        return "exists\x01{\x01MATCH\x01(n)\x01return\x02n\x01}";
    }
  }

  bool forbiddenWanted = false;
  std::string forbiddenType;
  Usages usages;
};

}  // namespace

rc::Gen<GeneratedFilter> genFilter() {
  return rc::gen::exec([] { return FilterWriter().write(false); });
}

rc::Gen<GeneratedFilter> genForbiddenFilter() {
  return rc::gen::exec([] { return FilterWriter().write(true); });
}

void showValue(const GeneratedFilter& filter, std::ostream& out) { out << plain(filter.text); }
