// One row of an embedded source.
#include "orbrow.h"

#include "attribute.h"
#include "elementtext.h"
#include "loading.h"
#include "textfields.h"

#include <string>
#include <string_view>

using namespace orbchart;

template <> const ElementDescription& orbchart::descriptionOf<OrbRow>() {
  return elementDescription<OrbRow, BearsText>;
}

OrbRow::OrbRow(xercesc::DOMElement* element) : OrbBaseElement(element) { bindLeaf(*this); }
OrbRow::~OrbRow() = default;

ChartString OrbRow::getText() const { return readText(*this); }
void OrbRow::setText(const XMLCh* text) { writeText(*this, text); }
void OrbRow::removeText() { clearText(*this); }

ChartString OrbRow::getText(unsigned int index) const {
  const ChartString row = getText();
  TextFields fields(row);
  auto field = fields.next();
  for (; !field.empty() && index != 0; --index)
    field = fields.next();
  return ChartString(std::basic_string<XMLCh>(field).c_str());
}

bool OrbRow::setText(const XMLCh* text, unsigned int index) {
  const ChartString row = getText();
  TextFields fields(row);
  const std::basic_string_view<XMLCh> replacement(text == nullptr ? u"" : text);
  std::basic_string<XMLCh> changed;
  bool replaced = false;
  unsigned int position = 0;
  for (auto field = fields.next(); !field.empty(); field = fields.next(), ++position) {
    if (!changed.empty())
      changed += u';';
    replaced = replaced || position == index;
    changed += position == index ? replacement : field;
  }
  if (replaced)
    setText(changed.c_str());
  return replaced;
}
