// A label in another language.
#include "orbalternatelabel.h"

#include "attribute.h"
#include "loading.h"
#include "orbuni.h"

using namespace orbchart;

namespace {

constexpr Text lang{OrbUni::_lang};

using Attributes = AttributeList<lang>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbAlternateLabel>() {
  return elementDescription<OrbAlternateLabel, DerivedFrom<CTLabelType>, Attributes>;
}

OrbAlternateLabel::OrbAlternateLabel(xercesc::DOMElement* element) : CTLabelType(element) { bind(*this); }
OrbAlternateLabel::~OrbAlternateLabel() = default;

const XMLCh* OrbAlternateLabel::getLang() const { return lang.get(*this); }
void OrbAlternateLabel::setLang(const XMLCh* value) { lang.set(*this, value); }
void OrbAlternateLabel::removeLang() { lang.remove(*this); }
