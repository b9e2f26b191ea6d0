// The labels of an embedded source, element `labels`.
#pragma once

#include "chartstring.h"
#include "orbbaseelement.h"

/// The labels of an embedded source, opaque to the library.
/// \ingroup data
class ORBCHART_EXPORT OrbLabels : public OrbBaseElement {
public:
  static constexpr XMLCh _UTF_labels[] = u"labels";
  static constexpr const XMLCh* elementName = _UTF_labels;

  explicit OrbLabels(xercesc::DOMElement* element);
  ~OrbLabels() override;

  /// The text of the element: its first text node, empty when there is none. Adding a text removes the old one and puts
  /// the new one behind whatever other children there are; of two neighbouring text nodes a remove leaves the second.
  ChartString getText() const;
  void addText(const XMLCh* text);
  void removeText();
};
