// What the guides of a graph share.
#pragma once

#include "orbbaseelement.h"

#include <memory>

class OrbConditionalStyle;
class OrbExtension;
class OrbLabel;
class OrbStyle;

/// A guide: a line, a plane, a point, a rectangle, a frame or the curve of a function that is laid over a graph.
/// \ingroup guides
class ORBCHART_EXPORT CTGuideType : public OrbBaseElement {
public:
  ~CTGuideType() override;

  const XMLCh* getId() const;
  void setId(const XMLCh* id);
  void removeId();

  OrbStyle* getStyle() const;
  void setStyle(const OrbStyle& style);
  void removeStyle();

  /// The place in the order of drawing. A negative number is written with its sign and reads as 0.
  int getZOrder() const;
  void setZOrder(int zOrder);
  void removeZOrder();

  /// The name of the guide, free text.
  const XMLCh* getName() const;
  void setName(const XMLCh* name);
  bool isNamePresent() const;
  void removeName();

  /// The labels, as many as one likes. A new one goes before the first conditional style, while a new conditional style
  /// or extension goes last: a label may come to stand behind an extension.
  OrbLabel* addLabel();
  std::vector<OrbLabel*> getLabels() const;
  unsigned int removeLabels();

  /// The styles under a condition. The condition and the style are written to the new child.
  OrbConditionalStyle* addConditionalStyle(const XMLCh* when, const OrbStyle& style);
  std::vector<OrbConditionalStyle*> getConditionalStyles() const;
  unsigned int removeConditionalStyles();

  /// Free attributes of the host.
  OrbExtension* addExtension();
  std::vector<OrbExtension*> getExtensions() const;
  unsigned int removeExtensions();

protected:
  explicit CTGuideType(xercesc::DOMElement* element);

private:
  struct Children;
  std::unique_ptr<Children> children_;
};
