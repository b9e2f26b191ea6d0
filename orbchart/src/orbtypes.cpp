// The variable types of an embedded source.
#include "orbtypes.h"

#include "elementtext.h"
#include "loading.h"

using namespace orbchart;

OrbTypes::OrbTypes(xercesc::DOMElement* element) : OrbBaseElement(element) { bindLeaf(*this); }
OrbTypes::~OrbTypes() = default;

ChartString OrbTypes::getText() const { return readText(*this); }
void OrbTypes::setText(const XMLCh* text) { writeText(*this, text); }
void OrbTypes::removeText() { clearText(*this); }
