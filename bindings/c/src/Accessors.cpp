// The functions that read an answer. They give null, zero or unknown for an index that does not
// exist, and for a string in the other encoding.

#include "Answer.h"

namespace {

using vorn::Access;
using vorn::Column;
using vorn::Text;
using vorn::Units;
using vorn::Variable;

template <typename Item>
const Item* itemOf(const std::vector<Item>& items, std::size_t index) noexcept {
  return index < items.size() ? &items[index] : nullptr;
}

template <typename Unit>
const Unit* unitsOf(const Text* text, std::size_t* length) noexcept {
  const auto* const found = std::get_if<Units<Unit>>(text);
  if (length != nullptr) {
    *length = found == nullptr ? 0 : found->length;
  }
  return found == nullptr ? nullptr : found->first;
}

const Text* columnName(const vorn_answer& answer, std::size_t index) noexcept {
  const Column* const column = itemOf(answer.columns, index);
  return column == nullptr ? nullptr : &column->name;
}

const Text* variableName(const vorn_answer& answer, std::size_t index) noexcept {
  const Variable* const variable = itemOf(answer.variables, index);
  return variable == nullptr ? nullptr : &variable->name;
}

const Text* writtenForm(const vorn_answer& answer, std::size_t index, std::size_t form) noexcept {
  const Variable* const variable = itemOf(answer.variables, index);
  return variable == nullptr ? nullptr : itemOf(variable->writtenForms, form);
}

const Access* accessOf(const vorn_answer& answer, std::size_t index, std::size_t access) noexcept {
  const Variable* const variable = itemOf(answer.variables, index);
  return variable == nullptr ? nullptr : itemOf(variable->accesses, access);
}

const Text* propertyOf(const Access* access, std::size_t property) noexcept {
  return access == nullptr ? nullptr : itemOf(access->properties, property);
}

const Text* labelOf(const Access* access, std::size_t label) noexcept {
  return access == nullptr ? nullptr : itemOf(access->labels, label);
}

const Text* renamedOf(const vorn_answer& answer) noexcept {
  return answer.renamed ? &*answer.renamed : nullptr;
}

}  // namespace

std::int32_t vorn_error_kind(const vorn_answer* answer) { return answer->error.kind; }

std::size_t vorn_error_line(const vorn_answer* answer) { return answer->error.line; }

std::size_t vorn_error_column(const vorn_answer* answer) { return answer->error.column; }

std::size_t vorn_error_offset(const vorn_answer* answer) { return answer->error.offset; }

const char* vorn_error_message_utf8(const vorn_answer* answer, std::size_t* length) {
  return unitsOf<char>(&answer->error.message, length);
}

const std::uint16_t* vorn_error_message_utf16(const vorn_answer* answer, std::size_t* length) {
  return unitsOf<std::uint16_t>(&answer->error.message, length);
}

const char* vorn_error_element_utf8(const vorn_answer* answer, std::size_t* length) {
  return unitsOf<char>(&answer->error.element, length);
}

const std::uint16_t* vorn_error_element_utf16(const vorn_answer* answer, std::size_t* length) {
  return unitsOf<std::uint16_t>(&answer->error.element, length);
}

std::size_t vorn_column_count(const vorn_answer* answer) { return answer->columns.size(); }

const char* vorn_column_name_utf8(const vorn_answer* answer, std::size_t column,
                                  std::size_t* length) {
  return unitsOf<char>(columnName(*answer, column), length);
}

const std::uint16_t* vorn_column_name_utf16(const vorn_answer* answer, std::size_t column,
                                            std::size_t* length) {
  return unitsOf<std::uint16_t>(columnName(*answer, column), length);
}

std::int32_t vorn_column_type(const vorn_answer* answer, std::size_t column) {
  const Column* const found = itemOf(answer->columns, column);
  return found == nullptr ? VORN_UNKNOWN : found->type;
}

std::size_t vorn_variable_count(const vorn_answer* answer) { return answer->variables.size(); }

const char* vorn_variable_name_utf8(const vorn_answer* answer, std::size_t variable,
                                    std::size_t* length) {
  return unitsOf<char>(variableName(*answer, variable), length);
}

const std::uint16_t* vorn_variable_name_utf16(const vorn_answer* answer, std::size_t variable,
                                              std::size_t* length) {
  return unitsOf<std::uint16_t>(variableName(*answer, variable), length);
}

std::size_t vorn_written_form_count(const vorn_answer* answer, std::size_t variable) {
  const Variable* const found = itemOf(answer->variables, variable);
  return found == nullptr ? 0 : found->writtenForms.size();
}

const char* vorn_written_form_utf8(const vorn_answer* answer, std::size_t variable,
                                   std::size_t form, std::size_t* length) {
  return unitsOf<char>(writtenForm(*answer, variable, form), length);
}

const std::uint16_t* vorn_written_form_utf16(const vorn_answer* answer, std::size_t variable,
                                             std::size_t form, std::size_t* length) {
  return unitsOf<std::uint16_t>(writtenForm(*answer, variable, form), length);
}

std::size_t vorn_access_count(const vorn_answer* answer, std::size_t variable) {
  const Variable* const found = itemOf(answer->variables, variable);
  return found == nullptr ? 0 : found->accesses.size();
}

std::size_t vorn_property_count(const vorn_answer* answer, std::size_t variable,
                                std::size_t access) {
  const Access* const found = accessOf(*answer, variable, access);
  return found == nullptr ? 0 : found->properties.size();
}

const char* vorn_property_utf8(const vorn_answer* answer, std::size_t variable, std::size_t access,
                               std::size_t property, std::size_t* length) {
  return unitsOf<char>(propertyOf(accessOf(*answer, variable, access), property), length);
}

const std::uint16_t* vorn_property_utf16(const vorn_answer* answer, std::size_t variable,
                                         std::size_t access, std::size_t property,
                                         std::size_t* length) {
  return unitsOf<std::uint16_t>(propertyOf(accessOf(*answer, variable, access), property), length);
}

std::size_t vorn_label_count(const vorn_answer* answer, std::size_t variable, std::size_t access) {
  const Access* const found = accessOf(*answer, variable, access);
  return found == nullptr ? 0 : found->labels.size();
}

const char* vorn_label_utf8(const vorn_answer* answer, std::size_t variable, std::size_t access,
                            std::size_t label, std::size_t* length) {
  return unitsOf<char>(labelOf(accessOf(*answer, variable, access), label), length);
}

const std::uint16_t* vorn_label_utf16(const vorn_answer* answer, std::size_t variable,
                                      std::size_t access, std::size_t label, std::size_t* length) {
  return unitsOf<std::uint16_t>(labelOf(accessOf(*answer, variable, access), label), length);
}

const char* vorn_renamed_utf8(const vorn_answer* answer, std::size_t* length) {
  return unitsOf<char>(renamedOf(*answer), length);
}

const std::uint16_t* vorn_renamed_utf16(const vorn_answer* answer, std::size_t* length) {
  return unitsOf<std::uint16_t>(renamedOf(*answer), length);
}

std::size_t vorn_expression_end(const vorn_answer* answer) { return answer->expressionEnd; }
