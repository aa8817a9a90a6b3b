#include <vorn/vorn.h>

#include <optional>
#include <stdexcept>
#include <utility>
#include <vector>

#include "Command.h"
#include "Request.h"
#include "Table.h"
#include "Utf16.h"

namespace inspect {

namespace {

using Columns = std::vector<std::pair<vorn::WideString, vorn::CypherType>>;

const char* nameOf(vorn::CypherType type) {
  switch (type) {
    case vorn::CypherType::Node:
      return "Node";
    case vorn::CypherType::Relationship:
      return "Relationship";
    case vorn::CypherType::Path:
      return "Path";
    case vorn::CypherType::NodeOrRelationship:
      return "NodeOrRelationship";
    case vorn::CypherType::Unknown:
      break;
  }
  return "Unknown";
}

std::optional<Columns> columnsOf(const Json& request) {
  Columns columns;
  if (vorn::GetOutputNamesAndTypes(toUtf16(textMember(request, "query")), columns) != 0) {
    return std::nullopt;
  }
  return columns;
}

Answer answer(const Json& request) {
  const std::optional<Columns> columns = columnsOf(request);
  OrderedJson json;
  if (!columns) {
    json["status"] = 1;
    return {std::move(json), false};
  }
  json["status"] = 0;
  OrderedJson& list = json["columns"] = OrderedJson::array();
  for (const auto& [name, type] : *columns) {
    list.push_back({{"name", toUtf8(name)}, {"type", nameOf(type)}});
  }
  return {std::move(json), true};
}

std::string report(const Json& request) {
  const std::optional<Columns> columns = columnsOf(request);
  if (!columns) {
    throw std::runtime_error("The text is no openCypher query.");
  }
  if (columns->empty()) {
    return "The query returns no columns.\n";
  }
  Table table({"Column", "Type"});
  for (const auto& [name, type] : *columns) {
    table.addRow({toUtf8(name), nameOf(type)});
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
    R"({"query":"MATCH (n) RETURN n"}
    {"status":0,"columns":[{"name":"n","type":"Node"}]})",
    answer,
    report,
};

}  // namespace inspect
