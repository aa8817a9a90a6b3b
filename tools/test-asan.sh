#!/bin/sh
# Runs the tests under AddressSanitizer, UndefinedBehaviorSanitizer and LeakSanitizer, except for those
# that mean nothing there.
set -eu

# Tests of nesting and of stacks: instrumented functions and the sanitizer's allocator take several times
# the stack that is reserved for them. Nor do sanitizers follow stacks that a program switches by itself.
stacks='nesting_test|unusual_stacks_test'
# Programs that are not instrumented start or load instrumented ones there.
hosts='documents|exported_symbols'
# Takes a quarter of an hour when instrumented, and counts leaks without a sanitizer.
long='AThousandTimes'
# The runtime leaks an object in some places when an allocation fails. These tests count the leaks and
# bound them, so they run without LeakSanitizer.
losses='InALaterCallLeaveTheNextOneRight|LeaveTheTablesSound'
# A call at the end of the process uses the runtime's default walker after its destruction. That works,
# since the walker has no state, but the sanitizer reports it.
end='ACallThatTheHostMakesThen'

ctest --preset asan --label-exclude "^($stacks)\$" --exclude-regex "^($hosts)\$|$losses|$long|$end"
ASAN_OPTIONS=detect_leaks=0 ctest --preset asan --tests-regex "$losses"
