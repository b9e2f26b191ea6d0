// What the project promises about itself: its first program, and the header that includes all.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

namespace {

const std::filesystem::path root = ORBCHART_SOURCE_DIR;

std::string contentOf(const std::filesystem::path& path) {
  std::ostringstream content;
  content << std::ifstream(path).rdbuf();
  return content.str();
}

} // namespace

TEST(Project, TheReadmeShowsWhatTheProgramAndTheSmallestExamplePrint) {
  const std::string readme = contentOf(root / "README.md");
  EXPECT_NE(readme.find("```cpp\n" + contentOf(root / "examples/smallest.cpp") + "```"), std::string::npos);
  EXPECT_NE(readme.find("```xml\n" + contentOf(root / "examples/expected/smallest.xml") + "```"), std::string::npos);
  EXPECT_NE(readme.find("```\n" + contentOf(root / "tests/orbml/readme.transcript") + "```"), std::string::npos);
}

TEST(Project, OneHeaderIncludesAllOthers) {
  const std::string all = contentOf(root / "orbchart/include/orbchart.h");
  for (const auto& entry : std::filesystem::directory_iterator(root / "orbchart/include")) {
    const std::string name = entry.path().filename().string();
    EXPECT_TRUE(name == "orbchart.h" || all.find("#include \"" + name + "\"") != std::string::npos) << name;
  }
}
