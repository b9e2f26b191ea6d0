// What sets properties of chosen cells.
#include "orbsetcellproperties.h"

#include "attribute.h"
#include "family.h"
#include "orbsetformat.h"
#include "orbsetframestyle.h"
#include "orbsetmetadata.h"
#include "orbsetpagebreak.h"
#include "orbsetstyle.h"
#include "orbuni.h"
#include "orbunion.h"

using namespace orbchart;

namespace {

constexpr Id id;
constexpr Boolean applyToConverse{OrbSetCellProperties::_UTF_applyToConverse};

using Attributes = AttributeList<id, applyToConverse>;

using AfterProperties = FamilyList<OrbUnion>;

using Families = ChildFamilies<
    Joined<FamilyList<OrbSetFormat, OrbSetStyle, OrbSetMetaData, OrbSetPageBreak, OrbSetFrameStyle>, AfterProperties>>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbSetCellProperties>() {
  return elementDescription<OrbSetCellProperties, Attributes, Families>;
}

struct OrbSetCellProperties::Children : Families {};

OrbSetCellProperties::OrbSetCellProperties(xercesc::DOMElement* element) :
    OrbBaseElement(element), children_(new Children) {
  children_->load(*this);
  bind(*this);
}
OrbSetCellProperties::~OrbSetCellProperties() = default;

const XMLCh* OrbSetCellProperties::getId() const { return id.get(*this); }
void OrbSetCellProperties::setId(const XMLCh* value) { id.set(*this, value); }
bool OrbSetCellProperties::isIdPresent() const { return id.isPresent(*this); }
void OrbSetCellProperties::removeId() { id.remove(*this); }

bool OrbSetCellProperties::getApplyToConverse() const { return applyToConverse.get(*this); }
void OrbSetCellProperties::setApplyToConverse(bool value) { applyToConverse.set(*this, value); }
bool OrbSetCellProperties::isApplyToConversePresent() const { return applyToConverse.isPresent(*this); }
void OrbSetCellProperties::removeApplyToConverse() { applyToConverse.remove(*this); }

OrbSetFormat* OrbSetCellProperties::addSetFormat() { return children_->add<OrbSetFormat>(*this, AfterProperties{}); }
std::vector<OrbSetFormat*> OrbSetCellProperties::getSetFormats() const { return children_->all<OrbSetFormat>(); }
unsigned int OrbSetCellProperties::removeSetFormats() { return children_->removeAll<OrbSetFormat>(*this); }

OrbSetStyle* OrbSetCellProperties::addSetStyle() { return children_->add<OrbSetStyle>(*this, AfterProperties{}); }
std::vector<OrbSetStyle*> OrbSetCellProperties::getSetStyles() const { return children_->all<OrbSetStyle>(); }
unsigned int OrbSetCellProperties::removeSetStyles() { return children_->removeAll<OrbSetStyle>(*this); }

OrbSetMetaData* OrbSetCellProperties::addSetMetaData() {
  return children_->add<OrbSetMetaData>(*this, AfterProperties{});
}
std::vector<OrbSetMetaData*> OrbSetCellProperties::getSetMetaDatas() const { return children_->all<OrbSetMetaData>(); }
unsigned int OrbSetCellProperties::removeSetMetaDatas() { return children_->removeAll<OrbSetMetaData>(*this); }

OrbSetPageBreak* OrbSetCellProperties::addSetPageBreak() {
  return children_->add<OrbSetPageBreak>(*this, AfterProperties{});
}
std::vector<OrbSetPageBreak*> OrbSetCellProperties::getSetPageBreaks() const {
  return children_->all<OrbSetPageBreak>();
}
unsigned int OrbSetCellProperties::removeSetPageBreaks() { return children_->removeAll<OrbSetPageBreak>(*this); }

OrbSetFrameStyle* OrbSetCellProperties::addSetFrameStyle() {
  return children_->add<OrbSetFrameStyle>(*this, AfterProperties{});
}
std::vector<OrbSetFrameStyle*> OrbSetCellProperties::getSetFrameStyles() const {
  return children_->all<OrbSetFrameStyle>();
}
unsigned int OrbSetCellProperties::removeSetFrameStyles() { return children_->removeAll<OrbSetFrameStyle>(*this); }

OrbUnion* OrbSetCellProperties::addUnion() { return children_->add<OrbUnion>(*this, atEnd); }
std::vector<OrbUnion*> OrbSetCellProperties::getUnions() const { return children_->all<OrbUnion>(); }
unsigned int OrbSetCellProperties::removeUnions() { return children_->removeAll<OrbUnion>(*this); }
