// The formats of labels by their values.
#include "orbformatting.h"

#include "family.h"

using namespace orbchart;
using xercesc::DOMElement;

namespace {

using Families = ChildFamilies<FamilyList<>>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbFormatting>() {
  return elementDescription<OrbFormatting, DerivedWithoutChildrenFrom<CTAesthetic>, Families>;
}

struct OrbFormatting::Children : Families {};

OrbFormatting::OrbFormatting(DOMElement* element) : CTAesthetic(element, WithoutChildren()), children_(new Children) {
  children_->load(*this);
  bind(*this);
}
OrbFormatting::~OrbFormatting() = default;
