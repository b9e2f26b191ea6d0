// The description of a group of values.
#include "orbdescription2.h"

#include "attribute.h"
#include "elementtext.h"
#include "loading.h"

using namespace orbchart;

template <> const ElementDescription& orbchart::descriptionOf<OrbDescription2>() {
  return elementDescription<OrbDescription2, BearsText>;
}

OrbDescription2::OrbDescription2(xercesc::DOMElement* element) : OrbBaseElement(element) { bindLeaf(*this); }
OrbDescription2::~OrbDescription2() = default;

ChartString OrbDescription2::getText() const { return readAllText(*this); }
void OrbDescription2::setText(const XMLCh* text) { writeText(*this, text); }
void OrbDescription2::removeText() { clearText(*this); }
