// One label in place of another.
#include "orbrelabel.h"

#include "attribute.h"
#include "loading.h"
#include "orbuni.h"

#include <xercesc/dom/DOMElement.hpp>

#include <string>

using namespace orbchart;
using xercesc::DOMElement;

OrbRelabel::OrbRelabel(DOMElement* element) : OrbBaseElement(element) { refuseDeepContent(*this); }
OrbRelabel::OrbRelabel(DOMElement* element, const XMLCh* from, const XMLCh* to) : OrbRelabel(element) {
  setFrom(from);
  setTo(to);
}
OrbRelabel::~OrbRelabel() = default;

void OrbRelabel::init() { bind(*this); }

const XMLCh* OrbRelabel::getId() const { return GetAttribute(OrbUni::_id); }
void OrbRelabel::setId(const XMLCh* id) { writeId(*this, id); }
void OrbRelabel::removeId() { removeAttribute(*this, OrbUni::_id); }

const XMLCh* OrbRelabel::getFrom() const { return GetAttribute(OrbUni::_from); }
void OrbRelabel::setFrom(const XMLCh* from) { SetAttribute(OrbUni::_from, from); }

const XMLCh* OrbRelabel::getTo() const { return GetAttribute(OrbUni::_to); }
void OrbRelabel::setTo(const XMLCh* to) {
  // Past SetAttribute, which writes no empty text. The copy is for the attribute's own text: Xerces gives the old value
  // back before it reads the new one.
  const std::basic_string<XMLCh> text(to == nullptr ? u"" : to);
  getImplementation()->setAttribute(OrbUni::_to, text.c_str());
}
