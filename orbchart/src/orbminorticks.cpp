// The minor ticks of an axis.
#include "orbminorticks.h"

#include "attribute.h"
#include "family.h"
#include "orbgridline.h"
#include "orbstyle.h"
#include "orbuni.h"
#include "reference.h"
#include "tickposition.h"

using namespace orbchart;

namespace {

constexpr Id id;
constexpr auto& position = tickPositionOf<OrbMinorTicks>;
constexpr Reference<OrbStyle> markStyle{OrbUni::_markStyle};
constexpr Text length{OrbUni::_length};
constexpr Unsigned number{OrbUni::_number};
constexpr Integer zOrder{OrbUni::_zOrder};

using Attributes = AttributeList<id, position, markStyle, length, number, zOrder>;

constexpr OnlyOne oneGridline{"Gridline", "MinorTicks"};

using Families = ChildFamilies<FamilyList<StripsIds<Limited<OrbGridline, oneGridline>>>>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbMinorTicks>() {
  return elementDescription<OrbMinorTicks, Attributes, Families>;
}

struct OrbMinorTicks::Children : Families {};

OrbMinorTicks::OrbMinorTicks(xercesc::DOMElement* element) : OrbBaseElement(element), children_(new Children) {
  children_->load(*this);
  bind(*this);
}
OrbMinorTicks::~OrbMinorTicks() = default;

const XMLCh* OrbMinorTicks::getId() const { return id.get(*this); }
void OrbMinorTicks::setId(const XMLCh* value) { id.set(*this, value); }
void OrbMinorTicks::removeId() { id.remove(*this); }

OrbMinorTicks::ENUM_position OrbMinorTicks::getPosition() const { return position.get(*this); }
void OrbMinorTicks::setPosition(ENUM_position value) { position.set(*this, value); }
void OrbMinorTicks::removePosition() { position.remove(*this); }

OrbStyle* OrbMinorTicks::getMarkStyle() const { return markStyle.get(*this); }
void OrbMinorTicks::setMarkStyle(const OrbStyle& target) { markStyle.set(*this, target); }
void OrbMinorTicks::removeMarkStyle() { markStyle.remove(*this); }

// A text may be written as a number, too.
const XMLCh* OrbMinorTicks::getLength() const { return length.get(*this); }
void OrbMinorTicks::setLength(const XMLCh* value) { length.set(*this, value); }
void OrbMinorTicks::setLength(double value) { writeDouble(*this, length.name, value); }
void OrbMinorTicks::removeLength() { length.remove(*this); }

unsigned int OrbMinorTicks::getNumber() const { return number.get(*this); }
void OrbMinorTicks::setNumber(unsigned int value) { number.set(*this, value); }
void OrbMinorTicks::removeNumber() { number.remove(*this); }

int OrbMinorTicks::getZOrder() const { return zOrder.get(*this); }
void OrbMinorTicks::setZOrder(int value) { zOrder.set(*this, value); }
void OrbMinorTicks::removeZOrder() { zOrder.remove(*this); }

OrbGridline* OrbMinorTicks::addGridline() { return children_->add<OrbGridline>(*this, atEnd); }
OrbGridline* OrbMinorTicks::getGridline() const { return children_->first<OrbGridline>(); }
unsigned int OrbMinorTicks::removeGridlines() { return children_->removeAll<OrbGridline>(*this); }
