// A path.
#include "orbpath.h"

#include "attribute.h"
#include "breakrepresentation.h"
#include "loading.h"
#include "orbuni.h"

using namespace orbchart;
using xercesc::DOMElement;

namespace {

constexpr Boolean closed{OrbPath::_UTF_closed};
constexpr Boolean preserveStraightLines{OrbUni::_preserveStraightLines};
constexpr Boolean showDiscontinuity{OrbPath::_UTF_showDiscontinuity};
constexpr auto& breakRepresentation = breakRepresentationOf<OrbPath>;

using Attributes = AttributeList<closed, preserveStraightLines, showDiscontinuity, breakRepresentation>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbPath>() {
  return elementDescription<OrbPath, DerivedFrom<CTElementType>, Attributes>;
}

OrbPath::OrbPath(DOMElement* element) : CTElementType(element) { bind(*this); }
OrbPath::OrbPath(DOMElement* element, const XMLCh* id) : CTElementType(element, id) { bind(*this); }
OrbPath::~OrbPath() = default;

bool OrbPath::getClosed() const { return closed.get(*this); }
void OrbPath::setClosed(bool value) { closed.set(*this, value); }
void OrbPath::removeClosed() { closed.remove(*this); }

bool OrbPath::getPreserveStraightLines() const { return preserveStraightLines.get(*this); }
void OrbPath::setPreserveStraightLines(bool value) { preserveStraightLines.set(*this, value); }
void OrbPath::removePreserveStraightLines() { preserveStraightLines.remove(*this); }

bool OrbPath::getShowDiscontinuity() const { return showDiscontinuity.get(*this); }
void OrbPath::setShowDiscontinuity(bool value) { showDiscontinuity.set(*this, value); }
void OrbPath::removeShowDiscontinuity() { showDiscontinuity.remove(*this); }

OrbPath::ENUM_breakRepresentation OrbPath::getBreakRepresentation() const { return breakRepresentation.get(*this); }
void OrbPath::setBreakRepresentation(ENUM_breakRepresentation value) { breakRepresentation.set(*this, value); }
void OrbPath::removeBreakRepresentation() { breakRepresentation.remove(*this); }
