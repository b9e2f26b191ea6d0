// One name of a variable.
#include "orbname.h"

#include "attribute.h"
#include "elementtext.h"
#include "loading.h"

using namespace orbchart;

template <> const ElementDescription& orbchart::descriptionOf<OrbName>() {
  return elementDescription<OrbName, BearsText>;
}

OrbName::OrbName(xercesc::DOMElement* element) : OrbBaseElement(element) { bindLeaf(*this); }
OrbName::~OrbName() = default;

ChartString OrbName::getText() const { return readText(*this); }
void OrbName::setText(const XMLCh* text) { writeText(*this, text); }
void OrbName::removeText() { clearText(*this); }
