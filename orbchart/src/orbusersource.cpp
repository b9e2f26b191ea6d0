// A source that the host fills at run time.
#include "orbusersource.h"

#include "attribute.h"
#include "orbuni.h"
#include "sourceshape.h"

using namespace orbchart;
using xercesc::DOMElement;

struct OrbUserSource::Children : ChildFamilies<SourceFamilies> {};

OrbUserSource::OrbUserSource(DOMElement* element) : OrbBaseElement(element), children_(new Children) {
  children_->load(*this);
  bind(*this);
}
OrbUserSource::OrbUserSource(DOMElement* element, const XMLCh* id) : OrbBaseElement(element), children_(new Children) {
  bindLeaf(*this);
  setId(id);
}
OrbUserSource::~OrbUserSource() = default;

const XMLCh* OrbUserSource::getId() const { return GetAttribute(OrbUni::_id); }
void OrbUserSource::setId(const XMLCh* id) { writeId(*this, id); }
void OrbUserSource::removeId() { removeAttribute(*this, OrbUni::_id); }

OrbUserSource::ENUM_missing OrbUserSource::getMissing() const {
  return readKeyword(*this, _UTF_missing, missingKeywords<OrbUserSource>, missing_unset);
}
void OrbUserSource::setMissing(ENUM_missing missing) {
  writeKeyword(*this, _UTF_missing, missingKeywords<OrbUserSource>, missing);
}
bool OrbUserSource::isMissingPresent() const { return isPresent(*this, _UTF_missing); }
void OrbUserSource::removeMissing() { removeAttribute(*this, _UTF_missing); }

bool OrbUserSource::getFilterToMissing() const { return readBoolean(*this, _UTF_filterToMissing); }
void OrbUserSource::setFilterToMissing(bool filterToMissing) {
  writeBoolean(*this, _UTF_filterToMissing, filterToMissing);
}
bool OrbUserSource::isFilterToMissingPresent() const { return isPresent(*this, _UTF_filterToMissing); }
void OrbUserSource::removeFilterToMissing() { removeAttribute(*this, _UTF_filterToMissing); }

OrbAggregate* OrbUserSource::addAggregate() { return children_->add<OrbAggregate>(*this, AfterSourceAggregates{}); }
OrbAggregate* OrbUserSource::getAggregate() const { return children_->first<OrbAggregate>(); }
unsigned int OrbUserSource::removeAggregate() { return children_->removeAll<OrbAggregate>(*this); }

OrbFilter* OrbUserSource::addFilter() { return children_->add<OrbFilter>(*this, atEnd); }
std::vector<OrbFilter*> OrbUserSource::getFilters() const { return children_->all<OrbFilter>(); }
unsigned int OrbUserSource::removeFilters() { return children_->removeAll<OrbFilter>(*this); }

OrbDataReduction* OrbUserSource::addDataReduction() { return children_->add<OrbDataReduction>(*this, atEnd); }
std::vector<OrbDataReduction*> OrbUserSource::getDataReductions() const { return children_->all<OrbDataReduction>(); }
unsigned int OrbUserSource::removeDataReductions() { return children_->removeAll<OrbDataReduction>(*this); }
