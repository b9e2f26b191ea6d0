// The operands of the graph algebra: the families that its four operators and the faceting share.
#pragma once

#include "family.h"
#include "orbblend.h"
#include "orbcross.h"
#include "orbdot.h"
#include "orbnest.h"
#include "orbunity.h"
#include "orbvariablereference.h"

namespace orbchart {

using AlgebraOperands = FamilyList<OrbVariableReference, OrbUnity, OrbBlend, OrbCross, OrbDot, OrbNest>;
/// The same under the operators that take the ids off the operators which they remove.
using AlgebraOperandsWithoutIds =
    FamilyList<OrbVariableReference, OrbUnity, StripsIds<OrbBlend>, StripsIds<OrbCross>, OrbDot, StripsIds<OrbNest>>;

} // namespace orbchart
