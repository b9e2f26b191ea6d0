// One name of a variable, element `name`.
#pragma once

#include "chartstring.h"
#include "orbbaseelement.h"

/// One name, under OrbVariableName.
/// \ingroup variables
class ORBCHART_EXPORT OrbName : public OrbBaseElement {
public:
  static constexpr XMLCh _UTF_name[] = u"name";
  static constexpr const XMLCh* elementName = _UTF_name;

  explicit OrbName(xercesc::DOMElement* element);
  ~OrbName() override;

  /// The text of the element: its first text node, empty when there is none. Setting it removes the old text and
  /// puts the new one behind whatever other children there are; of two neighbouring text nodes a remove leaves the
  /// second.
  ChartString getText() const;
  void setText(const XMLCh* text);
  void removeText();
};
