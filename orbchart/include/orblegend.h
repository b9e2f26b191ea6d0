// A legend, element `legend`.
#pragma once

#include "orbbaseelement.h"
#include "orblocation.h"

#include <memory>

class OrbExtension;
class OrbLabel;
class OrbLegendTarget;

/// A legend, which stands beside the graphs under the root or in a container. Its targets say what it explains.
///
/// Extensions stand first, then the locations, the label and the targets.
/// \ingroup guides
class ORBCHART_EXPORT OrbLegend : public OrbBaseElement {
public:
  static constexpr XMLCh _UTF_legend[] = u"legend";
  static constexpr const XMLCh* elementName = _UTF_legend;

  static constexpr XMLCh _UTF_tickTextStyle[] = u"tickTextStyle";
  static constexpr XMLCh _UTF_tickFrameStyle[] = u"tickFrameStyle";
  static constexpr XMLCh _UTF_verticalFlow[] = u"verticalFlow";
  static constexpr XMLCh _UTF_numberOfRows[] = u"numberOfRows";
  static constexpr XMLCh _UTF_numberOfColumns[] = u"numberOfColumns";

  explicit OrbLegend(xercesc::DOMElement* element);
  /// The same, and then writes the id.
  OrbLegend(xercesc::DOMElement* element, const XMLCh* id);
  ~OrbLegend() override;

  const XMLCh* getId() const;
  void setId(const XMLCh* id);
  void removeId();

  /// The style of the texts beside the marks.
  OrbStyle* getTickTextStyle() const;
  void setTickTextStyle(const OrbStyle& style);
  void removeTickTextStyle();

  /// The style of the frames around those texts.
  OrbStyle* getTickFrameStyle() const;
  void setTickFrameStyle(const OrbStyle& style);
  void removeTickFrameStyle();

  /// Whether the entries stand in reverse order; false when absent.
  bool getReverse() const;
  void setReverse(bool reverse);
  void removeReverse();

  OrbStyle* getStyle() const;
  void setStyle(const OrbStyle& style);
  void removeStyle();

  /// Whether the drawing is cut at the edge; false when absent.
  bool getClip() const;
  void setClip(bool clip);
  void removeClip();

  /// Whether the entries fill column by column; false when absent.
  bool getVerticalFlow() const;
  void setVerticalFlow(bool verticalFlow);
  void removeVerticalFlow();

  /// How many rows and columns the entries take; 0 when absent. A negative number is written with its sign and reads
  /// as 0.
  int getNumberOfRows() const;
  void setNumberOfRows(int numberOfRows);
  void removeNumberOfRows();

  int getNumberOfColumns() const;
  void setNumberOfColumns(int numberOfColumns);
  void removeNumberOfColumns();

  /// Free attributes of the host. There is no limit, but the getter gives the first alone.
  OrbExtension* addExtension();
  OrbExtension* getExtension() const;
  unsigned int removeExtensions();

  /// Where the legend stands: each fixes one edge or size.
  OrbLocation* addLocation(OrbLocation::ENUM_part part);
  std::vector<OrbLocation*> getLocations() const;
  unsigned int removeLocations();

  /// The title, at most one. A second add raises "Can not add a Labels to a Legend because 1 Labels(s) already
  /// exist(s)." with the number that there is.
  OrbLabel* addLabel();
  OrbLabel* getLabel() const;
  unsigned int removeLabels();

  /// What the legend explains. The id and the target are written to the new child.
  OrbLegendTarget* addLegendTarget(const XMLCh* id, const OrbBaseElement& target);
  std::vector<OrbLegendTarget*> getLegendTargets() const;
  unsigned int removeLegendTargets();

private:
  struct Children;
  std::unique_ptr<Children> children_;
};
