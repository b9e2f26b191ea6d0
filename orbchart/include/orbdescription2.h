// The description of a group of values, element `description`.
#pragma once

#include "chartstring.h"
#include "orbbaseelement.h"

/// The description of a group of values, as text. It is registered under the same key as an OrbDescription.
/// \ingroup variables
class ORBCHART_EXPORT OrbDescription2 : public OrbBaseElement {
public:
  static constexpr XMLCh _UTF_description[] = u"description";
  static constexpr const XMLCh* elementName = _UTF_description;

  explicit OrbDescription2(xercesc::DOMElement* element);
  ~OrbDescription2() override;

  /// The text of the element: all its text nodes in order as one, empty when there is none. The English form has the
  /// first of them twice. Setting it removes the old text and puts the new one behind whatever other children there
  /// are; of two neighbouring text nodes a remove leaves the second.
  ChartString getText() const;
  void setText(const XMLCh* text);
  void removeText();
};
