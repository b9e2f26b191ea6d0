// The style of chosen cells.
#include "orbsetstyle.h"

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

template <> const ElementDescription& orbchart::descriptionOf<OrbSetStyle>() {
  return elementDescription<OrbSetStyle, DerivedFrom<CTCellProperty>, Attributes>;
}

OrbSetStyle::OrbSetStyle(xercesc::DOMElement* element) : CTCellProperty(element) { bindLeaf(*this); }
OrbSetStyle::~OrbSetStyle() = default;

OrbStyle* OrbSetStyle::getStyle() const { return style.get(*this); }
void OrbSetStyle::setStyle(const OrbStyle& target) { style.set(*this, target); }
bool OrbSetStyle::isStylePresent() const { return style.isPresent(*this); }
void OrbSetStyle::removeStyle() { style.remove(*this); }
