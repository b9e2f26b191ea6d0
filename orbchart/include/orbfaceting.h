// The graph algebra of a graph, element `faceting`.
#pragma once

#include "orbbaseelement.h"

#include <memory>

class OrbAggregateStatistic;
class OrbAttach;
class OrbBinStatistic;
class OrbBlend;
class OrbCollectRowsStatistic;
class OrbCross;
class OrbDot;
class OrbEvaluateStatistic;
class OrbLayer;
class OrbNest;
class OrbReplicate;
class OrbSummaryStatistic;
class OrbUnity;
class OrbVariableReference;
class OrbWhen;

/// The graph algebra of a graph: how its data is cut into panels, with the statistics that work on the whole of it.
///
/// The expression is stored and neither simplified nor evaluated. Any number of terms may stand side by side, and the
/// statistics and `attach` stand before the first of them: either group is in the order of addition, whatever the kind.
/// The getters give the terms family by family: how families interleave is read from the DOM. A removed child keeps its
/// id.
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

  OrbEvaluateStatistic* addEvaluateStatistic();
  std::vector<OrbEvaluateStatistic*> getEvaluateStatistics() const;
  unsigned int removeEvaluateStatistics();

  OrbSummaryStatistic* addSummaryStatistic();
  std::vector<OrbSummaryStatistic*> getSummaryStatistics() const;
  unsigned int removeSummaryStatistics();

  OrbWhen* addWhen();
  std::vector<OrbWhen*> getWhens() const;
  unsigned int removeWhens();

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
