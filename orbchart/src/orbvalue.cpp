// One value of a group of described values.
#include "orbvalue.h"

#include "attribute.h"
#include "elementtext.h"
#include "loading.h"

using namespace orbchart;

template <> const ElementDescription& orbchart::descriptionOf<OrbValue>() {
  return elementDescription<OrbValue, BearsText>;
}

OrbValue::OrbValue(xercesc::DOMElement* element) : OrbBaseElement(element) { bindLeaf(*this); }
OrbValue::~OrbValue() = default;

ChartString OrbValue::getText() const { return readText(*this); }
void OrbValue::setText(const XMLCh* text) { writeText(*this, text); }
void OrbValue::removeText() { clearText(*this); }
