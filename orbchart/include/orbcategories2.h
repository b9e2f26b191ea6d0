// A list of categories for an operation of a domain modifier, element `categories2`.
#pragma once

#include "chartstring.h"
#include "orbbaseelement.h"

/// A list of categories for an operation of a domain modifier; the library does not read its text.
///
/// The wrapper is registered under the key `categories`, which is not the name of its element.
/// \ingroup variables
class ORBCHART_EXPORT OrbCategories2 : public OrbBaseElement {
public:
  static constexpr XMLCh _UTF_categories2[] = u"categories2";
  static constexpr const XMLCh* elementName = _UTF_categories2;

  explicit OrbCategories2(xercesc::DOMElement* element);
  ~OrbCategories2() override;

  /// The text of the element: its first text node, empty when there is none. Setting it removes the old text and
  /// puts the new one behind whatever other children there are; of two neighbouring text nodes a remove leaves the
  /// second.
  ChartString getText() const;
  void setText(const XMLCh* text);
  void removeText();
};
