// A condition on the values of a variable.
#include "orbwhere.h"

#include "attribute.h"
#include "loading.h"
#include "orbuni.h"
#include "variablereference.h"

using namespace orbchart;

OrbWhere::OrbWhere(xercesc::DOMElement* element) : OrbBaseElement(element) { bindLeaf(*this); }
OrbWhere::~OrbWhere() = default;

const XMLCh* OrbWhere::getId() const { return GetAttribute(OrbUni::_id); }
void OrbWhere::setId(const XMLCh* id) { writeId(*this, id); }
bool OrbWhere::isIdPresent() const { return isPresent(*this, OrbUni::_id); }
void OrbWhere::removeId() { removeAttribute(*this, OrbUni::_id); }

CTVariableType* OrbWhere::getVariable() const { return readVariable(*this, OrbUni::_variable); }
void OrbWhere::setVariable(const CTVariableType& variable) { writeReference(*this, OrbUni::_variable, variable); }
bool OrbWhere::isVariablePresent() const { return isPresent(*this, OrbUni::_variable); }
void OrbWhere::removeVariable() { removeAttribute(*this, OrbUni::_variable); }

const XMLCh* OrbWhere::getInclude() const { return GetAttribute(_UTF_include); }
void OrbWhere::setInclude(const XMLCh* include) { SetAttribute(_UTF_include, include); }
bool OrbWhere::isIncludePresent() const { return isPresent(*this, _UTF_include); }
void OrbWhere::removeInclude() { removeAttribute(*this, _UTF_include); }

const XMLCh* OrbWhere::getExclude() const { return GetAttribute(_UTF_exclude); }
void OrbWhere::setExclude(const XMLCh* exclude) { SetAttribute(_UTF_exclude, exclude); }
bool OrbWhere::isExcludePresent() const { return isPresent(*this, _UTF_exclude); }
void OrbWhere::removeExclude() { removeAttribute(*this, _UTF_exclude); }
