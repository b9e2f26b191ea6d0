// A union of selections.
#include "orbunion.h"

#include "attribute.h"
#include "family.h"
#include "orbintersect.h"
#include "orbuni.h"

using namespace orbchart;

namespace {

constexpr Id id;

using Attributes = AttributeList<id>;

using Families = ChildFamilies<FamilyList<OrbIntersect>>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbUnion>() {
  return elementDescription<OrbUnion, Attributes, Families>;
}

struct OrbUnion::Children : Families {};

OrbUnion::OrbUnion(xercesc::DOMElement* element) : OrbBaseElement(element), children_(new Children) {
  children_->load(*this);
  bind(*this);
}
OrbUnion::~OrbUnion() = default;

const XMLCh* OrbUnion::getId() const { return id.get(*this); }
void OrbUnion::setId(const XMLCh* value) { id.set(*this, value); }
bool OrbUnion::isIdPresent() const { return id.isPresent(*this); }
void OrbUnion::removeId() { id.remove(*this); }

OrbIntersect* OrbUnion::addIntersect() { return children_->add<OrbIntersect>(*this, atEnd); }
std::vector<OrbIntersect*> OrbUnion::getIntersects() const { return children_->all<OrbIntersect>(); }
unsigned int OrbUnion::removeIntersects() { return children_->removeAll<OrbIntersect>(*this); }
