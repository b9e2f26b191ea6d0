// A line.
#include "orbline.h"

#include "attribute.h"
#include "breakrepresentation.h"
#include "loading.h"
#include "orbuni.h"

using namespace orbchart;
using xercesc::DOMElement;

namespace {

constexpr Boolean closed{OrbLine::_UTF_closed};
constexpr Boolean preserveStraightLines{OrbUni::_preserveStraightLines};
constexpr Boolean showDiscontinuity{OrbLine::_UTF_showDiscontinuity};
constexpr auto& breakRepresentation = breakRepresentationOf<OrbLine>;

using Attributes = AttributeList<closed, preserveStraightLines, showDiscontinuity, breakRepresentation>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbLine>() {
  return elementDescription<OrbLine, DerivedFrom<CTElementType>, Attributes>;
}

OrbLine::OrbLine(DOMElement* element) : CTElementType(element) { bind(*this); }
OrbLine::OrbLine(DOMElement* element, const XMLCh* id) : CTElementType(element, id) { bind(*this); }
OrbLine::~OrbLine() = default;

bool OrbLine::getClosed() const { return closed.get(*this); }
void OrbLine::setClosed(bool value) { closed.set(*this, value); }
void OrbLine::removeClosed() { closed.remove(*this); }

bool OrbLine::getPreserveStraightLines() const { return preserveStraightLines.get(*this); }
void OrbLine::setPreserveStraightLines(bool value) { preserveStraightLines.set(*this, value); }
void OrbLine::removePreserveStraightLines() { preserveStraightLines.remove(*this); }

bool OrbLine::getShowDiscontinuity() const { return showDiscontinuity.get(*this); }
void OrbLine::setShowDiscontinuity(bool value) { showDiscontinuity.set(*this, value); }
void OrbLine::removeShowDiscontinuity() { showDiscontinuity.remove(*this); }

OrbLine::ENUM_breakRepresentation OrbLine::getBreakRepresentation() const { return breakRepresentation.get(*this); }
void OrbLine::setBreakRepresentation(ENUM_breakRepresentation value) { breakRepresentation.set(*this, value); }
void OrbLine::removeBreakRepresentation() { breakRepresentation.remove(*this); }
