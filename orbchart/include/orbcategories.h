// A list of categories, element `categories`.
#pragma once

#include "chartstring.h"
#include "orbbaseelement.h"

/// A list of categories; the library does not read its text.
/// \ingroup variables
class ORBCHART_EXPORT OrbCategories : public OrbBaseElement {
public:
  static constexpr XMLCh _UTF_categories[] = u"categories";
  static constexpr const XMLCh* elementName = _UTF_categories;

  explicit OrbCategories(xercesc::DOMElement* element);
  ~OrbCategories() override;

  /// The text of the element: its first text node, empty when there is none. Setting it removes the old text and
  /// puts the new one behind whatever other children there are; of two neighbouring text nodes a remove leaves the
  /// second.
  ChartString getText() const;
  void setText(const XMLCh* text);
  void removeText();

  /// Whether the categories are taken away instead of kept; false when absent.
  bool getRemove() const;
  void setRemove(bool remove);
  void removeRemove();
};
