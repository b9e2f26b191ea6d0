// References to a variable: the classes that nearly all of them try, in one place.
#pragma once

#include "orbderivedvariable.h"
#include "orbexpressionvariable.h"
#include "orbsourcevariable.h"
#include "reference.h"

namespace orbchart {

/// A reference to a source, derived or expression variable. The setter takes any variable: a multiple response variable
/// can be written and reads as null.
using VariableReference =
    Taking<CTVariableType, ReferenceTo<CTVariableType, OrbSourceVariable, OrbDerivedVariable, OrbExpressionVariable>>;

} // namespace orbchart
