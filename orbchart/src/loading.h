// How wrappers come to stand over the elements of a document: binding, loading, and the depth that both allow.
#pragma once

#include "orbbaseelement.h"

#include <cstddef>

namespace orbchart {

/// The deepest nesting of elements that a load accepts. Loading recurses, and so does Xerces when a host releases its
/// document that has had wrappers: what lies deeper would overflow the stack.
inline constexpr unsigned int maximumNesting = 10'240;

/// Registers a wrapper on its element under a key, by which references find it.
///
/// While a load is running the registration waits for the end of it: a load that fails leaves no pointer in the DOM.
void bindUnder(const XMLCh* key, const OrbBaseElement& wrapper, void* typedWrapper);

/// Registers a wrapper under the name of its element. The pointer is kept as the concrete class's.
template <class Wrapper> void bind(Wrapper& wrapper) { bindUnder(Wrapper::elementName, wrapper, &wrapper); }

/// Registers a wrapper that does not look at the children of its element. Elements that lie too deep below it raise.
template <class Wrapper> void bindLeaf(Wrapper& wrapper);
template <class Wrapper> void bindLeafUnder(const XMLCh* key, Wrapper& wrapper);

/// Takes the registration of a wrapper off its element, wherever that is by now; another wrapper's stays.
void unbind(const OrbBaseElement& wrapper);

/// What a load does with a child element that is of none of its families.
enum class Unknown { raises, passes };

/// One family as a load sees it: the name of its element, and how a child joins it.
struct LoadedFamily {
  const XMLCh* elementName;
  void (*wrap)(void* families, xercesc::DOMElement& child);
};

/// Wraps the child elements of an element, in document order, each in the family of its name.
///
/// An unknown child raises the text of ChildNotFoundError, or is passed over. Elements nested deeper than
/// maximumNesting raise "Elements are nested more than <n> levels deep below <name>.".
void loadChildren(const OrbBaseElement& parent, void* families, const LoadedFamily* known, std::size_t count,
                  Unknown unknown);
/// The same for one node among the children of a wrapper that stands. Null and what is not an element does nothing.
void loadChild(const OrbBaseElement& parent, xercesc::DOMNode* node, void* families, const LoadedFamily* known,
               std::size_t count);

/// Raises for a wrapper that got a null pointer: a constructor that writes before it loads asks first.
void requireElement(const OrbBaseElement& wrapper);

/// Raises if elements lie too deep below an element whose children have no wrappers.
void refuseDeepContent(const OrbBaseElement& wrapper);

template <class Wrapper> void bindLeafUnder(const XMLCh* key, Wrapper& wrapper) {
  refuseDeepContent(wrapper);
  bindUnder(key, wrapper, &wrapper);
}
template <class Wrapper> void bindLeaf(Wrapper& wrapper) { bindLeafUnder(Wrapper::elementName, wrapper); }

} // namespace orbchart
