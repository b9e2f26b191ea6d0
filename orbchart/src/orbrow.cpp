// One row of an embedded source.
#include "orbrow.h"

#include "attribute.h"
#include "elementtext.h"
#include "loading.h"

#include <algorithm>
#include <string>
#include <string_view>

using namespace orbchart;

namespace {

/// The fields of a row, one after the other.
class Fields {
public:
  explicit Fields(const ChartString& row) : rest_(row.empty() ? u"" : row.xc_str()) {}
  /// The next field; empty after the last.
  std::basic_string_view<XMLCh> next() {
    rest_.remove_prefix(std::min(rest_.find_first_not_of(u';'), rest_.size()));
    const auto field = rest_.substr(0, rest_.find(u';'));
    rest_.remove_prefix(field.size());
    return field;
  }

private:
  std::basic_string_view<XMLCh> rest_;
};

} // namespace

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
  Fields fields(row);
  auto field = fields.next();
  for (; !field.empty() && index != 0; --index)
    field = fields.next();
  return ChartString(std::basic_string<XMLCh>(field).c_str());
}

bool OrbRow::setText(const XMLCh* text, unsigned int index) {
  const ChartString row = getText();
  Fields fields(row);
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
