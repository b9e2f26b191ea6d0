// A list of categories.
#include "orbcategories.h"

#include "attribute.h"
#include "elementtext.h"
#include "loading.h"
#include "orbuni.h"

using namespace orbchart;

namespace {

// The C library has a function `remove`.
constexpr Boolean removeAttribute{OrbUni::_remove};

using Attributes = AttributeList<removeAttribute>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbCategories>() {
  return elementDescription<OrbCategories, Attributes, BearsText>;
}

OrbCategories::OrbCategories(xercesc::DOMElement* element) : OrbBaseElement(element) { bindLeaf(*this); }
OrbCategories::~OrbCategories() = default;

ChartString OrbCategories::getText() const { return readText(*this); }
void OrbCategories::setText(const XMLCh* text) { writeText(*this, text); }
void OrbCategories::removeText() { clearText(*this); }

bool OrbCategories::getRemove() const { return removeAttribute.get(*this); }
void OrbCategories::setRemove(bool value) { removeAttribute.set(*this, value); }
void OrbCategories::removeRemove() { removeAttribute.remove(*this); }
