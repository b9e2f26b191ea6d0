// References: attributes that hold the id of another element.
#pragma once

#include "orbbaseelement.h"

#include <xercesc/dom/DOMElement.hpp>

namespace orbchart {

/// The wrapper registered on an element under the name of its class; null when the element is of another class.
template <class Target> Target* wrapperOn(const xercesc::DOMElement& element) {
  return static_cast<Target*>(element.getUserData(Target::elementName));
}

/// The wrapper that an attribute points at: the classes are tried in order, and the result is their common base. Null
/// for an absent attribute, an id that nothing carries, and an element of another class.
template <class Result, class... Targets> Result* readReferenceTo(const OrbBaseElement& wrapper, const XMLCh* name) {
  const xercesc::DOMElement* element = wrapper.getElementById(wrapper.GetAttribute(name));
  Result* result = nullptr;
  if (element != nullptr)
    static_cast<void>(((result = wrapperOn<Targets>(*element)) || ...));
  return result;
}
template <class Target> Target* readReference(const OrbBaseElement& wrapper, const XMLCh* name) {
  return readReferenceTo<Target, Target>(wrapper, name);
}

/// Points an attribute at a target. A target without an id writes nothing.
template <class Target> void writeReference(OrbBaseElement& wrapper, const XMLCh* name, const Target& target) {
  wrapper.SetAttribute(name, target.getId());
}
/// Points an attribute at a target of one of the classes, tried in order; a target of another class writes nothing.
template <class... Targets, class Base>
void writeReferenceAmong(OrbBaseElement& wrapper, const XMLCh* name, const Base& target) {
  const auto writes = [&](const auto* concrete) {
    if (concrete != nullptr)
      writeReference(wrapper, name, *concrete);
    return concrete != nullptr;
  };
  static_cast<void>((writes(dynamic_cast<const Targets*>(&target)) || ...));
}

} // namespace orbchart
