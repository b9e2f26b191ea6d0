// Typed attributes.
#include "attribute.h"

#include "chartstring.h"
#include "orbuni.h"

#include <xercesc/dom/DOMElement.hpp>
#include <xercesc/util/XMLString.hpp>

using xercesc::XMLString;

namespace orbchart {

bool isPresent(const OrbBaseElement& wrapper, const XMLCh* name) { return *wrapper.GetAttribute(name) != 0; }

void removeAttribute(OrbBaseElement& wrapper, const XMLCh* name) { wrapper.getImplementation()->removeAttribute(name); }

bool readBoolean(const OrbBaseElement& wrapper, const XMLCh* name) {
  return XMLString::equals(wrapper.GetAttribute(name), OrbUni::_true);
}

bool readBooleanUnlessFalse(const OrbBaseElement& wrapper, const XMLCh* name) {
  return !XMLString::equals(wrapper.GetAttribute(name), OrbUni::_false);
}

void writeBoolean(OrbBaseElement& wrapper, const XMLCh* name, bool value) {
  wrapper.SetAttribute(name, value ? OrbUni::_true : OrbUni::_false);
}

int readInteger(const OrbBaseElement& wrapper, const XMLCh* name) {
  return static_cast<int>(readUnsigned(wrapper, name));
}

void writeInteger(OrbBaseElement& wrapper, const XMLCh* name, int value) {
  ChartString text;
  text.assignInteger(value);
  wrapper.SetAttribute(name, text.xc_str());
}

unsigned int readUnsigned(const OrbBaseElement& wrapper, const XMLCh* name) {
  return ChartString(wrapper.GetAttribute(name)).convertToInteger();
}

void writeUnsigned(OrbBaseElement& wrapper, const XMLCh* name, unsigned int value) {
  ChartString text;
  text.assignInteger(value);
  wrapper.SetAttribute(name, text.xc_str());
}

double readDouble(const OrbBaseElement& wrapper, const XMLCh* name) {
  return ChartString(wrapper.GetAttribute(name)).convertToDouble();
}

void writeDouble(OrbBaseElement& wrapper, const XMLCh* name, double value) {
  ChartString text;
  text.assignDouble(value, 16);
  wrapper.SetAttribute(name, text.xc_str());
}

void writeId(OrbBaseElement& wrapper, const XMLCh* id) {
  if (wrapper.getImplementation()->getAttributeNode(OrbUni::_id) == nullptr) {
    wrapper.addID(id);
    return;
  }
  // The id may be the text of the attribute that goes.
  const ChartString kept(id);
  removeAttribute(wrapper, OrbUni::_id);
  wrapper.addID(kept.xc_str());
}

} // namespace orbchart
