// A source that a report gives.
#include "orbreportsource.h"

#include "family.h"
#include "keyword.h"
#include "orbaggregate.h"
#include "orbdatareduction.h"
#include "orbfilter.h"
#include "orbreportvariable.h"
#include "orbuni.h"
#include "sourceshape.h"

using namespace orbchart;

namespace {

constexpr Id id;
constexpr auto& missing = missingOf<OrbReportSource>;
constexpr Boolean filterToMissing{OrbReportSource::_UTF_filterToMissing};
constexpr Text url{OrbUni::_url};
constexpr Text datasetName{OrbReportSource::_UTF_datasetName};

using Attributes = AttributeList<id, missing, filterToMissing, url, datasetName>;

using Families = ChildFamilies<FamilyList<OrbAggregate, OrbFilter, OrbReportVariable, OrbDataReduction>>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbReportSource>() {
  return elementDescription<OrbReportSource, Attributes, Families>;
}

struct OrbReportSource::Children : Families {};

OrbReportSource::OrbReportSource(xercesc::DOMElement* element) : OrbBaseElement(element), children_(new Children) {
  children_->load(*this);
  bind(*this);
}
OrbReportSource::OrbReportSource(xercesc::DOMElement* element, const XMLCh* url, const XMLCh* datasetName) :
    OrbBaseElement(element), children_(new Children) {
  // The attributes stay written when the load fails.
  requireElement(*this);
  setUrl(url);
  setDatasetName(datasetName);
  children_->load(*this);
  bind(*this);
}
OrbReportSource::~OrbReportSource() = default;

const XMLCh* OrbReportSource::getId() const { return id.get(*this); }
void OrbReportSource::setId(const XMLCh* value) { id.set(*this, value); }
bool OrbReportSource::isIdPresent() const { return id.isPresent(*this); }
void OrbReportSource::removeId() { id.remove(*this); }

OrbReportSource::ENUM_missing OrbReportSource::getMissing() const { return missing.get(*this); }
void OrbReportSource::setMissing(ENUM_missing value) { missing.set(*this, value); }
bool OrbReportSource::isMissingPresent() const { return missing.isPresent(*this); }
void OrbReportSource::removeMissing() { missing.remove(*this); }

bool OrbReportSource::getFilterToMissing() const { return filterToMissing.get(*this); }
void OrbReportSource::setFilterToMissing(bool value) { filterToMissing.set(*this, value); }
bool OrbReportSource::isFilterToMissingPresent() const { return filterToMissing.isPresent(*this); }
void OrbReportSource::removeFilterToMissing() { filterToMissing.remove(*this); }

const XMLCh* OrbReportSource::getUrl() const { return url.get(*this); }
void OrbReportSource::setUrl(const XMLCh* value) { url.set(*this, value); }
bool OrbReportSource::isUrlPresent() const { return url.isPresent(*this); }
void OrbReportSource::removeUrl() { url.remove(*this); }

const XMLCh* OrbReportSource::getDatasetName() const { return datasetName.get(*this); }
void OrbReportSource::setDatasetName(const XMLCh* value) { datasetName.set(*this, value); }
bool OrbReportSource::isDatasetNamePresent() const { return datasetName.isPresent(*this); }
void OrbReportSource::removeDatasetName() { datasetName.remove(*this); }

OrbAggregate* OrbReportSource::addAggregate() { return children_->add<OrbAggregate>(*this, atEnd); }
std::vector<OrbAggregate*> OrbReportSource::getAggregates() const { return children_->all<OrbAggregate>(); }
unsigned int OrbReportSource::removeAggregates() { return children_->removeAll<OrbAggregate>(*this); }

OrbFilter* OrbReportSource::addFilter() { return children_->add<OrbFilter>(*this, atEnd); }
std::vector<OrbFilter*> OrbReportSource::getFilters() const { return children_->all<OrbFilter>(); }
unsigned int OrbReportSource::removeFilters() { return children_->removeAll<OrbFilter>(*this); }

OrbReportVariable* OrbReportSource::addReportVariable() { return children_->add<OrbReportVariable>(*this, atEnd); }
std::vector<OrbReportVariable*> OrbReportSource::getReportVariables() const {
  return children_->all<OrbReportVariable>();
}
unsigned int OrbReportSource::removeReportVariables() { return children_->removeAll<OrbReportVariable>(*this); }

OrbDataReduction* OrbReportSource::addDataReduction() { return children_->add<OrbDataReduction>(*this, atEnd); }
std::vector<OrbDataReduction*> OrbReportSource::getDataReductions() const { return children_->all<OrbDataReduction>(); }
unsigned int OrbReportSource::removeDataReductions() { return children_->removeAll<OrbDataReduction>(*this); }
