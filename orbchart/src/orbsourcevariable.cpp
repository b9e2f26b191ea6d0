// A variable read from a source.
#include "orbsourcevariable.h"

#include "attribute.h"
#include "loading.h"
#include "orbuni.h"

using namespace orbchart;
using xercesc::DOMElement;

OrbSourceVariable::OrbSourceVariable(DOMElement* element) : CTVariableType(element) { bind(*this); }
OrbSourceVariable::OrbSourceVariable(DOMElement* element, const XMLCh* id) : CTVariableType(element, id) {
  bind(*this);
}
OrbSourceVariable::~OrbSourceVariable() = default;

const XMLCh* OrbSourceVariable::getSourceName() const { return GetAttribute(OrbUni::_sourceName); }
void OrbSourceVariable::setSourceName(const XMLCh* sourceName) { SetAttribute(OrbUni::_sourceName, sourceName); }
void OrbSourceVariable::removeSourceName() { removeAttribute(*this, OrbUni::_sourceName); }

const XMLCh* OrbSourceVariable::getOriginalSourceName() const { return GetAttribute(_UTF_originalSourceName); }
void OrbSourceVariable::setOriginalSourceName(const XMLCh* originalSourceName) {
  SetAttribute(_UTF_originalSourceName, originalSourceName);
}
bool OrbSourceVariable::isOriginalSourceNamePresent() const { return isPresent(*this, _UTF_originalSourceName); }
void OrbSourceVariable::removeOriginalSourceName() { removeAttribute(*this, _UTF_originalSourceName); }

const XMLCh* OrbSourceVariable::getInputDateFormatPattern() const {
  return GetAttribute(OrbUni::_inputDateFormatPattern);
}
void OrbSourceVariable::setInputDateFormatPattern(const XMLCh* inputDateFormatPattern) {
  SetAttribute(OrbUni::_inputDateFormatPattern, inputDateFormatPattern);
}
bool OrbSourceVariable::isInputDateFormatPatternPresent() const {
  return isPresent(*this, OrbUni::_inputDateFormatPattern);
}
void OrbSourceVariable::removeInputDateFormatPattern() { removeAttribute(*this, OrbUni::_inputDateFormatPattern); }
