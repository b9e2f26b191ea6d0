// The control of rectangle guides.
#include "orbrectangleguidecontroller.h"

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

template <> const ElementDescription& orbchart::descriptionOf<OrbRectangleGuideController>() {
  return elementDescription<OrbRectangleGuideController, DerivedFrom<CTInteraction>, Attributes>;
}

OrbRectangleGuideController::OrbRectangleGuideController(xercesc::DOMElement* element) : CTInteraction(element) {
  bindLeaf(*this);
}
OrbRectangleGuideController::~OrbRectangleGuideController() = default;

OrbStyle* OrbRectangleGuideController::getStyle() const { return style.get(*this); }
void OrbRectangleGuideController::setStyle(const OrbStyle& target) { style.set(*this, target); }
bool OrbRectangleGuideController::isStylePresent() const { return style.isPresent(*this); }
void OrbRectangleGuideController::removeStyle() { style.remove(*this); }
