// A change of the values of a domain of intervals.
#include "orbintervaldomainmodifier.h"

#include "attribute.h"
#include "family.h"
#include "keyword.h"
#include "orbdomainexclude.h"
#include "orbdomainintersect.h"
#include "orbdomainreplace.h"
#include "orbdomainunion.h"
#include "orbsimplesort.h"
#include "orbstatisticsort.h"
#include "orbuni.h"

using namespace orbchart;
using xercesc::DOMElement;

namespace {

constexpr Id id;
constexpr Keywords dateType{OrbIntervalDomainModifier::_UTF_dateType,
                            OrbIntervalDomainModifier::dateType_unset,
                            {
                                {OrbIntervalDomainModifier::dateType_date, OrbUni::_date},
                                {OrbIntervalDomainModifier::dateType_dateTime, OrbUni::_dateTime},
                                {OrbIntervalDomainModifier::dateType_time, OrbUni::_time},
                            }};

using Attributes = AttributeList<id, dateType>;

using Families = ChildFamilies<FamilyList<OrbDomainReplace, OrbDomainUnion, OrbDomainIntersect, OrbDomainExclude,
                                          OrbSimpleSort, OrbStatisticSort>>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbIntervalDomainModifier>() {
  return elementDescription<OrbIntervalDomainModifier, Attributes, Families>;
}

struct OrbIntervalDomainModifier::Children : Families {};

OrbIntervalDomainModifier::OrbIntervalDomainModifier(DOMElement* element) :
    OrbBaseElement(element), children_(new Children) {
  children_->load(*this);
  bind(*this);
}
OrbIntervalDomainModifier::~OrbIntervalDomainModifier() = default;

const XMLCh* OrbIntervalDomainModifier::getId() const { return id.get(*this); }
void OrbIntervalDomainModifier::setId(const XMLCh* value) { id.set(*this, value); }
bool OrbIntervalDomainModifier::isIdPresent() const { return id.isPresent(*this); }
void OrbIntervalDomainModifier::removeId() { id.remove(*this); }

OrbIntervalDomainModifier::ENUM_dateType OrbIntervalDomainModifier::getDateType() const { return dateType.get(*this); }
void OrbIntervalDomainModifier::setDateType(ENUM_dateType value) { dateType.set(*this, value); }
bool OrbIntervalDomainModifier::isDateTypePresent() const { return dateType.isPresent(*this); }
void OrbIntervalDomainModifier::removeDateType() { dateType.remove(*this); }

OrbDomainReplace* OrbIntervalDomainModifier::addDomainReplace() {
  return children_->add<OrbDomainReplace>(*this, atEnd);
}
std::vector<OrbDomainReplace*> OrbIntervalDomainModifier::getDomainReplaces() const {
  return children_->all<OrbDomainReplace>();
}
unsigned int OrbIntervalDomainModifier::removeDomainReplaces() { return children_->removeAll<OrbDomainReplace>(*this); }

OrbDomainUnion* OrbIntervalDomainModifier::addDomainUnion() { return children_->add<OrbDomainUnion>(*this, atEnd); }
std::vector<OrbDomainUnion*> OrbIntervalDomainModifier::getDomainUnions() const {
  return children_->all<OrbDomainUnion>();
}
unsigned int OrbIntervalDomainModifier::removeDomainUnions() { return children_->removeAll<OrbDomainUnion>(*this); }

OrbDomainIntersect* OrbIntervalDomainModifier::addDomainIntersect() {
  return children_->add<OrbDomainIntersect>(*this, atEnd);
}
std::vector<OrbDomainIntersect*> OrbIntervalDomainModifier::getDomainIntersects() const {
  return children_->all<OrbDomainIntersect>();
}
unsigned int OrbIntervalDomainModifier::removeDomainIntersects() {
  return children_->removeAll<OrbDomainIntersect>(*this);
}

OrbDomainExclude* OrbIntervalDomainModifier::addDomainExclude() {
  return children_->add<OrbDomainExclude>(*this, atEnd);
}
std::vector<OrbDomainExclude*> OrbIntervalDomainModifier::getDomainExcludes() const {
  return children_->all<OrbDomainExclude>();
}
unsigned int OrbIntervalDomainModifier::removeDomainExcludes() { return children_->removeAll<OrbDomainExclude>(*this); }

OrbSimpleSort* OrbIntervalDomainModifier::addSimpleSort() { return children_->add<OrbSimpleSort>(*this, atEnd); }
std::vector<OrbSimpleSort*> OrbIntervalDomainModifier::getSimpleSorts() const {
  return children_->all<OrbSimpleSort>();
}
unsigned int OrbIntervalDomainModifier::removeSimpleSorts() { return children_->removeAll<OrbSimpleSort>(*this); }

OrbStatisticSort* OrbIntervalDomainModifier::addStatisticSort() {
  return children_->add<OrbStatisticSort>(*this, atEnd);
}
std::vector<OrbStatisticSort*> OrbIntervalDomainModifier::getStatisticSorts() const {
  return children_->all<OrbStatisticSort>();
}
unsigned int OrbIntervalDomainModifier::removeStatisticSorts() { return children_->removeAll<OrbStatisticSort>(*this); }
