// A variable computed from others.
#include "orbderivedvariable.h"

#include "attribute.h"
#include "loading.h"
#include "orbuni.h"

using namespace orbchart;
using xercesc::DOMElement;

namespace {

constexpr Text value{OrbUni::_value};
constexpr Text language{OrbDerivedVariable::_UTF_language};

using Attributes = AttributeList<value, language>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbDerivedVariable>() {
  return elementDescription<OrbDerivedVariable, DerivedFrom<CTVariableType>, Attributes>;
}

OrbDerivedVariable::OrbDerivedVariable(DOMElement* element) : CTVariableType(element) { bind(*this); }
OrbDerivedVariable::OrbDerivedVariable(DOMElement* element, const XMLCh* id) : CTVariableType(element, id) {
  bind(*this);
}
OrbDerivedVariable::~OrbDerivedVariable() = default;

const XMLCh* OrbDerivedVariable::getValue() const { return value.get(*this); }
void OrbDerivedVariable::setValue(const XMLCh* newValue) { value.set(*this, newValue); }
void OrbDerivedVariable::removeValue() { value.remove(*this); }

const XMLCh* OrbDerivedVariable::getLanguage() const { return language.get(*this); }
void OrbDerivedVariable::setLanguage(const XMLCh* value) { language.set(*this, value); }
bool OrbDerivedVariable::isLanguagePresent() const { return language.isPresent(*this); }
void OrbDerivedVariable::removeLanguage() { language.remove(*this); }
