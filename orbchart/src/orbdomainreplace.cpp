// A domain modifier that puts its values in place.
#include "orbdomainreplace.h"

#include "loading.h"
#include "orbuni.h"

using namespace orbchart;

OrbDomainReplace::OrbDomainReplace(xercesc::DOMElement* element) : CTModifier(element) { bind(*this); }
OrbDomainReplace::~OrbDomainReplace() = default;

const XMLCh* OrbDomainReplace::getId() const { return GetAttribute(OrbUni::_id); }
