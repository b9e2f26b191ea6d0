// A source whose rows stand in the document.
#include "orbembeddedsource.h"

#include "attribute.h"
#include "orbnames.h"
#include "orbrow.h"
#include "orbtypes.h"
#include "orbuni.h"
#include "sourceshape.h"

using namespace orbchart;
using xercesc::DOMElement;

namespace {

using AfterTypes = FamilyList<OrbRow>;
// A row is a follower of rows: it goes before the one whose wrapper is first.
using AfterRows = AfterTypes;
using AfterNames = Joined<FamilyList<OrbTypes>, AfterTypes>;
using AfterFilters = FamilyList<OrbNames, OrbTypes, OrbRow>;
using AfterAggregates = Joined<FamilyList<OrbFilter>, AfterFilters>;

} // namespace

struct OrbEmbeddedSource::Children
    : ChildFamilies<FamilyList<OrbAggregate, OrbFilter, OrbNames, OrbTypes, OrbRow, OrbDataReduction>> {};

OrbEmbeddedSource::OrbEmbeddedSource(DOMElement* element) : OrbBaseElement(element), children_(new Children) {
  children_->load(*this);
  bind(*this);
}
OrbEmbeddedSource::OrbEmbeddedSource(DOMElement* element, const XMLCh* id) : OrbEmbeddedSource(element) { setId(id); }
OrbEmbeddedSource::~OrbEmbeddedSource() = default;

const XMLCh* OrbEmbeddedSource::getId() const { return GetAttribute(OrbUni::_id); }
void OrbEmbeddedSource::setId(const XMLCh* id) { writeId(*this, id); }
void OrbEmbeddedSource::removeId() { removeAttribute(*this, OrbUni::_id); }

OrbEmbeddedSource::ENUM_missing OrbEmbeddedSource::getMissing() const {
  return readKeyword(*this, _UTF_missing, missingKeywords<OrbEmbeddedSource>, missing_unset);
}
void OrbEmbeddedSource::setMissing(ENUM_missing missing) {
  writeKeyword(*this, _UTF_missing, missingKeywords<OrbEmbeddedSource>, missing);
}
bool OrbEmbeddedSource::isMissingPresent() const { return isPresent(*this, _UTF_missing); }
void OrbEmbeddedSource::removeMissing() { removeAttribute(*this, _UTF_missing); }

bool OrbEmbeddedSource::getFilterToMissing() const { return readBoolean(*this, _UTF_filterToMissing); }
void OrbEmbeddedSource::setFilterToMissing(bool filterToMissing) {
  writeBoolean(*this, _UTF_filterToMissing, filterToMissing);
}
bool OrbEmbeddedSource::isFilterToMissingPresent() const { return isPresent(*this, _UTF_filterToMissing); }
void OrbEmbeddedSource::removeFilterToMissing() { removeAttribute(*this, _UTF_filterToMissing); }

OrbAggregate* OrbEmbeddedSource::addAggregate() { return children_->add<OrbAggregate>(*this, AfterAggregates{}); }
OrbAggregate* OrbEmbeddedSource::getAggregate() const { return children_->first<OrbAggregate>(); }
unsigned int OrbEmbeddedSource::removeAggregate() { return children_->removeAll<OrbAggregate>(*this); }

OrbFilter* OrbEmbeddedSource::addFilter() { return children_->add<OrbFilter>(*this, AfterFilters{}); }
std::vector<OrbFilter*> OrbEmbeddedSource::getFilters() const { return children_->all<OrbFilter>(); }
unsigned int OrbEmbeddedSource::removeFilters() { return children_->removeAll<OrbFilter>(*this); }

OrbNames* OrbEmbeddedSource::addNames() {
  return children_->add<OrbNames>(*this, OnlyOne("Names", "EmbeddedSource"), AfterNames{});
}
OrbNames* OrbEmbeddedSource::getNames() const { return children_->first<OrbNames>(); }
unsigned int OrbEmbeddedSource::removeNamess() { return children_->removeAll<OrbNames>(*this); }

OrbTypes* OrbEmbeddedSource::addTypes() {
  return children_->add<OrbTypes>(*this, OnlyOne("Types", "EmbeddedSource"), AfterTypes{});
}
OrbTypes* OrbEmbeddedSource::getTypes() const { return children_->first<OrbTypes>(); }
unsigned int OrbEmbeddedSource::removeTypess() { return children_->removeAll<OrbTypes>(*this); }

OrbRow* OrbEmbeddedSource::addRow() { return children_->add<OrbRow>(*this, AfterRows{}); }
std::vector<OrbRow*> OrbEmbeddedSource::getRows() const { return children_->all<OrbRow>(); }
unsigned int OrbEmbeddedSource::removeRows() { return children_->removeAll<OrbRow>(*this); }

OrbDataReduction* OrbEmbeddedSource::addDataReduction() { return children_->add<OrbDataReduction>(*this, atEnd); }
std::vector<OrbDataReduction*> OrbEmbeddedSource::getDataReductions() const {
  return children_->all<OrbDataReduction>();
}
unsigned int OrbEmbeddedSource::removeDataReductions() { return children_->removeAll<OrbDataReduction>(*this); }
