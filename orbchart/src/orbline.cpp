// A line.
#include "orbline.h"

#include "attribute.h"
#include "breakrepresentation.h"
#include "loading.h"
#include "orbuni.h"

using namespace orbchart;
using xercesc::DOMElement;

OrbLine::OrbLine(DOMElement* element) : CTElementType(element) { bind(*this); }
OrbLine::OrbLine(DOMElement* element, const XMLCh* id) : CTElementType(element, id) { bind(*this); }
OrbLine::~OrbLine() = default;

bool OrbLine::getClosed() const { return readBoolean(*this, _UTF_closed); }
void OrbLine::setClosed(bool closed) { writeBoolean(*this, _UTF_closed, closed); }
void OrbLine::removeClosed() { removeAttribute(*this, _UTF_closed); }

bool OrbLine::getPreserveStraightLines() const { return readBoolean(*this, OrbUni::_preserveStraightLines); }
void OrbLine::setPreserveStraightLines(bool preserveStraightLines) {
  writeBoolean(*this, OrbUni::_preserveStraightLines, preserveStraightLines);
}
void OrbLine::removePreserveStraightLines() { removeAttribute(*this, OrbUni::_preserveStraightLines); }

bool OrbLine::getShowDiscontinuity() const { return readBoolean(*this, _UTF_showDiscontinuity); }
void OrbLine::setShowDiscontinuity(bool showDiscontinuity) {
  writeBoolean(*this, _UTF_showDiscontinuity, showDiscontinuity);
}
void OrbLine::removeShowDiscontinuity() { removeAttribute(*this, _UTF_showDiscontinuity); }

OrbLine::ENUM_breakRepresentation OrbLine::getBreakRepresentation() const {
  return readKeyword(*this, _UTF_breakRepresentation, breakRepresentations<OrbLine>, breakRepresentation_unset);
}
void OrbLine::setBreakRepresentation(ENUM_breakRepresentation breakRepresentation) {
  writeKeyword(*this, _UTF_breakRepresentation, breakRepresentations<OrbLine>, breakRepresentation);
}
void OrbLine::removeBreakRepresentation() { removeAttribute(*this, _UTF_breakRepresentation); }
