#include <cstdint>

// A host's own class String, whose members have the same names as the library's. In a real host it
// would be internal to another library, so no header declares it.
class String {
 public:
  std::uint32_t GetLength() const noexcept;
  void SetLengthImpl(unsigned long n) noexcept;

 private:
  std::uint32_t length = 0;
};

std::uint32_t String::GetLength() const noexcept { return length; }
void String::SetLengthImpl(unsigned long n) noexcept { length = static_cast<std::uint32_t>(n); }
