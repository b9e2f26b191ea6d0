// What the elements of interaction share.
#include "ctinteraction.h"

#include "attribute.h"

using namespace orbchart;

namespace {

constexpr Id id;
constexpr Boolean active{CTInteraction::_UTF_active};

using Attributes = AttributeList<id, active>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<CTInteraction>() {
  return elementDescription<CTInteraction, Attributes>;
}

CTInteraction::CTInteraction(xercesc::DOMElement* element) : OrbBaseElement(element) {}
CTInteraction::~CTInteraction() = default;

const XMLCh* CTInteraction::getId() const { return id.get(*this); }
void CTInteraction::setId(const XMLCh* value) { id.set(*this, value); }
bool CTInteraction::isIdPresent() const { return id.isPresent(*this); }
void CTInteraction::removeId() { id.remove(*this); }

bool CTInteraction::getActive() const { return active.get(*this); }
void CTInteraction::setActive(bool value) { active.set(*this, value); }
bool CTInteraction::isActivePresent() const { return active.isPresent(*this); }
void CTInteraction::removeActive() { active.remove(*this); }
