// A gathering of the small categories of a variable.
#include "orbaggregation.h"

#include "attribute.h"
#include "loading.h"
#include "orbsourcevariable.h"
#include "orbuni.h"
#include "reference.h"

using namespace orbchart;
using xercesc::DOMElement;

OrbAggregation::OrbAggregation(DOMElement* element) : OrbBaseElement(element) { bindLeaf(*this); }
OrbAggregation::OrbAggregation(DOMElement* element, const XMLCh* newCategory, const CTVariableType& sumVariable,
                               double minFraction) :
    OrbAggregation(element) {
  setNewCategory(newCategory);
  setSumVariable(sumVariable);
  setMinFraction(minFraction);
}
OrbAggregation::~OrbAggregation() = default;

const XMLCh* OrbAggregation::getId() const { return GetAttribute(OrbUni::_id); }
void OrbAggregation::setId(const XMLCh* id) { writeId(*this, id); }
void OrbAggregation::removeId() { removeAttribute(*this, OrbUni::_id); }

const XMLCh* OrbAggregation::getNewCategory() const { return GetAttribute(OrbUni::_newCategory); }
void OrbAggregation::setNewCategory(const XMLCh* newCategory) { SetAttribute(OrbUni::_newCategory, newCategory); }

OrbSourceVariable* OrbAggregation::getSumVariable() const {
  return readReference<OrbSourceVariable>(*this, OrbUni::_sumVariable);
}
void OrbAggregation::setSumVariable(const CTVariableType& variable) {
  writeReference(*this, OrbUni::_sumVariable, variable);
}

double OrbAggregation::getMinFraction() const { return readDouble(*this, OrbUni::_minFraction); }
void OrbAggregation::setMinFraction(double minFraction) { writeDouble(*this, OrbUni::_minFraction, minFraction); }
