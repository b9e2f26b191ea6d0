// One step of a style cycle.
#include "orbcycle.h"

#include "attribute.h"
#include "family.h"
#include "orbstyle.h"

using namespace orbchart;

namespace {

constexpr Id id;

using Attributes = AttributeList<id>;

using Families = ChildFamilies<FamilyList<StripsIds<OrbStyle>>>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbCycle>() {
  return elementDescription<OrbCycle, Attributes, Families>;
}

struct OrbCycle::Children : Families {};

OrbCycle::OrbCycle(xercesc::DOMElement* element) : OrbBaseElement(element), children_(new Children) {
  children_->load(*this);
  bind(*this);
}
OrbCycle::~OrbCycle() = default;

const XMLCh* OrbCycle::getId() const { return id.get(*this); }
void OrbCycle::setId(const XMLCh* value) { id.set(*this, value); }
void OrbCycle::removeId() { id.remove(*this); }

OrbStyle* OrbCycle::addStyle() { return children_->add<OrbStyle>(*this, atEnd); }
std::vector<OrbStyle*> OrbCycle::getStyles() const { return children_->all<OrbStyle>(); }
unsigned int OrbCycle::removeStyles() { return children_->removeAll<OrbStyle>(*this); }
