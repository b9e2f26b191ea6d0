// Where the marks of ticks stand: the keywords that major and minor ticks have in common.
#pragma once

#include "keyword.h"

namespace orbchart {

/// The attribute, for the enumeration of each class.
template <class Ticks>
inline constexpr Keywords tickPositionOf{OrbUni::_position,
                                         AbsentReadsAs(Ticks::position_inside),
                                         {
                                             {Ticks::position_inside, OrbUni::_inside},
                                             {Ticks::position_outside, OrbUni::_outside},
                                             {Ticks::position_cross, OrbUni::_cross},
                                         }};

} // namespace orbchart
