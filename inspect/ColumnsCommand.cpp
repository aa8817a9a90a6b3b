#include <cstddef>
#include <string>
#include <utility>

#include "Command.h"
#include "Table.h"

namespace inspect {

namespace {

Analysis ask(const Json& request) {
  const std::string& query = textMember(request, "query");
  return Analysis(vorn_columns_utf8(query.data(), query.size()));
}

std::string nameOf(const Analysis& analysis, std::size_t column) {
  return std::string(textOf(analysis, vorn_column_name_utf8, column));
}

const char* typeOf(const Analysis& analysis, std::size_t column) {
  switch (vorn_column_type(analysis.get(), column)) {
    case VORN_NODE:
      return "Node";
    case VORN_RELATIONSHIP:
      return "Relationship";
    case VORN_PATH:
      return "Path";
    case VORN_NODE_OR_RELATIONSHIP:
      return "NodeOrRelationship";
    default:
      return "Unknown";
  }
}

OrderedJson json(const Analysis& analysis) {
  OrderedJson columns = OrderedJson::array();
  for (std::size_t i = 0; i < vorn_column_count(analysis.get()); ++i) {
    columns.push_back({{"name", nameOf(analysis, i)}, {"type", typeOf(analysis, i)}});
  }
  return {{"status", 0}, {"columns", std::move(columns)}};
}

std::string report(const Analysis& analysis) {
  if (vorn_column_count(analysis.get()) == 0) {
    return "The query returns no columns.\n";
  }
  Table table({"Column", "Type"});
  for (std::size_t i = 0; i < vorn_column_count(analysis.get()); ++i) {
    table.addRow({nameOf(analysis, i), typeOf(analysis, i)});
  }
  return table.text();
}

}  // namespace

const Command columnsCommand = {
    "columns",
    "Show which columns a query returns, and what each holds",
    "query",
    "query",
    false,
    false,
    R"({"query":"MATCH (n) RETURN n"}
    {"status":0,"columns":[{"name":"n","type":"Node"}]})",
    ask,
    json,
    report,
};

}  // namespace inspect
