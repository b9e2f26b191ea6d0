// The scope of a variable name, element `scope`.
#pragma once

#include "chartstring.h"
#include "orbbaseelement.h"

/// The scope of a variable name, as text.
/// \ingroup variables
class ORBCHART_EXPORT OrbScope : public OrbBaseElement {
public:
  static constexpr XMLCh _UTF_scope[] = u"scope";
  static constexpr const XMLCh* elementName = _UTF_scope;

  explicit OrbScope(xercesc::DOMElement* element);
  ~OrbScope() override;

  /// The text of the element: its first text node, empty when there is none. Setting it removes the old text and puts
  /// the new one behind whatever other children there are; of two neighbouring text nodes a remove leaves the second.
  ChartString getText() const;
  void setText(const XMLCh* text);
  void removeText();
};
