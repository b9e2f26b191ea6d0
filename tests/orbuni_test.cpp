// The name pool, held against its own header: a mistyped name or spelling would otherwise show only in a document.
#include "orbuni.h"

#include <gtest/gtest.h>
#include <xercesc/util/XMLString.hpp>

#include <algorithm>
#include <cctype>
#include <fstream>
#include <set>
#include <sstream>
#include <string>
#include <vector>

namespace {

struct Constant {
  std::string name;
  std::string spelling;
};

std::string headerText() {
  std::ostringstream text;
  text << std::ifstream(ORBCHART_SOURCE_DIR "/orbchart/include/orbuni.h").rdbuf();
  return text.str();
}

/// The constants whose spelling the header gives, in its order.
std::vector<Constant> constants() {
  const std::string text = headerText();
  const std::string opening = "static constexpr XMLCh ";
  const std::string middle = "[] = u\"";
  std::vector<Constant> found;
  for (std::size_t at = 0; (at = text.find(opening, at)) != std::string::npos;) {
    at += opening.size();
    const std::size_t nameEnd = text.find(middle, at);
    const std::size_t spelling = nameEnd + middle.size();
    found.push_back({text.substr(at, nameEnd - at), text.substr(spelling, text.find('"', spelling) - spelling)});
  }
  return found;
}

std::string nameFor(const std::string& spelling) {
  if (spelling == "LS")
    return "_implFeatures";
  std::string name = "_" + spelling;
  std::replace_if(
      name.begin(), name.end(), [](char c) { return c == '-' || c == '.'; }, '_');
  return name;
}

std::string lowerCase(std::string text) {
  std::transform(text.begin(), text.end(), text.begin(), [](unsigned char c) { return std::tolower(c); });
  return text;
}

TEST(OrbUni, ConstantsAreNamedAfterTheirSpellings) {
  const std::vector<Constant> all = constants();
  EXPECT_EQ(all.size() + 1, 598u) << "with the namespace, which stands apart";
  std::set<std::string> spellings;
  for (const auto& [name, spelling] : all) {
    EXPECT_EQ(name, nameFor(spelling));
    EXPECT_TRUE(spellings.insert(spelling).second) << spelling << " stands twice";
  }
}

TEST(OrbUni, ConstantsStandInAlphabeticalOrder) {
  const std::vector<Constant> all = constants();
  const auto isBefore = [](const Constant& a, const Constant& b) {
    return lowerCase(a.spelling) < lowerCase(b.spelling);
  };
  const auto misplaced = std::is_sorted_until(all.begin(), all.end(), isBefore);
  EXPECT_EQ(misplaced, all.end()) << misplaced->name;
}

TEST(OrbUni, HasTextsThatAreNoNames) {
  using xercesc::XMLString;
  EXPECT_TRUE(XMLString::equals(OrbUni::_implFeatures, u"LS"));
  EXPECT_TRUE(XMLString::startsWith(OrbUni::_namespaceURI, u"xmlns:"));
  EXPECT_TRUE(XMLString::endsWith(OrbUni::_namespaceURI, u"/visualization"));
}

} // namespace
