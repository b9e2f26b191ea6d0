// The control of line guides.
#include "orblineguidecontroller.h"

#include "attribute.h"
#include "keyword.h"
#include "loading.h"
#include "orbuni.h"

using namespace orbchart;

namespace {

constexpr Keywords newLineOrientation{OrbLineGuideController::_UTF_newLineOrientation,
                                      OrbLineGuideController::newLineOrientation_unset,
                                      {
                                          {OrbLineGuideController::newLineOrientation_x, OrbUni::_x},
                                          {OrbLineGuideController::newLineOrientation_y, OrbUni::_y},
                                          {OrbLineGuideController::newLineOrientation_z, OrbUni::_z},
                                      }};

using Attributes = AttributeList<newLineOrientation>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbLineGuideController>() {
  return elementDescription<OrbLineGuideController, DerivedFrom<CTInteraction>, Attributes>;
}

OrbLineGuideController::OrbLineGuideController(xercesc::DOMElement* element) : CTInteraction(element) {
  bindLeaf(*this);
}
OrbLineGuideController::~OrbLineGuideController() = default;

OrbLineGuideController::ENUM_newLineOrientation OrbLineGuideController::getNewLineOrientation() const {
  return newLineOrientation.get(*this);
}
void OrbLineGuideController::setNewLineOrientation(ENUM_newLineOrientation value) {
  newLineOrientation.set(*this, value);
}
bool OrbLineGuideController::isNewLineOrientationPresent() const { return newLineOrientation.isPresent(*this); }
void OrbLineGuideController::removeNewLineOrientation() { newLineOrientation.remove(*this); }
