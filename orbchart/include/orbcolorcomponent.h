// One component of the colour of a graphic element, element `colorComponent`.
#pragma once

#include "ctaesthetic.h"

#include <memory>

class OrbDoubleMapping;

/// One component of the colour of a graphic element.
/// \ingroup aesthetics
class ORBCHART_EXPORT OrbColorComponent : public CTAesthetic {
public:
  static constexpr XMLCh _UTF_colorComponent[] = u"colorComponent";
  static constexpr const XMLCh* elementName = _UTF_colorComponent;

  static constexpr XMLCh _UTF_type_hue[] = u"hue";
  static constexpr XMLCh _UTF_type_saturation[] = u"saturation";
  static constexpr XMLCh _UTF_type_brightness[] = u"brightness";
  static constexpr XMLCh _UTF_missing[] = u"missing";

  enum ENUM_type : int {
    type_unset = 0,
    type_hue = 1,
    type_saturation = 2,
    type_brightness = 3,
  };

  enum ENUM_affect : int {
    affect_both = 0,
    affect_main = 1,
    affect_secondary = 2,
    affect_stroke = 3,
    affect_fill = 4,
  };

  explicit OrbColorComponent(xercesc::DOMElement* element);
  ~OrbColorComponent() override;

  /// The component; 0 when absent.
  ENUM_type getType() const;
  void setType(ENUM_type type);
  bool isTypePresent() const;
  void removeType();

  /// The part that is coloured; "both", which is 0, when absent. OrbColor numbers the same keywords from 1.
  ENUM_affect getAffect() const;
  void setAffect(ENUM_affect affect);
  void removeAffect();

  /// The component at the lowest and at the highest value.
  double getLow() const;
  void setLow(double low);
  void removeLow();

  double getHigh() const;
  void setHigh(double high);
  void removeHigh();

  /// The component of missing values.
  double getMissing() const;
  void setMissing(double missing);
  bool isMissingPresent() const;
  void removeMissing();

  /// The values that are mapped one by one.
  OrbDoubleMapping* addDoubleMapping();
  std::vector<OrbDoubleMapping*> getDoubleMappings() const;
  unsigned int removeDoubleMappings();

private:
  struct Children;
  std::unique_ptr<Children> children_;
};
