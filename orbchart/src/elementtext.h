// The text of an element: what the text-bearing wrappers share.
#pragma once

#include "chartstring.h"
#include "orbbaseelement.h"

namespace orbchart {

/// The value of the first text node among the children; empty when there is none. Later text nodes and CDATA sections
/// are not read.
ChartString readText(const OrbBaseElement& wrapper);
/// The values of all text nodes among the children, in order, as one text; empty when there is none. CDATA sections are
/// not read. The English form has the first of them twice, as ChartString::append makes it.
ChartString readAllText(const OrbBaseElement& wrapper);
/// Removes the text and appends a new text node behind whatever children stay. A null text is an empty one.
void writeText(OrbBaseElement& wrapper, const XMLCh* text);
/// Removes the text nodes, save that of two neighbours the second stays.
void clearText(OrbBaseElement& wrapper);

} // namespace orbchart
