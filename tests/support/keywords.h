// How an attribute's keywords and their numbers map onto each other, as the tests of enumerations ask for it.
#pragma once

#include "dom.h"

#include <gtest/gtest.h>

#include <cctype>
#include <sstream>
#include <string>

namespace test {

/// Where the numbers of the keywords begin, what an attribute without a keyword reads as, and words that are none.
struct Numbering {
  int first = 1;
  int fallback = 0;
  const char* foreign = "";
};

/// The keywords of an attribute have consecutive numbers, written and read; no other number writes anything; an absent
/// attribute and any other text, such as a keyword that begins with a capital, read as the fallback.
template <class Wrapper, class Base, class Enumeration>
void expectKeywords(const XMLCh* attribute, Enumeration (Base::*get)() const, void (Base::*set)(Enumeration),
                    const std::string& keywords, const Numbering& numbering = {}) {
  const NewDocument document(Wrapper::elementName);
  SCOPED_TRACE(utf8(Wrapper::elementName) + " " + utf8(attribute));
  Wrapper wrapper(document.root());
  const auto write = [&](int number) {
    (wrapper.*set)(static_cast<Enumeration>(number));
    return utf8(document.root()->getAttribute(attribute));
  };
  const auto expectForeign = [&](const std::string& text, int outside) {
    document.root()->setAttribute(attribute, std::u16string(text.begin(), text.end()).c_str());
    EXPECT_EQ((wrapper.*get)(), numbering.fallback) << text;
    EXPECT_EQ(write(outside), text) << outside;
  };

  EXPECT_EQ((wrapper.*get)(), numbering.fallback) << "absent";
  write(numbering.first - 1);
  EXPECT_FALSE(document.root()->hasAttributes());
  int number = numbering.first;
  std::istringstream words(keywords);
  for (std::string word; words >> word; ++number) {
    EXPECT_EQ(write(number), word);
    EXPECT_EQ((wrapper.*get)(), number) << word;
    word.front() = static_cast<char>(std::toupper(word.front()));
    expectForeign(word, numbering.first - 1);
  }
  std::istringstream foreignWords(std::string("foreign ") + numbering.foreign);
  for (std::string word; foreignWords >> word; ++number)
    expectForeign(word, number);
}

} // namespace test
