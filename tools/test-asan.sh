#!/bin/sh
# Runs the tests under AddressSanitizer, UndefinedBehaviorSanitizer and LeakSanitizer, all but those
# that cannot say anything there.
set -eu

# How deep a text fits a stack: instrumented functions take several times the stack.
depths='OfTwoThousandLevelsFits|OfThirtyLevelsFits|StackOfASignalHandler|StackThatIsNearlyUsedUp'
# AddressSanitizer does not follow a program that switches stacks by itself.
coroutines='StackOfACoroutine'
# Compilers and interpreters that are not instrumented start or load what is.
hosts='documents|exported_symbols'

ctest --preset asan --exclude-regex "$depths|$coroutines|^($hosts)\$"
