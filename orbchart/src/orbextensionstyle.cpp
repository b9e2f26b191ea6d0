// Where a style came from.
#include "orbextensionstyle.h"

#include "attribute.h"
#include "keyword.h"
#include "loading.h"
#include "orbstyle.h"
#include "orbuni.h"
#include "reference.h"

#include <xercesc/util/XMLString.hpp>

using namespace orbchart;

namespace {

constexpr Reference<OrbStyle> convertedFrom{OrbExtensionStyle::_UTF_convertedFrom};
constexpr Keywords conversionType{OrbExtensionStyle::_UTF_conversionType,
                                  AbsentReadsAs(OrbExtensionStyle::conversionType_text),
                                  {
                                      {OrbExtensionStyle::conversionType_text, OrbUni::_text},
                                      {OrbExtensionStyle::conversionType_frame, OrbUni::_frame},
                                  }};

using Attributes = AttributeList<convertedFrom, conversionType>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbExtensionStyle>() {
  return elementDescription<OrbExtensionStyle, DerivedFrom<OrbExtension>, Attributes, IsFree>;
}

OrbExtensionStyle::OrbExtensionStyle(xercesc::DOMElement* element) : OrbExtension(element) { bindLeaf(*this); }
OrbExtensionStyle::~OrbExtensionStyle() = default;

OrbStyle* OrbExtensionStyle::getConvertedFrom() const { return convertedFrom.get(*this); }
void OrbExtensionStyle::setConvertedFrom(const OrbStyle& target) { convertedFrom.set(*this, target); }
void OrbExtensionStyle::removeConvertedFrom() { convertedFrom.remove(*this); }

OrbExtensionStyle::ENUM_conversionType OrbExtensionStyle::getConversionType() const {
  // The getter looks for the number, and not for the words that the setter writes.
  return xercesc::XMLString::equals(GetAttribute(conversionType.name), u"1") ? conversionType_frame
                                                                             : conversionType_text;
}
void OrbExtensionStyle::setConversionType(ENUM_conversionType value) { conversionType.set(*this, value); }
void OrbExtensionStyle::removeConversionType() { conversionType.remove(*this); }
