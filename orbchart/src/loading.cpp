// How wrappers come to stand over the elements of a document.
#include "loading.h"

#include "chartstring.h"
#include "orbcategories2.h"
#include "orbuni.h"
#include "raise.h"

#include <xercesc/dom/DOMElement.hpp>
#include <xercesc/util/XMLString.hpp>

#include <algorithm>
#include <cstddef>
#include <deque>
#include <iterator>
#include <memory_resource>
#include <string>
#include <vector>

using xercesc::DOMElement;
using xercesc::DOMNode;
using xercesc::XMLString;

namespace orbchart {

/// The load that is running on this thread, from the outermost wrapper's constructor to its end. It keeps the elements
/// that it is at in a stack of its own, so that a deep document asks for no deep one of the thread.
///
/// What it has made is registered at its end, and when it fails, nothing is: a document that is too deep must never
/// have had a registration, since Xerces walks by recursion over one that had when it is released.
class Load {
public:
  explicit Load(const OrbBaseElement& outermost) : outermost_(outermost) { running = this; }
  Load(const Load&) = delete;
  Load& operator=(const Load&) = delete;
  ~Load() { running = nullptr; }

  /// The load of this thread; null when none is running.
  [[gnu::tls_model("initial-exec")]] static constinit thread_local Load* running;

  void leaveChildren(const OrbBaseElement& parent, DOMNode* first, void* families, const LoadedFamilies& loaded);
  /// Wraps one child and what lies below it. When that fails, the child leaves its family again.
  void wrapOne(const OrbBaseElement& parent, DOMElement& child, void* families, const LoadedFamilies& loaded);
  /// Wraps all that was left, and registers the wrappers.
  void run();
  /// Registers a wrapper at the end.
  void leaveBinding(DOMElement& element, const XMLCh* key, void* wrapper) {
    bindings_.push_back({&element, key, wrapper});
  }
  /// Raises if elements lie too deep below an element whose children have no wrappers.
  void refuseDeepContent(const DOMElement& element) const;

private:
  /// Children of a wrapper that are still to wrap, from one on.
  struct Rest {
    DOMNode* next;
    const OrbBaseElement* parent;
    void* families;
    const LoadedFamilies* loaded;
    unsigned int level;
  };
  struct Binding {
    DOMElement* element;
    const XMLCh* key;
    void* wrapper;
  };

  void wrapChildren();
  void bindAll();

  const OrbBaseElement& outermost_;
  /// How deep the children of the wrapper lie that is being made.
  unsigned int level_ = 1;
  std::vector<Rest> rests_;
  std::pmr::monotonic_buffer_resource memory_;
  std::pmr::deque<Binding> bindings_{&memory_};
};

constinit thread_local Load* Load::running = nullptr;

namespace {

DOMElement& requiredElement(const OrbBaseElement& wrapper) {
  if (wrapper.getImplementation() == nullptr)
    raise("A wrapper needs an element, and got a null pointer.");
  return *wrapper.getImplementation();
}

[[noreturn]] void raiseTooDeep(const DOMElement& top) {
  raise("Elements are nested more than " + std::to_string(maximumNesting) + " levels deep below " +
        ChartString(top.getTagName()).toUTF8() + ".");
}

/// Whether anything among some siblings, which lie at a level, or below them lies deeper than the limit.
bool liesTooDeep(const DOMNode* node, unsigned int level) {
  std::vector<const DOMNode*> rests; // asking a node for its parent costs more
  for (;;) {
    while (node == nullptr) {
      if (rests.empty())
        return false;
      node = rests.back();
      rests.pop_back();
      --level;
    }
    const DOMNode* const child = node->getFirstChild();
    const DOMNode* const next = node->getNextSibling();
    if (child == nullptr) {
      node = next;
      continue;
    }
    if (++level > maximumNesting)
      return true;
    rests.push_back(next);
    node = child;
  }
}

const LoadedFamily* findFamily(const XMLCh* name, const LoadedFamilies& loaded) {
  if (loaded.refused != nullptr && XMLString::equals(name, loaded.refused))
    return nullptr;
  for (const LoadedFamily* family = loaded.known; family != loaded.known + loaded.count; ++family) {
    if (family->elementName[0] == name[0] && XMLString::equals(family->elementName, name))
      return family;
  }
  return nullptr;
}

void wrapChild(const OrbBaseElement& parent, DOMElement& child, void* families, const LoadedFamily* family,
               Unknown unknown) {
  if (family != nullptr)
    family->wrap(families, child);
  else if (unknown == Unknown::raises)
    raise(parent.ChildNotFoundError(child.getTagName()));
  else
    Load::running->refuseDeepContent(child);
}

} // namespace

void Load::leaveChildren(const OrbBaseElement& parent, DOMNode* first, void* families, const LoadedFamilies& loaded) {
  if (level_ > maximumNesting)
    raiseTooDeep(requiredElement(outermost_));
  rests_.push_back({first, &parent, families, &loaded, level_});
}

void Load::refuseDeepContent(const DOMElement& element) const {
  if (liesTooDeep(element.getFirstChild(), level_))
    raiseTooDeep(requiredElement(outermost_));
}

void Load::wrapOne(const OrbBaseElement& parent, DOMElement& child, void* families, const LoadedFamilies& loaded) {
  const LoadedFamily* family = findFamily(child.getTagName(), loaded);
  level_ = 2;
  wrapChild(parent, child, families, family, loaded.unknown);
  try {
    run();
  } catch (...) {
    family->unwrap(families);
    throw;
  }
}

void Load::run() {
  std::reverse(rests_.begin(), rests_.end()); // the base's children come first
  while (!rests_.empty())
    wrapChildren();
  bindAll();
}

/// Wraps children of one wrapper until one of them leaves children of its own.
void Load::wrapChildren() {
  const std::size_t depth = rests_.size();
  Rest rest = rests_.back();
  level_ = rest.level + 1;
  // A document holds each name once, and most children have the name of the one before.
  const XMLCh* name = nullptr;
  const LoadedFamily* family = nullptr;
  while (rest.next != nullptr) {
    DOMNode* node = rest.next;
    rest.next = node->getNextSibling();
    if (node->getNodeType() != DOMNode::ELEMENT_NODE)
      continue;
    auto& child = static_cast<DOMElement&>(*node);
    if (child.getTagName() != name) {
      name = child.getTagName();
      family = findFamily(name, *rest.loaded);
    }
    wrapChild(*rest.parent, child, rest.families, family, rest.loaded->unknown);
    if (rests_.size() != depth) {
      rests_[depth - 1].next = rest.next;
      // A class that loads after its base has left its children behind the base's, and they come after them.
      std::reverse(rests_.begin() + static_cast<std::ptrdiff_t>(depth), rests_.end());
      return;
    }
  }
  rests_.pop_back();
}

/// An element has left the processor's cache since it was wrapped, and is fetched again some bindings ahead.
void Load::bindAll() {
  auto ahead = bindings_.begin() + std::min<std::ptrdiff_t>(8, std::ssize(bindings_));
  for (const Binding& binding : bindings_) {
    if (ahead != bindings_.end())
      __builtin_prefetch(ahead++->element);
    binding.element->setUserData(binding.key, binding.wrapper, nullptr);
  }
}

JointLoad::JointLoad(const OrbBaseElement& outermost) :
    load_(Load::running == nullptr ? std::make_unique<Load>(outermost) : nullptr) {}
JointLoad::~JointLoad() = default;

void JointLoad::run() {
  if (load_ != nullptr)
    load_->run();
}

void bindUnder(const XMLCh* key, const OrbBaseElement& wrapper, void* typedWrapper) {
  DOMElement& element = requiredElement(wrapper);
  if (Load::running != nullptr)
    Load::running->leaveBinding(element, key, typedWrapper);
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

void loadChildren(const OrbBaseElement& parent, void* families, const LoadedFamilies& loaded) {
  DOMNode* first = requiredElement(parent).getFirstChild();
  if (first == nullptr)
    return;
  if (Load::running != nullptr) {
    Load::running->leaveChildren(parent, first, families, loaded);
    return;
  }
  Load load(parent);
  load.leaveChildren(parent, first, families, loaded);
  load.run();
}

void loadChild(const OrbBaseElement& parent, DOMNode* node, void* families, const LoadedFamilies& loaded) {
  if (node == nullptr || node->getNodeType() != DOMNode::ELEMENT_NODE)
    return;
  Load(parent).wrapOne(parent, static_cast<DOMElement&>(*node), families, loaded);
}

void requireElement(const OrbBaseElement& wrapper) { static_cast<void>(requiredElement(wrapper)); }

void refuseDeepContent(const OrbBaseElement& wrapper) {
  DOMElement& element = requiredElement(wrapper);
  if (Load::running != nullptr)
    Load::running->refuseDeepContent(element);
  else if (liesTooDeep(element.getFirstChild(), 1))
    raiseTooDeep(element);
}

} // namespace orbchart
