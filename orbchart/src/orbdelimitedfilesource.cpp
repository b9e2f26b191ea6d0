// A source whose rows stand in a delimited text file.
#include "orbdelimitedfilesource.h"

#include "attribute.h"
#include "orbuni.h"
#include "sourceshape.h"

using namespace orbchart;
using xercesc::DOMElement;

struct OrbDelimitedFileSource::Children : ChildFamilies<SourceFamilies> {};

OrbDelimitedFileSource::OrbDelimitedFileSource(DOMElement* element) : OrbBaseElement(element), children_(new Children) {
  children_->load(*this);
  bind(*this);
}
OrbDelimitedFileSource::OrbDelimitedFileSource(DOMElement* element, const XMLCh* id) : OrbDelimitedFileSource(element) {
  setId(id);
}
OrbDelimitedFileSource::~OrbDelimitedFileSource() = default;

const XMLCh* OrbDelimitedFileSource::getId() const { return GetAttribute(OrbUni::_id); }
void OrbDelimitedFileSource::setId(const XMLCh* id) { writeId(*this, id); }
void OrbDelimitedFileSource::removeId() { removeAttribute(*this, OrbUni::_id); }

OrbDelimitedFileSource::ENUM_missing OrbDelimitedFileSource::getMissing() const {
  return readKeyword(*this, _UTF_missing, missingKeywords<OrbDelimitedFileSource>, missing_unset);
}
void OrbDelimitedFileSource::setMissing(ENUM_missing missing) {
  writeKeyword(*this, _UTF_missing, missingKeywords<OrbDelimitedFileSource>, missing);
}
bool OrbDelimitedFileSource::isMissingPresent() const { return isPresent(*this, _UTF_missing); }
void OrbDelimitedFileSource::removeMissing() { removeAttribute(*this, _UTF_missing); }

bool OrbDelimitedFileSource::getFilterToMissing() const { return readBoolean(*this, _UTF_filterToMissing); }
void OrbDelimitedFileSource::setFilterToMissing(bool filterToMissing) {
  writeBoolean(*this, _UTF_filterToMissing, filterToMissing);
}
bool OrbDelimitedFileSource::isFilterToMissingPresent() const { return isPresent(*this, _UTF_filterToMissing); }
void OrbDelimitedFileSource::removeFilterToMissing() { removeAttribute(*this, _UTF_filterToMissing); }

const XMLCh* OrbDelimitedFileSource::getFileName() const { return GetAttribute(OrbUni::_fileName); }
void OrbDelimitedFileSource::setFileName(const XMLCh* fileName) { SetAttribute(OrbUni::_fileName, fileName); }
void OrbDelimitedFileSource::removeFileName() { removeAttribute(*this, OrbUni::_fileName); }

const XMLCh* OrbDelimitedFileSource::getDelimiter() const { return GetAttribute(OrbUni::_delimiter); }
void OrbDelimitedFileSource::setDelimiter(const XMLCh* delimiter) { SetAttribute(OrbUni::_delimiter, delimiter); }
void OrbDelimitedFileSource::removeDelimiter() { removeAttribute(*this, OrbUni::_delimiter); }

bool OrbDelimitedFileSource::getHeader() const { return readBoolean(*this, OrbUni::_header); }
void OrbDelimitedFileSource::setHeader(bool header) { writeBoolean(*this, OrbUni::_header, header); }
void OrbDelimitedFileSource::removeHeader() { removeAttribute(*this, OrbUni::_header); }

const XMLCh* OrbDelimitedFileSource::getGenericVariableName() const { return GetAttribute(_UTF_genericVariableName); }
void OrbDelimitedFileSource::setGenericVariableName(const XMLCh* genericVariableName) {
  SetAttribute(_UTF_genericVariableName, genericVariableName);
}
bool OrbDelimitedFileSource::isGenericVariableNamePresent() const { return isPresent(*this, _UTF_genericVariableName); }
void OrbDelimitedFileSource::removeGenericVariableName() { removeAttribute(*this, _UTF_genericVariableName); }

const XMLCh* OrbDelimitedFileSource::getReplaceInvalidChar() const { return GetAttribute(_UTF_replaceInvalidChar); }
void OrbDelimitedFileSource::setReplaceInvalidChar(const XMLCh* replaceInvalidChar) {
  SetAttribute(_UTF_replaceInvalidChar, replaceInvalidChar);
}
bool OrbDelimitedFileSource::isReplaceInvalidCharPresent() const { return isPresent(*this, _UTF_replaceInvalidChar); }
void OrbDelimitedFileSource::removeReplaceInvalidChar() { removeAttribute(*this, _UTF_replaceInvalidChar); }

const XMLCh* OrbDelimitedFileSource::getEncoding() const { return GetAttribute(_UTF_encoding); }
void OrbDelimitedFileSource::setEncoding(const XMLCh* encoding) { SetAttribute(_UTF_encoding, encoding); }
bool OrbDelimitedFileSource::isEncodingPresent() const { return isPresent(*this, _UTF_encoding); }
void OrbDelimitedFileSource::removeEncoding() { removeAttribute(*this, _UTF_encoding); }

OrbAggregate* OrbDelimitedFileSource::addAggregate() {
  return children_->add<OrbAggregate>(*this, AfterSourceAggregates{});
}
OrbAggregate* OrbDelimitedFileSource::getAggregate() const { return children_->first<OrbAggregate>(); }
unsigned int OrbDelimitedFileSource::removeAggregate() { return children_->removeAll<OrbAggregate>(*this); }

OrbFilter* OrbDelimitedFileSource::addFilter() { return children_->add<OrbFilter>(*this, atEnd); }
std::vector<OrbFilter*> OrbDelimitedFileSource::getFilters() const { return children_->all<OrbFilter>(); }
unsigned int OrbDelimitedFileSource::removeFilters() { return children_->removeAll<OrbFilter>(*this); }

OrbDataReduction* OrbDelimitedFileSource::addDataReduction() { return children_->add<OrbDataReduction>(*this, atEnd); }
std::vector<OrbDataReduction*> OrbDelimitedFileSource::getDataReductions() const {
  return children_->all<OrbDataReduction>();
}
unsigned int OrbDelimitedFileSource::removeDataReductions() { return children_->removeAll<OrbDataReduction>(*this); }
