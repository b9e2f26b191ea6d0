// A source whose rows stand in the document.
#include "orbembeddedsource.h"

#include "attribute.h"
#include "orblabelcolumns.h"
#include "orblabels.h"
#include "orbnames.h"
#include "orbrow.h"
#include "orbtypes.h"
#include "orbuni.h"
#include "sourceshape.h"

using namespace orbchart;
using xercesc::DOMElement;

namespace {

constexpr Id id;
constexpr auto& missing = missingOf<OrbEmbeddedSource>;
constexpr Boolean filterToMissing{OrbEmbeddedSource::_UTF_filterToMissing};

using Attributes = AttributeList<id, missing, filterToMissing>;

using AfterLabels = FamilyList<OrbLabelColumns>;
using AfterTypes = Joined<FamilyList<OrbRow, OrbLabels>, AfterLabels>;
// A row is a follower of rows: it goes before the one whose wrapper is first.
using AfterRows = AfterTypes;
using AfterNames = Joined<FamilyList<OrbTypes>, AfterTypes>;
// Filters and aggregates do not look at labels.
using AfterFilters = FamilyList<OrbNames, OrbTypes, OrbRow>;
using AfterAggregates = Joined<FamilyList<OrbFilter>, AfterFilters>;

constexpr OnlyOne oneNames{"Names", "EmbeddedSource"};
constexpr OnlyOne oneTypes{"Types", "EmbeddedSource"};

using Families =
    ChildFamilies<FamilyList<OrbAggregate, OrbFilter, Limited<OrbNames, oneNames>, Limited<OrbTypes, oneTypes>, OrbRow,
                             OrbDataReduction, OrbLabels, OrbLabelColumns>>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbEmbeddedSource>() {
  return elementDescription<OrbEmbeddedSource, Attributes, Families>;
}

struct OrbEmbeddedSource::Children : Families {};

OrbEmbeddedSource::OrbEmbeddedSource(DOMElement* element) : OrbBaseElement(element), children_(new Children) {
  children_->load(*this);
  bind(*this);
}
OrbEmbeddedSource::OrbEmbeddedSource(DOMElement* element, const XMLCh* id) : OrbEmbeddedSource(element) { setId(id); }
OrbEmbeddedSource::~OrbEmbeddedSource() = default;

const XMLCh* OrbEmbeddedSource::getId() const { return id.get(*this); }
void OrbEmbeddedSource::setId(const XMLCh* value) { id.set(*this, value); }
void OrbEmbeddedSource::removeId() { id.remove(*this); }

OrbEmbeddedSource::ENUM_missing OrbEmbeddedSource::getMissing() const { return missing.get(*this); }
void OrbEmbeddedSource::setMissing(ENUM_missing value) { missing.set(*this, value); }
bool OrbEmbeddedSource::isMissingPresent() const { return missing.isPresent(*this); }
void OrbEmbeddedSource::removeMissing() { missing.remove(*this); }

bool OrbEmbeddedSource::getFilterToMissing() const { return filterToMissing.get(*this); }
void OrbEmbeddedSource::setFilterToMissing(bool value) { filterToMissing.set(*this, value); }
bool OrbEmbeddedSource::isFilterToMissingPresent() const { return filterToMissing.isPresent(*this); }
void OrbEmbeddedSource::removeFilterToMissing() { filterToMissing.remove(*this); }

OrbAggregate* OrbEmbeddedSource::addAggregate() { return children_->add<OrbAggregate>(*this, AfterAggregates{}); }
OrbAggregate* OrbEmbeddedSource::getAggregate() const { return children_->first<OrbAggregate>(); }
unsigned int OrbEmbeddedSource::removeAggregate() { return children_->removeAll<OrbAggregate>(*this); }

OrbFilter* OrbEmbeddedSource::addFilter() { return children_->add<OrbFilter>(*this, AfterFilters{}); }
std::vector<OrbFilter*> OrbEmbeddedSource::getFilters() const { return children_->all<OrbFilter>(); }
unsigned int OrbEmbeddedSource::removeFilters() { return children_->removeAll<OrbFilter>(*this); }

OrbNames* OrbEmbeddedSource::addNames() { return children_->add<OrbNames>(*this, AfterNames{}); }
OrbNames* OrbEmbeddedSource::getNames() const { return children_->first<OrbNames>(); }
unsigned int OrbEmbeddedSource::removeNamess() { return children_->removeAll<OrbNames>(*this); }

OrbTypes* OrbEmbeddedSource::addTypes() { return children_->add<OrbTypes>(*this, AfterTypes{}); }
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

OrbLabels* OrbEmbeddedSource::addLabels() { return children_->add<OrbLabels>(*this, AfterLabels{}); }
std::vector<OrbLabels*> OrbEmbeddedSource::getLabelss() const { return children_->all<OrbLabels>(); }
unsigned int OrbEmbeddedSource::removeLabelss() { return children_->removeAll<OrbLabels>(*this); }

OrbLabelColumns* OrbEmbeddedSource::addLabelColumns() { return children_->add<OrbLabelColumns>(*this, atEnd); }
std::vector<OrbLabelColumns*> OrbEmbeddedSource::getLabelColumnss() const { return children_->all<OrbLabelColumns>(); }
unsigned int OrbEmbeddedSource::removeLabelColumnss() { return children_->removeAll<OrbLabelColumns>(*this); }
