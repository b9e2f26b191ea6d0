// The footnotes of labels.
#include "orbfootnotes.h"

#include "attribute.h"
#include "family.h"
#include "orbfootnotemapping.h"

using namespace orbchart;
using xercesc::DOMElement;

namespace {

constexpr Unsigned index{OrbFootnotes::_UTF_index};
constexpr Boolean superscript{OrbFootnotes::_UTF_superscript};

using Attributes = AttributeList<index, superscript>;

using Families = ChildFamilies<FamilyList<OrbFootnoteMapping>>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbFootnotes>() {
  return elementDescription<OrbFootnotes, DerivedWithoutChildrenFrom<CTAesthetic>, Attributes, Families>;
}

struct OrbFootnotes::Children : Families {};

OrbFootnotes::OrbFootnotes(DOMElement* element) : CTAesthetic(element, WithoutChildren()), children_(new Children) {
  children_->load(*this);
  bind(*this);
}
OrbFootnotes::~OrbFootnotes() = default;

unsigned int OrbFootnotes::getIndex() const { return index.get(*this); }
void OrbFootnotes::setIndex(unsigned int value) { index.set(*this, value); }
bool OrbFootnotes::isIndexPresent() const { return index.isPresent(*this); }
void OrbFootnotes::removeIndex() { index.remove(*this); }

bool OrbFootnotes::getSuperscript() const { return superscript.get(*this); }
void OrbFootnotes::setSuperscript(bool value) { superscript.set(*this, value); }
bool OrbFootnotes::isSuperscriptPresent() const { return superscript.isPresent(*this); }
void OrbFootnotes::removeSuperscript() { superscript.remove(*this); }

OrbFootnoteMapping* OrbFootnotes::addFootnoteMapping() { return children_->add<OrbFootnoteMapping>(*this, atEnd); }
std::vector<OrbFootnoteMapping*> OrbFootnotes::getFootnoteMappings() const {
  return children_->all<OrbFootnoteMapping>();
}
unsigned int OrbFootnotes::removeFootnoteMappings() { return children_->removeAll<OrbFootnoteMapping>(*this); }
