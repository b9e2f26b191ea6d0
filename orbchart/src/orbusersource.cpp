// A source that the host fills at run time.
#include "orbusersource.h"

#include "attribute.h"
#include "orbuni.h"
#include "sourceshape.h"

using namespace orbchart;
using xercesc::DOMElement;

namespace {

constexpr Id id;
constexpr auto& missing = missingOf<OrbUserSource>;
constexpr Boolean filterToMissing{OrbUserSource::_UTF_filterToMissing};

using Attributes = AttributeList<id, missing, filterToMissing>;

using Families = SourceFamilies;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbUserSource>() {
  return elementDescription<OrbUserSource, Attributes, Families>;
}

struct OrbUserSource::Children : Families {};

OrbUserSource::OrbUserSource(DOMElement* element) : OrbBaseElement(element), children_(new Children) {
  children_->load(*this);
  bind(*this);
}
OrbUserSource::OrbUserSource(DOMElement* element, const XMLCh* id) : OrbBaseElement(element), children_(new Children) {
  bindLeaf(*this);
  setId(id);
}
OrbUserSource::~OrbUserSource() = default;

const XMLCh* OrbUserSource::getId() const { return id.get(*this); }
void OrbUserSource::setId(const XMLCh* value) { id.set(*this, value); }
void OrbUserSource::removeId() { id.remove(*this); }

OrbUserSource::ENUM_missing OrbUserSource::getMissing() const { return missing.get(*this); }
void OrbUserSource::setMissing(ENUM_missing value) { missing.set(*this, value); }
bool OrbUserSource::isMissingPresent() const { return missing.isPresent(*this); }
void OrbUserSource::removeMissing() { missing.remove(*this); }

bool OrbUserSource::getFilterToMissing() const { return filterToMissing.get(*this); }
void OrbUserSource::setFilterToMissing(bool value) { filterToMissing.set(*this, value); }
bool OrbUserSource::isFilterToMissingPresent() const { return filterToMissing.isPresent(*this); }
void OrbUserSource::removeFilterToMissing() { filterToMissing.remove(*this); }

OrbAggregate* OrbUserSource::addAggregate() { return children_->add<OrbAggregate>(*this, AfterSourceAggregates{}); }
OrbAggregate* OrbUserSource::getAggregate() const { return children_->first<OrbAggregate>(); }
unsigned int OrbUserSource::removeAggregate() { return children_->removeAll<OrbAggregate>(*this); }

OrbFilter* OrbUserSource::addFilter() { return children_->add<OrbFilter>(*this, atEnd); }
std::vector<OrbFilter*> OrbUserSource::getFilters() const { return children_->all<OrbFilter>(); }
unsigned int OrbUserSource::removeFilters() { return children_->removeAll<OrbFilter>(*this); }

OrbDataReduction* OrbUserSource::addDataReduction() { return children_->add<OrbDataReduction>(*this, atEnd); }
std::vector<OrbDataReduction*> OrbUserSource::getDataReductions() const { return children_->all<OrbDataReduction>(); }
unsigned int OrbUserSource::removeDataReductions() { return children_->removeAll<OrbDataReduction>(*this); }
