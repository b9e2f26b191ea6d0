// The text that a mark shows.
#include "orbpopup.h"

#include "attribute.h"
#include "family.h"
#include "keyword.h"
#include "orbtokenmapping.h"
#include "orbuni.h"
#include "reference.h"

using namespace orbchart;

namespace {

constexpr AnyReference target{OrbUni::_target};
constexpr Text tokenTemplate{OrbPopup::_UTF_tokenTemplate};
constexpr Keywords part{OrbUni::_part,
                        OrbPopup::part_unset,
                        {
                            {OrbPopup::part_median, OrbUni::_median},
                            {OrbPopup::part_outlier, OrbPopup::_UTF_part_outlier},
                            {OrbPopup::part_extreme, OrbUni::_extreme},
                        }};

using Attributes = AttributeList<target, tokenTemplate, part>;

using Families = ChildFamilies<FamilyList<OrbTokenMapping>>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbPopup>() {
  return elementDescription<OrbPopup, DerivedFrom<CTInteraction>, Attributes, Families>;
}

struct OrbPopup::Children : Families {};

OrbPopup::OrbPopup(xercesc::DOMElement* element) : CTInteraction(element), children_(new Children) {
  children_->load(*this);
  bind(*this);
}
OrbPopup::~OrbPopup() = default;

OrbBaseElement* OrbPopup::getTarget() const {
  // A test of the reference, which leads nowhere.
  target.requireTarget(*this, "Target");
  return nullptr;
}
void OrbPopup::setTarget(const OrbBaseElement& newTarget) { target.set(*this, newTarget); }
void OrbPopup::removeTarget() { target.remove(*this); }

const XMLCh* OrbPopup::getTokenTemplate() const { return tokenTemplate.get(*this); }
void OrbPopup::setTokenTemplate(const XMLCh* value) { tokenTemplate.set(*this, value); }
bool OrbPopup::isTokenTemplatePresent() const { return tokenTemplate.isPresent(*this); }
void OrbPopup::removeTokenTemplate() { tokenTemplate.remove(*this); }

OrbPopup::ENUM_part OrbPopup::getPart() const { return part.get(*this); }
void OrbPopup::setPart(ENUM_part value) { part.set(*this, value); }
bool OrbPopup::isPartPresent() const { return part.isPresent(*this); }
void OrbPopup::removePart() { part.remove(*this); }

OrbTokenMapping* OrbPopup::addTokenMapping() { return children_->add<OrbTokenMapping>(*this, atEnd); }
std::vector<OrbTokenMapping*> OrbPopup::getTokenMappings() const { return children_->all<OrbTokenMapping>(); }
unsigned int OrbPopup::removeTokenMappings() { return children_->removeAll<OrbTokenMapping>(*this); }
