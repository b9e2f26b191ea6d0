// Elements beside the one that is tested, and what stands in its attributes.
#pragma once

#include "dom.h"
#include "orbbaseelement.h"

namespace test {

/// The text of an attribute of a wrapper's element.
inline std::string attributeOf(const OrbBaseElement& wrapper, const XMLCh* name) {
  return utf8(wrapper.GetAttribute(name));
}

/// An element with an id that the document knows, directly below the root.
inline xercesc::DOMElement* addElement(const NewDocument& document, const XMLCh* name, const XMLCh* id) {
  xercesc::DOMElement* element = document.document()->createElement(name);
  document.root()->appendChild(element);
  OrbBaseElement(element).addID(id);
  return element;
}

} // namespace test
