// A custom order of categories.
#include "orbcategoryorder.h"

#include "elementtext.h"
#include "loading.h"
#include "textfields.h"

#include <string>

using namespace orbchart;

template <> const ElementDescription& orbchart::descriptionOf<OrbCategoryOrder>() {
  return elementDescription<OrbCategoryOrder, BearsText>;
}

OrbCategoryOrder::OrbCategoryOrder(xercesc::DOMElement* element) : OrbBaseElement(element) { bindLeaf(*this); }
OrbCategoryOrder::~OrbCategoryOrder() = default;

ChartString OrbCategoryOrder::getText() const { return readText(*this); }
void OrbCategoryOrder::setText(const XMLCh* text) { writeText(*this, text); }
void OrbCategoryOrder::removeText() { clearText(*this); }

// The fields behind the first are not looked for.
ChartString OrbCategoryOrder::getText(unsigned int index) const {
  const ChartString order = getText();
  TextFields fields(order);
  return index == 0 ? ChartString(std::basic_string<XMLCh>(fields.next()).c_str()) : ChartString(u"");
}

// The text goes in between, and no separator is written.
bool OrbCategoryOrder::setText(const XMLCh* text, unsigned int index) {
  const ChartString order = getText();
  TextFields fields(order);
  std::basic_string<XMLCh> changed;
  bool isPlaced = false;
  unsigned int position = 0;
  for (auto field = fields.next(); !field.empty(); field = fields.next(), ++position) {
    if (position == index) {
      changed += text == nullptr ? u"" : text;
      isPlaced = true;
    }
    changed += field;
  }
  if (isPlaced)
    setText(changed.c_str());
  return isPlaced;
}
