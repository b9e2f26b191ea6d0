// An aggregation of the rows of a source.
#include "orbaggregate.h"

#include "attribute.h"
#include "loading.h"
#include "orbuni.h"

using namespace orbchart;
using xercesc::DOMElement;

namespace {

constexpr Id id;
constexpr Text keyVariables{OrbAggregate::_UTF_keyVariables};
constexpr Text generatedCount{OrbAggregate::_UTF_generatedCount};
constexpr Text missing{OrbAggregate::_UTF_missing};

using Attributes = AttributeList<id, keyVariables, generatedCount, missing>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbAggregate>() {
  return elementDescription<OrbAggregate, Attributes>;
}

OrbAggregate::OrbAggregate(DOMElement* element) : OrbBaseElement(element) { bindLeaf(*this); }
OrbAggregate::OrbAggregate(DOMElement* element, const XMLCh* keyVariables) : OrbAggregate(element) {
  setKeyVariables(keyVariables);
}
OrbAggregate::~OrbAggregate() = default;

const XMLCh* OrbAggregate::getId() const { return id.get(*this); }
void OrbAggregate::setId(const XMLCh* value) { id.set(*this, value); }
bool OrbAggregate::isIdPresent() const { return id.isPresent(*this); }
void OrbAggregate::removeId() { id.remove(*this); }

const XMLCh* OrbAggregate::getKeyVariables() const { return keyVariables.get(*this); }
void OrbAggregate::setKeyVariables(const XMLCh* value) { keyVariables.set(*this, value); }
bool OrbAggregate::isKeyVariablesPresent() const { return keyVariables.isPresent(*this); }
void OrbAggregate::removeKeyVariables() { keyVariables.remove(*this); }

const XMLCh* OrbAggregate::getGeneratedCount() const { return generatedCount.get(*this); }
void OrbAggregate::setGeneratedCount(const XMLCh* value) { generatedCount.set(*this, value); }
bool OrbAggregate::isGeneratedCountPresent() const { return generatedCount.isPresent(*this); }
void OrbAggregate::removeGeneratedCount() { generatedCount.remove(*this); }

const XMLCh* OrbAggregate::getMissing() const { return missing.get(*this); }
void OrbAggregate::setMissing(const XMLCh* value) { missing.set(*this, value); }
bool OrbAggregate::isMissingPresent() const { return missing.isPresent(*this); }
void OrbAggregate::removeMissing() { missing.remove(*this); }
