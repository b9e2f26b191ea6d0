// The scope of a variable name.
#include "orbscope.h"

#include "attribute.h"
#include "elementtext.h"
#include "loading.h"

using namespace orbchart;

template <> const ElementDescription& orbchart::descriptionOf<OrbScope>() {
  return elementDescription<OrbScope, BearsText>;
}

OrbScope::OrbScope(xercesc::DOMElement* element) : OrbBaseElement(element) { bindLeaf(*this); }
OrbScope::~OrbScope() = default;

ChartString OrbScope::getText() const { return readText(*this); }
void OrbScope::setText(const XMLCh* text) { writeText(*this, text); }
void OrbScope::removeText() { clearText(*this); }
