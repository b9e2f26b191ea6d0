// What labels and alternate labels share.
#pragma once

#include "orbbaseelement.h"

#include <memory>

class OrbAlternateLabel;
class OrbDescriptionGroup;
class OrbStyle;
class OrbText;

/// A label: texts and facts about the data, with a style, and other labels that may stand in its place.
/// \ingroup guides
class ORBCHART_EXPORT CTLabelType : public OrbBaseElement {
public:
  static constexpr XMLCh _UTF_textFrameStyle[] = u"textFrameStyle";

  ~CTLabelType() override;

  const XMLCh* getId() const;
  void setId(const XMLCh* id);
  void removeId();

  OrbStyle* getStyle() const;
  void setStyle(const OrbStyle& style);
  void removeStyle();

  /// The style of the frame around the text.
  OrbStyle* getTextFrameStyle() const;
  void setTextFrameStyle(const OrbStyle& style);
  void removeTextFrameStyle();

  /// The place in the order of drawing. A negative number is written with its sign and reads as 0.
  int getZOrder() const;
  void setZOrder(int zOrder);
  void removeZOrder();

  /// The facts about a graphic element, which is written to the new child. A new one goes before the first alternate
  /// label, while a new text or alternate label goes last: a text may come to stand behind an alternate label.
  OrbDescriptionGroup* addDescriptionGroup(const OrbBaseElement& target);
  std::vector<OrbDescriptionGroup*> getDescriptionGroups() const;
  unsigned int removeDescriptionGroups();

  OrbText* addText();
  std::vector<OrbText*> getTexts() const;
  unsigned int removeTexts();

  /// The label in other languages. They may have alternates of their own.
  OrbAlternateLabel* addAlternateLabel();
  std::vector<OrbAlternateLabel*> getAlternateLabels() const;
  unsigned int removeAlternateLabels();

protected:
  explicit CTLabelType(xercesc::DOMElement* element);

private:
  struct Children;
  std::unique_ptr<Children> children_;
};
