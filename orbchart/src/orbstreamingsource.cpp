// A source whose rows come as a stream.
#include "orbstreamingsource.h"

#include "attribute.h"
#include "orbuni.h"
#include "sourceshape.h"

using namespace orbchart;
using xercesc::DOMElement;

struct OrbStreamingSource::Children : ChildFamilies<SourceFamilies> {};

OrbStreamingSource::OrbStreamingSource(DOMElement* element) : OrbBaseElement(element), children_(new Children) {
  children_->load(*this);
  bind(*this);
}
OrbStreamingSource::OrbStreamingSource(DOMElement* element, const XMLCh* id, const XMLCh* url) :
    OrbStreamingSource(element) {
  setId(id);
  setUrl(url);
}
OrbStreamingSource::~OrbStreamingSource() = default;

const XMLCh* OrbStreamingSource::getId() const { return GetAttribute(OrbUni::_id); }
void OrbStreamingSource::setId(const XMLCh* id) { writeId(*this, id); }
void OrbStreamingSource::removeId() { removeAttribute(*this, OrbUni::_id); }

OrbStreamingSource::ENUM_missing OrbStreamingSource::getMissing() const {
  return readKeyword(*this, _UTF_missing, missingKeywords<OrbStreamingSource>, missing_unset);
}
void OrbStreamingSource::setMissing(ENUM_missing missing) {
  writeKeyword(*this, _UTF_missing, missingKeywords<OrbStreamingSource>, missing);
}
bool OrbStreamingSource::isMissingPresent() const { return isPresent(*this, _UTF_missing); }
void OrbStreamingSource::removeMissing() { removeAttribute(*this, _UTF_missing); }

bool OrbStreamingSource::getFilterToMissing() const { return readBoolean(*this, _UTF_filterToMissing); }
void OrbStreamingSource::setFilterToMissing(bool filterToMissing) {
  writeBoolean(*this, _UTF_filterToMissing, filterToMissing);
}
bool OrbStreamingSource::isFilterToMissingPresent() const { return isPresent(*this, _UTF_filterToMissing); }
void OrbStreamingSource::removeFilterToMissing() { removeAttribute(*this, _UTF_filterToMissing); }

const XMLCh* OrbStreamingSource::getUrl() const { return GetAttribute(OrbUni::_url); }
void OrbStreamingSource::setUrl(const XMLCh* url) { SetAttribute(OrbUni::_url, url); }

OrbAggregate* OrbStreamingSource::addAggregate() {
  return children_->add<OrbAggregate>(*this, AfterSourceAggregates{});
}
OrbAggregate* OrbStreamingSource::getAggregate() const { return children_->first<OrbAggregate>(); }
unsigned int OrbStreamingSource::removeAggregate() { return children_->removeAll<OrbAggregate>(*this); }

OrbFilter* OrbStreamingSource::addFilter() { return children_->add<OrbFilter>(*this, atEnd); }
std::vector<OrbFilter*> OrbStreamingSource::getFilters() const { return children_->all<OrbFilter>(); }
unsigned int OrbStreamingSource::removeFilters() { return children_->removeAll<OrbFilter>(*this); }

OrbDataReduction* OrbStreamingSource::addDataReduction() { return children_->add<OrbDataReduction>(*this, atEnd); }
std::vector<OrbDataReduction*> OrbStreamingSource::getDataReductions() const {
  return children_->all<OrbDataReduction>();
}
unsigned int OrbStreamingSource::removeDataReductions() { return children_->removeAll<OrbDataReduction>(*this); }
