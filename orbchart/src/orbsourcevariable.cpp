// A variable read from a source.
#include "orbsourcevariable.h"

#include "attribute.h"
#include "loading.h"
#include "orbuni.h"

using namespace orbchart;
using xercesc::DOMElement;

namespace {

constexpr Text sourceName{OrbUni::_sourceName};
constexpr Text originalSourceName{OrbSourceVariable::_UTF_originalSourceName};
constexpr Text inputDateFormatPattern{OrbUni::_inputDateFormatPattern};

using Attributes = AttributeList<sourceName, originalSourceName, inputDateFormatPattern>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbSourceVariable>() {
  return elementDescription<OrbSourceVariable, DerivedFrom<CTVariableType>, Attributes>;
}

OrbSourceVariable::OrbSourceVariable(DOMElement* element) : CTVariableType(element) { bind(*this); }
OrbSourceVariable::OrbSourceVariable(DOMElement* element, const XMLCh* id) : CTVariableType(element, id) {
  bind(*this);
}
OrbSourceVariable::~OrbSourceVariable() = default;

const XMLCh* OrbSourceVariable::getSourceName() const { return sourceName.get(*this); }
void OrbSourceVariable::setSourceName(const XMLCh* value) { sourceName.set(*this, value); }
void OrbSourceVariable::removeSourceName() { sourceName.remove(*this); }

const XMLCh* OrbSourceVariable::getOriginalSourceName() const { return originalSourceName.get(*this); }
void OrbSourceVariable::setOriginalSourceName(const XMLCh* value) { originalSourceName.set(*this, value); }
bool OrbSourceVariable::isOriginalSourceNamePresent() const { return originalSourceName.isPresent(*this); }
void OrbSourceVariable::removeOriginalSourceName() { originalSourceName.remove(*this); }

const XMLCh* OrbSourceVariable::getInputDateFormatPattern() const { return inputDateFormatPattern.get(*this); }
void OrbSourceVariable::setInputDateFormatPattern(const XMLCh* value) { inputDateFormatPattern.set(*this, value); }
bool OrbSourceVariable::isInputDateFormatPatternPresent() const { return inputDateFormatPattern.isPresent(*this); }
void OrbSourceVariable::removeInputDateFormatPattern() { inputDateFormatPattern.remove(*this); }
