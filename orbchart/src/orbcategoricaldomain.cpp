// A domain of categories.
#include "orbcategoricaldomain.h"

#include "attribute.h"
#include "family.h"
#include "orbcategories.h"
#include "orbdomainreference.h"
#include "orbuni.h"
#include "orbvariablereference.h"

using namespace orbchart;
using xercesc::DOMElement;

namespace {

// What the language has after them has no class here.
using AfterCategories = FamilyList<>;
using AfterReferences = Joined<FamilyList<OrbCategories>, AfterCategories>;

} // namespace

struct OrbCategoricalDomain::Children
    : ChildFamilies<FamilyList<OrbVariableReference, OrbDomainReference, OrbCategories>> {};

OrbCategoricalDomain::OrbCategoricalDomain(DOMElement* element) : OrbBaseElement(element), children_(new Children) {
  children_->load(*this);
  bind(*this);
}
OrbCategoricalDomain::OrbCategoricalDomain(DOMElement* element, const XMLCh* id) : OrbCategoricalDomain(element) {
  setId(id);
}
OrbCategoricalDomain::~OrbCategoricalDomain() = default;

const XMLCh* OrbCategoricalDomain::getId() const { return GetAttribute(OrbUni::_id); }
void OrbCategoricalDomain::setId(const XMLCh* id) { writeId(*this, id); }
void OrbCategoricalDomain::removeId() { removeAttribute(*this, OrbUni::_id); }

bool OrbCategoricalDomain::getDate() const { return readBoolean(*this, OrbUni::_date); }
void OrbCategoricalDomain::setDate(bool date) { writeBoolean(*this, OrbUni::_date, date); }
void OrbCategoricalDomain::removeDate() { removeAttribute(*this, OrbUni::_date); }

OrbVariableReference* OrbCategoricalDomain::addVariableReference(const CTVariableType& variable) {
  return children_->add<OrbVariableReference>(*this, AfterReferences{}, variable);
}
std::vector<OrbVariableReference*> OrbCategoricalDomain::getVariableReferences() const {
  return children_->all<OrbVariableReference>();
}
unsigned int OrbCategoricalDomain::removeVariableReferences() {
  return children_->removeAll<OrbVariableReference>(*this);
}

OrbDomainReference* OrbCategoricalDomain::addDomainReference(const OrbIntervalDomain& domain) {
  return children_->add<OrbDomainReference>(*this, AfterReferences{}, domain);
}
OrbDomainReference* OrbCategoricalDomain::addDomainReference(const OrbCategoricalDomain& domain) {
  return children_->add<OrbDomainReference>(*this, AfterReferences{}, domain);
}
std::vector<OrbDomainReference*> OrbCategoricalDomain::getDomainReferences() const {
  return children_->all<OrbDomainReference>();
}
unsigned int OrbCategoricalDomain::removeDomainReferences() { return children_->removeAll<OrbDomainReference>(*this); }

OrbCategories* OrbCategoricalDomain::addCategories() { return children_->add<OrbCategories>(*this, AfterCategories{}); }
std::vector<OrbCategories*> OrbCategoricalDomain::getCategoriess() const { return children_->all<OrbCategories>(); }
unsigned int OrbCategoricalDomain::removeCategoriess() { return children_->removeAll<OrbCategories>(*this); }
