// How wrappers come to stand over the elements of a document: binding, loading, and the depth that both allow.
#pragma once

#include "description.h"
#include "orbbaseelement.h"

#include <cstddef>
#include <memory>

namespace orbchart {

/// The deepest nesting of elements that a load accepts. Xerces recurses when a host releases its document that has had
/// wrappers: what lies deeper would overflow the stack.
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

/// One family as a load sees it: the name of its element, how a child joins it, and how the child that joined it last
/// ends.
struct LoadedFamily {
  const XMLCh* elementName;
  void (*wrap)(void* families, xercesc::DOMElement& child);
  void (*unwrap)(void* families);
};

/// The families of a class as a load sees them.
struct LoadedFamilies {
  const LoadedFamily* known;
  std::size_t count;
  Unknown unknown;
  /// The name of a family that a load treats as unknown; null for none.
  const XMLCh* refused = nullptr;
};

/// Wraps the child elements of an element, in document order, each in the family of its name.
///
/// An unknown child raises the text of ChildNotFoundError, or is passed over. Elements nested deeper than
/// maximumNesting raise "Elements are nested more than <n> levels deep below <name>.".
///
/// While a load is running, the children are left to it: it goes on with them before the next sibling of their parent,
/// so that the first fault of the document is the one that is raised, and the depth of a document asks for no stack.
void loadChildren(const OrbBaseElement& parent, void* families, const LoadedFamilies& loaded);
/// The same for one node among the children of a wrapper that stands. Null and what is not an element does nothing.
void loadChild(const OrbBaseElement& parent, xercesc::DOMNode* node, void* families, const LoadedFamilies& loaded);

class Load;

/// Holds the loads of a constructor together that wraps its children twice: what one of them refuses, none has.
class JointLoad {
public:
  explicit JointLoad(const OrbBaseElement& outermost);
  JointLoad(const JointLoad&) = delete;
  JointLoad& operator=(const JointLoad&) = delete;
  ~JointLoad();
  void run();

private:
  std::unique_ptr<Load> load_;
};

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
