// The formats of labels by their values.
#include "orbformatting.h"

#include "family.h"
#include "orbformatmapping.h"

using namespace orbchart;
using xercesc::DOMElement;

namespace {

using Families = ChildFamilies<FamilyList<OrbFormatMapping>>;

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

OrbFormatMapping* OrbFormatting::addFormatMapping() { return children_->add<OrbFormatMapping>(*this, atEnd); }
std::vector<OrbFormatMapping*> OrbFormatting::getFormatMappings() const { return children_->all<OrbFormatMapping>(); }
unsigned int OrbFormatting::removeFormatMappings() { return children_->removeAll<OrbFormatMapping>(*this); }
