// The variable types of an embedded source.
#include "orbtypes.h"

#include "attribute.h"
#include "elementtext.h"
#include "loading.h"

using namespace orbchart;

template <> const ElementDescription& orbchart::descriptionOf<OrbTypes>() {
  return elementDescription<OrbTypes, BearsText>;
}

OrbTypes::OrbTypes(xercesc::DOMElement* element) : OrbBaseElement(element) { bindLeaf(*this); }
OrbTypes::~OrbTypes() = default;

ChartString OrbTypes::getText() const { return readText(*this); }
void OrbTypes::setText(const XMLCh* text) { writeText(*this, text); }
void OrbTypes::removeText() { clearText(*this); }
