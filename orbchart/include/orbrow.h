// One row of an embedded source, element `row`.
#pragma once

#include "chartstring.h"
#include "orbbaseelement.h"

/// One row of an embedded source: its values as fields separated by ";".
///
/// A field is a run of characters other than ";", blanks included. There are no empty fields: several ";" in a row are
/// one separator, and one at an end is nothing.
/// \ingroup data
class ORBCHART_EXPORT OrbRow : public OrbBaseElement {
public:
  static constexpr XMLCh _UTF_row[] = u"row";
  static constexpr const XMLCh* elementName = _UTF_row;

  explicit OrbRow(xercesc::DOMElement* element);
  ~OrbRow() override;

  /// The text of the element: its first text node, empty when there is none. Setting it removes the old text and
  /// puts the new one behind whatever other children there are; of two neighbouring text nodes a remove leaves the
  /// second.
  ChartString getText() const;
  void setText(const XMLCh* text);
  void removeText();

  /// The field at a position, counted from 0; empty past the end.
  ChartString getText(unsigned int index) const;
  /// Replaces a field and writes the row anew, with one ";" between its fields; false past the end, and then nothing
  /// is written. An empty text takes the field away; the ";" on both sides of it stay, unless it was the first.
  bool setText(const XMLCh* text, unsigned int index);
};
