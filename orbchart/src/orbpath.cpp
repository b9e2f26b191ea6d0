// A path.
#include "orbpath.h"

#include "attribute.h"
#include "breakrepresentation.h"
#include "loading.h"
#include "orbuni.h"

using namespace orbchart;
using xercesc::DOMElement;

OrbPath::OrbPath(DOMElement* element) : CTElementType(element) { bind(*this); }
OrbPath::OrbPath(DOMElement* element, const XMLCh* id) : CTElementType(element, id) { bind(*this); }
OrbPath::~OrbPath() = default;

bool OrbPath::getClosed() const { return readBoolean(*this, _UTF_closed); }
void OrbPath::setClosed(bool closed) { writeBoolean(*this, _UTF_closed, closed); }
void OrbPath::removeClosed() { removeAttribute(*this, _UTF_closed); }

bool OrbPath::getPreserveStraightLines() const { return readBoolean(*this, OrbUni::_preserveStraightLines); }
void OrbPath::setPreserveStraightLines(bool preserveStraightLines) {
  writeBoolean(*this, OrbUni::_preserveStraightLines, preserveStraightLines);
}
void OrbPath::removePreserveStraightLines() { removeAttribute(*this, OrbUni::_preserveStraightLines); }

bool OrbPath::getShowDiscontinuity() const { return readBoolean(*this, _UTF_showDiscontinuity); }
void OrbPath::setShowDiscontinuity(bool showDiscontinuity) {
  writeBoolean(*this, _UTF_showDiscontinuity, showDiscontinuity);
}
void OrbPath::removeShowDiscontinuity() { removeAttribute(*this, _UTF_showDiscontinuity); }

OrbPath::ENUM_breakRepresentation OrbPath::getBreakRepresentation() const {
  return readKeyword(*this, _UTF_breakRepresentation, breakRepresentations<OrbPath>, breakRepresentation_unset);
}
void OrbPath::setBreakRepresentation(ENUM_breakRepresentation breakRepresentation) {
  writeKeyword(*this, _UTF_breakRepresentation, breakRepresentations<OrbPath>, breakRepresentation);
}
void OrbPath::removeBreakRepresentation() { removeAttribute(*this, _UTF_breakRepresentation); }
