// A list of categories.
#include "orbcategories.h"

#include "attribute.h"
#include "elementtext.h"
#include "loading.h"
#include "orbuni.h"

using namespace orbchart;

OrbCategories::OrbCategories(xercesc::DOMElement* element) : OrbBaseElement(element) { bindLeaf(*this); }
OrbCategories::~OrbCategories() = default;

ChartString OrbCategories::getText() const { return readText(*this); }
void OrbCategories::setText(const XMLCh* text) { writeText(*this, text); }
void OrbCategories::removeText() { clearText(*this); }

bool OrbCategories::getRemove() const { return readBoolean(*this, OrbUni::_remove); }
void OrbCategories::setRemove(bool remove) { writeBoolean(*this, OrbUni::_remove, remove); }
void OrbCategories::removeRemove() { removeAttribute(*this, OrbUni::_remove); }
