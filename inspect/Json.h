#pragma once

#include <nlohmann/json.hpp>

namespace inspect {

/// What is read. Members are found quickly, however many there are.
using Json = nlohmann::json;

/// What is written. Members stay in the order in which they are put in.
using OrderedJson = nlohmann::ordered_json;

}  // namespace inspect
