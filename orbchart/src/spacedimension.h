// A dimension of the space: the keywords that a reflection and a functional transform have in common.
#pragma once

#include "keyword.h"

namespace orbchart {

/// The attribute, for the enumeration of each transform.
template <class Transform>
inline constexpr Keywords dimensionOf{OrbUni::_dimension,
                                      AbsentReadsAs(Transform::dimension_x),
                                      {
                                          {Transform::dimension_x, OrbUni::_x},
                                          {Transform::dimension_y, OrbUni::_y},
                                          {Transform::dimension_z, OrbUni::_z},
                                      }};

} // namespace orbchart
