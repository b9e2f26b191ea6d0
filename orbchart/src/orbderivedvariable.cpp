// A variable computed from others.
#include "orbderivedvariable.h"

#include "attribute.h"
#include "loading.h"
#include "orbuni.h"

using namespace orbchart;
using xercesc::DOMElement;

OrbDerivedVariable::OrbDerivedVariable(DOMElement* element) : CTVariableType(element) { bind(*this); }
OrbDerivedVariable::OrbDerivedVariable(DOMElement* element, const XMLCh* id) : CTVariableType(element, id) {
  bind(*this);
}
OrbDerivedVariable::~OrbDerivedVariable() = default;

const XMLCh* OrbDerivedVariable::getValue() const { return GetAttribute(OrbUni::_value); }
void OrbDerivedVariable::setValue(const XMLCh* value) { SetAttribute(OrbUni::_value, value); }
void OrbDerivedVariable::removeValue() { removeAttribute(*this, OrbUni::_value); }

const XMLCh* OrbDerivedVariable::getLanguage() const { return GetAttribute(_UTF_language); }
void OrbDerivedVariable::setLanguage(const XMLCh* language) { SetAttribute(_UTF_language, language); }
bool OrbDerivedVariable::isLanguagePresent() const { return isPresent(*this, _UTF_language); }
void OrbDerivedVariable::removeLanguage() { removeAttribute(*this, _UTF_language); }
