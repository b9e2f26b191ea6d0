// The transparency of a graphic element, element `transparency`.
#pragma once

#include "agaestheticrangezeroone.h"
#include "ctaesthetic.h"

#include <memory>

class OrbDoubleMapping;

/// The transparency of a graphic element.
/// \ingroup aesthetics
class ORBCHART_EXPORT OrbTransparency : public CTAesthetic {
public:
  static constexpr XMLCh _UTF_transparency[] = u"transparency";
  static constexpr const XMLCh* elementName = _UTF_transparency;

  static constexpr XMLCh _UTF_missing[] = u"missing";

  enum ENUM_affect : int {
    affect_both = 0,
    affect_main = 1,
    affect_secondary = 2,
    affect_stroke = 3,
    affect_fill = 4,
  };

  explicit OrbTransparency(xercesc::DOMElement* element);
  ~OrbTransparency() override;

  /// The part that is transparent; "both", which is 0, when absent. OrbColor numbers the same keywords from 1.
  ENUM_affect getAffect() const;
  void setAffect(ENUM_affect affect);
  void removeAffect();

  /// The transparencies of the lowest and the highest value; any number is written.
  double getLow() const;
  void setLow(double low);
  bool isLowPresent() const;
  void removeLow();

  double getHigh() const;
  void setHigh(double high);
  bool isHighPresent() const;
  void removeHigh();

  /// The transparency of missing values; any number is written.
  double getMissing() const;
  void setMissing(double missing);
  bool isMissingPresent() const;
  void removeMissing();

  /// The range as a view of this element, which must not outlive it.
  AGAestheticRangeZeroOne getAestheticRangeZeroOne() const;

  /// The values that are mapped one by one.
  OrbDoubleMapping* addDoubleMapping();
  std::vector<OrbDoubleMapping*> getDoubleMappings() const;
  unsigned int removeDoubleMappings();

private:
  struct Children;
  std::unique_ptr<Children> children_;
};
