// A page break at chosen cells.
#include "orbsetpagebreak.h"

#include "attribute.h"
#include "keyword.h"
#include "loading.h"
#include "orbuni.h"

using namespace orbchart;

namespace {

constexpr Keywords type{OrbUni::_type,
                        OrbSetPageBreak::type_unset,
                        {
                            {OrbSetPageBreak::type_below, OrbSetPageBreak::_UTF_type_below},
                            {OrbSetPageBreak::type_right, OrbUni::_right},
                            {OrbSetPageBreak::type_keepTogetherTop, OrbSetPageBreak::_UTF_type_keepTogetherTop},
                            {OrbSetPageBreak::type_keepTogetherLeft, OrbSetPageBreak::_UTF_type_keepTogetherLeft},
                        }};

using Attributes = AttributeList<type>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbSetPageBreak>() {
  return elementDescription<OrbSetPageBreak, DerivedFrom<CTCellProperty>, Attributes>;
}

OrbSetPageBreak::OrbSetPageBreak(xercesc::DOMElement* element) : CTCellProperty(element) { bindLeaf(*this); }
OrbSetPageBreak::~OrbSetPageBreak() = default;

OrbSetPageBreak::ENUM_type OrbSetPageBreak::getType() const { return type.get(*this); }
void OrbSetPageBreak::setType(ENUM_type value) { type.set(*this, value); }
bool OrbSetPageBreak::isTypePresent() const { return type.isPresent(*this); }
void OrbSetPageBreak::removeType() { type.remove(*this); }
