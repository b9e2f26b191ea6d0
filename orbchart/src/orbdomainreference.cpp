// A reference to a domain.
#include "orbdomainreference.h"

#include "chartstring.h"
#include "loading.h"
#include "orbcategoricaldomain.h"
#include "orbintervaldomain.h"
#include "orbuni.h"
#include "raise.h"
#include "reference.h"

using namespace orbchart;
using xercesc::DOMElement;

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

// The one reference that raises when it dangles.
OrbBaseElement* OrbDomainReference::getRef() const {
  const XMLCh* id = GetAttribute(OrbUni::_ref);
  if (!doesIdExist(id))
    raise("Attribute Ref refers to " + ChartString(id).toUTF8() + ", but that element does not exist.");
  return readReferenceTo<OrbBaseElement, OrbCategoricalDomain, OrbIntervalDomain>(*this, OrbUni::_ref);
}
void OrbDomainReference::setRef(const OrbIntervalDomain& domain) { writeReference(*this, OrbUni::_ref, domain); }
void OrbDomainReference::setRef(const OrbCategoricalDomain& domain) { writeReference(*this, OrbUni::_ref, domain); }
