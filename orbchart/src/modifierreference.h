// References to an operation of a domain modifier: its four classes, in one place.
#pragma once

#include "orbdomainexclude.h"
#include "orbdomainintersect.h"
#include "orbdomainreplace.h"
#include "orbdomainunion.h"
#include "reference.h"

namespace orbchart {

inline CTModifier* readModifier(const OrbBaseElement& wrapper, const XMLCh* name) {
  return readReferenceTo<CTModifier, OrbDomainExclude, OrbDomainIntersect, OrbDomainReplace, OrbDomainUnion>(wrapper,
                                                                                                             name);
}

inline void writeModifier(OrbBaseElement& wrapper, const XMLCh* name, const CTModifier& modifier) {
  writeReferenceAmong<OrbDomainExclude, OrbDomainIntersect, OrbDomainReplace, OrbDomainUnion>(wrapper, name, modifier);
}

} // namespace orbchart
