// The columns of an embedded source that hold labels, element `labelColumns`.
#pragma once

#include "chartstring.h"
#include "orbbaseelement.h"

/// The columns of an embedded source that hold labels, opaque to the library.
/// \ingroup data
class ORBCHART_EXPORT OrbLabelColumns : public OrbBaseElement {
public:
  static constexpr XMLCh _UTF_labelColumns[] = u"labelColumns";
  static constexpr const XMLCh* elementName = _UTF_labelColumns;

  explicit OrbLabelColumns(xercesc::DOMElement* element);
  ~OrbLabelColumns() override;

  /// The text of the element: its first text node, empty when there is none. Adding a text removes the old one and puts
  /// the new one behind whatever other children there are; of two neighbouring text nodes a remove leaves the second.
  ChartString getText() const;
  void addText(const XMLCh* text);
  void removeText();
};
