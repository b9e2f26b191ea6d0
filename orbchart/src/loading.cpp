// How wrappers come to stand over the elements of a document.
#include "loading.h"

#include "chartstring.h"
#include "orbcategories2.h"
#include "orbuni.h"
#include "raise.h"

#include <xercesc/dom/DOMElement.hpp>
#include <xercesc/util/XMLString.hpp>

#include <algorithm>
#include <deque>
#include <iterator>
#include <string>

using xercesc::DOMElement;
using xercesc::DOMNode;
using xercesc::XMLString;

namespace orbchart {
namespace {

struct Binding {
  DOMElement* element;
  const XMLCh* key;
  void* wrapper;
};

/// The load that is running on this thread, from the outermost wrapper's constructor to its end.
struct Load {
  const OrbBaseElement& outermost;
  unsigned int level = 0;
  std::deque<Binding> bindings;
};

thread_local Load* running = nullptr;

DOMElement& requiredElement(const OrbBaseElement& wrapper) {
  if (wrapper.getImplementation() == nullptr)
    raise("A wrapper needs an element, and got a null pointer.");
  return *wrapper.getImplementation();
}

[[noreturn]] void raiseTooDeep(const DOMElement& top) {
  raise("Elements are nested more than " + std::to_string(maximumNesting) + " levels deep below " +
        ChartString(top.getTagName()).toUTF8() + ".");
}

/// One wrapper's children in a running load.
class Level {
public:
  Level() { ++running->level; }
  Level(const Level&) = delete;
  Level& operator=(const Level&) = delete;
  ~Level() { --running->level; }
};

/// The next element after a node in document order, under a top element; keeps count of its level below the top.
DOMElement* nextElement(DOMNode* node, const DOMElement& top, unsigned int& level) {
  DOMNode* next = node->getNodeType() == DOMNode::ELEMENT_NODE ? node->getFirstChild() : nullptr;
  level += next != nullptr ? 1 : 0;
  for (;;) {
    while (next == nullptr) {
      if (node == &top)
        return nullptr;
      next = node->getNextSibling();
      if (next == nullptr) {
        node = node->getParentNode();
        --level;
      }
    }
    if (next->getNodeType() == DOMNode::ELEMENT_NODE)
      return static_cast<DOMElement*>(next);
    node = next;
    next = nullptr;
  }
}

[[gnu::noinline]] void refuseDeepContent(DOMElement& top, unsigned int topLevel) {
  unsigned int level = topLevel;
  for (DOMElement* element = nextElement(&top, top, level); element != nullptr;
       element = nextElement(element, top, level)) {
    if (level > maximumNesting)
      raiseTooDeep(running == nullptr ? top : requiredElement(running->outermost));
  }
}

/// Most leaves hold a text at most. Asking siblings alone is cheap, where asking for a parent is not.
bool hasChildElement(const DOMElement& element) {
  const DOMNode* node = element.getFirstChild();
  while (node != nullptr && node->getNodeType() != DOMNode::ELEMENT_NODE)
    node = node->getNextSibling();
  return node != nullptr;
}

const LoadedFamily* findFamily(const XMLCh* name, const LoadedFamily* known, std::size_t count) {
  for (const LoadedFamily* family = known; family != known + count; ++family) {
    if (family->elementName[0] == name[0] && XMLString::equals(family->elementName, name))
      return family;
  }
  return nullptr;
}

[[noreturn]] void raiseUnknown(const OrbBaseElement& parent, const DOMElement& child) {
  raise(parent.ChildNotFoundError(child.getTagName()));
}

// The frames of these two, and of a wrapper's constructor, are what one level of nesting costs of the stack: what
// needs more room is kept out of them.

void wrapChild(const OrbBaseElement& parent, DOMElement& child, void* families, const LoadedFamily* family,
               Unknown unknown) {
  if (family != nullptr)
    family->wrap(families, child);
  else if (unknown == Unknown::raises)
    raiseUnknown(parent, child);
  else
    refuseDeepContent(child, running->level);
}

void wrapChildren(const OrbBaseElement& parent, DOMNode* node, void* families, const LoadedFamily* known,
                  std::size_t count, Unknown unknown) {
  const Level level;
  if (running->level > maximumNesting)
    raiseTooDeep(requiredElement(running->outermost));
  // A document holds each name once, and most children have the name of the one before.
  const XMLCh* name = nullptr;
  const LoadedFamily* family = nullptr;
  for (; node != nullptr; node = node->getNextSibling()) {
    if (node->getNodeType() != DOMNode::ELEMENT_NODE)
      continue;
    auto& child = static_cast<DOMElement&>(*node);
    if (child.getTagName() != name) {
      name = child.getTagName();
      family = findFamily(name, known, count);
    }
    wrapChild(parent, child, families, family, unknown);
  }
}

/// An element has left the processor's cache since it was wrapped, and is fetched again some bindings ahead.
void bindAll(const std::deque<Binding>& bindings) {
  auto ahead = bindings.begin() + std::min<std::ptrdiff_t>(8, std::ssize(bindings));
  for (const Binding& binding : bindings) {
    if (ahead != bindings.end())
      __builtin_prefetch(ahead++->element);
    binding.element->setUserData(binding.key, binding.wrapper, nullptr);
  }
}

/// Runs a load from its outermost wrapper on. What it has made is bound at its end; when it fails, nothing is.
template <class Step> [[gnu::noinline]] void runLoad(const OrbBaseElement& outermost, Step step) {
  struct Running {
    explicit Running(Load& load) { running = &load; }
    Running(const Running&) = delete;
    Running& operator=(const Running&) = delete;
    ~Running() { running = nullptr; }
  };
  Load load{outermost, 0, {}};
  {
    const Running whileThisRuns(load);
    step();
  }
  bindAll(load.bindings);
}

[[gnu::noinline]] void loadFromHere(const OrbBaseElement& parent, DOMNode* first, void* families,
                                    const LoadedFamily* known, std::size_t count, Unknown unknown) {
  runLoad(parent, [&] { wrapChildren(parent, first, families, known, count, unknown); });
}

} // namespace

void bindUnder(const XMLCh* key, const OrbBaseElement& wrapper, void* typedWrapper) {
  DOMElement& element = requiredElement(wrapper);
  if (running != nullptr)
    running->bindings.push_back({&element, key, typedWrapper});
  else
    element.setUserData(key, typedWrapper, nullptr);
}

void unbind(const OrbBaseElement& wrapper) {
  DOMElement& element = requiredElement(wrapper);
  const XMLCh* name = element.getTagName();
  // All wrappers are registered under the names of their elements, but for this one.
  const XMLCh* key = XMLString::equals(name, OrbCategories2::elementName) ? OrbUni::_categories : name;
  if (element.getUserData(key) == &wrapper)
    element.setUserData(key, nullptr, nullptr);
}

void loadChildren(const OrbBaseElement& parent, void* families, const LoadedFamily* known, std::size_t count,
                  Unknown unknown) {
  DOMNode* first = requiredElement(parent).getFirstChild();
  if (first == nullptr)
    return;
  if (running != nullptr)
    wrapChildren(parent, first, families, known, count, unknown);
  else
    loadFromHere(parent, first, families, known, count, unknown);
}

void loadChild(const OrbBaseElement& parent, DOMNode* node, void* families, const LoadedFamily* known,
               std::size_t count) {
  if (node == nullptr || node->getNodeType() != DOMNode::ELEMENT_NODE)
    return;
  runLoad(parent, [&] {
    const Level level;
    auto& child = static_cast<DOMElement&>(*node);
    wrapChild(parent, child, families, findFamily(child.getTagName(), known, count), Unknown::raises);
  });
}

void requireElement(const OrbBaseElement& wrapper) { static_cast<void>(requiredElement(wrapper)); }

void refuseDeepContent(const OrbBaseElement& wrapper) {
  DOMElement& element = requiredElement(wrapper);
  if (hasChildElement(element))
    refuseDeepContent(element, running == nullptr ? 0 : running->level);
}

} // namespace orbchart
