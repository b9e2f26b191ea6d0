// A domain of ranges.
#include "orbintervaldomain.h"

#include "attribute.h"
#include "family.h"
#include "orbdomainreference.h"
#include "orbrange.h"
#include "orbuni.h"
#include "orbvariablereference.h"

using namespace orbchart;
using xercesc::DOMElement;

namespace {

using AfterReferences = FamilyList<OrbRange>;

} // namespace

struct OrbIntervalDomain::Children : ChildFamilies<FamilyList<OrbVariableReference, OrbDomainReference, OrbRange>> {};

OrbIntervalDomain::OrbIntervalDomain(DOMElement* element) : OrbBaseElement(element), children_(new Children) {
  children_->load(*this);
  bind(*this);
}
OrbIntervalDomain::OrbIntervalDomain(DOMElement* element, const XMLCh* id) : OrbIntervalDomain(element) { setId(id); }
OrbIntervalDomain::~OrbIntervalDomain() = default;

const XMLCh* OrbIntervalDomain::getId() const { return GetAttribute(OrbUni::_id); }
void OrbIntervalDomain::setId(const XMLCh* id) { writeId(*this, id); }
void OrbIntervalDomain::removeId() { removeAttribute(*this, OrbUni::_id); }

bool OrbIntervalDomain::getDate() const { return readBoolean(*this, OrbUni::_date); }
void OrbIntervalDomain::setDate(bool date) { writeBoolean(*this, OrbUni::_date, date); }
void OrbIntervalDomain::removeDate() { removeAttribute(*this, OrbUni::_date); }

OrbVariableReference* OrbIntervalDomain::addVariableReference(const CTVariableType& variable) {
  return children_->add<OrbVariableReference>(*this, AfterReferences{}, variable);
}
std::vector<OrbVariableReference*> OrbIntervalDomain::getVariableReferences() const {
  return children_->all<OrbVariableReference>();
}
unsigned int OrbIntervalDomain::removeVariableReferences() { return children_->removeAll<OrbVariableReference>(*this); }

OrbDomainReference* OrbIntervalDomain::addDomainReference(const OrbIntervalDomain& domain) {
  return children_->add<OrbDomainReference>(*this, AfterReferences{}, domain);
}
OrbDomainReference* OrbIntervalDomain::addDomainReference(const OrbCategoricalDomain& domain) {
  return children_->add<OrbDomainReference>(*this, AfterReferences{}, domain);
}
std::vector<OrbDomainReference*> OrbIntervalDomain::getDomainReferences() const {
  return children_->all<OrbDomainReference>();
}
unsigned int OrbIntervalDomain::removeDomainReferences() { return children_->removeAll<OrbDomainReference>(*this); }

OrbRange* OrbIntervalDomain::addRange() { return children_->add<OrbRange>(*this, atEnd); }
std::vector<OrbRange*> OrbIntervalDomain::getRanges() const { return children_->all<OrbRange>(); }
unsigned int OrbIntervalDomain::removeRanges() { return children_->removeAll<OrbRange>(*this); }
