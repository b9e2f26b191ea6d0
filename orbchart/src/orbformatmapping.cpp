// Maps a value onto a format.
#include "orbformatmapping.h"

#include "family.h"
#include "orbformat.h"

using namespace orbchart;

namespace {

using Families = ChildFamilies<FamilyList<OrbFormat>>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbFormatMapping>() {
  return elementDescription<OrbFormatMapping, DerivedFrom<CTAestheticMapping>, Families>;
}

struct OrbFormatMapping::Children : Families {};

OrbFormatMapping::OrbFormatMapping(xercesc::DOMElement* element) :
    CTAestheticMapping(element), children_(new Children) {
  children_->load(*this);
  bind(*this);
}
OrbFormatMapping::~OrbFormatMapping() = default;

OrbFormat* OrbFormatMapping::addFormat() { return children_->add<OrbFormat>(*this, atEnd); }
std::vector<OrbFormat*> OrbFormatMapping::getFormats() const { return children_->all<OrbFormat>(); }
unsigned int OrbFormatMapping::removeFormats() { return children_->removeAll<OrbFormat>(*this); }
