// How a break in the data is drawn: the keywords that areas, lines and paths have in common.
#pragma once

#include "keyword.h"

namespace orbchart {

/// The attribute, for the enumeration of each element.
template <class Element>
inline constexpr Keywords breakRepresentationOf{
    Element::_UTF_breakRepresentation,
    Element::breakRepresentation_unset,
    {
        {Element::breakRepresentation_gap, OrbUni::_gap},
        {Element::breakRepresentation_interpolate, Element::_UTF_breakRepresentation_interpolate},
        {Element::breakRepresentation_wings, OrbUni::_wings},
    }};

} // namespace orbchart
