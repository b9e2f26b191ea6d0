// A paragraph of a label frame, element `paragraph`.
#pragma once

#include "orbbaseelement.h"

/// How a paragraph of a label frame is set.
/// \ingroup guides
class ORBCHART_EXPORT OrbParagraph : public OrbBaseElement {
public:
  static constexpr XMLCh _UTF_paragraph[] = u"paragraph";
  static constexpr const XMLCh* elementName = _UTF_paragraph;

  static constexpr XMLCh _UTF_hangingIndent[] = u"hangingIndent";

  explicit OrbParagraph(xercesc::DOMElement* element);
  ~OrbParagraph() override;

  const XMLCh* getId() const;
  void setId(const XMLCh* id);
  bool isIdPresent() const;
  void removeId();

  /// How far all lines but the first are set in. The one setter writes any text, the other the number with "px" behind
  /// it. The getter reads a bare number alone: a text with a unit, and so what the second setter wrote, reads as 0.
  /// Once written it cannot be removed.
  int getHangingIndent() const;
  void setHangingIndent(const XMLCh* hangingIndent);
  void setHangingIndentPixels(unsigned int pixels);
  bool isHangingIndentPresent() const;
};
