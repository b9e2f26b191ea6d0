// Texts and facts about the data of a graphic element.
#include "orbdescriptiongroup.h"

#include "attribute.h"
#include "elementreference.h"
#include "family.h"
#include "orbtext.h"
#include "orbuni.h"
#include "reference.h"

using namespace orbchart;
using xercesc::DOMElement;

namespace {

constexpr Id id;
constexpr Text separator{OrbUni::_separator};
constexpr AnyReference target{OrbUni::_target};

using Attributes = AttributeList<id, separator, target>;

using Families = ChildFamilies<FamilyList<StripsIds<OrbDescription>, StripsIds<OrbText>>>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbDescriptionGroup>() {
  return elementDescription<OrbDescriptionGroup, Attributes, Families>;
}

struct OrbDescriptionGroup::Children : Families {};

OrbDescriptionGroup::OrbDescriptionGroup(DOMElement* element) : OrbBaseElement(element), children_(new Children) {
  children_->load(*this);
  bind(*this);
}
OrbDescriptionGroup::OrbDescriptionGroup(DOMElement* element, const OrbBaseElement& target) :
    OrbDescriptionGroup(element) {
  setTarget(target);
}
OrbDescriptionGroup::~OrbDescriptionGroup() = default;

const XMLCh* OrbDescriptionGroup::getId() const { return id.get(*this); }
// The id is not registered.
void OrbDescriptionGroup::setId(const XMLCh* value) { SetAttribute(id.name, value); }
void OrbDescriptionGroup::removeId() { id.remove(*this); }

const XMLCh* OrbDescriptionGroup::getSeparator() const { return separator.get(*this); }
void OrbDescriptionGroup::setSeparator(const XMLCh* value) { separator.set(*this, value); }
void OrbDescriptionGroup::removeSeparator() { separator.remove(*this); }

// Any element may be written, and graphic elements alone are found.
CTElementType* OrbDescriptionGroup::getTarget() const { return ElementReference(target.name).get(*this); }
void OrbDescriptionGroup::setTarget(const OrbBaseElement& newTarget) { target.set(*this, newTarget); }

OrbDescription* OrbDescriptionGroup::addDescription(OrbDescription::ENUM_name name) {
  return children_->add<OrbDescription>(*this, atEnd, name);
}
std::vector<OrbDescription*> OrbDescriptionGroup::getDescriptions() const { return children_->all<OrbDescription>(); }
unsigned int OrbDescriptionGroup::removeDescriptions() { return children_->removeAll<OrbDescription>(*this); }

OrbText* OrbDescriptionGroup::addText() { return children_->add<OrbText>(*this, atEnd); }
std::vector<OrbText*> OrbDescriptionGroup::getTexts() const { return children_->all<OrbText>(); }
unsigned int OrbDescriptionGroup::removeTexts() { return children_->removeAll<OrbText>(*this); }
