// A source whose rows come as a stream.
#include "orbstreamingsource.h"

#include "attribute.h"
#include "orbuni.h"
#include "sourceshape.h"

using namespace orbchart;
using xercesc::DOMElement;

namespace {

constexpr Id id;
constexpr auto& missing = missingOf<OrbStreamingSource>;
constexpr Boolean filterToMissing{OrbStreamingSource::_UTF_filterToMissing};
constexpr Text url{OrbUni::_url};

using Attributes = AttributeList<id, missing, filterToMissing, url>;

using Families = SourceFamilies;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbStreamingSource>() {
  return elementDescription<OrbStreamingSource, Attributes, Families>;
}

struct OrbStreamingSource::Children : Families {};

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

const XMLCh* OrbStreamingSource::getId() const { return id.get(*this); }
void OrbStreamingSource::setId(const XMLCh* value) { id.set(*this, value); }
void OrbStreamingSource::removeId() { id.remove(*this); }

OrbStreamingSource::ENUM_missing OrbStreamingSource::getMissing() const { return missing.get(*this); }
void OrbStreamingSource::setMissing(ENUM_missing value) { missing.set(*this, value); }
bool OrbStreamingSource::isMissingPresent() const { return missing.isPresent(*this); }
void OrbStreamingSource::removeMissing() { missing.remove(*this); }

bool OrbStreamingSource::getFilterToMissing() const { return filterToMissing.get(*this); }
void OrbStreamingSource::setFilterToMissing(bool value) { filterToMissing.set(*this, value); }
bool OrbStreamingSource::isFilterToMissingPresent() const { return filterToMissing.isPresent(*this); }
void OrbStreamingSource::removeFilterToMissing() { filterToMissing.remove(*this); }

const XMLCh* OrbStreamingSource::getUrl() const { return url.get(*this); }
void OrbStreamingSource::setUrl(const XMLCh* value) { url.set(*this, value); }

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
