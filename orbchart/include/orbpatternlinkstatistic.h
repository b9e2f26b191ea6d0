// Links between patterns, element `patternLinkStatistic`.
#pragma once

#include "orbbaseelement.h"

class CTVariableType;

/// Links the patterns of a sequence of items.
/// \ingroup statistics
class ORBCHART_EXPORT OrbPatternLinkStatistic : public OrbBaseElement {
public:
  static constexpr XMLCh _UTF_patternLinkStatistic[] = u"patternLinkStatistic";
  static constexpr const XMLCh* elementName = _UTF_patternLinkStatistic;

  static constexpr XMLCh _UTF_item[] = u"item";
  static constexpr XMLCh _UTF_minLength[] = u"minLength";

  explicit OrbPatternLinkStatistic(xercesc::DOMElement* element);
  ~OrbPatternLinkStatistic() override;

  const XMLCh* getId() const;
  void setId(const XMLCh* id);
  bool isIdPresent() const;
  void removeId();

  /// The variable that names the items: a source, derived or expression variable, else null.
  CTVariableType* getItem() const;
  void setItem(const CTVariableType& variable);
  bool isItemPresent() const;
  void removeItem();

  /// The length that a pattern has at least, as text.
  const XMLCh* getMinLength() const;
  void setMinLength(const XMLCh* minLength);
  bool isMinLengthPresent() const;
  void removeMinLength();
};
