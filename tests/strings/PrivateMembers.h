#pragma once

#include "vorn/strings/String.h"
#include "vorn/strings/StringArray.h"

// An explicit instantiation may name private members. So a host reaches the private members that
// the library exports.

template <typename Member, Member member>
struct Reach {
  friend Member reach(Member /*tag*/) { return member; }
};

using SetLengthImplMember = void (String::*)(unsigned long) noexcept;
using CompareMember = int (*)(const void*, const void*);
SetLengthImplMember reach(SetLengthImplMember tag);
CompareMember reach(CompareMember tag);

template struct Reach<SetLengthImplMember, &String::SetLengthImpl>;
template struct Reach<CompareMember, &StringArray::Compare>;

inline void setLength(String& string, unsigned long n) {
  (string.*reach(SetLengthImplMember()))(n);
}

inline int compareElements(const void* left, const void* right) {
  return reach(CompareMember())(left, right);
}
