// One value of a group of described values, element `value`.
#pragma once

#include "chartstring.h"
#include "orbbaseelement.h"

/// One value, under OrbValueDescription.
/// \ingroup variables
class ORBCHART_EXPORT OrbValue : public OrbBaseElement {
public:
  static constexpr XMLCh _UTF_value[] = u"value";
  static constexpr const XMLCh* elementName = _UTF_value;

  explicit OrbValue(xercesc::DOMElement* element);
  ~OrbValue() override;

  /// The text of the element: its first text node, empty when there is none. Setting it removes the old text and
  /// puts the new one behind whatever other children there are; of two neighbouring text nodes a remove leaves the
  /// second.
  ChartString getText() const;
  void setText(const XMLCh* text);
  void removeText();
};
