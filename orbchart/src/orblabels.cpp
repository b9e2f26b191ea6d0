// The labels of an embedded source.
#include "orblabels.h"

#include "attribute.h"
#include "elementtext.h"
#include "loading.h"

using namespace orbchart;

template <> const ElementDescription& orbchart::descriptionOf<OrbLabels>() {
  return elementDescription<OrbLabels, BearsText>;
}

OrbLabels::OrbLabels(xercesc::DOMElement* element) : OrbBaseElement(element) { bindLeaf(*this); }
OrbLabels::~OrbLabels() = default;

ChartString OrbLabels::getText() const { return readText(*this); }
// In spite of its name it replaces.
void OrbLabels::addText(const XMLCh* text) { writeText(*this, text); }
void OrbLabels::removeText() { clearText(*this); }
