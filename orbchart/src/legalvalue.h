// Whether the text of an attribute is a value of its kind.
#pragma once

#include "language.h"

#include <string>
#include <vector>

namespace orbchart {

/// Whether an attribute holds the id of another element.
inline bool isReference(const AttributeDescription& attribute) {
  return attribute.kind == AttributeKind::reference || attribute.kind == AttributeKind::anyReference;
}

/// Whether a text is a legal value of an attribute as such. Whether a reference leads anywhere is another question.
bool isLegal(const AttributeDescription& attribute, TextView text);

/// The words that an attribute takes; none where it takes more than words.
std::vector<std::string> wordsOf(const AttributeDescription& attribute);
/// What an attribute takes, in words: "true or false", "a whole number from 0 to 4294967295".
std::string legalValues(const AttributeDescription& attribute);

/// Whether a text is what a parser that validates takes as an id.
bool isXmlName(TextView text);

} // namespace orbchart
