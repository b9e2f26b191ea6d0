// A source whose rows stand in the document.
#include "orbembeddedsource.h"

#include "attribute.h"
#include "family.h"
#include "keyword.h"
#include "orbnames.h"
#include "orbrow.h"
#include "orbtypes.h"
#include "orbuni.h"

using namespace orbchart;
using xercesc::DOMElement;

namespace {

constexpr Keyword<OrbEmbeddedSource::ENUM_missing> missings[] = {
    {OrbEmbeddedSource::missing_pairwise, OrbEmbeddedSource::_UTF_missing_pairwise},
    {OrbEmbeddedSource::missing_listwise, OrbEmbeddedSource::_UTF_missing_listwise},
};

// A row is a follower of rows: it goes before the one whose wrapper is first.
using AfterRows = FamilyList<OrbRow>;
using AfterTypes = FamilyList<OrbRow>;
using AfterNames = Joined<FamilyList<OrbTypes>, AfterTypes>;

} // namespace

struct OrbEmbeddedSource::Children : ChildFamilies<FamilyList<OrbNames, OrbTypes, OrbRow>> {};

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
  return readKeyword(*this, _UTF_missing, missings, missing_unset);
}
void OrbEmbeddedSource::setMissing(ENUM_missing missing) { writeKeyword(*this, _UTF_missing, missings, missing); }
bool OrbEmbeddedSource::isMissingPresent() const { return isPresent(*this, _UTF_missing); }
void OrbEmbeddedSource::removeMissing() { removeAttribute(*this, _UTF_missing); }

bool OrbEmbeddedSource::getFilterToMissing() const { return readBoolean(*this, _UTF_filterToMissing); }
void OrbEmbeddedSource::setFilterToMissing(bool filterToMissing) {
  writeBoolean(*this, _UTF_filterToMissing, filterToMissing);
}
bool OrbEmbeddedSource::isFilterToMissingPresent() const { return isPresent(*this, _UTF_filterToMissing); }
void OrbEmbeddedSource::removeFilterToMissing() { removeAttribute(*this, _UTF_filterToMissing); }

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
