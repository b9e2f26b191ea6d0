// A gathering of the small categories of a variable.
#include "orbaggregation.h"

#include "attribute.h"
#include "loading.h"
#include "orbsourcevariable.h"
#include "orbuni.h"
#include "reference.h"

using namespace orbchart;
using xercesc::DOMElement;

namespace {

constexpr Id id;
constexpr Text newCategory{OrbUni::_newCategory};
constexpr Taking<CTVariableType, Reference<OrbSourceVariable>> sumVariable{OrbUni::_sumVariable};
constexpr Double minFraction{OrbUni::_minFraction};

using Attributes = AttributeList<id, newCategory, sumVariable, minFraction>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbAggregation>() {
  return elementDescription<OrbAggregation, Attributes>;
}

OrbAggregation::OrbAggregation(DOMElement* element) : OrbBaseElement(element) { bindLeaf(*this); }
OrbAggregation::OrbAggregation(DOMElement* element, const XMLCh* newCategory, const CTVariableType& sumVariable,
                               double minFraction) :
    OrbAggregation(element) {
  setNewCategory(newCategory);
  setSumVariable(sumVariable);
  setMinFraction(minFraction);
}
OrbAggregation::~OrbAggregation() = default;

const XMLCh* OrbAggregation::getId() const { return id.get(*this); }
void OrbAggregation::setId(const XMLCh* value) { id.set(*this, value); }
void OrbAggregation::removeId() { id.remove(*this); }

const XMLCh* OrbAggregation::getNewCategory() const { return newCategory.get(*this); }
void OrbAggregation::setNewCategory(const XMLCh* value) { newCategory.set(*this, value); }

OrbSourceVariable* OrbAggregation::getSumVariable() const { return sumVariable.get(*this); }
void OrbAggregation::setSumVariable(const CTVariableType& target) { sumVariable.set(*this, target); }

double OrbAggregation::getMinFraction() const { return minFraction.get(*this); }
void OrbAggregation::setMinFraction(double value) { minFraction.set(*this, value); }
