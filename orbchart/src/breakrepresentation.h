// How a break in the data is drawn: the keywords that areas, lines and paths have in common.
#pragma once

#include "keyword.h"
#include "orbuni.h"

namespace orbchart {

/// The keywords of an element's own enumeration.
template <class Element>
inline constexpr Keyword<typename Element::ENUM_breakRepresentation> breakRepresentations[] = {
    {Element::breakRepresentation_gap, OrbUni::_gap},
    {Element::breakRepresentation_interpolate, Element::_UTF_breakRepresentation_interpolate},
    {Element::breakRepresentation_wings, OrbUni::_wings},
};

} // namespace orbchart
