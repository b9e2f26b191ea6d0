// How the rows of a source are reduced in number.
#include "orbdatareduction.h"

#include "attribute.h"
#include "loading.h"
#include "orbuni.h"

using namespace orbchart;

namespace {

constexpr Id id;
constexpr Unsigned maxRows{OrbDataReduction::_UTF_maxRows};
constexpr Text weightVariableName{OrbDataReduction::_UTF_weightVariableName};

using Attributes = AttributeList<id, maxRows, weightVariableName>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbDataReduction>() {
  return elementDescription<OrbDataReduction, Attributes>;
}

OrbDataReduction::OrbDataReduction(xercesc::DOMElement* element) : OrbBaseElement(element) { bindLeaf(*this); }
OrbDataReduction::~OrbDataReduction() = default;

const XMLCh* OrbDataReduction::getId() const { return id.get(*this); }
void OrbDataReduction::setId(const XMLCh* value) { id.set(*this, value); }
bool OrbDataReduction::isIdPresent() const { return id.isPresent(*this); }
void OrbDataReduction::removeId() { id.remove(*this); }

unsigned int OrbDataReduction::getMaxRows() const { return maxRows.get(*this); }
void OrbDataReduction::setMaxRows(unsigned int value) { maxRows.set(*this, value); }
bool OrbDataReduction::isMaxRowsPresent() const { return maxRows.isPresent(*this); }
void OrbDataReduction::removeMaxRows() { maxRows.remove(*this); }

const XMLCh* OrbDataReduction::getWeightVariableName() const { return weightVariableName.get(*this); }
void OrbDataReduction::setWeightVariableName(const XMLCh* value) { weightVariableName.set(*this, value); }
bool OrbDataReduction::isWeightVariableNamePresent() const { return weightVariableName.isPresent(*this); }
void OrbDataReduction::removeWeightVariableName() { weightVariableName.remove(*this); }
