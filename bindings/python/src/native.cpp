// The questions of the C interface as Python functions. Their answers are lists and tuples, whose
// parts the package's __init__.py names.

#include <nanobind/nanobind.h>
#include <nanobind/stl/pair.h>
#include <nanobind/stl/vector.h>

#include <algorithm>
#include <cstddef>
#include <memory>
#include <string_view>
#include <utility>
#include <vector>

#include "vorn/vorn_c.h"

namespace nb = nanobind;

namespace {

struct Release {
  void operator()(vorn_answer* answer) const { vorn_release(answer); }
};
using Answer = std::unique_ptr<vorn_answer, Release>;

// A text as UTF-8. An unpaired surrogate becomes three bytes, which the library refuses.
class Utf8 {
 public:
  explicit Utf8(const nb::str& text)
      : bytes_(
            nb::steal<nb::bytes>(PyUnicode_AsEncodedString(text.ptr(), "utf-8", "surrogatepass"))) {
    if (!bytes_.is_valid()) {
      throw nb::python_error();
    }
  }

  [[nodiscard]] const char* first() const { return bytes_.c_str(); }
  [[nodiscard]] std::size_t length() const { return bytes_.size(); }

  // The number of code points before a place that is given in bytes.
  [[nodiscard]] std::size_t codePointsBefore(std::size_t place) const {
    const std::string_view before(first(), place);
    return static_cast<std::size_t>(std::count_if(before.begin(), before.end(), [](char byte) {
      return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U;
    }));
  }

 private:
  nb::bytes bytes_;
};

// The string that an accessor of the C interface gives.
template <typename Accessor, typename... Indices>
nb::str read(const Accessor& accessor, const Answer& answer, Indices... indices) {
  std::size_t length = 0;
  const char* const first = accessor(answer.get(), indices..., &length);
  return nb::str(first, length);
}

// The strings of all items that another function counts.
template <typename Count, typename Accessor, typename... Indices>
nb::list readAll(const Count& count, const Accessor& accessor, const Answer& answer,
                 Indices... indices) {
  nb::list all;
  for (std::size_t i = 0; i != count(answer.get(), indices...); ++i) {
    all.append(read(accessor, answer, indices..., i));
  }
  return all;
}

[[noreturn]] void raiseError(const Utf8& text, const Answer& answer) {
  const nb::object error = nb::module_::import_("vornlib").attr("_error")(
      vorn_error_kind(answer.get()), read(vorn_error_message_utf8, answer),
      vorn_error_line(answer.get()), vorn_error_column(answer.get()),
      text.codePointsBefore(vorn_error_offset(answer.get())),
      read(vorn_error_element_utf8, answer));
  PyErr_SetObject(error.type().ptr(), error.ptr());
  throw nb::python_error();
}

// Asks with the interpreter's lock released.
template <typename Question>
Answer ask(const Utf8& text, const Question& question) {
  Answer answer;
  {
    const nb::gil_scoped_release released;
    answer.reset(question(text.first(), text.length()));
  }
  if (vorn_error_kind(answer.get()) != VORN_NO_ERROR) {
    raiseError(text, answer);
  }
  return answer;
}

nb::list columnsOf(const nb::str& query) {
  const Answer answer = ask(Utf8(query), vorn_columns_utf8);
  nb::list columns;
  for (std::size_t i = 0; i != vorn_column_count(answer.get()); ++i) {
    columns.append(
        nb::make_tuple(read(vorn_column_name_utf8, answer, i), vorn_column_type(answer.get(), i)));
  }
  return columns;
}

nb::list usagesOf(const nb::str& expression) {
  const Answer answer = ask(Utf8(expression), vorn_usages_utf8);
  nb::list variables;
  for (std::size_t i = 0; i != vorn_variable_count(answer.get()); ++i) {
    nb::list accesses;
    for (std::size_t j = 0; j != vorn_access_count(answer.get(), i); ++j) {
      accesses.append(nb::make_tuple(readAll(vorn_property_count, vorn_property_utf8, answer, i, j),
                                     readAll(vorn_label_count, vorn_label_utf8, answer, i, j)));
    }
    variables.append(nb::make_tuple(
        read(vorn_variable_name_utf8, answer, i),
        readAll(vorn_written_form_count, vorn_written_form_utf8, answer, i), accesses));
  }
  return variables;
}

using Renames = std::vector<std::pair<nb::str, nb::str>>;

// The filter with the new names, and where its expression ends.
nb::tuple renamingOf(const nb::str& expression, const Renames& renames) {
  const Utf8 text(expression);
  std::vector<std::pair<Utf8, Utf8>> names;
  std::vector<vorn_rename_pair_utf8> pairs;
  for (const auto& [from, to] : renames) {
    const auto& [old, fresh] = names.emplace_back(Utf8(from), Utf8(to));
    pairs.push_back({old.first(), old.length(), fresh.first(), fresh.length()});
  }
  const Answer answer = ask(text, [&](const char* first, std::size_t length) {
    return vorn_rename_utf8(first, length, pairs.data(), pairs.size());
  });
  return nb::make_tuple(read(vorn_renamed_utf8, answer),
                        text.codePointsBefore(vorn_expression_end(answer.get())));
}

}  // namespace

NB_MODULE(_native, module) {
  module.def("columns", &columnsOf, nb::arg("query"));
  module.def("usages", &usagesOf, nb::arg("expression"));
  module.def("rename", &renamingOf, nb::arg("expression"), nb::arg("renames"));
  module.def("version", &vorn_version);
}
