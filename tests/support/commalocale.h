// A locale whose decimal mark is a comma: few machines have one, so it is made.
#pragma once

#include <gtest/gtest.h>

#include <clocale>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

namespace test {

/// Calls something in such a locale. The test is skipped where none can be made.
template <class Call> void inCommaLocale(Call call) {
  std::string directory = testing::TempDir() + "orbchartXXXXXX";
  ASSERT_NE(mkdtemp(directory.data()), nullptr);
  const std::string source = directory + "/source", locale = directory + "/comma";
  std::ofstream(source) << "LC_NUMERIC\ndecimal_point \",\"\nthousands_sep \".\"\ngrouping 3\nEND LC_NUMERIC\n";
  const int status = std::system(("localedef -c -i " + source + " " + locale + " 2>/dev/null").c_str());
  setenv("LOCPATH", directory.c_str(), 1);
  const bool isEntered = std::setlocale(LC_NUMERIC, "comma") != nullptr;
  if (isEntered) {
    EXPECT_STREQ(std::localeconv()->decimal_point, ",");
    call();
    std::setlocale(LC_NUMERIC, "C");
  }
  unsetenv("LOCPATH");
  std::filesystem::remove_all(directory);
  if (!isEntered)
    GTEST_SKIP() << "localedef ended with " << status << "; it needs the package locales";
}

} // namespace test
