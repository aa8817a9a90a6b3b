// Uses every exported member of the string classes. The exit status is the number of failed checks.

#include <vorn/strings/BString.h>
#include <vorn/strings/String.h>
#include <vorn/strings/StringArray.h>
#include <vorn/vorn.h>

#include <cstdio>
#include <memory>
#include <string>
#include <string_view>
#include <utility>

namespace {

int failures = 0;

void check(bool holds, const char* what) {
  if (!holds) {
    ++failures;
    std::printf("does not hold: %s\n", what);
  }
}

#define CHECK(condition) check(condition, #condition)

vorn::WideString wide(std::string_view ascii) { return {ascii.begin(), ascii.end()}; }

String string(std::string_view ascii) { return String(wide(ascii).c_str()); }

using View = std::basic_string_view<vorn::WideChar>;

// An explicit instantiation may name private members. So this host reaches the private members that
// the library exports.
template <typename Member, Member member>
struct Reach {
  friend Member reach(Member) { return member; }
};
using SetLength = void (String::*)(unsigned long) noexcept;
using CompareElements = int (*)(const void*, const void*);
SetLength reach(SetLength);
CompareElements reach(CompareElements);
template struct Reach<SetLength, &String::SetLengthImpl>;
template struct Reach<CompareElements, &StringArray::Compare>;

int descending(const void* left, const void* right) {
  return reach(CompareElements())(right, left);
}

void useString() {
  const String none;
  CHECK(none.IsEmpty());
  CHECK(String(1, nullptr).IsEmpty());

  String text = string("Ada");
  CHECK(static_cast<const vorn::WideChar*>(text)[2] == 'a');
  const View view = text;
  CHECK(view == wide("Ada"));
  CHECK(text.GetAt(0) == 'A');
  CHECK(text.GetLength() == 3);
  CHECK(text.GetByteLength() == 3);
  CHECK(text.GetEucByteLength() == 3);
  CHECK(text.CompareNoCase(wide("aDA").c_str()) == 0);
  CHECK(text.Compare(wide("Ada").c_str()) == 0);
  CHECK(text.ConcatImpl(wide(" L").c_str(), 2).GetLength() == 5);
  (text.*reach(SetLength()))(3);
  CHECK(text.GetLength() == 3);

  String moved(std::move(text));
  String assigned;
  assigned = std::move(moved);
  CHECK(assigned.GetLength() == 3);
  assigned.Empty();
  CHECK(assigned.IsEmpty());
  CHECK(!assigned.LoadStringW(1, nullptr));
}

void useStringArray() {
  String a = string("a");
  String b = string("b");
  String* elements[] = {&b, &a};
  StringArray array(elements, 2);
  CHECK(array.GetSize() == 2);
  array.Sort();
  CHECK(elements[0] == &a);
  array.Sort(descending);
  CHECK(elements[0] == &b);
}

void useBString() {
  const BString null;
  CHECK(null == nullptr);
  CHECK(BString(2L).GetLength() == 2);
  CHECK(BString("", 0).IsEmpty());

  const String source = string("ab");
  BString text(source);
  const View view = text;
  CHECK(view == wide("ab"));

  vorn::WideString ab = wide("ab");
  vorn::WideString b = wide("b");
  char narrowB[] = "b";
  const BString bText("b", 0);
  CHECK(text == BString(source));
  CHECK(text == ab.data());
  CHECK(text == source);
  CHECK(text == "ab");
  CHECK(text != null);
  CHECK(text != b.data());
  CHECK(text != string("b"));
  CHECK(text != "b");
  CHECK(text != nullptr);
  CHECK(text < bText);
  CHECK(text < b.data());
  CHECK(text < narrowB);

  CHECK(text.Append(b.c_str(), 1) == 0);
  CHECK(text.Append(bText) == 0);
  CHECK(text.Append(b.c_str()) == 0);
  BSTR made = source.MakeBSTR();
  CHECK(text.AppendBSTR(made) == 0);
  text += bText;
  CHECK(text == "abbbbabb");

  BString other;
  other.Attach(made);
  other.Attach(text);
  CHECK(text == nullptr);
  text.Attach(other.Detach());
  BString moved(std::move(text));
  text = std::move(moved);
  CHECK(text.GetLength() == 8);
  BSTR* place = &text;
  CHECK(*place == nullptr);
}

}  // namespace

int main() {
  useString();
  useStringArray();
  useBString();
  return failures;
}
