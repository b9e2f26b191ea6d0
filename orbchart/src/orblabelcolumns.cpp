// The columns of an embedded source that hold labels.
#include "orblabelcolumns.h"

#include "attribute.h"
#include "elementtext.h"
#include "loading.h"

using namespace orbchart;

template <> const ElementDescription& orbchart::descriptionOf<OrbLabelColumns>() {
  return elementDescription<OrbLabelColumns, BearsText>;
}

OrbLabelColumns::OrbLabelColumns(xercesc::DOMElement* element) : OrbBaseElement(element) { bindLeaf(*this); }
OrbLabelColumns::~OrbLabelColumns() = default;

ChartString OrbLabelColumns::getText() const { return readText(*this); }
// In spite of its name it replaces.
void OrbLabelColumns::addText(const XMLCh* text) { writeText(*this, text); }
void OrbLabelColumns::removeText() { clearText(*this); }
