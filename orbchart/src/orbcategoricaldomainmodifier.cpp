// A change of the values of a domain of categories.
#include "orbcategoricaldomainmodifier.h"

#include "attribute.h"
#include "family.h"
#include "keyword.h"
#include "orbdomainexclude.h"
#include "orbdomainintersect.h"
#include "orbdomainreplace.h"
#include "orbdomainunion.h"
#include "orbuni.h"

using namespace orbchart;
using xercesc::DOMElement;

namespace {

constexpr Keyword<OrbCategoricalDomainModifier::ENUM_dateType> dateTypes[] = {
    {OrbCategoricalDomainModifier::dateType_date, OrbUni::_date},
    {OrbCategoricalDomainModifier::dateType_dateTime, OrbUni::_dateTime},
    {OrbCategoricalDomainModifier::dateType_time, OrbUni::_time},
};

} // namespace

struct OrbCategoricalDomainModifier::Children
    : ChildFamilies<FamilyList<OrbDomainReplace, OrbDomainUnion, OrbDomainIntersect, OrbDomainExclude>> {};

OrbCategoricalDomainModifier::OrbCategoricalDomainModifier(DOMElement* element) :
    OrbBaseElement(element), children_(new Children) {
  children_->load(*this);
  bind(*this);
}
OrbCategoricalDomainModifier::~OrbCategoricalDomainModifier() = default;

const XMLCh* OrbCategoricalDomainModifier::getId() const { return GetAttribute(OrbUni::_id); }
void OrbCategoricalDomainModifier::setId(const XMLCh* id) { writeId(*this, id); }
bool OrbCategoricalDomainModifier::isIdPresent() const { return isPresent(*this, OrbUni::_id); }
void OrbCategoricalDomainModifier::removeId() { removeAttribute(*this, OrbUni::_id); }

OrbCategoricalDomainModifier::ENUM_dateType OrbCategoricalDomainModifier::getDateType() const {
  return readKeyword(*this, _UTF_dateType, dateTypes, dateType_unset);
}
void OrbCategoricalDomainModifier::setDateType(ENUM_dateType dateType) {
  writeKeyword(*this, _UTF_dateType, dateTypes, dateType);
}
bool OrbCategoricalDomainModifier::isDateTypePresent() const { return isPresent(*this, _UTF_dateType); }
void OrbCategoricalDomainModifier::removeDateType() { removeAttribute(*this, _UTF_dateType); }

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
