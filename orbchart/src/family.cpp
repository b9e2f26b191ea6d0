// The child families of a wrapper: what is the same for all classes.
#include "family.h"

#include "chartstring.h"
#include "orbuni.h"
#include "placement.h"
#include "raise.h"

#include <xercesc/dom/DOMDocument.hpp>

using xercesc::DOMElement;
using xercesc::DOMNode;

namespace orbchart {
namespace {

thread_local std::vector<OrbBaseElement*>* waiting = nullptr;

void end(const OrbBaseElement* wrapper, Registrations registrations) {
  if (registrations == Registrations::go)
    unbind(*wrapper);
  delete wrapper;
}

} // namespace

std::string wordFor(const XMLCh* elementName) {
  std::string word = ChartString(elementName).toUTF8();
  word.front() = static_cast<char>(word.front() - 'a' + 'A'); // the elements that have limits begin with a small letter
  return word;
}

void OnlyOne::refuse(const OrbBaseElement& wrapper, std::size_t count) const {
  if (count != 0)
    wrapper.throwIfChildExists(count, 0, child, child, parent, file, line);
}

void AtMost::refuse(std::size_t count) const {
  if (count >= limit)
    raise(message, file, line);
}

void discard(OrbBaseElement* wrapper, Registrations registrations) {
  if (waiting != nullptr) {
    waiting->push_back(wrapper);
    return;
  }
  std::vector<OrbBaseElement*> owned;
  waiting = &owned;
  end(wrapper, registrations);
  while (!owned.empty()) {
    const OrbBaseElement* next = owned.back();
    owned.pop_back();
    end(next, registrations);
  }
  waiting = nullptr;
}

bool isChild(const OrbBaseElement& parent, const OrbBaseElement& child) {
  return child.getImplementation()->getParentNode() == parent.getImplementation();
}

void takeOut(const OrbBaseElement& parent, const OrbBaseElement& child, bool stripId) {
  DOMElement* element = child.getImplementation();
  if (stripId)
    element->removeAttribute(OrbUni::_id);
  if (isChild(parent, child))
    parent.getImplementation()->removeChild(element);
}

NewChild::NewChild(const OrbBaseElement& parent, const XMLCh* name, std::span<DOMNode* const> followers) :
    NewChild(parent, parent.getImplementation()->getOwnerDocument()->createElement(name), followers) {}

NewChild::NewChild(const OrbBaseElement& parent, DOMElement* element, std::span<DOMNode* const> followers) :
    parent_(parent.getImplementation()), element_(element) {
  insertBeforeFirst(*parent_, *element_, followers.data(), followers.size());
}

NewChild::~NewChild() {
  if (parent_ == nullptr)
    return;
  parent_->removeChild(element_);
  // The wrapper may have been registered before it failed.
  element_->setUserData(element_->getTagName(), nullptr, nullptr);
}

} // namespace orbchart
