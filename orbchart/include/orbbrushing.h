// The brushing of marks, element `brushing`.
#pragma once

#include "ctinteraction.h"

#include <memory>

class CTElementType;
class OrbColor;
class OrbColorComponent;
class OrbDash;
class OrbImage;
class OrbLabeling;
class OrbOffset;
class OrbPattern;
class OrbRotation;
class OrbShape;
class OrbSize;
class OrbSplit;
class OrbStyleBy;
class OrbTransparency;
class OrbUserSource;
class OrbVisibility;

/// What the selected marks of a graphic element look like, and how the selection links to other charts. The aesthetics
/// among its children take effect on the selected marks; a new one goes last.
/// \ingroup interaction
class ORBCHART_EXPORT OrbBrushing : public CTInteraction {
public:
  static constexpr XMLCh _UTF_brushing[] = u"brushing";
  static constexpr const XMLCh* elementName = _UTF_brushing;

  static constexpr XMLCh _UTF_splitting[] = u"splitting";
  static constexpr XMLCh _UTF_linkMode[] = u"linkMode";
  static constexpr XMLCh _UTF_linkMode_receiver[] = u"receiver";
  static constexpr XMLCh _UTF_selectionMode[] = u"selectionMode";
  static constexpr XMLCh _UTF_selectionMode_click[] = u"click";
  static constexpr XMLCh _UTF_selectionMode_rectangle[] = u"rectangle";
  static constexpr XMLCh _UTF_selectionMode_hover[] = u"hover";
  static constexpr XMLCh _UTF_selectionMode_lasso[] = u"lasso";

  enum ENUM_linkMode : int {
    linkMode_unset = 0,
    linkMode_source = 1,
    linkMode_receiver = 2,
    linkMode_both = 3,
  };

  enum ENUM_selectionMode : int {
    selectionMode_unset = 0,
    selectionMode_click = 1,
    selectionMode_rectangle = 2,
    selectionMode_hover = 3,
    selectionMode_lasso = 4,
  };

  explicit OrbBrushing(xercesc::DOMElement* element);
  ~OrbBrushing() override;

  /// The graphic element whose marks are selected: a line, point, interval, polygon, area, schema or path, in this
  /// order, else null. An edge can be written and reads as null.
  CTElementType* getTarget() const;
  void setTarget(const CTElementType& target);
  bool isTargetPresent() const;
  void removeTarget();

  /// The source that the selection is shared through: a user, embedded, delimited file, streaming, database, reshape or
  /// statistics data file source, in this order, else null. User sources alone can be written.
  OrbBaseElement* getSource() const;
  void setSource(const OrbUserSource& source);
  bool isSourcePresent() const;
  void removeSource();

  /// Whether the marks are split by the selection; false when absent.
  bool getSplitting() const;
  void setSplitting(bool splitting);
  bool isSplittingPresent() const;
  void removeSplitting();

  /// Whether the selection is given to other charts, taken from them, or both; 0 when absent.
  ENUM_linkMode getLinkMode() const;
  void setLinkMode(ENUM_linkMode linkMode);
  bool isLinkModePresent() const;
  void removeLinkMode();

  /// How the viewer selects; 0 when absent.
  ENUM_selectionMode getSelectionMode() const;
  void setSelectionMode(ENUM_selectionMode selectionMode);
  bool isSelectionModePresent() const;
  void removeSelectionMode();

  OrbVisibility* addVisibility();
  std::vector<OrbVisibility*> getVisibilitys() const;
  unsigned int removeVisibilitys();

  OrbColorComponent* addColorComponent();
  std::vector<OrbColorComponent*> getColorComponents() const;
  unsigned int removeColorComponents();

  OrbColor* addColor();
  std::vector<OrbColor*> getColors() const;
  unsigned int removeColors();

  OrbDash* addDash();
  std::vector<OrbDash*> getDashs() const;
  unsigned int removeDashs();

  /// The labels. The getter gives a copy, unlike that of a graphic element.
  OrbLabeling* addLabeling();
  std::vector<OrbLabeling*> getLabelings() const;
  unsigned int removeLabelings();

  OrbOffset* addOffset();
  std::vector<OrbOffset*> getOffsets() const;
  unsigned int removeOffsets();

  OrbPattern* addPattern();
  std::vector<OrbPattern*> getPatterns() const;
  unsigned int removePatterns();

  OrbRotation* addRotation();
  std::vector<OrbRotation*> getRotations() const;
  unsigned int removeRotations();

  OrbShape* addShape();
  std::vector<OrbShape*> getShapes() const;
  unsigned int removeShapes();

  OrbSize* addSize();
  std::vector<OrbSize*> getSizes() const;
  unsigned int removeSizes();

  OrbSplit* addSplit();
  std::vector<OrbSplit*> getSplits() const;
  unsigned int removeSplits();

  OrbStyleBy* addStyleBy();
  std::vector<OrbStyleBy*> getStyleBys() const;
  unsigned int removeStyleBys();

  OrbTransparency* addTransparency();
  std::vector<OrbTransparency*> getTransparencys() const;
  unsigned int removeTransparencys();

  OrbImage* addImage();
  std::vector<OrbImage*> getImages() const;
  unsigned int removeImages();

private:
  struct Children;
  std::unique_ptr<Children> children_;
};
