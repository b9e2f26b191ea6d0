// References to a variable: the keys that nearly all of them try, in one place.
#pragma once

#include "orbderivedvariable.h"
#include "orbexpressionvariable.h"
#include "orbsourcevariable.h"
#include "reference.h"

namespace orbchart {

/// The source, derived or expression variable that an attribute points at.
inline CTVariableType* readVariable(const OrbBaseElement& wrapper, const XMLCh* name) {
  return readReferenceTo<CTVariableType, OrbSourceVariable, OrbDerivedVariable, OrbExpressionVariable>(wrapper, name);
}

} // namespace orbchart
