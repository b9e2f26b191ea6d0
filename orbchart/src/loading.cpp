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
#include <string>
#include <vector>

using xercesc::DOMElement;
using xercesc::DOMNode;
using xercesc::XMLString;

namespace orbchart {

/// The load that is running on this thread, from the outermost wrapper's constructor to its end. It keeps the elements
/// that it is at in a stack of its own.
///
/// Before it registers the first wrapper, it has seen that nothing lies too deep: once a document has had
/// registrations, Xerces walks over it by recursion when it is released. Where something lies too deep, the load goes
/// on until it raises, and registers nothing.
class Load {
public:
  Load(const OrbBaseElement& outermost, DOMNode* first, bool withSiblings);
  Load(const Load&) = delete;
  Load& operator=(const Load&) = delete;
  ~Load() { running = nullptr; }

  /// The load of this thread; null when none is running.
  static constinit thread_local Load* running;

  /// Whether something lies too deep.
  bool isDoomed() const { return isDoomed_; }
  /// Raises in a doomed load if elements lie too deep below an element whose children have no wrappers.
  void refuseDeepContent(DOMElement& element) const;

  void leaveChildren(const OrbBaseElement& parent, DOMNode* first, void* families, const LoadedFamilies& loaded);
  /// Wraps one child now, and what lies below it.
  void wrapOne(const OrbBaseElement& parent, DOMElement& child, void* families, const LoadedFamilies& loaded);
  /// Wraps all that was left.
  void run();
  /// A registration that another one takes the place of.
  void note(DOMElement& element, const XMLCh* key, void* wrapper) { replaced_.push_back({&element, key, wrapper}); }

private:
  /// Children of a wrapper that are still to wrap, from one on.
  struct Rest {
    DOMNode* next;
    const OrbBaseElement* parent;
    void* families;
    const LoadedFamilies* loaded;
    unsigned int level;
  };
  struct Registration {
    DOMElement* element;
    const XMLCh* key;
    void* wrapper;
  };
  struct Outermost {
    void* families;
    void (*unwrap)(void* families);
  };

  void wrapChildren();
  void takeBack();

  const OrbBaseElement& outermost_;
  bool isDoomed_;
  /// How deep the children of the wrapper lie that is being made.
  unsigned int level_ = 1;
  std::vector<Rest> rests_;
  std::vector<Registration> replaced_;
  std::vector<Outermost> outermostFamilies_;
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

/// Whether an element among the nodes, or below them, lies deeper than the limit.
bool liesTooDeep(DOMNode* node, bool withSiblings, unsigned int level) {
  std::vector<DOMNode*> rests; // asking a node for its parent costs more
  if (!withSiblings && node->getNodeType() == DOMNode::ELEMENT_NODE) {
    node = node->getFirstChild();
    ++level;
  }
  const unsigned int top = level;
  for (;;) {
    while (node == nullptr) {
      if (level == top)
        return false;
      node = rests.back();
      rests.pop_back();
      --level;
    }
    DOMNode* const next = node->getNextSibling();
    if (node->getNodeType() == DOMNode::ELEMENT_NODE) {
      if (level > maximumNesting)
        return true;
      if (DOMNode* const child = node->getFirstChild()) {
        rests.push_back(next);
        ++level;
        node = child;
        continue;
      }
    }
    node = next;
  }
}

const LoadedFamily* findFamily(const XMLCh* name, const LoadedFamilies& loaded) {
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

Load::Load(const OrbBaseElement& outermost, DOMNode* first, bool withSiblings) :
    outermost_(outermost), isDoomed_(liesTooDeep(first, withSiblings, 1)) {
  running = this;
}

void Load::refuseDeepContent(DOMElement& element) const {
  // The children of a wrapper over the element would lie at the level.
  if (isDoomed_ && liesTooDeep(element.getFirstChild(), true, level_))
    raiseTooDeep(requiredElement(outermost_));
}

void Load::leaveChildren(const OrbBaseElement& parent, DOMNode* first, void* families, const LoadedFamilies& loaded) {
  if (isDoomed_ && level_ > maximumNesting)
    raiseTooDeep(requiredElement(outermost_));
  if (level_ == 1)
    outermostFamilies_.push_back({families, loaded.unwrapAll});
  rests_.push_back({first, &parent, families, &loaded, level_});
}

void Load::wrapOne(const OrbBaseElement& parent, DOMElement& child, void* families, const LoadedFamilies& loaded) {
  const LoadedFamily* family = findFamily(child.getTagName(), loaded);
  level_ = 2;
  wrapChild(parent, child, families, family, loaded.unknown);
  outermostFamilies_.push_back({families, family->unwrap});
  run();
}

void Load::run() {
  std::reverse(rests_.begin(), rests_.end()); // the base's children come first
  try {
    while (!rests_.empty())
      wrapChildren();
  } catch (...) {
    takeBack();
    throw;
  }
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

/// Ends what the load has made and leaves the registrations as they were.
void Load::takeBack() {
  while (!replaced_.empty()) {
    const Registration registration = replaced_.back();
    replaced_.pop_back();
    registration.element->setUserData(registration.key, registration.wrapper, nullptr);
  }
  for (const Outermost& outermost : outermostFamilies_)
    outermost.unwrap(outermost.families);
}

JointLoad::JointLoad(const OrbBaseElement& outermost) :
    load_(Load::running == nullptr ? std::make_unique<Load>(outermost, requiredElement(outermost).getFirstChild(), true)
                                   : nullptr) {}
JointLoad::~JointLoad() = default;

void JointLoad::run() {
  if (load_ != nullptr)
    load_->run();
}

void bindUnder(const XMLCh* key, const OrbBaseElement& wrapper, void* typedWrapper) {
  DOMElement& element = requiredElement(wrapper);
  if (Load::running != nullptr && Load::running->isDoomed())
    return;
  void* replaced = element.setUserData(key, typedWrapper, nullptr);
  if (replaced != nullptr && Load::running != nullptr)
    Load::running->note(element, key, replaced);
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
  Load load(parent, first, true);
  load.leaveChildren(parent, first, families, loaded);
  load.run();
}

void loadChild(const OrbBaseElement& parent, DOMNode* node, void* families, const LoadedFamilies& loaded) {
  if (node == nullptr || node->getNodeType() != DOMNode::ELEMENT_NODE)
    return;
  Load(parent, node, false).wrapOne(parent, static_cast<DOMElement&>(*node), families, loaded);
}

void requireElement(const OrbBaseElement& wrapper) { static_cast<void>(requiredElement(wrapper)); }

void refuseDeepContent(const OrbBaseElement& wrapper) {
  DOMElement& element = requiredElement(wrapper);
  if (Load::running != nullptr)
    Load::running->refuseDeepContent(element);
  else if (liesTooDeep(element.getFirstChild(), true, 1))
    raiseTooDeep(element);
}

} // namespace orbchart
