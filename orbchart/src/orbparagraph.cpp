// A paragraph of a label frame.
#include "orbparagraph.h"

#include "attribute.h"
#include "chartstring.h"
#include "loading.h"

using namespace orbchart;

namespace {

constexpr Id id;
constexpr Text hangingIndent{OrbParagraph::_UTF_hangingIndent};

using Attributes = AttributeList<id, hangingIndent>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbParagraph>() {
  return elementDescription<OrbParagraph, Attributes>;
}

OrbParagraph::OrbParagraph(xercesc::DOMElement* element) : OrbBaseElement(element) { bindLeaf(*this); }
OrbParagraph::~OrbParagraph() = default;

const XMLCh* OrbParagraph::getId() const { return id.get(*this); }
void OrbParagraph::setId(const XMLCh* value) { id.set(*this, value); }
bool OrbParagraph::isIdPresent() const { return id.isPresent(*this); }
void OrbParagraph::removeId() { id.remove(*this); }

// The getter knows no unit, though one setter writes it.
int OrbParagraph::getHangingIndent() const { return Integer(hangingIndent.name).get(*this); }
void OrbParagraph::setHangingIndent(const XMLCh* value) { hangingIndent.set(*this, value); }
void OrbParagraph::setHangingIndentPixels(unsigned int pixels) {
  ChartString text(pixels);
  text.append(u"px");
  hangingIndent.set(*this, text.xc_str());
}
bool OrbParagraph::isHangingIndentPresent() const { return hangingIndent.isPresent(*this); }
