// Files written by hand that a writer's output is held against, byte by byte.
#pragma once

#include <gtest/gtest.h>

#include <string>

namespace quillon::test {

/// The bytes of a file below tests/golden; a test failure where there is none.
std::string GoldenFile(const std::string& name);

/// Reports the first difference by line and byte, since a whole file in a failure message would be
/// useless.
testing::AssertionResult SameBytes(const std::string& actual, const std::string& expected);

} // namespace quillon::test
