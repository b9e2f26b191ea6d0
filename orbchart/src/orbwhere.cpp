// A condition on the values of a variable.
#include "orbwhere.h"

#include "attribute.h"
#include "loading.h"
#include "orbuni.h"
#include "variablereference.h"

using namespace orbchart;

namespace {

constexpr Id id;
constexpr VariableReference variable{OrbUni::_variable};
constexpr Text include{OrbWhere::_UTF_include};
constexpr Text exclude{OrbWhere::_UTF_exclude};

using Attributes = AttributeList<id, variable, include, exclude>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbWhere>() {
  return elementDescription<OrbWhere, Attributes>;
}

OrbWhere::OrbWhere(xercesc::DOMElement* element) : OrbBaseElement(element) { bindLeaf(*this); }
OrbWhere::~OrbWhere() = default;

const XMLCh* OrbWhere::getId() const { return id.get(*this); }
void OrbWhere::setId(const XMLCh* value) { id.set(*this, value); }
bool OrbWhere::isIdPresent() const { return id.isPresent(*this); }
void OrbWhere::removeId() { id.remove(*this); }

CTVariableType* OrbWhere::getVariable() const { return variable.get(*this); }
void OrbWhere::setVariable(const CTVariableType& target) { variable.set(*this, target); }
bool OrbWhere::isVariablePresent() const { return variable.isPresent(*this); }
void OrbWhere::removeVariable() { variable.remove(*this); }

const XMLCh* OrbWhere::getInclude() const { return include.get(*this); }
void OrbWhere::setInclude(const XMLCh* value) { include.set(*this, value); }
bool OrbWhere::isIncludePresent() const { return include.isPresent(*this); }
void OrbWhere::removeInclude() { include.remove(*this); }

const XMLCh* OrbWhere::getExclude() const { return exclude.get(*this); }
void OrbWhere::setExclude(const XMLCh* value) { exclude.set(*this, value); }
bool OrbWhere::isExcludePresent() const { return exclude.isPresent(*this); }
void OrbWhere::removeExclude() { exclude.remove(*this); }
