// The labels of a graphic element, element `labeling`.
#pragma once

#include "ctaesthetic.h"

#include <memory>

class CTVariableType;
class OrbCategoricalDomain;
class OrbColor;
class OrbColorComponent;
class OrbFootnotes;
class OrbFormat;
class OrbFormatting;
class OrbIntervalDomain;
class OrbLabelLocation;
class OrbRotation;
class OrbScale;
class OrbSize;
class OrbStyle;
class OrbStyleBy;
class OrbSummaryStatistic;
class OrbTransparency;
class OrbVisibility;

/// The labels that a graphic element carries. It is an aesthetic that has aesthetics of its own. What it declares again
/// hides the operations of CTAesthetic; through a pointer to that base its versions are reached: its getVariable()
/// finds expression variables as well, its getDomain() tries interval domains first, and its scale and summary
/// statistic are those of the load, with wrappers of their own. An unknown child element raises at a load. The children
/// without a limit stand in the order of addition, behind the scale, the summary statistic and the format.
/// \ingroup aesthetics
class ORBCHART_EXPORT OrbLabeling : public CTAesthetic {
public:
  static constexpr XMLCh _UTF_labeling[] = u"labeling";
  static constexpr const XMLCh* elementName = _UTF_labeling;

  static constexpr XMLCh _UTF_textFrameStyle[] = u"textFrameStyle";
  static constexpr XMLCh _UTF_missing[] = u"missing";
  static constexpr XMLCh _UTF_part_outlier[] = u"outlier";

  enum ENUM_part : int {
    part_unset = 0,
    part_median = 1,
    part_outlier = 2,
    part_extreme = 3,
  };

  explicit OrbLabeling(xercesc::DOMElement* element);
  ~OrbLabeling() override;

  const XMLCh* getId() const;
  void setId(const XMLCh* id);
  bool isIdPresent() const;
  void removeId();

  OrbStyle* getStyle() const;
  void setStyle(const OrbStyle& style);
  void removeStyle();

  /// The style of the frames around the labels.
  OrbStyle* getTextFrameStyle() const;
  void setTextFrameStyle(const OrbStyle& textFrameStyle);
  void removeTextFrameStyle();

  /// Whether lines join the labels to what they label; false when absent.
  bool getConnectingLines() const;
  void setConnectingLines(bool connectingLines);
  void removeConnectingLines();

  /// The length that such a line has at least.
  const XMLCh* getMinConnectingLineLength() const;
  void setMinConnectingLineLength(const XMLCh* minConnectingLineLength);
  void removeMinConnectingLineLength();

  /// The variable that gives the labels: a source or derived variable, else null. An expression variable can be written
  /// and reads as null here.
  CTVariableType* getVariable() const;
  void setVariable(const CTVariableType& variable);
  void removeVariable();

  /// The number of the dimension that gives the labels.
  unsigned int getDimension() const;
  void setDimension(unsigned int dimension);
  void removeDimension();

  /// The domain of the values: a categorical or an interval domain, in this order, else null.
  OrbBaseElement* getDomain() const;
  void setDomain(const OrbIntervalDomain& domain);
  void setDomain(const OrbCategoricalDomain& domain);
  void removeDomain();

  /// The label of missing values.
  const XMLCh* getMissing() const;
  void setMissing(const XMLCh* missing);
  bool isMissingPresent() const;
  void removeMissing();

  /// The part of a schema that the labels are for; 0 when absent.
  ENUM_part getPart() const;
  void setPart(ENUM_part part);
  bool isPartPresent() const;
  void removePart();

  /// The scale, at most one. A second add raises "Can not add a Scale to a Labeling because 1 Scale(s) already
  /// exist(s)." with the number that there is. Alone of the scales of aesthetics it is added without a method.
  OrbScale* addScale();
  OrbScale* getScale() const;
  unsigned int removeScales();

  /// The summary statistic, at most one. A second add raises "Can not add a SummaryStatistic to a Labeling because 1
  /// SummaryStatistic(s) already exist(s)." with the number that there is.
  OrbSummaryStatistic* addSummaryStatistic();
  OrbSummaryStatistic* getSummaryStatistic() const;
  unsigned int removeSummaryStatistics();

  /// How the labels are printed, at most one. A second add raises "Can not add a Format to a Labeling because 1
  /// Format(s) already exist(s)." with the number that there is.
  OrbFormat* addFormat();
  std::vector<OrbFormat*> getFormats() const;
  unsigned int removeFormats();

  OrbVisibility* addVisibility();
  std::vector<OrbVisibility*> getVisibilitys() const;
  unsigned int removeVisibilitys();

  OrbStyleBy* addStyleBy();
  std::vector<OrbStyleBy*> getStyleBys() const;
  unsigned int removeStyleBys();

  OrbSize* addSize();
  std::vector<OrbSize*> getSizes() const;
  unsigned int removeSizes();

  OrbColor* addColor();
  std::vector<OrbColor*> getColors() const;
  unsigned int removeColors();

  OrbColorComponent* addColorComponent();
  std::vector<OrbColorComponent*> getColorComponents() const;
  unsigned int removeColorComponents();

  OrbTransparency* addTransparency();
  std::vector<OrbTransparency*> getTransparencys() const;
  unsigned int removeTransparencys();

  OrbRotation* addRotation();
  std::vector<OrbRotation*> getRotations() const;
  unsigned int removeRotations();

  OrbLabelLocation* addLabelLocation();
  std::vector<OrbLabelLocation*> getLabelLocations() const;
  unsigned int removeLabelLocations();

  OrbFootnotes* addFootnotes();
  std::vector<OrbFootnotes*> getFootnotess() const;
  unsigned int removeFootnotess();

  OrbFormatting* addFormatting();
  std::vector<OrbFormatting*> getFormattings() const;
  unsigned int removeFormattings();

  /// Raises "Can not add a SummaryStatistic to a Labeling because 1 <existing>(s) already exist(s)." with the number of
  /// summary statistics when there is one.
  void throwIfNotAlone(const std::string& existing) const;

private:
  struct Children;
  std::unique_ptr<Children> children_;
};
