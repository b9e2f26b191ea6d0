// A label.
#include "orblabel.h"

#include "attribute.h"
#include "keyword.h"
#include "loading.h"
#include "orbuni.h"

using namespace orbchart;

namespace {

constexpr Id id;
constexpr Keywords purpose{OrbLabel::_UTF_purpose,
                           OrbLabel::purpose_unset,
                           {
                               {OrbLabel::purpose_title, OrbLabel::_UTF_purpose_title},
                               {OrbLabel::purpose_subTitle, OrbLabel::_UTF_purpose_subTitle},
                               {OrbLabel::purpose_subSubTitle, OrbLabel::_UTF_purpose_subSubTitle},
                               {OrbLabel::purpose_footnote, OrbLabel::_UTF_purpose_footnote},
                               {OrbLabel::purpose_subFootnote, OrbLabel::_UTF_purpose_subFootnote},
                               {OrbLabel::purpose_subSubFootnote, OrbLabel::_UTF_purpose_subSubFootnote},
                               {OrbLabel::purpose_layer, OrbUni::_layer},
                               {OrbLabel::purpose_auto, OrbUni::_auto},
                           }};

using Attributes = AttributeList<id, purpose>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbLabel>() {
  return elementDescription<OrbLabel, DerivedFrom<CTLabelType>, Attributes>;
}

OrbLabel::OrbLabel(xercesc::DOMElement* element) : CTLabelType(element) { bind(*this); }
OrbLabel::~OrbLabel() = default;

const XMLCh* OrbLabel::getId() const { return id.get(*this); }
void OrbLabel::setId(const XMLCh* value) { id.set(*this, value); }
void OrbLabel::removeId() { id.remove(*this); }

OrbLabel::ENUM_purpose OrbLabel::getPurpose() const { return purpose.get(*this); }
void OrbLabel::setPurpose(ENUM_purpose value) { purpose.set(*this, value); }
bool OrbLabel::isPurposePresent() const { return purpose.isPresent(*this); }
void OrbLabel::removePurpose() { purpose.remove(*this); }
