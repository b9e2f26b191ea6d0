// The image of a graphic element.
#include "orbimage.h"

#include "attribute.h"
#include "family.h"
#include "orbstringmapping.h"
#include "orbstylecycle.h"
#include "orbuni.h"
#include "reference.h"

using namespace orbchart;
using xercesc::DOMElement;

namespace {

constexpr Reference<OrbStyleCycle> cycle{OrbUni::_cycle};
constexpr Text missing{OrbImage::_UTF_missing};

using Attributes = AttributeList<cycle, missing>;

using Families = ChildFamilies<FamilyList<OrbStringMapping>>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbImage>() {
  return elementDescription<OrbImage, DerivedWithoutChildrenFrom<CTAesthetic>, Attributes, Families>;
}

struct OrbImage::Children : Families {};

OrbImage::OrbImage(DOMElement* element) : CTAesthetic(element, WithoutChildren()), children_(new Children) {
  children_->load(*this);
  bind(*this);
}
OrbImage::~OrbImage() = default;

OrbStyleCycle* OrbImage::getCycle() const { return cycle.get(*this); }
void OrbImage::setCycle(const OrbStyleCycle& target) { cycle.set(*this, target); }
bool OrbImage::isCyclePresent() const { return cycle.isPresent(*this); }
void OrbImage::removeCycle() { cycle.remove(*this); }

const XMLCh* OrbImage::getMissing() const { return missing.get(*this); }
void OrbImage::setMissing(const XMLCh* value) { missing.set(*this, value); }
bool OrbImage::isMissingPresent() const { return missing.isPresent(*this); }
void OrbImage::removeMissing() { missing.remove(*this); }

OrbStringMapping* OrbImage::addStringMapping() { return children_->add<OrbStringMapping>(*this, atEnd); }
std::vector<OrbStringMapping*> OrbImage::getStringMappings() const { return children_->all<OrbStringMapping>(); }
unsigned int OrbImage::removeStringMappings() { return children_->removeAll<OrbStringMapping>(*this); }
