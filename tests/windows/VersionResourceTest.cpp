#include <gtest/gtest.h>
#include <windows.h>

#include <string>
#include <vector>

#include "robustness/LoadedLibrary.h"

namespace {

std::string textOf(const LoadedLibrary& library, const std::string& name) {
  std::vector<char> path(MAX_PATH);
  GetModuleFileNameA(static_cast<HMODULE>(library.handle()), path.data(), MAX_PATH);
  std::vector<char> block(GetFileVersionInfoSizeA(path.data(), nullptr));
  GetFileVersionInfoA(path.data(), 0, static_cast<DWORD>(block.size()), block.data());
  void* text = nullptr;
  UINT length = 0;
  const std::string query = "\\StringFileInfo\\040904B0\\" + name;
  return VerQueryValueA(block.data(), query.c_str(), &text, &length) != 0
             ? static_cast<const char*>(text)
             : "there is no " + name;
}

}  // namespace

TEST(TheVersionResource, TellsNameAndVersion) {
  const LoadedLibrary library;
  EXPECT_EQ(textOf(library, "FileVersion"), VORN_VERSION);
  EXPECT_EQ(textOf(library, "ProductVersion"), VORN_VERSION);
  EXPECT_EQ(textOf(library, "ProductName"), "VornLib");
  EXPECT_EQ(textOf(library, "FileDescription"), VORN_DESCRIPTION);
}
