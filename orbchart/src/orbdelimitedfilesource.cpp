// A source whose rows stand in a delimited text file.
#include "orbdelimitedfilesource.h"

#include "attribute.h"
#include "orbuni.h"
#include "sourceshape.h"

using namespace orbchart;
using xercesc::DOMElement;

namespace {

constexpr Id id;
constexpr auto& missing = missingOf<OrbDelimitedFileSource>;
constexpr Boolean filterToMissing{OrbDelimitedFileSource::_UTF_filterToMissing};
constexpr Text fileName{OrbUni::_fileName};
constexpr Text delimiter{OrbUni::_delimiter};
constexpr Boolean header{OrbUni::_header};
constexpr Text genericVariableName{OrbDelimitedFileSource::_UTF_genericVariableName};
constexpr Text replaceInvalidChar{OrbDelimitedFileSource::_UTF_replaceInvalidChar};
constexpr Text encoding{OrbDelimitedFileSource::_UTF_encoding};

using Attributes = AttributeList<id, missing, filterToMissing, fileName, delimiter, header, genericVariableName,
                                 replaceInvalidChar, encoding>;

using Families = SourceFamilies;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbDelimitedFileSource>() {
  return elementDescription<OrbDelimitedFileSource, Attributes, Families>;
}

struct OrbDelimitedFileSource::Children : Families {};

OrbDelimitedFileSource::OrbDelimitedFileSource(DOMElement* element) : OrbBaseElement(element), children_(new Children) {
  children_->load(*this);
  bind(*this);
}
OrbDelimitedFileSource::OrbDelimitedFileSource(DOMElement* element, const XMLCh* id) : OrbDelimitedFileSource(element) {
  setId(id);
}
OrbDelimitedFileSource::~OrbDelimitedFileSource() = default;

const XMLCh* OrbDelimitedFileSource::getId() const { return id.get(*this); }
void OrbDelimitedFileSource::setId(const XMLCh* value) { id.set(*this, value); }
void OrbDelimitedFileSource::removeId() { id.remove(*this); }

OrbDelimitedFileSource::ENUM_missing OrbDelimitedFileSource::getMissing() const { return missing.get(*this); }
void OrbDelimitedFileSource::setMissing(ENUM_missing value) { missing.set(*this, value); }
bool OrbDelimitedFileSource::isMissingPresent() const { return missing.isPresent(*this); }
void OrbDelimitedFileSource::removeMissing() { missing.remove(*this); }

bool OrbDelimitedFileSource::getFilterToMissing() const { return filterToMissing.get(*this); }
void OrbDelimitedFileSource::setFilterToMissing(bool value) { filterToMissing.set(*this, value); }
bool OrbDelimitedFileSource::isFilterToMissingPresent() const { return filterToMissing.isPresent(*this); }
void OrbDelimitedFileSource::removeFilterToMissing() { filterToMissing.remove(*this); }

const XMLCh* OrbDelimitedFileSource::getFileName() const { return fileName.get(*this); }
void OrbDelimitedFileSource::setFileName(const XMLCh* value) { fileName.set(*this, value); }
void OrbDelimitedFileSource::removeFileName() { fileName.remove(*this); }

const XMLCh* OrbDelimitedFileSource::getDelimiter() const { return delimiter.get(*this); }
void OrbDelimitedFileSource::setDelimiter(const XMLCh* value) { delimiter.set(*this, value); }
void OrbDelimitedFileSource::removeDelimiter() { delimiter.remove(*this); }

bool OrbDelimitedFileSource::getHeader() const { return header.get(*this); }
void OrbDelimitedFileSource::setHeader(bool value) { header.set(*this, value); }
void OrbDelimitedFileSource::removeHeader() { header.remove(*this); }

const XMLCh* OrbDelimitedFileSource::getGenericVariableName() const { return genericVariableName.get(*this); }
void OrbDelimitedFileSource::setGenericVariableName(const XMLCh* value) { genericVariableName.set(*this, value); }
bool OrbDelimitedFileSource::isGenericVariableNamePresent() const { return genericVariableName.isPresent(*this); }
void OrbDelimitedFileSource::removeGenericVariableName() { genericVariableName.remove(*this); }

const XMLCh* OrbDelimitedFileSource::getReplaceInvalidChar() const { return replaceInvalidChar.get(*this); }
void OrbDelimitedFileSource::setReplaceInvalidChar(const XMLCh* value) { replaceInvalidChar.set(*this, value); }
bool OrbDelimitedFileSource::isReplaceInvalidCharPresent() const { return replaceInvalidChar.isPresent(*this); }
void OrbDelimitedFileSource::removeReplaceInvalidChar() { replaceInvalidChar.remove(*this); }

const XMLCh* OrbDelimitedFileSource::getEncoding() const { return encoding.get(*this); }
void OrbDelimitedFileSource::setEncoding(const XMLCh* value) { encoding.set(*this, value); }
bool OrbDelimitedFileSource::isEncodingPresent() const { return encoding.isPresent(*this); }
void OrbDelimitedFileSource::removeEncoding() { encoding.remove(*this); }

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
