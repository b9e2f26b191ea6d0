// One label in place of another.
#include "orbrelabel.h"

#include "attribute.h"
#include "loading.h"
#include "orbuni.h"

#include <xercesc/dom/DOMElement.hpp>

#include <string>

using namespace orbchart;
using xercesc::DOMElement;

namespace {

constexpr Id id;
constexpr Text from{OrbUni::_from};
constexpr Text to{OrbUni::_to};

using Attributes = AttributeList<id, from, to>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbRelabel>() {
  return elementDescription<OrbRelabel, Attributes>;
}

OrbRelabel::OrbRelabel(DOMElement* element) : OrbBaseElement(element) { refuseDeepContent(*this); }
OrbRelabel::OrbRelabel(DOMElement* element, const XMLCh* from, const XMLCh* to) : OrbRelabel(element) {
  setFrom(from);
  setTo(to);
}
OrbRelabel::~OrbRelabel() = default;

void OrbRelabel::init() { bind(*this); }

const XMLCh* OrbRelabel::getId() const { return id.get(*this); }
void OrbRelabel::setId(const XMLCh* value) { id.set(*this, value); }
void OrbRelabel::removeId() { id.remove(*this); }

const XMLCh* OrbRelabel::getFrom() const { return from.get(*this); }
void OrbRelabel::setFrom(const XMLCh* value) { from.set(*this, value); }

const XMLCh* OrbRelabel::getTo() const { return to.get(*this); }
void OrbRelabel::setTo(const XMLCh* value) {
  // Past SetAttribute, which writes no empty text. The copy is for the attribute's own text: Xerces gives the old value
  // back before it reads the new one.
  const std::basic_string<XMLCh> text(value == nullptr ? u"" : value);
  getImplementation()->setAttribute(to.name, text.c_str());
}
