// One term of a union of selections.
#include "orbintersect.h"

#include "attribute.h"
#include "family.h"
#include "orbalternating.h"
#include "orbintersectwhere.h"
#include "orbuni.h"
#include "orbwhere.h"

using namespace orbchart;

namespace {

constexpr Id id;

using Attributes = AttributeList<id>;

using Families = ChildFamilies<FamilyList<OrbWhere, OrbIntersectWhere, OrbAlternating>>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbIntersect>() {
  return elementDescription<OrbIntersect, Attributes, Families>;
}

struct OrbIntersect::Children : Families {};

OrbIntersect::OrbIntersect(xercesc::DOMElement* element) : OrbBaseElement(element), children_(new Children) {
  children_->load(*this);
  bind(*this);
}
OrbIntersect::~OrbIntersect() = default;

const XMLCh* OrbIntersect::getId() const { return id.get(*this); }
void OrbIntersect::setId(const XMLCh* value) { id.set(*this, value); }
bool OrbIntersect::isIdPresent() const { return id.isPresent(*this); }
void OrbIntersect::removeId() { id.remove(*this); }

OrbWhere* OrbIntersect::addWhere() { return children_->add<OrbWhere>(*this, atEnd); }
std::vector<OrbWhere*> OrbIntersect::getWheres() const { return children_->all<OrbWhere>(); }
unsigned int OrbIntersect::removeWheres() { return children_->removeAll<OrbWhere>(*this); }

OrbIntersectWhere* OrbIntersect::addIntersectWhere() { return children_->add<OrbIntersectWhere>(*this, atEnd); }
std::vector<OrbIntersectWhere*> OrbIntersect::getIntersectWheres() const { return children_->all<OrbIntersectWhere>(); }
unsigned int OrbIntersect::removeIntersectWheres() { return children_->removeAll<OrbIntersectWhere>(*this); }

OrbAlternating* OrbIntersect::addAlternating() { return children_->add<OrbAlternating>(*this, atEnd); }
std::vector<OrbAlternating*> OrbIntersect::getAlternatings() const { return children_->all<OrbAlternating>(); }
unsigned int OrbIntersect::removeAlternatings() { return children_->removeAll<OrbAlternating>(*this); }
