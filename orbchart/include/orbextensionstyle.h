// Where a style came from, element `extension`.
#pragma once

#include "orbextension.h"

/// The extension of a style: it records where the style came from.
/// \ingroup style
class ORBCHART_EXPORT OrbExtensionStyle : public OrbExtension {
public:
  static constexpr XMLCh _UTF_convertedFrom[] = u"convertedFrom";
  static constexpr XMLCh _UTF_conversionType[] = u"conversionType";

  enum ENUM_conversionType : int {
    conversionType_text = 0,
    conversionType_frame = 1,
  };

  explicit OrbExtensionStyle(xercesc::DOMElement* element);
  ~OrbExtensionStyle() override;

  /// The style that this one was made of.
  OrbStyle* getConvertedFrom() const;
  void setConvertedFrom(const OrbStyle& convertedFrom);
  void removeConvertedFrom();

  /// What the style was made for. The setter writes the words "text" and "frame", and the getter reads the text "1" as
  /// 1 and all else as 0: what the setter wrote reads as 0.
  ENUM_conversionType getConversionType() const;
  void setConversionType(ENUM_conversionType conversionType);
  void removeConversionType();
};
