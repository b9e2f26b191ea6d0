// A domain of ranges.
#include "orbintervaldomain.h"

#include "attribute.h"
#include "family.h"
#include "orbdomainreference.h"
#include "orbformat.h"
#include "orbrange.h"
#include "orbuni.h"
#include "orbvariablereference.h"

using namespace orbchart;
using xercesc::DOMElement;

namespace {

constexpr Id id;
constexpr Boolean date{OrbUni::_date};

using Attributes = AttributeList<id, date>;

using AfterReferences = FamilyList<OrbRange>;

constexpr OnlyOne oneFormat{"Format", "IntervalDomain"};

using Families =
    ChildFamilies<FamilyList<Limited<OrbFormat, oneFormat>, OrbVariableReference, OrbDomainReference, OrbRange>>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbIntervalDomain>() {
  return elementDescription<OrbIntervalDomain, Attributes, Families>;
}

struct OrbIntervalDomain::Children : Families {};

OrbIntervalDomain::OrbIntervalDomain(DOMElement* element) : OrbBaseElement(element), children_(new Children) {
  children_->load(*this);
  bind(*this);
}
OrbIntervalDomain::OrbIntervalDomain(DOMElement* element, const XMLCh* id) : OrbIntervalDomain(element) { setId(id); }
OrbIntervalDomain::~OrbIntervalDomain() = default;

const XMLCh* OrbIntervalDomain::getId() const { return id.get(*this); }
void OrbIntervalDomain::setId(const XMLCh* value) { id.set(*this, value); }
void OrbIntervalDomain::removeId() { id.remove(*this); }

bool OrbIntervalDomain::getDate() const { return date.get(*this); }
void OrbIntervalDomain::setDate(bool value) { date.set(*this, value); }
void OrbIntervalDomain::removeDate() { date.remove(*this); }

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

OrbFormat* OrbIntervalDomain::addFormat() { return children_->add<OrbFormat>(*this, atEnd); }
std::vector<OrbFormat*> OrbIntervalDomain::getFormats() const { return children_->all<OrbFormat>(); }
unsigned int OrbIntervalDomain::removeFormats() { return children_->removeAll<OrbFormat>(*this); }
