// The formats of labels by their values.
#include "orbformatting.h"

#include "family.h"

using namespace orbchart;
using xercesc::DOMElement;

struct OrbFormatting::Children : ChildFamilies<FamilyList<>> {};

OrbFormatting::OrbFormatting(DOMElement* element) : CTAesthetic(element, WithoutChildren()), children_(new Children) {
  children_->load(*this);
  bind(*this);
}
OrbFormatting::~OrbFormatting() = default;
