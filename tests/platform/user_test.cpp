#include "support/user.h"

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

namespace {

TEST(UserTest, FailsForAnotherTextAndIconThanExpected) {
  testing::TestPartResultArray failures;
  {
    testing::ScopedFakeTestPartResultReporter reporter(&failures);
    User user;
    user.Answer("Caption", "expected", MB_ICONHAND, IDOK);
    MessageBoxA(nullptr, "shown", "Caption", MB_OK | MB_ICONEXCLAMATION);
  }
  ASSERT_EQ(failures.size(), 2);
  EXPECT_NE(std::string(failures.GetTestPartResult(0).message()).find("\"expected\""),
            std::string::npos);
}

}  // namespace
