// The footnotes of labels.
#include "orbfootnotes.h"

#include "attribute.h"
#include "family.h"

using namespace orbchart;
using xercesc::DOMElement;

struct OrbFootnotes::Children : ChildFamilies<FamilyList<>> {};

OrbFootnotes::OrbFootnotes(DOMElement* element) : CTAesthetic(element, WithoutChildren()), children_(new Children) {
  children_->load(*this);
  bind(*this);
}
OrbFootnotes::~OrbFootnotes() = default;

unsigned int OrbFootnotes::getIndex() const { return readUnsigned(*this, _UTF_index); }
void OrbFootnotes::setIndex(unsigned int index) { writeUnsigned(*this, _UTF_index, index); }
bool OrbFootnotes::isIndexPresent() const { return isPresent(*this, _UTF_index); }
void OrbFootnotes::removeIndex() { removeAttribute(*this, _UTF_index); }

bool OrbFootnotes::getSuperscript() const { return readBoolean(*this, _UTF_superscript); }
void OrbFootnotes::setSuperscript(bool superscript) { writeBoolean(*this, _UTF_superscript, superscript); }
bool OrbFootnotes::isSuperscriptPresent() const { return isPresent(*this, _UTF_superscript); }
void OrbFootnotes::removeSuperscript() { removeAttribute(*this, _UTF_superscript); }
