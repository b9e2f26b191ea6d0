// Typed attributes.
#include "attribute.h"

#include "chartstring.h"

#include <xercesc/dom/DOMElement.hpp>
#include <xercesc/util/XMLString.hpp>

using xercesc::XMLString;

namespace orbchart {

unsigned int readUnsigned(const OrbBaseElement& wrapper, const XMLCh* name) {
  return ChartString(wrapper.GetAttribute(name)).convertToInteger();
}

void writeInteger(OrbBaseElement& wrapper, const XMLCh* name, long value) {
  ChartString text;
  text.assignInteger(value);
  wrapper.SetAttribute(name, text.xc_str());
}

void writeDouble(OrbBaseElement& wrapper, const XMLCh* name, double value) {
  ChartString text;
  text.assignDouble(value, 16);
  wrapper.SetAttribute(name, text.xc_str());
}

bool Attribute::isPresent(const OrbBaseElement& wrapper) const { return *wrapper.GetAttribute(name) != 0; }

void Attribute::remove(OrbBaseElement& wrapper) const { wrapper.getImplementation()->removeAttribute(name); }

void Id::set(OrbBaseElement& wrapper, const XMLCh* id) const {
  if (wrapper.getImplementation()->getAttributeNode(name) == nullptr) {
    wrapper.addID(id);
    return;
  }
  // The id may be the text of the attribute that goes.
  const ChartString kept(id);
  remove(wrapper);
  wrapper.addID(kept.xc_str());
}

bool Boolean::get(const OrbBaseElement& wrapper) const {
  return XMLString::equals(wrapper.GetAttribute(name), OrbUni::_true);
}

void Boolean::set(OrbBaseElement& wrapper, bool value) const {
  wrapper.SetAttribute(name, value ? OrbUni::_true : OrbUni::_false);
}

bool TrueUnlessFalse::get(const OrbBaseElement& wrapper) const {
  return !XMLString::equals(wrapper.GetAttribute(name), OrbUni::_false);
}

double Double::get(const OrbBaseElement& wrapper) const {
  return ChartString(wrapper.GetAttribute(name)).convertToDouble();
}

} // namespace orbchart
