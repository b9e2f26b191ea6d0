// One value of a group of described values.
#include "orbvalue.h"

#include "elementtext.h"
#include "loading.h"

using namespace orbchart;

OrbValue::OrbValue(xercesc::DOMElement* element) : OrbBaseElement(element) { bindLeaf(*this); }
OrbValue::~OrbValue() = default;

ChartString OrbValue::getText() const { return readText(*this); }
void OrbValue::setText(const XMLCh* text) { writeText(*this, text); }
void OrbValue::removeText() { clearText(*this); }
