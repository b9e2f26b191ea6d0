// A custom order of categories, element `categoryOrder`.
#pragma once

#include "chartstring.h"
#include "orbbaseelement.h"

/// A custom order of categories, as one text of fields that ";" separates; an empty field does not exist.
/// \ingroup variables
class ORBCHART_EXPORT OrbCategoryOrder : public OrbBaseElement {
public:
  static constexpr XMLCh _UTF_categoryOrder[] = u"categoryOrder";
  static constexpr const XMLCh* elementName = _UTF_categoryOrder;

  explicit OrbCategoryOrder(xercesc::DOMElement* element);
  ~OrbCategoryOrder() override;

  /// The whole text: that of the first text node.
  ChartString getText() const;
  /// The first field at index 0; at every other index the empty text, whatever fields there are.
  ChartString getText(unsigned int index) const;
  void setText(const XMLCh* text);
  /// Puts a text in front of the field at an index, and writes all of it without separators: "a;b;c" with "x" at index
  /// 1 becomes the one field "axbc". False, and nothing changes, for an index at or past the number of fields.
  bool setText(const XMLCh* text, unsigned int index);
  void removeText();
};
