// References to a graphic element: the classes that they try, in one place.
#pragma once

#include "ctelementtype.h"
#include "orbarea.h"
#include "orbinterval.h"
#include "orbline.h"
#include "orbpath.h"
#include "orbpoint.h"
#include "orbpolygon.h"
#include "orbschema.h"
#include "reference.h"

namespace orbchart {

/// A reference to a graphic element, or to a wrapper of another class behind those. The setter takes any graphic
/// element: an edge can be written and reads as null, because the getter asks for the key `link`, which no wrapper
/// registers, and not for `edge`.
template <class Result, class... Others>
using ElementReferenceOr =
    Taking<CTElementType,
           ReferenceTo<Result, OrbLine, OrbPoint, OrbInterval, OrbPolygon, OrbArea, OrbSchema, OrbPath, Others...>>;

using ElementReference = ElementReferenceOr<CTElementType>;

} // namespace orbchart
