// One row of an embedded source.
#include "orbrow.h"

#include "elementtext.h"
#include "loading.h"

#include <xercesc/util/XMLStringTokenizer.hpp>

#include <string>

using namespace orbchart;

namespace {

/// The fields of a row, one after the other.
class Fields {
public:
  explicit Fields(const ChartString& row) : tokens_(row.empty() ? u"" : row.xc_str(), u";") {}
  /// The next field; null after the last.
  const XMLCh* next() { return tokens_.nextToken(); }

private:
  xercesc::XMLStringTokenizer tokens_;
};

} // namespace

OrbRow::OrbRow(xercesc::DOMElement* element) : OrbBaseElement(element) { bindLeaf(*this); }
OrbRow::~OrbRow() = default;

ChartString OrbRow::getText() const { return readText(*this); }
void OrbRow::setText(const XMLCh* text) { writeText(*this, text); }
void OrbRow::removeText() { clearText(*this); }

ChartString OrbRow::getText(unsigned int index) const {
  const ChartString row = getText();
  Fields fields(row);
  const XMLCh* field = fields.next();
  for (; field != nullptr && index != 0; --index)
    field = fields.next();
  return ChartString(field);
}

bool OrbRow::setText(const XMLCh* text, unsigned int index) {
  const ChartString row = getText();
  Fields fields(row);
  std::basic_string<XMLCh> changed;
  bool replaced = false;
  for (unsigned int position = 0; const XMLCh* field = fields.next(); ++position) {
    if (!changed.empty())
      changed += u';';
    replaced = replaced || position == index;
    const XMLCh* content = position == index ? text : field;
    changed += content == nullptr ? u"" : content;
  }
  if (replaced)
    setText(changed.c_str());
  return replaced;
}
