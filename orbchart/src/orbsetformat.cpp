// The format of chosen cells.
#include "orbsetformat.h"

#include "attribute.h"
#include "family.h"
#include "orbformat.h"

using namespace orbchart;

namespace {

constexpr Text definesReference{OrbSetFormat::_UTF_definesReference};
constexpr Boolean reset{OrbSetFormat::_UTF_reset};

using Attributes = AttributeList<definesReference, reset>;

using Families = ChildFamilies<FamilyList<OrbFormat>>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbSetFormat>() {
  return elementDescription<OrbSetFormat, DerivedFrom<CTCellProperty>, Attributes, Families>;
}

struct OrbSetFormat::Children : Families {};

OrbSetFormat::OrbSetFormat(xercesc::DOMElement* element) : CTCellProperty(element), children_(new Children) {
  children_->load(*this);
  bind(*this);
}
OrbSetFormat::~OrbSetFormat() = default;

const XMLCh* OrbSetFormat::getDefinesReference() const { return definesReference.get(*this); }
void OrbSetFormat::setDefinesReference(const XMLCh* value) { definesReference.set(*this, value); }
bool OrbSetFormat::isDefinesReferencePresent() const { return definesReference.isPresent(*this); }
void OrbSetFormat::removeDefinesReference() { definesReference.remove(*this); }

bool OrbSetFormat::getReset() const { return reset.get(*this); }
void OrbSetFormat::setReset(bool value) { reset.set(*this, value); }
bool OrbSetFormat::isResetPresent() const { return reset.isPresent(*this); }
void OrbSetFormat::removeReset() { reset.remove(*this); }

OrbFormat* OrbSetFormat::addFormat() { return children_->add<OrbFormat>(*this, atEnd); }
std::vector<OrbFormat*> OrbSetFormat::getFormats() const { return children_->all<OrbFormat>(); }
unsigned int OrbSetFormat::removeFormats() { return children_->removeAll<OrbFormat>(*this); }
