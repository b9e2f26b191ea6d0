// The style of the frame of chosen cells.
#include "orbsetframestyle.h"

#include "attribute.h"
#include "loading.h"
#include "orbstyle.h"
#include "orbuni.h"
#include "reference.h"

using namespace orbchart;

namespace {

constexpr Reference<OrbStyle> style{OrbUni::_style};

using Attributes = AttributeList<style>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbSetFrameStyle>() {
  return elementDescription<OrbSetFrameStyle, DerivedFrom<CTCellProperty>, Attributes>;
}

OrbSetFrameStyle::OrbSetFrameStyle(xercesc::DOMElement* element) : CTCellProperty(element) { bindLeaf(*this); }
OrbSetFrameStyle::~OrbSetFrameStyle() = default;

OrbStyle* OrbSetFrameStyle::getStyle() const { return style.get(*this); }
void OrbSetFrameStyle::setStyle(const OrbStyle& target) { style.set(*this, target); }
bool OrbSetFrameStyle::isStylePresent() const { return style.isPresent(*this); }
void OrbSetFrameStyle::removeStyle() { style.remove(*this); }
