// Styles that values run through in turn.
#include "orbstylecycle.h"

#include "attribute.h"
#include "family.h"
#include "orbcycle.h"
#include "orbextension.h"

using namespace orbchart;

namespace {

constexpr Id id;

using Attributes = AttributeList<id>;

using AfterCycles = FamilyList<OrbExtension>;
using Families = ChildFamilies<FamilyList<StripsIds<OrbCycle>, OrbExtension>>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbStyleCycle>() {
  return elementDescription<OrbStyleCycle, Attributes, Families>;
}

struct OrbStyleCycle::Children : Families {};

OrbStyleCycle::OrbStyleCycle(xercesc::DOMElement* element) : OrbBaseElement(element), children_(new Children) {
  children_->load(*this);
  bind(*this);
}
OrbStyleCycle::OrbStyleCycle(xercesc::DOMElement* element, const XMLCh* id) : OrbStyleCycle(element) { setId(id); }
OrbStyleCycle::~OrbStyleCycle() = default;

const XMLCh* OrbStyleCycle::getId() const { return id.get(*this); }
void OrbStyleCycle::setId(const XMLCh* value) { id.set(*this, value); }
void OrbStyleCycle::removeId() { id.remove(*this); }

OrbCycle* OrbStyleCycle::addCycle() { return children_->add<OrbCycle>(*this, AfterCycles{}); }
std::vector<OrbCycle*> OrbStyleCycle::getCycles() const { return children_->all<OrbCycle>(); }
unsigned int OrbStyleCycle::removeCycles() { return children_->removeAll<OrbCycle>(*this); }

OrbExtension* OrbStyleCycle::addExtension() { return children_->add<OrbExtension>(*this, atEnd); }
std::vector<OrbExtension*> OrbStyleCycle::getExtensions() const { return children_->all<OrbExtension>(); }
unsigned int OrbStyleCycle::removeExtensions() { return children_->removeAll<OrbExtension>(*this); }
