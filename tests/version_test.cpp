// The version that the library tells.
#include <orbchartversion.h>

#include <gtest/gtest.h>

#include <string>

TEST(Version, TheTextIsThatOfTheNumbers) {
  EXPECT_EQ(ORBCHART_VERSION, std::to_string(ORBCHART_VERSION_MAJOR) + "." + std::to_string(ORBCHART_VERSION_MINOR) +
                                  "." + std::to_string(ORBCHART_VERSION_PATCH));
}

TEST(Version, TheLibraryThatRunsIsTheOneWeWereCompiledWith) { EXPECT_STREQ(orbchartVersion(), ORBCHART_VERSION); }
