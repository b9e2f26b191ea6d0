// Texts of a document as messages show them.
#include "messagetext.h"

#include "chartstring.h"
#include "loading.h"
#include "nearword.h"

namespace orbchart {
namespace {

constexpr XMLCh replacement = u'\xFFFD';

bool isHighSurrogate(XMLCh unit) { return unit >= 0xD800 && unit <= 0xDBFF; }
bool isLowSurrogate(XMLCh unit) { return unit >= 0xDC00 && unit <= 0xDFFF; }

/// Controls, the ends of lines and paragraphs, the marks that turn the direction of a text, and what is no character.
bool isUnfit(XMLCh unit) {
  return unit < 0x20 || (unit >= 0x7F && unit <= 0x9F) || unit == 0x200E || unit == 0x200F ||
         (unit >= 0x2028 && unit <= 0x202E) || (unit >= 0x2066 && unit <= 0x2069) || unit >= 0xFFFE || unit == 0xFEFF;
}

std::string utf8(TextView text) { return ChartString(std::basic_string<XMLCh>(text).c_str()).toUTF8(); }

} // namespace

std::string shown(TextView text, std::size_t longest) {
  std::basic_string<XMLCh> fit;
  const std::size_t size = text.size() <= longest ? text.size() : longest - 1;
  for (std::size_t i = 0; i < size; ++i) {
    if (isHighSurrogate(text[i]) && i + 1 < text.size() && isLowSurrogate(text[i + 1])) {
      fit += text.substr(i++, 2);
    } else {
      const bool isLone = isHighSurrogate(text[i]) || isLowSurrogate(text[i]);
      fit += isLone || isUnfit(text[i]) ? replacement : text[i];
    }
  }
  if (size < text.size())
    fit += u'\x2026';
  return utf8(fit);
}

std::string quoted(TextView text) { return '"' + shown(text) + '"'; }

std::string listed(const std::vector<std::string>& words) {
  std::string list;
  for (std::size_t i = 0; i < words.size(); ++i) {
    if (i != 0)
      list += i + 1 == words.size() ? " or " : ", ";
    list += words[i];
  }
  return list;
}

std::string suggestion(TextView misspelt, const std::vector<std::string>& words) {
  // What is shown shortened is near to nothing.
  const std::string word = misspelt.size() > longestShown ? std::string() : nearestWord(shown(misspelt), words);
  return word.empty() ? word : "; did you mean \"" + word + "\"?";
}

std::vector<std::string> childNames(const LanguageElement& element) {
  std::vector<std::string> names;
  for (const LanguageChild& child : element.children) {
    if (child.isLoaded)
      names.push_back(shown(child.element->name));
  }
  return names;
}

std::string unknownElement(TextView name, TextView parentName, const LanguageElement& parent) {
  return "unknown element " + quoted(name) + " under " + shown(parentName) + suggestion(name, childNames(parent));
}

std::string nestedTooDeep() {
  return "elements are nested more than " + std::to_string(maximumNesting) + " levels deep";
}

std::string moreThanMost(const std::string& what) {
  return "there are more than " + std::to_string(mostOfAKind) + " " + what;
}

} // namespace orbchart
