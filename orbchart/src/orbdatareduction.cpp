// How the rows of a source are reduced in number.
#include "orbdatareduction.h"

#include "attribute.h"
#include "loading.h"
#include "orbuni.h"

using namespace orbchart;

OrbDataReduction::OrbDataReduction(xercesc::DOMElement* element) : OrbBaseElement(element) { bindLeaf(*this); }
OrbDataReduction::~OrbDataReduction() = default;

const XMLCh* OrbDataReduction::getId() const { return GetAttribute(OrbUni::_id); }
void OrbDataReduction::setId(const XMLCh* id) { writeId(*this, id); }
bool OrbDataReduction::isIdPresent() const { return isPresent(*this, OrbUni::_id); }
void OrbDataReduction::removeId() { removeAttribute(*this, OrbUni::_id); }

unsigned int OrbDataReduction::getMaxRows() const { return readUnsigned(*this, _UTF_maxRows); }
void OrbDataReduction::setMaxRows(unsigned int maxRows) { writeUnsigned(*this, _UTF_maxRows, maxRows); }
bool OrbDataReduction::isMaxRowsPresent() const { return isPresent(*this, _UTF_maxRows); }
void OrbDataReduction::removeMaxRows() { removeAttribute(*this, _UTF_maxRows); }

const XMLCh* OrbDataReduction::getWeightVariableName() const { return GetAttribute(_UTF_weightVariableName); }
void OrbDataReduction::setWeightVariableName(const XMLCh* weightVariableName) {
  SetAttribute(_UTF_weightVariableName, weightVariableName);
}
bool OrbDataReduction::isWeightVariableNamePresent() const { return isPresent(*this, _UTF_weightVariableName); }
void OrbDataReduction::removeWeightVariableName() { removeAttribute(*this, _UTF_weightVariableName); }
