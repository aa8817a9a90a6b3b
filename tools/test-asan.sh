#!/bin/sh
# Runs the tests under AddressSanitizer, UndefinedBehaviorSanitizer and LeakSanitizer, all but those
# that cannot say anything there.
set -eu

# How deep a text fits a stack: instrumented functions, and the allocator that records who called it,
# take several times the stack that is reserved for them. Nor are stacks followed that a program
# switches by itself.
stacks='nesting_test|unusual_stacks_test'
# Compilers and interpreters that are not instrumented start or load what is.
hosts='documents|exported_symbols'
# Takes a quarter of an hour instrumented, and counts what stays by itself.
long='AThousandTimes'
# The runtime loses an object in some of the places where an allocation fails. These tests count what
# is lost, and bound it.
losses='InALaterCallLeaveTheNextOneRight|LeaveTheTablesSound'
# After the static objects are gone, the runtime's default walker is called by its address, which its
# class still answers, but not to the sanitizer's liking.
end='ACallThatTheHostMakesThen'

ctest --preset asan --label-exclude "^($stacks)\$" --exclude-regex "^($hosts)\$|$losses|$long|$end"
ASAN_OPTIONS=detect_leaks=0 ctest --preset asan --tests-regex "$losses"
