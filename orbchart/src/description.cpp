// What a class has of its own and from its base, put together.
#include "description.h"

#include <xercesc/util/XMLString.hpp>

#include <algorithm>
#include <utility>

using xercesc::XMLString;

namespace orbchart {
namespace {

const XMLCh* nameOf(const AttributeDescription& attribute) { return attribute.name; }
const XMLCh* nameOf(const FamilyDescription& family) { return family.child().name; }

/// What comes from a base, without what a class has of its own by the same name, and then that.
template <class Entry> std::vector<const Entry*> joined(std::vector<const Entry*> entries, std::span<const Entry> own) {
  const auto isOwn = [&](const Entry* entry) {
    return std::any_of(own.begin(), own.end(),
                       [&](const Entry& other) { return XMLString::equals(nameOf(*entry), nameOf(other)); });
  };
  entries.erase(std::remove_if(entries.begin(), entries.end(), isOwn), entries.end());
  for (const Entry& entry : own)
    entries.push_back(&entry);
  return entries;
}

} // namespace

std::vector<const AttributeDescription*> attributesOf(const ElementDescription& element) {
  std::vector<const AttributeDescription*> inherited;
  if (element.base != nullptr)
    inherited = attributesOf(element.base());
  return joined(std::move(inherited), element.attributes);
}

std::vector<const FamilyDescription*> familiesOf(const ElementDescription& element) {
  std::vector<const FamilyDescription*> inherited;
  if (element.base != nullptr)
    inherited = familiesOf(element.base());
  return joined(std::move(inherited), element.families);
}

Unknown unknownChildrenOf(const ElementDescription& element) {
  if (element.loadsChildren || element.base == nullptr)
    return element.unknownChildren;
  return unknownChildrenOf(element.base());
}

} // namespace orbchart
