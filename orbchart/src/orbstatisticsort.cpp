// A sort of categories by a statistic.
#include "orbstatisticsort.h"

#include "ctvariabletype.h"
#include "family.h"
#include "keyword.h"
#include "orbsortmove.h"
#include "orbsourcevariable.h"
#include "orbuni.h"
#include "orbunion.h"
#include "reference.h"
#include "summarykeywords.h"

using namespace orbchart;

namespace {

constexpr Id id;
constexpr Keywords method{OrbUni::_method, AbsentReadsAs(OrbStatisticSort::method_mean),
                          numberedSummaries<OrbStatisticSort::method_mean, OrbStatisticSort::method_fractionTrue>};
constexpr Boolean descending{OrbUni::_descending};
constexpr Taking<CTVariableType, Reference<OrbSourceVariable>> sourceVariable{OrbUni::_sourceVariable};
constexpr Taking<CTVariableType, Reference<OrbSourceVariable>> statVariable{OrbUni::_statVariable};

using Attributes = AttributeList<id, method, descending, sourceVariable, statVariable>;

using Families = ChildFamilies<FamilyList<OrbSortMove, OrbUnion>>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbStatisticSort>() {
  return elementDescription<OrbStatisticSort, Attributes, Families>;
}

struct OrbStatisticSort::Children : Families {};

OrbStatisticSort::OrbStatisticSort(xercesc::DOMElement* element) : OrbBaseElement(element), children_(new Children) {
  children_->load(*this);
  bind(*this);
}
OrbStatisticSort::OrbStatisticSort(xercesc::DOMElement* element, const CTVariableType& sourceVariable) :
    OrbBaseElement(element), children_(new Children) {
  requireElement(*this);
  setSourceVariable(sourceVariable);
  children_->load(*this);
  bind(*this);
}
OrbStatisticSort::~OrbStatisticSort() = default;

const XMLCh* OrbStatisticSort::getId() const { return id.get(*this); }
void OrbStatisticSort::setId(const XMLCh* value) { id.set(*this, value); }
void OrbStatisticSort::removeId() { id.remove(*this); }

OrbStatisticSort::ENUM_method OrbStatisticSort::getMethod() const { return method.get(*this); }
void OrbStatisticSort::setMethod(ENUM_method value) { method.set(*this, value); }
void OrbStatisticSort::removeMethod() { method.remove(*this); }

bool OrbStatisticSort::getDescending() const { return descending.get(*this); }
void OrbStatisticSort::setDescending(bool value) { descending.set(*this, value); }
void OrbStatisticSort::removeDescending() { descending.remove(*this); }

OrbSourceVariable* OrbStatisticSort::getSourceVariable() const { return sourceVariable.get(*this); }
void OrbStatisticSort::setSourceVariable(const CTVariableType& target) { sourceVariable.set(*this, target); }

OrbSourceVariable* OrbStatisticSort::getStatVariable() const { return statVariable.get(*this); }
void OrbStatisticSort::setStatVariable(const CTVariableType& target) { statVariable.set(*this, target); }
void OrbStatisticSort::removeStatVariable() { statVariable.remove(*this); }

OrbSortMove* OrbStatisticSort::addSortMove(const XMLCh* category) {
  return children_->add<OrbSortMove>(*this, atEnd, category);
}
std::vector<OrbSortMove*> OrbStatisticSort::getSortMoves() const { return children_->all<OrbSortMove>(); }
unsigned int OrbStatisticSort::removeSortMoves() { return children_->removeAll<OrbSortMove>(*this); }

OrbUnion* OrbStatisticSort::addUnion() { return children_->add<OrbUnion>(*this, atEnd); }
std::vector<OrbUnion*> OrbStatisticSort::getUnions() const { return children_->all<OrbUnion>(); }
unsigned int OrbStatisticSort::removeUnions() { return children_->removeAll<OrbUnion>(*this); }
