// A domain modifier that takes its values away.
#include "orbdomainexclude.h"

#include "loading.h"
#include "orbuni.h"

using namespace orbchart;

OrbDomainExclude::OrbDomainExclude(xercesc::DOMElement* element) : CTModifier(element) { bind(*this); }
OrbDomainExclude::~OrbDomainExclude() = default;

const XMLCh* OrbDomainExclude::getId() const { return GetAttribute(OrbUni::_id); }
