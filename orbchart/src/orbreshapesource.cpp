// A source that reshapes another.
#include "orbreshapesource.h"

#include "family.h"
#include "keyword.h"
#include "orbaggregate.h"
#include "orbdatareduction.h"
#include "orbfilter.h"
#include "orbuni.h"
#include "reference.h"
#include "sourceshape.h"

using namespace orbchart;

namespace {

constexpr Id id;
constexpr auto& missing = missingOf<OrbReshapeSource>;
constexpr Boolean filterToMissing{OrbReshapeSource::_UTF_filterToMissing};
// Nothing is written or found through the wrapper.
constexpr AnyReference base{OrbUni::_base};
constexpr Text input{OrbReshapeSource::_UTF_input};
constexpr Text output{OrbReshapeSource::_UTF_output};

using Attributes = AttributeList<id, missing, filterToMissing, base, input, output>;

using AfterAggregates = FamilyList<OrbFilter>;
using Families = ChildFamilies<FamilyList<OrbAggregate, OrbFilter, OrbDataReduction>>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbReshapeSource>() {
  return elementDescription<OrbReshapeSource, Attributes, Families>;
}

struct OrbReshapeSource::Children : Families {};

OrbReshapeSource::OrbReshapeSource(xercesc::DOMElement* element) : OrbBaseElement(element), children_(new Children) {
  children_->loadWithout<OrbAggregate>(*this);
  bind(*this);
}
OrbReshapeSource::OrbReshapeSource(xercesc::DOMElement* element, const OrbBaseElement& base, const XMLCh* input,
                                   const XMLCh* output) :
    OrbBaseElement(element), children_(new Children) {
  requireElement(*this);
  setBase(base);
  setInput(input);
  setOutput(output);
  children_->load(*this);
  bind(*this);
}
OrbReshapeSource::~OrbReshapeSource() = default;

const XMLCh* OrbReshapeSource::getId() const { return id.get(*this); }
void OrbReshapeSource::setId(const XMLCh* value) { id.set(*this, value); }
bool OrbReshapeSource::isIdPresent() const { return id.isPresent(*this); }
void OrbReshapeSource::removeId() { id.remove(*this); }

OrbReshapeSource::ENUM_missing OrbReshapeSource::getMissing() const { return missing.get(*this); }
void OrbReshapeSource::setMissing(ENUM_missing value) { missing.set(*this, value); }
bool OrbReshapeSource::isMissingPresent() const { return missing.isPresent(*this); }
void OrbReshapeSource::removeMissing() { missing.remove(*this); }

bool OrbReshapeSource::getFilterToMissing() const { return filterToMissing.get(*this); }
void OrbReshapeSource::setFilterToMissing(bool value) { filterToMissing.set(*this, value); }
bool OrbReshapeSource::isFilterToMissingPresent() const { return filterToMissing.isPresent(*this); }
void OrbReshapeSource::removeFilterToMissing() { filterToMissing.remove(*this); }

OrbBaseElement* OrbReshapeSource::getBase() const { return nullptr; }
void OrbReshapeSource::setBase(const OrbBaseElement& /*target*/) {}
bool OrbReshapeSource::isBasePresent() const { return base.isPresent(*this); }
void OrbReshapeSource::removeBase() { base.remove(*this); }

const XMLCh* OrbReshapeSource::getInput() const { return input.get(*this); }
void OrbReshapeSource::setInput(const XMLCh* value) { input.set(*this, value); }
bool OrbReshapeSource::isInputPresent() const { return input.isPresent(*this); }
void OrbReshapeSource::removeInput() { input.remove(*this); }

const XMLCh* OrbReshapeSource::getOutput() const { return output.get(*this); }
void OrbReshapeSource::setOutput(const XMLCh* value) { output.set(*this, value); }
bool OrbReshapeSource::isOutputPresent() const { return output.isPresent(*this); }
void OrbReshapeSource::removeOutput() { output.remove(*this); }

OrbAggregate* OrbReshapeSource::addAggregate() { return children_->add<OrbAggregate>(*this, AfterAggregates{}); }
OrbAggregate* OrbReshapeSource::getAggregate() const { return children_->first<OrbAggregate>(); }
unsigned int OrbReshapeSource::removeAggregate() { return children_->removeAll<OrbAggregate>(*this); }

OrbFilter* OrbReshapeSource::addFilter() { return children_->add<OrbFilter>(*this, atEnd); }
std::vector<OrbFilter*> OrbReshapeSource::getFilters() const { return children_->all<OrbFilter>(); }
unsigned int OrbReshapeSource::removeFilters() { return children_->removeAll<OrbFilter>(*this); }

OrbDataReduction* OrbReshapeSource::addDataReduction() { return children_->add<OrbDataReduction>(*this, atEnd); }
std::vector<OrbDataReduction*> OrbReshapeSource::getDataReductions() const {
  return children_->all<OrbDataReduction>();
}
unsigned int OrbReshapeSource::removeDataReductions() { return children_->removeAll<OrbDataReduction>(*this); }
