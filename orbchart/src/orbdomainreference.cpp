// A reference to a domain.
#include "orbdomainreference.h"

#include "attribute.h"
#include "loading.h"
#include "orbcategoricaldomain.h"
#include "orbintervaldomain.h"
#include "orbuni.h"
#include "reference.h"

using namespace orbchart;
using xercesc::DOMElement;

namespace {

constexpr ReferenceTo<OrbBaseElement, OrbCategoricalDomain, OrbIntervalDomain> ref{OrbUni::_ref};

using Attributes = AttributeList<ref>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbDomainReference>() {
  return elementDescription<OrbDomainReference, Attributes>;
}

OrbDomainReference::OrbDomainReference(DOMElement* element) : OrbBaseElement(element) { bindLeaf(*this); }
OrbDomainReference::OrbDomainReference(DOMElement* element, const OrbIntervalDomain& domain) :
    OrbDomainReference(element) {
  setRef(domain);
}
OrbDomainReference::OrbDomainReference(DOMElement* element, const OrbCategoricalDomain& domain) :
    OrbDomainReference(element) {
  setRef(domain);
}
OrbDomainReference::~OrbDomainReference() = default;

// Unlike most references it raises when it dangles.
OrbBaseElement* OrbDomainReference::getRef() const {
  ref.requireTarget(*this, "Ref");
  return ref.get(*this);
}
void OrbDomainReference::setRef(const OrbIntervalDomain& target) { ref.set(*this, target); }
void OrbDomainReference::setRef(const OrbCategoricalDomain& target) { ref.set(*this, target); }
