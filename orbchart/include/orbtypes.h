// The variable types of an embedded source, element `types`.
#pragma once

#include "chartstring.h"
#include "orbbaseelement.h"

/// The variable types of an embedded source, separated as the fields of a row are; the library does not read them.
/// \ingroup data
class ORBCHART_EXPORT OrbTypes : public OrbBaseElement {
public:
  static constexpr XMLCh _UTF_types[] = u"types";
  static constexpr const XMLCh* elementName = _UTF_types;

  explicit OrbTypes(xercesc::DOMElement* element);
  ~OrbTypes() override;

  /// The text of the element: its first text node, empty when there is none. Setting it removes the old text and
  /// puts the new one behind whatever other children there are; of two neighbouring text nodes a remove leaves the
  /// second.
  ChartString getText() const;
  void setText(const XMLCh* text);
  void removeText();
};
