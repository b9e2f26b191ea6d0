// The colour of a graphic element, element `color`.
#pragma once

#include "ctaesthetic.h"

#include <memory>

class OrbColorMapping;
class OrbStyleCycle;

/// The colour of a graphic element.
/// \ingroup aesthetics
class ORBCHART_EXPORT OrbColor : public CTAesthetic {
public:
  static constexpr XMLCh _UTF_color[] = u"color";
  static constexpr const XMLCh* elementName = _UTF_color;

  static constexpr XMLCh _UTF_missing[] = u"missing";
  static constexpr XMLCh _UTF_scale_bipolarBlack[] = u"bipolarBlack";
  static constexpr XMLCh _UTF_scale_bipolarWhite[] = u"bipolarWhite";
  static constexpr XMLCh _UTF_scale_bipolarGray[] = u"bipolarGray";
  static constexpr XMLCh _UTF_scale_bipolarLightGray[] = u"bipolarLightGray";
  static constexpr XMLCh _UTF_scale_bipolarDarkGray[] = u"bipolarDarkGray";
  static constexpr XMLCh _UTF_scale_rainbow[] = u"rainbow";
  static constexpr XMLCh _UTF_scale_circular[] = u"circular";
  static constexpr XMLCh _UTF_scale_temperature[] = u"temperature";

  enum ENUM_affect : int {
    affect_unset = 0,
    affect_both = 1,
    affect_main = 2,
    affect_secondary = 3,
    affect_stroke = 4,
    affect_fill = 5,
  };

  enum ENUM_scale : int {
    scale_unset = 0,
    scale_bipolarBlack = 1,
    scale_bipolarWhite = 2,
    scale_bipolarGray = 3,
    scale_bipolarLightGray = 4,
    scale_bipolarDarkGray = 5,
    scale_rainbow = 6,
    scale_circular = 7,
    scale_temperature = 8,
    scale_interpolated = 9,
  };

  explicit OrbColor(xercesc::DOMElement* element);
  ~OrbColor() override;

  /// The part that is coloured; 0 when absent. OrbColorComponent and OrbTransparency number the same keywords from 0.
  ENUM_affect getAffect() const;
  void setAffect(ENUM_affect affect);
  void removeAffect();

  /// The colours of the lowest and the highest value, as text.
  const XMLCh* getLow() const;
  void setLow(const XMLCh* low);
  bool isLowPresent() const;
  void removeLow();

  const XMLCh* getHigh() const;
  void setHigh(const XMLCh* high);
  bool isHighPresent() const;
  void removeHigh();

  /// The style cycle that the values run through.
  OrbStyleCycle* getCycle() const;
  void setCycle(const OrbStyleCycle& cycle);
  bool isCyclePresent() const;
  void removeCycle();

  /// The colour of missing values.
  const XMLCh* getMissing() const;
  void setMissing(const XMLCh* missing);
  bool isMissingPresent() const;
  void removeMissing();

  /// The colours between low and high; 0 when absent. The child `scale` is another thing.
  ENUM_scale getScaleAttribute() const;
  void setScaleAttribute(ENUM_scale scale);
  bool isScaleAttributePresent() const;
  void removeScaleAttribute();

  /// The values that are mapped one by one.
  OrbColorMapping* addColorMapping();
  std::vector<OrbColorMapping*> getColorMappings() const;
  unsigned int removeColorMappings();

private:
  struct Children;
  std::unique_ptr<Children> children_;
};
