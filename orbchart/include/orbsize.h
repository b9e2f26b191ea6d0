// The size of a graphic element, element `size`.
#pragma once

#include "agaestheticrangelengths.h"
#include "ctaesthetic.h"

#include <memory>

class OrbLengthMapping;
class OrbStyleCycle;

/// The size of a graphic element.
/// \ingroup aesthetics
class ORBCHART_EXPORT OrbSize : public CTAesthetic {
public:
  static constexpr XMLCh _UTF_size[] = u"size";
  static constexpr const XMLCh* elementName = _UTF_size;

  static constexpr XMLCh _UTF_type_all[] = u"all";
  static constexpr XMLCh _UTF_missing[] = u"missing";

  enum ENUM_type : int {
    type_unset = 0,
    type_all = 1,
    type_width = 2,
    type_height = 3,
    type_depth = 4,
    type_aspect = 5,
  };

  explicit OrbSize(xercesc::DOMElement* element);
  ~OrbSize() override;

  /// What is sized; 0 when absent.
  ENUM_type getType() const;
  void setType(ENUM_type type);
  bool isTypePresent() const;
  void removeType();

  /// The lengths of the lowest and the highest value, with their units if any.
  const XMLCh* getLow() const;
  void setLow(const XMLCh* low);
  void removeLow();

  const XMLCh* getHigh() const;
  void setHigh(const XMLCh* high);
  void removeHigh();

  /// The length of missing values, with its unit if any.
  const XMLCh* getMissing() const;
  void setMissing(const XMLCh* missing);
  bool isMissingPresent() const;
  void removeMissing();

  /// The style cycle that the values run through.
  OrbStyleCycle* getCycle() const;
  void setCycle(const OrbStyleCycle& cycle);
  bool isCyclePresent() const;
  void removeCycle();

  /// The range as a view of this element, which must not outlive it.
  AGAestheticRangeLengths getAestheticRangeLengths() const;

  /// The values that are mapped one by one.
  OrbLengthMapping* addLengthMapping();
  std::vector<OrbLengthMapping*> getLengthMappings() const;
  unsigned int removeLengthMappings();

private:
  struct Children;
  std::unique_ptr<Children> children_;
};
