// Where a new child element goes among its siblings.
#pragma once

#include "orbchartdom.h"

#include <cstddef>

namespace orbchart {

/// Puts a child directly before the first of the parent's children that is one of the followers, else last. Null
/// followers and elements of other parents do not count.
///
/// The followers are searched from each other and from the front at once: an add costs the least of the siblings ahead
/// of its place, those behind it, and the distances between the followers.
void insertBeforeFirst(xercesc::DOMElement& parent, xercesc::DOMElement& child, xercesc::DOMNode* const* followers,
                       std::size_t count);

} // namespace orbchart
