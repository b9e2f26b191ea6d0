// A key and its value for chosen cells.
#include "orbsetmetadata.h"

#include "attribute.h"
#include "loading.h"
#include "orbuni.h"

using namespace orbchart;

namespace {

constexpr Text key{OrbUni::_key};
constexpr Text value{OrbUni::_value};

using Attributes = AttributeList<key, value>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbSetMetaData>() {
  return elementDescription<OrbSetMetaData, DerivedFrom<CTCellProperty>, Attributes>;
}

OrbSetMetaData::OrbSetMetaData(xercesc::DOMElement* element) : CTCellProperty(element) { bindLeaf(*this); }
OrbSetMetaData::~OrbSetMetaData() = default;

const XMLCh* OrbSetMetaData::getKey() const { return key.get(*this); }
void OrbSetMetaData::setKey(const XMLCh* value) { key.set(*this, value); }
bool OrbSetMetaData::isKeyPresent() const { return key.isPresent(*this); }
void OrbSetMetaData::removeKey() { key.remove(*this); }

const XMLCh* OrbSetMetaData::getValue() const { return value.get(*this); }
void OrbSetMetaData::setValue(const XMLCh* newValue) { value.set(*this, newValue); }
bool OrbSetMetaData::isValuePresent() const { return value.isPresent(*this); }
void OrbSetMetaData::removeValue() { value.remove(*this); }
