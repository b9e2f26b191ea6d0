// A filled area.
#include "orbarea.h"

#include "attribute.h"
#include "breakrepresentation.h"
#include "loading.h"
#include "orbuni.h"

using namespace orbchart;
using xercesc::DOMElement;

namespace {

constexpr Boolean closed{OrbArea::_UTF_closed};
constexpr Boolean preserveStraightLines{OrbUni::_preserveStraightLines};
constexpr Boolean showDiscontinuity{OrbArea::_UTF_showDiscontinuity};
constexpr auto& breakRepresentation = breakRepresentationOf<OrbArea>;

using Attributes = AttributeList<closed, preserveStraightLines, showDiscontinuity, breakRepresentation>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbArea>() {
  return elementDescription<OrbArea, DerivedFrom<CTElementType>, Attributes>;
}

OrbArea::OrbArea(DOMElement* element) : CTElementType(element) { bind(*this); }
OrbArea::OrbArea(DOMElement* element, const XMLCh* id) : CTElementType(element, id) { bind(*this); }
OrbArea::~OrbArea() = default;

bool OrbArea::getClosed() const { return closed.get(*this); }
void OrbArea::setClosed(bool value) { closed.set(*this, value); }
void OrbArea::removeClosed() { closed.remove(*this); }

bool OrbArea::getPreserveStraightLines() const { return preserveStraightLines.get(*this); }
void OrbArea::setPreserveStraightLines(bool value) { preserveStraightLines.set(*this, value); }
void OrbArea::removePreserveStraightLines() { preserveStraightLines.remove(*this); }

bool OrbArea::getShowDiscontinuity() const { return showDiscontinuity.get(*this); }
void OrbArea::setShowDiscontinuity(bool value) { showDiscontinuity.set(*this, value); }
void OrbArea::removeShowDiscontinuity() { showDiscontinuity.remove(*this); }

OrbArea::ENUM_breakRepresentation OrbArea::getBreakRepresentation() const { return breakRepresentation.get(*this); }
void OrbArea::setBreakRepresentation(ENUM_breakRepresentation value) { breakRepresentation.set(*this, value); }
void OrbArea::removeBreakRepresentation() { breakRepresentation.remove(*this); }
