// A filled area.
#include "orbarea.h"

#include "attribute.h"
#include "breakrepresentation.h"
#include "loading.h"
#include "orbuni.h"

using namespace orbchart;
using xercesc::DOMElement;

OrbArea::OrbArea(DOMElement* element) : CTElementType(element) { bind(*this); }
OrbArea::OrbArea(DOMElement* element, const XMLCh* id) : CTElementType(element, id) { bind(*this); }
OrbArea::~OrbArea() = default;

bool OrbArea::getClosed() const { return readBoolean(*this, _UTF_closed); }
void OrbArea::setClosed(bool closed) { writeBoolean(*this, _UTF_closed, closed); }
void OrbArea::removeClosed() { removeAttribute(*this, _UTF_closed); }

bool OrbArea::getPreserveStraightLines() const { return readBoolean(*this, OrbUni::_preserveStraightLines); }
void OrbArea::setPreserveStraightLines(bool preserveStraightLines) {
  writeBoolean(*this, OrbUni::_preserveStraightLines, preserveStraightLines);
}
void OrbArea::removePreserveStraightLines() { removeAttribute(*this, OrbUni::_preserveStraightLines); }

bool OrbArea::getShowDiscontinuity() const { return readBoolean(*this, _UTF_showDiscontinuity); }
void OrbArea::setShowDiscontinuity(bool showDiscontinuity) {
  writeBoolean(*this, _UTF_showDiscontinuity, showDiscontinuity);
}
void OrbArea::removeShowDiscontinuity() { removeAttribute(*this, _UTF_showDiscontinuity); }

OrbArea::ENUM_breakRepresentation OrbArea::getBreakRepresentation() const {
  return readKeyword(*this, _UTF_breakRepresentation, breakRepresentations<OrbArea>, breakRepresentation_unset);
}
void OrbArea::setBreakRepresentation(ENUM_breakRepresentation breakRepresentation) {
  writeKeyword(*this, _UTF_breakRepresentation, breakRepresentations<OrbArea>, breakRepresentation);
}
void OrbArea::removeBreakRepresentation() { removeAttribute(*this, _UTF_breakRepresentation); }
