// A source whose rows stand in a statistics data file.
#include "orbsavfilesource.h"

#include "attribute.h"
#include "orbuni.h"
#include "sourceshape.h"

using namespace orbchart;
using xercesc::DOMElement;

struct OrbSavFileSource::Children : ChildFamilies<SourceFamilies> {};

OrbSavFileSource::OrbSavFileSource(DOMElement* element) : OrbBaseElement(element), children_(new Children) {
  children_->load(*this);
  bind(*this);
}
OrbSavFileSource::~OrbSavFileSource() = default;

const XMLCh* OrbSavFileSource::getId() const { return GetAttribute(OrbUni::_id); }
void OrbSavFileSource::setId(const XMLCh* id) { writeId(*this, id); }
bool OrbSavFileSource::isIdPresent() const { return isPresent(*this, OrbUni::_id); }
void OrbSavFileSource::removeId() { removeAttribute(*this, OrbUni::_id); }

OrbSavFileSource::ENUM_missing OrbSavFileSource::getMissing() const {
  return readKeyword(*this, _UTF_missing, missingKeywords<OrbSavFileSource>, missing_unset);
}
void OrbSavFileSource::setMissing(ENUM_missing missing) {
  writeKeyword(*this, _UTF_missing, missingKeywords<OrbSavFileSource>, missing);
}
bool OrbSavFileSource::isMissingPresent() const { return isPresent(*this, _UTF_missing); }
void OrbSavFileSource::removeMissing() { removeAttribute(*this, _UTF_missing); }

bool OrbSavFileSource::getFilterToMissing() const { return readBoolean(*this, _UTF_filterToMissing); }
void OrbSavFileSource::setFilterToMissing(bool filterToMissing) {
  writeBoolean(*this, _UTF_filterToMissing, filterToMissing);
}
bool OrbSavFileSource::isFilterToMissingPresent() const { return isPresent(*this, _UTF_filterToMissing); }
void OrbSavFileSource::removeFilterToMissing() { removeAttribute(*this, _UTF_filterToMissing); }

const XMLCh* OrbSavFileSource::getFileName() const { return GetAttribute(OrbUni::_fileName); }
void OrbSavFileSource::setFileName(const XMLCh* fileName) { SetAttribute(OrbUni::_fileName, fileName); }
bool OrbSavFileSource::isFileNamePresent() const { return isPresent(*this, OrbUni::_fileName); }
void OrbSavFileSource::removeFileName() { removeAttribute(*this, OrbUni::_fileName); }

const XMLCh* OrbSavFileSource::getUrl() const { return GetAttribute(OrbUni::_url); }
void OrbSavFileSource::setUrl(const XMLCh* url) { SetAttribute(OrbUni::_url, url); }
bool OrbSavFileSource::isUrlPresent() const { return isPresent(*this, OrbUni::_url); }
void OrbSavFileSource::removeUrl() { removeAttribute(*this, OrbUni::_url); }

bool OrbSavFileSource::getOpenAccessDriver() const { return readBoolean(*this, _UTF_OpenAccessDriver); }
void OrbSavFileSource::setOpenAccessDriver(bool openAccessDriver) {
  writeBoolean(*this, _UTF_OpenAccessDriver, openAccessDriver);
}
bool OrbSavFileSource::isOpenAccessDriverPresent() const { return isPresent(*this, _UTF_OpenAccessDriver); }
void OrbSavFileSource::removeOpenAccessDriver() { removeAttribute(*this, _UTF_OpenAccessDriver); }

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
