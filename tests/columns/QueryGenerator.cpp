#include "QueryGenerator.h"

#include <map>

#include "support/Gaps.h"

using vorn::CypherType;

namespace {

constexpr char aliasMark = '\x03';

struct Name {
  std::string written;
  std::string meant;
};

// The meaning of each name is written out, so that the expected columns do not depend on the
// library.
const std::vector<Name>& names() {
  static const std::vector<Name> all = {
      {"n", "n"},
      {"m", "m"},
      {"a", "a"},
      {"F", "F"},
      {"`n`", "n"},
      {"person", "person"},
      {"`my node`", "my node"},
      {"`we``ird`", "we`ird"},
      {"count", "count"},
      {"filter", "filter"},
      {"名前", "名前"},
      {"`𠮷 \"'`", "𠮷 \"'"},
      {"_x1$", "_x1$"},
      {"Any", "Any"},
      {"``", ""},
      {"`RETURN`", "RETURN"},
  };
  return all;
}

Name drawName() { return *rc::gen::elementOf(names()); }

int drawInt(int below) { return *rc::gen::inRange(0, below); }

class QueryWriter {
 public:
  GeneratedQuery write() {
    const int branches = 1 + (drawInt(3) == 0 ? 1 + drawInt(2) : 0);
    for (int i = 0; i < branches; ++i) {
      if (i > 0) {
        text += drawInt(2) == 0 ? "\x02UNION\x02"
                                : "\x02UnIoN\x02"
                                  "ALL\x02";
        earlier.push_back(columns);
      }
      branch(i + 1 == branches);
    }
    for (const Columns& before : earlier) {
      merge(before);
    }
    return {text, columns, aliases, aliasColumns};
  }

 private:
  void branch(bool isLast) {
    const int clauses = drawInt(4);
    for (int i = 0; i < clauses; ++i) {
      switch (drawInt(4)) {
        case 0:
          unwind();
          break;
        case 1:
          projection("WITH", true, false);
          break;
        default:
          match();
      }
      text += mustGap;
    }
    projection("return", false, isLast);
  }

  std::string bind(CypherType type) {
    const Name name = drawName();
    scope[name.meant] = type;
    return name.written;
  }

  void match() {
    text += drawInt(4) == 0 ? "OPTIONAL\x02match\x02" : "MATCH\x02";
    if (drawInt(3) == 0) {
      text += bind(CypherType::Path) + "\x01=\x01";
    }
    nodePattern();
    const int hops = drawInt(3);
    for (int i = 0; i < hops; ++i) {
      text += drawInt(2) == 0 ? "<-\x01" : "—";
      if (drawInt(3) != 0) {
        text += "[\x01" + (drawInt(4) == 0 ? "" : bind(CypherType::Relationship) + "\x01");
        text += drawInt(2) == 0 ? ":R|:S\x01" : "";
        text += drawInt(3) == 0 ? "*1..2\x01]" : "]";
      }
      text += "\x01-\x01";
      nodePattern();
    }
  }

  void nodePattern() {
    text += "(\x01" + (drawInt(4) == 0 ? "" : bind(CypherType::Node) + "\x01");
    text += drawInt(3) == 0 ? ":`A b`\x01{k:\x01"
                              "1}\x01)"
                            : ")";
  }

  void unwind() {
    text +=
        "UNWIND\x01[1,\x01"
        "2]\x02"
        "AS\x02";
    text += bind(CypherType::Unknown);
  }

  void projection(const std::string& keyword, bool isWith, bool isLast) {
    columns.clear();
    std::map<std::string, CypherType> newScope;
    text += keyword + mustGap + (drawInt(5) == 0 ? "DISTINCT\x02" : "");
    int items = 1 + drawInt(4);
    if (drawInt(5) == 0) {
      text += "*";
      for (const auto& [name, type] : scope) {
        newScope[name] = type;
        columns.emplace_back(name, type);
      }
      --items;
      text += items > 0 ? "\x01,\x01" : "";
    }
    for (int i = 0; i < items; ++i) {
      text += i > 0 ? "\x01,\x01" : "";
      item(newScope, isLast);
    }
    if (isWith) {
      scope = newScope;
    }
  }

  void item(std::map<std::string, CypherType>& newScope, bool isLast) {
    Name expression;
    if (drawInt(2) == 0) {
      expression = drawName();
    } else {
      const Name name = drawName();
      switch (drawInt(4)) {
        case 0:
          expression = {name.written + ".`the key`", name.meant + ".the key"};
          break;
        case 1:
          expression = {"size( " + name.written + " )", "size( " + name.meant + " )"};
          break;
        case 2:
          expression = {"1 + " + name.written, "1 + " + name.meant};
          break;
        default:
          expression = {"'\\'" + std::to_string(drawInt(9)) + "'", ""};
          expression.meant = expression.written;
      }
    }
    const auto found = scope.find(expression.meant);
    const CypherType type = found == scope.end() ? CypherType::Unknown : found->second;
    text += expression.written;
    if (drawInt(2) == 0) {
      const Name alias = drawName();
      text +=
          "\x02"
          "AS\x02" +
          (isLast ? std::string(1, aliasMark) : alias.written);
      if (isLast) {
        aliases.push_back(alias.written);
        aliasColumns.push_back(columns.size());
      }
      newScope[alias.meant] = type;
      columns.emplace_back(alias.meant, type);
    } else {
      if (type != CypherType::Unknown) {
        newScope[expression.meant] = type;
      }
      columns.emplace_back(expression.meant, type);
    }
  }

  void merge(const Columns& before) {
    const auto isEntity = [](CypherType type) {
      return type == CypherType::Node || type == CypherType::Relationship ||
             type == CypherType::NodeOrRelationship;
    };
    for (std::size_t i = 0; i < columns.size() && i < before.size(); ++i) {
      CypherType& type = columns[i].second;
      if (type != before[i].second) {
        type = isEntity(type) && isEntity(before[i].second) ? CypherType::NodeOrRelationship
                                                            : CypherType::Unknown;
      }
    }
  }

  std::string text;
  std::map<std::string, CypherType> scope;
  Columns columns;
  std::vector<Columns> earlier;
  std::vector<std::string> aliases;
  std::vector<std::size_t> aliasColumns;
};

}  // namespace

rc::Gen<GeneratedQuery> genQuery() {
  return rc::gen::exec([] { return QueryWriter().write(); });
}

std::string GeneratedQuery::textWith(const std::vector<std::string>& someAliases) const {
  std::string withAliases;
  auto alias = someAliases.begin();
  for (const char c : text) {
    if (c == aliasMark) {
      withAliases += *alias++;
    } else {
      withAliases += c;
    }
  }
  return withAliases;
}

void showValue(const GeneratedQuery& query, std::ostream& out) {
  out << plain(query.textWithOwnAliases());
}
