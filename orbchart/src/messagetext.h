// Texts of a document as messages show them: for people, on one line, and never long.
#pragma once

#include "language.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace orbchart {

/// The most characters of a text that a message shows.
inline constexpr std::size_t longestShown = 60;

/// A text in UTF-8. What would break the line or turn it round, and what UTF-8 does not hold, becomes U+FFFD; a text
/// that is too long ends in "…".
std::string shown(TextView text, std::size_t longest = longestShown);
/// The same within quotation marks.
std::string quoted(TextView text);

/// `words` as a list: "a", "a or b", "a, b or c".
std::string listed(const std::vector<std::string>& words);

/// `; did you mean "word"?` for the nearest of some words, and nothing when none is near.
std::string suggestion(TextView misspelt, const std::vector<std::string>& words);

/// The names of the children that a load of an element takes.
std::vector<std::string> childNames(const LanguageElement& element);
/// What is said of an element that its parent does not know, whose name in the document may be another one than in the
/// language.
std::string unknownElement(TextView name, TextView parentName, const LanguageElement& parent);

inline constexpr std::string_view documentTypeRefused =
    "a document type declaration (DOCTYPE) is not allowed in a chart";
std::string nestedTooDeep();

/// The most attributes of one element, different names, and ids given again that are accepted: a DOM takes the square
/// of their number.
inline constexpr std::size_t mostOfAKind = 10'000;
std::string moreThanMost(const std::string& what);

} // namespace orbchart
