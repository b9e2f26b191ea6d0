// A list of categories under a domain modifier.
#include "orbcategories2.h"

#include "attribute.h"
#include "elementtext.h"
#include "loading.h"
#include "orbuni.h"

using namespace orbchart;

template <> const ElementDescription& orbchart::descriptionOf<OrbCategories2>() {
  return elementDescription<OrbCategories2, BearsText>;
}

OrbCategories2::OrbCategories2(xercesc::DOMElement* element) : OrbBaseElement(element) {
  bindLeafUnder(OrbUni::_categories, *this);
}
OrbCategories2::~OrbCategories2() = default;

ChartString OrbCategories2::getText() const { return readText(*this); }
void OrbCategories2::setText(const XMLCh* text) { writeText(*this, text); }
void OrbCategories2::removeText() { clearText(*this); }
