// The language as a whole: every element that is reached from the root, put together once from the descriptions of the
// wrappers, with ways to find attributes and children by name.
#pragma once

#include "description.h"

#include <deque>
#include <string_view>
#include <vector>

namespace orbchart {

struct LanguageElement;

/// A text of the document, or a name of the language, without a copy.
using TextView = std::basic_string_view<XMLCh>;

struct LanguageAttribute {
  TextView name;
  const AttributeDescription* described;
  /// What the getter finds, in the order in which it tries, and then what the setter takes beside.
  std::vector<const LanguageElement*> targets{};
  std::size_t foundTargets = 0;

  /// Whether a reference may lead to an element.
  bool leadsTo(const LanguageElement& element) const;
};

struct LanguageChild {
  const LanguageElement* element;
  const FamilyDescription* described;
  /// Whether a load takes it.
  bool isLoaded;
  std::vector<const LanguageElement*> alternatives{};
};

struct LanguageElement {
  TextView name;
  const ElementDescription* described;
  std::vector<LanguageAttribute> attributes{};
  std::vector<LanguageChild> children{};
  std::vector<const LanguageElement*> parents{};
  bool bearsText = false;
  bool isFree = false;
  bool passesOverUnknownChildren = false;

  /// Null for a name that the element does not have.
  const LanguageAttribute* attribute(TextView attributeName) const;
  /// The child of a name, whether a load takes it or not; null for a name that the element does not have.
  const LanguageChild* child(TextView childName) const;
};

/// The language of this library. It is made at the first question and never ends.
class Language {
public:
  static const Language& get();

  const LanguageElement& root() const { return elements_.front(); }
  /// The root first, and children in the order of their first parent.
  const std::deque<LanguageElement>& elements() const { return elements_; }

private:
  Language();
  const LanguageElement* reach(const ElementDescription& description);
  void linkTargets(LanguageAttribute& attribute) const;
  const LanguageElement* find(const ElementDescription& description) const;

  std::deque<LanguageElement> elements_;
};

} // namespace orbchart
