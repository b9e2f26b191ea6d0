// One axis of a dimension or of a facet level.
#include "orbaxis.h"

#include "attribute.h"
#include "family.h"
#include "keyword.h"
#include "orbaxistransformparameter.h"
#include "orblabel.h"
#include "orbmajorticks.h"
#include "orbminorticks.h"
#include "orbstyle.h"
#include "orbuni.h"
#include "reference.h"

using namespace orbchart;

namespace {

constexpr Id id;
constexpr Reference<OrbStyle> style{OrbUni::_style};
constexpr Boolean opposite{OrbUni::_opposite};
constexpr Keywords transform{OrbUni::_transform,
                             OrbAxis::transform_unset,
                             {
                                 {OrbAxis::transform_linear, OrbUni::_linear},
                                 {OrbAxis::transform_percent, OrbUni::_percent},
                             }};
constexpr Text maxSize{OrbUni::_maxSize};
constexpr Keywords repeat{OrbUni::_repeat,
                          AbsentReadsAs(OrbAxis::repeat_never),
                          {
                              {OrbAxis::repeat_never, OrbUni::_never},
                              {OrbAxis::repeat_always, OrbUni::_always},
                          }};
constexpr Boolean combineAxisLabels{OrbUni::_combineAxisLabels};
constexpr Integer zOrder{OrbUni::_zOrder};

using Attributes = AttributeList<id, style, opposite, transform, maxSize, repeat, combineAxisLabels, zOrder>;

constexpr OnlyOne oneLabel{"Label", "Axis"};
constexpr OnlyOne oneMajorTicks{"MajorTicks", "Axis"};
constexpr OnlyOne oneMinorTicks{"MinorTicks", "Axis"};

using AfterMinorTicks = FamilyList<OrbAxisTransformParameter>;
using AfterMajorTicks = Joined<FamilyList<Limited<OrbMinorTicks, oneMinorTicks>>, AfterMinorTicks>;
using AfterLabels = Joined<FamilyList<Limited<OrbMajorTicks, oneMajorTicks>>, AfterMajorTicks>;
using Families = ChildFamilies<Joined<FamilyList<Limited<OrbLabel, oneLabel>>, AfterLabels>>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbAxis>() {
  return elementDescription<OrbAxis, Attributes, Families>;
}

struct OrbAxis::Children : Families {};

OrbAxis::OrbAxis(xercesc::DOMElement* element) : OrbBaseElement(element), children_(new Children) {
  children_->load(*this);
  bind(*this);
}
OrbAxis::~OrbAxis() = default;

const XMLCh* OrbAxis::getId() const { return id.get(*this); }
void OrbAxis::setId(const XMLCh* value) { id.set(*this, value); }
void OrbAxis::removeId() { id.remove(*this); }

OrbStyle* OrbAxis::getStyle() const { return style.get(*this); }
void OrbAxis::setStyle(const OrbStyle& target) { style.set(*this, target); }
void OrbAxis::removeStyle() { style.remove(*this); }

bool OrbAxis::getOpposite() const { return opposite.get(*this); }
void OrbAxis::setOpposite(bool value) { opposite.set(*this, value); }
void OrbAxis::removeOpposite() { opposite.remove(*this); }

OrbAxis::ENUM_transform OrbAxis::getTransform() const { return transform.get(*this); }
void OrbAxis::setTransform(ENUM_transform value) { transform.set(*this, value); }
void OrbAxis::removeTransform() { transform.remove(*this); }

const XMLCh* OrbAxis::getMaxSize() const { return maxSize.get(*this); }
void OrbAxis::setMaxSize(const XMLCh* value) { maxSize.set(*this, value); }
void OrbAxis::removeMaxSize() { maxSize.remove(*this); }

OrbAxis::ENUM_repeat OrbAxis::getRepeat() const { return repeat.get(*this); }
void OrbAxis::setRepeat(ENUM_repeat value) { repeat.set(*this, value); }
void OrbAxis::removeRepeat() { repeat.remove(*this); }

bool OrbAxis::getCombineAxisLabels() const { return combineAxisLabels.get(*this); }
void OrbAxis::setCombineAxisLabels(bool value) { combineAxisLabels.set(*this, value); }
void OrbAxis::removeCombineAxisLabels() { combineAxisLabels.remove(*this); }

int OrbAxis::getZOrder() const { return zOrder.get(*this); }
void OrbAxis::setZOrder(int value) { zOrder.set(*this, value); }
void OrbAxis::removeZOrder() { zOrder.remove(*this); }

OrbLabel* OrbAxis::addLabel() { return children_->add<OrbLabel>(*this, AfterLabels{}); }
OrbLabel* OrbAxis::getLabel() const { return children_->first<OrbLabel>(); }
unsigned int OrbAxis::removeLabels() { return children_->removeAll<OrbLabel>(*this); }

OrbMajorTicks* OrbAxis::addMajorTicks() { return children_->add<OrbMajorTicks>(*this, AfterMajorTicks{}); }
OrbMajorTicks* OrbAxis::getMajorTicks() const { return children_->first<OrbMajorTicks>(); }
unsigned int OrbAxis::removeMajorTickss() { return children_->removeAll<OrbMajorTicks>(*this); }

OrbMinorTicks* OrbAxis::addMinorTicks() { return children_->add<OrbMinorTicks>(*this, AfterMinorTicks{}); }
OrbMinorTicks* OrbAxis::getMinorTicks() const { return children_->first<OrbMinorTicks>(); }
unsigned int OrbAxis::removeMinorTickss() { return children_->removeAll<OrbMinorTicks>(*this); }

OrbAxisTransformParameter* OrbAxis::addAxisTransformParameter() {
  return children_->add<OrbAxisTransformParameter>(*this, atEnd);
}
std::vector<OrbAxisTransformParameter*> OrbAxis::getAxisTransformParameters() const {
  return children_->all<OrbAxisTransformParameter>();
}
unsigned int OrbAxis::removeAxisTransformParameters() { return children_->removeAll<OrbAxisTransformParameter>(*this); }
