// A domain modifier that keeps what is among its values.
#include "orbdomainintersect.h"

#include "loading.h"
#include "orbuni.h"

using namespace orbchart;

OrbDomainIntersect::OrbDomainIntersect(xercesc::DOMElement* element) : CTModifier(element) { bind(*this); }
OrbDomainIntersect::~OrbDomainIntersect() = default;

const XMLCh* OrbDomainIntersect::getId() const { return GetAttribute(OrbUni::_id); }
