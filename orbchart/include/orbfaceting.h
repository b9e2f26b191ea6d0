// The graph algebra of a graph, element `faceting`.
#pragma once

#include "orbbaseelement.h"

#include <memory>

class OrbAggregateStatistic;
class OrbAttach;
class OrbBinStatistic;
class OrbBlend;
class OrbClusteringStatistic;
class OrbCollectRowsStatistic;
class OrbCross;
class OrbDistributionStatistic;
class OrbDot;
class OrbEvaluateStatistic;
class OrbFixedWindowDensityStatistic;
class OrbGraphLayoutStatistic;
class OrbLayer;
class OrbLinkStatistic;
class OrbMapStatistic;
class OrbNearestNeighborDensityStatistic;
class OrbNest;
class OrbPatternLinkStatistic;
class OrbRegionStatistic;
class OrbReplicate;
class OrbSOMStatistic;
class OrbSmoothStatistic;
class OrbSummaryStatistic;
class OrbTagCloudStatistic;
class OrbTreeLayoutStatistic;
class OrbTukeyStatistic;
class OrbUnity;
class OrbVariableReference;
class OrbWhen;

/// The graph algebra of a graph: how its data is cut into panels, with the statistics that work on the whole of it.
///
/// The expression is stored and neither simplified nor evaluated. Any number of terms may stand side by side, and the
/// statistics and `attach` stand before the first of them: either group is in the order of addition, whatever the kind.
/// The getters give the terms family by family: how families interleave is read from the DOM. A removed child keeps its
/// id.
/// \ingroup graph
class ORBCHART_EXPORT OrbFaceting : public OrbBaseElement {
public:
  static constexpr XMLCh _UTF_faceting[] = u"faceting";
  static constexpr const XMLCh* elementName = _UTF_faceting;

  static constexpr XMLCh _UTF_augmentEmptyCells[] = u"augmentEmptyCells";

  explicit OrbFaceting(xercesc::DOMElement* element);
  ~OrbFaceting() override;

  const XMLCh* getId() const;
  void setId(const XMLCh* id);
  void removeId();

  /// Free text, without a list of keywords.
  const XMLCh* getMethod() const;
  void setMethod(const XMLCh* method);
  void removeMethod();

  /// Whether cells without rows are filled in; false when absent.
  bool getAugmentEmptyCells() const;
  void setAugmentEmptyCells(bool augmentEmptyCells);
  bool isAugmentEmptyCellsPresent() const;
  void removeAugmentEmptyCells();

  OrbAttach* addAttach();
  std::vector<OrbAttach*> getAttachs() const;
  unsigned int removeAttachs();

  OrbBinStatistic* addBinStatistic();
  std::vector<OrbBinStatistic*> getBinStatistics() const;
  unsigned int removeBinStatistics();

  OrbAggregateStatistic* addAggregateStatistic();
  std::vector<OrbAggregateStatistic*> getAggregateStatistics() const;
  unsigned int removeAggregateStatistics();

  OrbCollectRowsStatistic* addCollectRowsStatistic();
  std::vector<OrbCollectRowsStatistic*> getCollectRowsStatistics() const;
  unsigned int removeCollectRowsStatistics();

  OrbReplicate* addReplicate();
  std::vector<OrbReplicate*> getReplicates() const;
  unsigned int removeReplicates();

  OrbDistributionStatistic* addDistributionStatistic();
  std::vector<OrbDistributionStatistic*> getDistributionStatistics() const;
  unsigned int removeDistributionStatistics();

  OrbGraphLayoutStatistic* addGraphLayoutStatistic();
  std::vector<OrbGraphLayoutStatistic*> getGraphLayoutStatistics() const;
  unsigned int removeGraphLayoutStatistics();

  OrbLinkStatistic* addLinkStatistic();
  std::vector<OrbLinkStatistic*> getLinkStatistics() const;
  unsigned int removeLinkStatistics();

  OrbMapStatistic* addMapStatistic();
  std::vector<OrbMapStatistic*> getMapStatistics() const;
  unsigned int removeMapStatistics();

  OrbRegionStatistic* addRegionStatistic();
  std::vector<OrbRegionStatistic*> getRegionStatistics() const;
  unsigned int removeRegionStatistics();

  OrbSmoothStatistic* addSmoothStatistic();
  std::vector<OrbSmoothStatistic*> getSmoothStatistics() const;
  unsigned int removeSmoothStatistics();

  OrbEvaluateStatistic* addEvaluateStatistic();
  std::vector<OrbEvaluateStatistic*> getEvaluateStatistics() const;
  unsigned int removeEvaluateStatistics();

  OrbFixedWindowDensityStatistic* addFixedWindowDensityStatistic();
  std::vector<OrbFixedWindowDensityStatistic*> getFixedWindowDensityStatistics() const;
  unsigned int removeFixedWindowDensityStatistics();

  OrbNearestNeighborDensityStatistic* addNearestNeighborDensityStatistic();
  std::vector<OrbNearestNeighborDensityStatistic*> getNearestNeighborDensityStatistics() const;
  unsigned int removeNearestNeighborDensityStatistics();

  OrbSummaryStatistic* addSummaryStatistic();
  std::vector<OrbSummaryStatistic*> getSummaryStatistics() const;
  unsigned int removeSummaryStatistics();

  OrbTagCloudStatistic* addTagCloudStatistic();
  std::vector<OrbTagCloudStatistic*> getTagCloudStatistics() const;
  unsigned int removeTagCloudStatistics();

  OrbTreeLayoutStatistic* addTreeLayoutStatistic();
  std::vector<OrbTreeLayoutStatistic*> getTreeLayoutStatistics() const;
  unsigned int removeTreeLayoutStatistics();

  OrbClusteringStatistic* addClusteringStatistic();
  std::vector<OrbClusteringStatistic*> getClusteringStatistics() const;
  unsigned int removeClusteringStatistics();

  OrbSOMStatistic* addSOMStatistic();
  std::vector<OrbSOMStatistic*> getSOMStatistics() const;
  unsigned int removeSOMStatistics();

  OrbTukeyStatistic* addTukeyStatistic();
  std::vector<OrbTukeyStatistic*> getTukeyStatistics() const;
  unsigned int removeTukeyStatistics();

  OrbWhen* addWhen();
  std::vector<OrbWhen*> getWhens() const;
  unsigned int removeWhens();

  OrbPatternLinkStatistic* addPatternLinkStatistic();
  std::vector<OrbPatternLinkStatistic*> getPatternLinkStatistics() const;
  unsigned int removePatternLinkStatistics();

  OrbVariableReference* addVariableReference();
  std::vector<OrbVariableReference*> getVariableReferences() const;
  unsigned int removeVariableReferences();

  OrbUnity* addUnity();
  std::vector<OrbUnity*> getUnitys() const;
  unsigned int removeUnitys();

  OrbBlend* addBlend();
  std::vector<OrbBlend*> getBlends() const;
  unsigned int removeBlends();

  OrbCross* addCross();
  std::vector<OrbCross*> getCrosss() const;
  unsigned int removeCrosss();

  OrbDot* addDot();
  std::vector<OrbDot*> getDots() const;
  unsigned int removeDots();

  OrbNest* addNest();
  std::vector<OrbNest*> getNests() const;
  unsigned int removeNests();

  /// The layers, which stand beside the terms; no operator holds one.
  OrbLayer* addLayer();
  std::vector<OrbLayer*> getLayers() const;
  unsigned int removeLayers();

private:
  struct Children;
  std::unique_ptr<Children> children_;
};
