#include <Foundation/NSString.h>

#include <gtest/gtest.h>

TEST(NSString, FormatReplacesNumbersOfArguments)
{
    EXPECT_EQ(NSString::stringWithFormat("%2 %1, 1 %3%", { "%2", "b" }), "b %2, 1 %3%");
}
