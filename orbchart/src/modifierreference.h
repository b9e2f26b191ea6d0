// References to an operation of a domain modifier: its four classes, in one place.
#pragma once

#include "orbdomainexclude.h"
#include "orbdomainintersect.h"
#include "orbdomainreplace.h"
#include "orbdomainunion.h"
#include "reference.h"

namespace orbchart {

using ModifierReference =
    ReferenceTo<CTModifier, OrbDomainExclude, OrbDomainIntersect, OrbDomainReplace, OrbDomainUnion>;

} // namespace orbchart
