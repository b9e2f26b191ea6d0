// The variable names of an embedded source.
#include "orbnames.h"

#include "attribute.h"
#include "elementtext.h"
#include "loading.h"

using namespace orbchart;

template <> const ElementDescription& orbchart::descriptionOf<OrbNames>() {
  return elementDescription<OrbNames, BearsText>;
}

OrbNames::OrbNames(xercesc::DOMElement* element) : OrbBaseElement(element) { bindLeaf(*this); }
OrbNames::~OrbNames() = default;

ChartString OrbNames::getText() const { return readText(*this); }
void OrbNames::setText(const XMLCh* text) { writeText(*this, text); }
void OrbNames::removeText() { clearText(*this); }
