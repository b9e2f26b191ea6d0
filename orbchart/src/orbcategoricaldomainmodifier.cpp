// A change of the values of a domain of categories.
#include "orbcategoricaldomainmodifier.h"

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
constexpr Keywords dateType{OrbCategoricalDomainModifier::_UTF_dateType,
                            OrbCategoricalDomainModifier::dateType_unset,
                            {
                                {OrbCategoricalDomainModifier::dateType_date, OrbUni::_date},
                                {OrbCategoricalDomainModifier::dateType_dateTime, OrbUni::_dateTime},
                                {OrbCategoricalDomainModifier::dateType_time, OrbUni::_time},
                            }};

using Attributes = AttributeList<id, dateType>;

using Families = ChildFamilies<FamilyList<OrbDomainReplace, OrbDomainUnion, OrbDomainIntersect, OrbDomainExclude,
                                          OrbSimpleSort, OrbStatisticSort>>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbCategoricalDomainModifier>() {
  return elementDescription<OrbCategoricalDomainModifier, Attributes, Families>;
}

struct OrbCategoricalDomainModifier::Children : Families {};

OrbCategoricalDomainModifier::OrbCategoricalDomainModifier(DOMElement* element) :
    OrbBaseElement(element), children_(new Children) {
  children_->load(*this);
  bind(*this);
}
OrbCategoricalDomainModifier::~OrbCategoricalDomainModifier() = default;

const XMLCh* OrbCategoricalDomainModifier::getId() const { return id.get(*this); }
void OrbCategoricalDomainModifier::setId(const XMLCh* value) { id.set(*this, value); }
bool OrbCategoricalDomainModifier::isIdPresent() const { return id.isPresent(*this); }
void OrbCategoricalDomainModifier::removeId() { id.remove(*this); }

OrbCategoricalDomainModifier::ENUM_dateType OrbCategoricalDomainModifier::getDateType() const {
  return dateType.get(*this);
}
void OrbCategoricalDomainModifier::setDateType(ENUM_dateType value) { dateType.set(*this, value); }
bool OrbCategoricalDomainModifier::isDateTypePresent() const { return dateType.isPresent(*this); }
void OrbCategoricalDomainModifier::removeDateType() { dateType.remove(*this); }

OrbDomainReplace* OrbCategoricalDomainModifier::addDomainReplace() {
  return children_->add<OrbDomainReplace>(*this, atEnd);
}
std::vector<OrbDomainReplace*> OrbCategoricalDomainModifier::getDomainReplaces() const {
  return children_->all<OrbDomainReplace>();
}
unsigned int OrbCategoricalDomainModifier::removeDomainReplaces() {
  return children_->removeAll<OrbDomainReplace>(*this);
}

OrbDomainUnion* OrbCategoricalDomainModifier::addDomainUnion() { return children_->add<OrbDomainUnion>(*this, atEnd); }
std::vector<OrbDomainUnion*> OrbCategoricalDomainModifier::getDomainUnions() const {
  return children_->all<OrbDomainUnion>();
}
unsigned int OrbCategoricalDomainModifier::removeDomainUnions() { return children_->removeAll<OrbDomainUnion>(*this); }

OrbDomainIntersect* OrbCategoricalDomainModifier::addDomainIntersect() {
  return children_->add<OrbDomainIntersect>(*this, atEnd);
}
std::vector<OrbDomainIntersect*> OrbCategoricalDomainModifier::getDomainIntersects() const {
  return children_->all<OrbDomainIntersect>();
}
unsigned int OrbCategoricalDomainModifier::removeDomainIntersects() {
  return children_->removeAll<OrbDomainIntersect>(*this);
}

OrbDomainExclude* OrbCategoricalDomainModifier::addDomainExclude() {
  return children_->add<OrbDomainExclude>(*this, atEnd);
}
std::vector<OrbDomainExclude*> OrbCategoricalDomainModifier::getDomainExcludes() const {
  return children_->all<OrbDomainExclude>();
}
unsigned int OrbCategoricalDomainModifier::removeDomainExcludes() {
  return children_->removeAll<OrbDomainExclude>(*this);
}

OrbSimpleSort* OrbCategoricalDomainModifier::addSimpleSort() { return children_->add<OrbSimpleSort>(*this, atEnd); }
std::vector<OrbSimpleSort*> OrbCategoricalDomainModifier::getSimpleSorts() const {
  return children_->all<OrbSimpleSort>();
}
unsigned int OrbCategoricalDomainModifier::removeSimpleSorts() { return children_->removeAll<OrbSimpleSort>(*this); }

OrbStatisticSort* OrbCategoricalDomainModifier::addStatisticSort() {
  return children_->add<OrbStatisticSort>(*this, atEnd);
}
std::vector<OrbStatisticSort*> OrbCategoricalDomainModifier::getStatisticSorts() const {
  return children_->all<OrbStatisticSort>();
}
unsigned int OrbCategoricalDomainModifier::removeStatisticSorts() {
  return children_->removeAll<OrbStatisticSort>(*this);
}
