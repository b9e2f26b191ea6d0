// An aggregation of the rows of a source.
#include "orbaggregate.h"

#include "attribute.h"
#include "loading.h"
#include "orbuni.h"

using namespace orbchart;
using xercesc::DOMElement;

OrbAggregate::OrbAggregate(DOMElement* element) : OrbBaseElement(element) { bindLeaf(*this); }
OrbAggregate::OrbAggregate(DOMElement* element, const XMLCh* keyVariables) : OrbAggregate(element) {
  setKeyVariables(keyVariables);
}
OrbAggregate::~OrbAggregate() = default;

const XMLCh* OrbAggregate::getId() const { return GetAttribute(OrbUni::_id); }
void OrbAggregate::setId(const XMLCh* id) { writeId(*this, id); }
bool OrbAggregate::isIdPresent() const { return isPresent(*this, OrbUni::_id); }
void OrbAggregate::removeId() { removeAttribute(*this, OrbUni::_id); }

const XMLCh* OrbAggregate::getKeyVariables() const { return GetAttribute(_UTF_keyVariables); }
void OrbAggregate::setKeyVariables(const XMLCh* keyVariables) { SetAttribute(_UTF_keyVariables, keyVariables); }
bool OrbAggregate::isKeyVariablesPresent() const { return isPresent(*this, _UTF_keyVariables); }
void OrbAggregate::removeKeyVariables() { removeAttribute(*this, _UTF_keyVariables); }

const XMLCh* OrbAggregate::getGeneratedCount() const { return GetAttribute(_UTF_generatedCount); }
void OrbAggregate::setGeneratedCount(const XMLCh* generatedCount) { SetAttribute(_UTF_generatedCount, generatedCount); }
bool OrbAggregate::isGeneratedCountPresent() const { return isPresent(*this, _UTF_generatedCount); }
void OrbAggregate::removeGeneratedCount() { removeAttribute(*this, _UTF_generatedCount); }

const XMLCh* OrbAggregate::getMissing() const { return GetAttribute(_UTF_missing); }
void OrbAggregate::setMissing(const XMLCh* missing) { SetAttribute(_UTF_missing, missing); }
bool OrbAggregate::isMissingPresent() const { return isPresent(*this, _UTF_missing); }
void OrbAggregate::removeMissing() { removeAttribute(*this, _UTF_missing); }
