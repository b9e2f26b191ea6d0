// The major ticks of an axis.
#include "orbmajorticks.h"

#include "attribute.h"
#include "family.h"
#include "keyword.h"
#include "orbformat.h"
#include "orbgridline.h"
#include "orblabel.h"
#include "orbstyle.h"
#include "orbuni.h"
#include "reference.h"
#include "tickposition.h"

using namespace orbchart;

namespace {

constexpr Id id;
constexpr Reference<OrbStyle> style{OrbUni::_style};
constexpr Reference<OrbStyle> tickFrameStyle{OrbMajorTicks::_UTF_tickFrameStyle};
constexpr Double labelAngle{OrbUni::_labelAngle};
constexpr Boolean stagger{OrbUni::_stagger};
constexpr Unsigned labelFrequency{OrbUni::_labelFrequency};
constexpr Double delta{OrbUni::_delta};
constexpr Text base{OrbUni::_base};
constexpr auto& position = tickPositionOf<OrbMajorTicks>;
constexpr Reference<OrbStyle> markStyle{OrbUni::_markStyle};
constexpr Text length{OrbUni::_length};
constexpr Integer zOrder{OrbUni::_zOrder};
constexpr Keywords deltaUnit{OrbMajorTicks::_UTF_deltaUnit,
                             AbsentReadsAs(OrbMajorTicks::deltaUnit_second),
                             {
                                 {OrbMajorTicks::deltaUnit_second, OrbMajorTicks::OrbMajorTicks_second},
                                 {OrbMajorTicks::deltaUnit_minute, OrbUni::_minute},
                                 {OrbMajorTicks::deltaUnit_hour, OrbUni::_hour},
                                 {OrbMajorTicks::deltaUnit_day, OrbMajorTicks::OrbMajorTicks_day},
                                 {OrbMajorTicks::deltaUnit_week, OrbUni::_week},
                                 {OrbMajorTicks::deltaUnit_month, OrbUni::_month},
                                 {OrbMajorTicks::deltaUnit_year, OrbUni::_year},
                             }};

using Attributes = AttributeList<id, style, tickFrameStyle, labelAngle, stagger, labelFrequency, delta, base, position,
                                 markStyle, length, zOrder, deltaUnit>;

constexpr OnlyOne oneGridline{"Gridline", "MajorTicks"};
constexpr OneAmong<OrbLabel, OrbFormat> oneLabel{"Label", "MajorTicks"};
constexpr OneAmong<OrbLabel, OrbFormat> oneFormat{"Format", "MajorTicks"};

using AfterGridlines = FamilyList<Limited<OrbLabel, oneLabel>, Limited<OrbFormat, oneFormat>>;
using Families = ChildFamilies<Joined<FamilyList<StripsIds<Limited<OrbGridline, oneGridline>>>, AfterGridlines>>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbMajorTicks>() {
  return elementDescription<OrbMajorTicks, Attributes, Families>;
}

struct OrbMajorTicks::Children : Families {};

OrbMajorTicks::OrbMajorTicks(xercesc::DOMElement* element) : OrbBaseElement(element), children_(new Children) {
  children_->load(*this);
  bind(*this);
}
OrbMajorTicks::~OrbMajorTicks() = default;

const XMLCh* OrbMajorTicks::getId() const { return id.get(*this); }
void OrbMajorTicks::setId(const XMLCh* value) { id.set(*this, value); }
void OrbMajorTicks::removeId() { id.remove(*this); }

OrbStyle* OrbMajorTicks::getStyle() const { return style.get(*this); }
void OrbMajorTicks::setStyle(const OrbStyle& target) { style.set(*this, target); }
void OrbMajorTicks::removeStyle() { style.remove(*this); }

OrbStyle* OrbMajorTicks::getTickFrameStyle() const { return tickFrameStyle.get(*this); }
void OrbMajorTicks::setTickFrameStyle(const OrbStyle& target) { tickFrameStyle.set(*this, target); }
void OrbMajorTicks::removeTickFrameStyle() { tickFrameStyle.remove(*this); }

double OrbMajorTicks::getLabelAngle() const { return labelAngle.get(*this); }
void OrbMajorTicks::setLabelAngle(double value) { labelAngle.set(*this, value); }
void OrbMajorTicks::removeLabelAngle() { labelAngle.remove(*this); }

bool OrbMajorTicks::getStagger() const { return stagger.get(*this); }
void OrbMajorTicks::setStagger(bool value) { stagger.set(*this, value); }
void OrbMajorTicks::removeStagger() { stagger.remove(*this); }

unsigned int OrbMajorTicks::getLabelFrequency() const { return labelFrequency.get(*this); }
void OrbMajorTicks::setLabelFrequency(unsigned int value) { labelFrequency.set(*this, value); }
void OrbMajorTicks::removeLabelFrequency() { labelFrequency.remove(*this); }

// A number of one kind is written as another.
double OrbMajorTicks::getDelta() const { return delta.get(*this); }
void OrbMajorTicks::setDelta(double value) { delta.set(*this, value); }
void OrbMajorTicks::setDelta(unsigned int value) { writeInteger(*this, delta.name, value); }
void OrbMajorTicks::removeDelta() { delta.remove(*this); }

// A text may be written as a number, too.
const XMLCh* OrbMajorTicks::getBase() const { return base.get(*this); }
void OrbMajorTicks::setBase(const XMLCh* value) { base.set(*this, value); }
void OrbMajorTicks::setBase(double value) { writeDouble(*this, base.name, value); }
void OrbMajorTicks::removeBase() { base.remove(*this); }

OrbMajorTicks::ENUM_position OrbMajorTicks::getPosition() const { return position.get(*this); }
void OrbMajorTicks::setPosition(ENUM_position value) { position.set(*this, value); }
void OrbMajorTicks::removePosition() { position.remove(*this); }

OrbStyle* OrbMajorTicks::getMarkStyle() const { return markStyle.get(*this); }
void OrbMajorTicks::setMarkStyle(const OrbStyle& target) { markStyle.set(*this, target); }
void OrbMajorTicks::removeMarkStyle() { markStyle.remove(*this); }

// As the base.
const XMLCh* OrbMajorTicks::getLength() const { return length.get(*this); }
void OrbMajorTicks::setLength(const XMLCh* value) { length.set(*this, value); }
void OrbMajorTicks::setLength(double value) { writeDouble(*this, length.name, value); }
void OrbMajorTicks::removeLength() { length.remove(*this); }

int OrbMajorTicks::getZOrder() const { return zOrder.get(*this); }
void OrbMajorTicks::setZOrder(int value) { zOrder.set(*this, value); }
void OrbMajorTicks::removeZOrder() { zOrder.remove(*this); }

OrbMajorTicks::ENUM_deltaUnit OrbMajorTicks::getDeltaUnit() const { return deltaUnit.get(*this); }
void OrbMajorTicks::setDeltaUnit(ENUM_deltaUnit value) { deltaUnit.set(*this, value); }
void OrbMajorTicks::removeDeltaUnit() { deltaUnit.remove(*this); }

OrbGridline* OrbMajorTicks::addGridline() { return children_->add<OrbGridline>(*this, AfterGridlines{}); }
OrbGridline* OrbMajorTicks::getGridline() const { return children_->first<OrbGridline>(); }
unsigned int OrbMajorTicks::removeGridlines() { return children_->removeAll<OrbGridline>(*this); }

OrbLabel* OrbMajorTicks::addLabel() { return children_->add<OrbLabel>(*this, atEnd); }
std::vector<OrbLabel*> OrbMajorTicks::getLabels() const { return children_->all<OrbLabel>(); }
unsigned int OrbMajorTicks::removeLabels() { return children_->removeAll<OrbLabel>(*this); }

OrbFormat* OrbMajorTicks::addFormat() { return children_->add<OrbFormat>(*this, atEnd); }
std::vector<OrbFormat*> OrbMajorTicks::getFormats() const { return children_->all<OrbFormat>(); }
unsigned int OrbMajorTicks::removeFormats() { return children_->removeAll<OrbFormat>(*this); }
