// Whether a text is raised or lowered: the keywords that texts and affixes have in common.
#pragma once

#include "keyword.h"

namespace orbchart {

/// The attribute, for the enumeration of each class.
template <class Element>
inline constexpr Keywords textPositionOf{OrbUni::_position,
                                         Element::position_unset,
                                         {
                                             {Element::position_superscript, Element::_UTF_position_superscript},
                                             {Element::position_subscript, Element::_UTF_position_subscript},
                                             {Element::position_normal, OrbUni::_normal},
                                         }};

} // namespace orbchart
