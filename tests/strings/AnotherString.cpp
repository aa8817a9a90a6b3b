#include <cstdint>

// A host's own class String, with members by the same names as the library's. This is another
// library's internal affair in a real host, so no header tells of it.
class String {
 public:
  std::uint32_t GetLength() const noexcept;
  void SetLengthImpl(unsigned long n) noexcept;

 private:
  std::uint32_t length = 0;
};

std::uint32_t String::GetLength() const noexcept { return length; }
void String::SetLengthImpl(unsigned long n) noexcept { length = static_cast<std::uint32_t>(n); }
