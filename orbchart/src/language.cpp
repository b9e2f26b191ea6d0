// The language as a whole.
#include "language.h"

#include "orbvisualization.h"

#include <algorithm>

namespace orbchart {
namespace {

/// The entry of a name; null for none.
template <class Entries, class NameOf> auto* entryOf(const Entries& entries, TextView name, NameOf nameOf) {
  const auto found =
      std::find_if(entries.begin(), entries.end(), [&](const auto& entry) { return nameOf(entry) == name; });
  return found == entries.end() ? nullptr : &*found;
}

/// Whether a load of the element, or of a base of it, takes the children that a class describes.
bool loadsFamiliesOf(const ElementDescription& element, const ElementDescription& owner) {
  if (&element == &owner)
    return true;
  return element.base != nullptr && element.loadsBaseFamilies && loadsFamiliesOf(element.base(), owner);
}

bool describesFamily(const ElementDescription& element, const FamilyDescription& family) {
  return std::any_of(element.families.begin(), element.families.end(),
                     [&](const FamilyDescription& own) { return own.child == family.child; });
}

bool isLoaded(const ElementDescription& element, const FamilyDescription& family) {
  for (const ElementDescription* owner = &element;; owner = &owner->base()) {
    if (describesFamily(*owner, family) && loadsFamiliesOf(element, *owner))
      return true;
    if (owner->base == nullptr)
      return false;
  }
}

bool bearsText(const ElementDescription& element) {
  return element.bearsText || (element.base != nullptr && bearsText(element.base()));
}

bool derivesFrom(const ElementDescription& element, const ElementDescription& base) {
  return &element == &base || (element.base != nullptr && derivesFrom(element.base(), base));
}

void addOnce(std::vector<const LanguageElement*>& elements, const LanguageElement* element) {
  if (element != nullptr && std::find(elements.begin(), elements.end(), element) == elements.end())
    elements.push_back(element);
}

} // namespace

bool LanguageAttribute::leadsTo(const LanguageElement& element) const {
  return described->kind == AttributeKind::anyReference ||
         std::find(targets.begin(), targets.end(), &element) != targets.end();
}

const LanguageAttribute* LanguageElement::attribute(TextView attributeName) const {
  return entryOf(attributes, attributeName, [](const LanguageAttribute& one) { return one.name; });
}

const LanguageChild* LanguageElement::child(TextView childName) const {
  return entryOf(children, childName, [](const LanguageChild& one) { return one.element->name; });
}

const Language& Language::get() {
  static const Language& language = *new Language; // handles to it stay good to the end of the program
  return language;
}

Language::Language() {
  reach(descriptionOf<OrbVisualization>());
  for (LanguageElement& element : elements_) {
    for (LanguageAttribute& attribute : element.attributes)
      linkTargets(attribute);
    for (LanguageChild& child : element.children) {
      for (const Described alternative : child.described->alternatives)
        addOnce(child.alternatives, find(alternative()));
    }
    for (const LanguageElement& parent : elements_) {
      const LanguageChild* child = parent.child(element.name);
      if (child != nullptr && child->element == &element)
        element.parents.push_back(&parent);
    }
  }
}

/// The element of a description, with all that is reached from it.
const LanguageElement* Language::reach(const ElementDescription& description) {
  if (const LanguageElement* known = find(description))
    return known;
  LanguageElement& element =
      elements_.emplace_back(LanguageElement{.name = description.name, .described = &description});
  element.bearsText = orbchart::bearsText(description);
  element.isFree = description.isFree;
  element.passesOverUnknownChildren = unknownChildrenOf(description) == Unknown::passes;
  for (const AttributeDescription* attribute : attributesOf(description))
    element.attributes.push_back({.name = attribute->name, .described = attribute});
  for (const FamilyDescription* family : familiesOf(description)) {
    const LanguageElement* child = reach(family->child());
    element.children.push_back({.element = child, .described = family, .isLoaded = isLoaded(description, *family)});
  }
  return &element;
}

void Language::linkTargets(LanguageAttribute& attribute) const {
  for (const Described target : attribute.described->targets)
    addOnce(attribute.targets, find(target()));
  attribute.foundTargets = attribute.targets.size();
  if (attribute.described->takes == nullptr)
    return;
  for (const LanguageElement& element : elements_) {
    if (derivesFrom(*element.described, attribute.described->takes()))
      addOnce(attribute.targets, &element);
  }
}

/// The element of a description; null for one that is not reached from the root.
const LanguageElement* Language::find(const ElementDescription& description) const {
  const auto found = std::find_if(elements_.begin(), elements_.end(),
                                  [&](const LanguageElement& element) { return element.described == &description; });
  return found == elements_.end() ? nullptr : &*found;
}

} // namespace orbchart
