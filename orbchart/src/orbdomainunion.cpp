// A domain modifier that adds its values.
#include "orbdomainunion.h"

#include "loading.h"
#include "orbuni.h"

using namespace orbchart;

OrbDomainUnion::OrbDomainUnion(xercesc::DOMElement* element) : CTModifier(element) { bind(*this); }
OrbDomainUnion::~OrbDomainUnion() = default;

const XMLCh* OrbDomainUnion::getId() const { return GetAttribute(OrbUni::_id); }
