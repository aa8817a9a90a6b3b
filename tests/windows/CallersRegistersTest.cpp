// Tests that a call preserves the registers that Windows reserves for the caller, including vector
// registers. When the library catches an exception, the unwinder restores them by the compiler's
// notes on each function. A mistake there damages the host, not the library.

#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <numeric>
#include <string>
#include <vector>

#include "support/Text.h"
#include "vorn/vorn.h"

// XMM6 to XMM15, each as two numbers, then RBX, RSI, RDI, RBP and R12 to R15.
using Registers = std::array<std::uint64_t, 28>;

// Puts these values into the registers, makes the call, and stores the values after it.
extern "C" void callWithRegisters(void (*call)(void*), void* argument, Registers* registers);

asm(R"(
	.text
	.globl callWithRegisters
callWithRegisters:
	.irp register, rbp, rbx, rsi, rdi, r12, r13, r14, r15
	pushq %\register
	.endr
	subq $0xc8, %rsp
	movq %r8, 0x20(%rsp)
	.irp number, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15
	movups %xmm\number, 0x28 + 16 * (\number - 6)(%rsp)
	movups 16 * (\number - 6)(%r8), %xmm\number
	.endr
	movq 160(%r8), %rbx
	movq 168(%r8), %rsi
	movq 176(%r8), %rdi
	movq 184(%r8), %rbp
	movq 192(%r8), %r12
	movq 200(%r8), %r13
	movq 208(%r8), %r14
	movq 216(%r8), %r15
	movq %rcx, %rax
	movq %rdx, %rcx
	call *%rax
	movq 0x20(%rsp), %r8
	.irp number, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15
	movups %xmm\number, 16 * (\number - 6)(%r8)
	movups 0x28 + 16 * (\number - 6)(%rsp), %xmm\number
	.endr
	movq %rbx, 160(%r8)
	movq %rsi, 168(%r8)
	movq %rdi, 176(%r8)
	movq %rbp, 184(%r8)
	movq %r12, 192(%r8)
	movq %r13, 200(%r8)
	movq %r14, 208(%r8)
	movq %r15, 216(%r8)
	addq $0xc8, %rsp
	.irp register, r15, r14, r13, r12, rdi, rsi, rbx, rbp
	popq %\register
	.endr
	ret
)");

namespace {

struct Call {
  vorn::WideString text;
  bool isAnswered;
};

// No exception may leave these functions, since the unwinder does not know callWithRegisters.
void askForColumns(void* argument) {
  auto& call = *static_cast<Call*>(argument);
  std::vector<std::pair<vorn::WideString, vorn::CypherType>> columns;
  call.isAnswered = vorn::GetOutputNamesAndTypes(call.text, columns) == 0;
}

void rename(void* argument) {
  auto& call = *static_cast<Call*>(argument);
  try {
    vorn::ReplaceVariableNamesInPropertyFilterOCExpression(call.text, {});
    call.isAnswered = true;
  } catch (const std::exception&) {
    call.isAnswered = false;
  }
}

void expectRegistersKept(void (*ask)(void*), const vorn::WideString& text, bool isAnswered) {
  Call call{text, !isAnswered};
  // The first wrong filter builds the static data, the second one uses it.
  for (int i = 0; i < 2; ++i) {
    Registers registers;
    std::iota(registers.begin(), registers.end(), 0x0123456789abcdefU);
    const Registers before = registers;
    callWithRegisters(ask, &call, &registers);
    EXPECT_EQ(call.isAnswered, isAnswered) << text.size() << " units";
    EXPECT_EQ(registers, before) << text.size() << " units";
  }
}

}  // namespace

TEST(CallersRegisters, StayAsTheyAreWhenATextIsAnswered) {
  expectRegistersKept(askForColumns, wide("MATCH (a)-[r]->(b) WHERE a.x = 1 RETURN a, r.y AS y"),
                      true);
  expectRegistersKept(rename, wide("a.x = 1 AND b.y IN [1, 2]"), true);
}

TEST(CallersRegisters, StayAsTheyAreWhenATextIsRefused) {
  const vorn::WideString unpaired(3, static_cast<vorn::WideChar>(0xD800));
  for (const vorn::WideString& text : {unpaired, wide("RETURN"), wide("RETURN 1 #"),
                                       wide("a.x = 'a"), wide(std::string(99999, '('))}) {
    expectRegistersKept(askForColumns, text, false);
    expectRegistersKept(rename, text, false);
  }
}
