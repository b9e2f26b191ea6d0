// A source whose rows stand in a statistics data file.
#include "orbsavfilesource.h"

#include "attribute.h"
#include "orbuni.h"
#include "sourceshape.h"

using namespace orbchart;
using xercesc::DOMElement;

namespace {

constexpr Id id;
constexpr auto& missing = missingOf<OrbSavFileSource>;
constexpr Boolean filterToMissing{OrbSavFileSource::_UTF_filterToMissing};
constexpr Text fileName{OrbUni::_fileName};
constexpr Text url{OrbUni::_url};
constexpr Boolean OpenAccessDriver{OrbSavFileSource::_UTF_OpenAccessDriver};

using Attributes = AttributeList<id, missing, filterToMissing, fileName, url, OpenAccessDriver>;

using Families = SourceFamilies;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbSavFileSource>() {
  return elementDescription<OrbSavFileSource, Attributes, Families>;
}

struct OrbSavFileSource::Children : Families {};

OrbSavFileSource::OrbSavFileSource(DOMElement* element) : OrbBaseElement(element), children_(new Children) {
  children_->load(*this);
  bind(*this);
}
OrbSavFileSource::~OrbSavFileSource() = default;

const XMLCh* OrbSavFileSource::getId() const { return id.get(*this); }
void OrbSavFileSource::setId(const XMLCh* value) { id.set(*this, value); }
bool OrbSavFileSource::isIdPresent() const { return id.isPresent(*this); }
void OrbSavFileSource::removeId() { id.remove(*this); }

OrbSavFileSource::ENUM_missing OrbSavFileSource::getMissing() const { return missing.get(*this); }
void OrbSavFileSource::setMissing(ENUM_missing value) { missing.set(*this, value); }
bool OrbSavFileSource::isMissingPresent() const { return missing.isPresent(*this); }
void OrbSavFileSource::removeMissing() { missing.remove(*this); }

bool OrbSavFileSource::getFilterToMissing() const { return filterToMissing.get(*this); }
void OrbSavFileSource::setFilterToMissing(bool value) { filterToMissing.set(*this, value); }
bool OrbSavFileSource::isFilterToMissingPresent() const { return filterToMissing.isPresent(*this); }
void OrbSavFileSource::removeFilterToMissing() { filterToMissing.remove(*this); }

const XMLCh* OrbSavFileSource::getFileName() const { return fileName.get(*this); }
void OrbSavFileSource::setFileName(const XMLCh* value) { fileName.set(*this, value); }
bool OrbSavFileSource::isFileNamePresent() const { return fileName.isPresent(*this); }
void OrbSavFileSource::removeFileName() { fileName.remove(*this); }

const XMLCh* OrbSavFileSource::getUrl() const { return url.get(*this); }
void OrbSavFileSource::setUrl(const XMLCh* value) { url.set(*this, value); }
bool OrbSavFileSource::isUrlPresent() const { return url.isPresent(*this); }
void OrbSavFileSource::removeUrl() { url.remove(*this); }

bool OrbSavFileSource::getOpenAccessDriver() const { return OpenAccessDriver.get(*this); }
void OrbSavFileSource::setOpenAccessDriver(bool value) { OpenAccessDriver.set(*this, value); }
bool OrbSavFileSource::isOpenAccessDriverPresent() const { return OpenAccessDriver.isPresent(*this); }
void OrbSavFileSource::removeOpenAccessDriver() { OpenAccessDriver.remove(*this); }

OrbAggregate* OrbSavFileSource::addAggregate() { return children_->add<OrbAggregate>(*this, atEnd); }
std::vector<OrbAggregate*> OrbSavFileSource::getAggregates() const { return children_->all<OrbAggregate>(); }
unsigned int OrbSavFileSource::removeAggregates() { return children_->removeAll<OrbAggregate>(*this); }

OrbFilter* OrbSavFileSource::addFilter() { return children_->add<OrbFilter>(*this, atEnd); }
std::vector<OrbFilter*> OrbSavFileSource::getFilters() const { return children_->all<OrbFilter>(); }
unsigned int OrbSavFileSource::removeFilters() { return children_->removeAll<OrbFilter>(*this); }

OrbDataReduction* OrbSavFileSource::addDataReduction() { return children_->add<OrbDataReduction>(*this, atEnd); }
std::vector<OrbDataReduction*> OrbSavFileSource::getDataReductions() const {
  return children_->all<OrbDataReduction>();
}
unsigned int OrbSavFileSource::removeDataReductions() { return children_->removeAll<OrbDataReduction>(*this); }
