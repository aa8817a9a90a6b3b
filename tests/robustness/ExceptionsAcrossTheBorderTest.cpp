#include <gtest/gtest.h>

#include <exception>
#include <new>
#include <stdexcept>
#include <thread>
#include <typeinfo>

#include "robustness/LoadedLibrary.h"

namespace {

const vorn::WideString forbidden = u"size([x IN n.list | x]) > 0";
const vorn::WideString malformed = u"n.a = ";

// A host that has only the header. The loader keeps its symbols apart from the library.
class ExceptionsAcrossTheBorder : public testing::Test {
 protected:
  const LoadedLibrary library;
  const Calls calls = library.calls();
};

TEST_F(ExceptionsAcrossTheBorder, AForbiddenElementIsALogicErrorOfThatVeryType) {
  try {
    calls.usages(forbidden);
    FAIL();
  } catch (const std::logic_error& error) {
    EXPECT_EQ(typeid(error), typeid(std::logic_error));
  }
}

TEST_F(ExceptionsAcrossTheBorder, AnErrorInTheTextIsNoLogicErrorAndNoLackOfMemory) {
  for (const auto& call : {+[](const Calls& some) { some.usages(malformed); },
                           +[](const Calls& some) { some.renaming(malformed, {}); }}) {
    try {
      call(calls);
      FAIL();
    } catch (const std::logic_error&) {
      FAIL();
    } catch (const std::bad_alloc&) {
      FAIL();
    } catch (const std::exception& error) {
      EXPECT_EQ(std::string(error.what()).substr(0, 9), "line 1:6 ");
    }
  }
}

TEST_F(ExceptionsAcrossTheBorder, AnExceptionMayBeCarriedToAnotherThread) {
  std::exception_ptr carried;
  std::thread([&] {
    try {
      calls.usages(malformed);
    } catch (...) {
      carried = std::current_exception();
    }
  }).join();
  EXPECT_THROW(std::rethrow_exception(carried), std::exception);
}

}  // namespace
