// The root of a chart document, element `visualization`.
#pragma once

#include "orbbaseelement.h"
#include "orblocation.h"

#include <memory>

class OrbAnimation;
class OrbBrushing;
class OrbCategoricalDomain;
class OrbCategoricalDomainModifier;
class OrbContainer;
class OrbControlFrame;
class OrbDatabaseSource;
class OrbDelimitedFileSource;
class OrbDerivedVariable;
class OrbDragElement;
class OrbDrillDown;
class OrbEmbeddedSource;
class OrbExpressionVariable;
class OrbExtensionVis;
class OrbFacetSortController;
class OrbGraph;
class OrbIntervalDomain;
class OrbIntervalDomainModifier;
class OrbLabelFrame;
class OrbLayerController;
class OrbLegend;
class OrbLineGuideController;
class OrbMultipleResponseVariable;
class OrbPivotController;
class OrbPopup;
class OrbRectangleGuideController;
class OrbReportSource;
class OrbResources;
class OrbSavFileSource;
class OrbSourceVariable;
class OrbStreamingSource;
class OrbStyleCycle;
class OrbSwingController;
class OrbUserSource;

/// The root element: everything that other elements refer to by id (sources, variables, domains, styles, frames) hangs
/// from it.
///
/// The add operations keep the children in bands: locations, then extensions, then sources, then variables, domains and
/// domain modifiers, then graphs, containers, legends and label frames, then styles and style cycles, then interaction.
/// Within a band a new element goes last, whatever its kind. A savFileSource, a controlFrame, the elements of
/// interaction and the resources keep no band: they go to the very end, whatever stands there. What stands before the
/// styles does not look at the elements of interaction other than `popup` and `drillDown`. Nothing is counted, and a
/// load takes any order.
/// \ingroup documents
class ORBCHART_EXPORT OrbVisualization : public OrbBaseElement {
public:
  static constexpr XMLCh _UTF_visualization[] = u"visualization";
  static constexpr const XMLCh* elementName = _UTF_visualization;

  /// Wraps the element and everything under it. A child element of another name raises the text of ChildNotFoundError;
  /// so it does further down, except under variables, aesthetics and formats, which pass it over, and under elements
  /// that look at no child.
  explicit OrbVisualization(xercesc::DOMElement* element);
  /// The same, and then writes the id and the version.
  OrbVisualization(xercesc::DOMElement* element, double version, const XMLCh* id);
  ~OrbVisualization() override;

  /// The whole document as text, indented and with XML declaration, in the encoding of the document, which is UTF-8
  /// unless the document names another.
  std::string AsUTF8() const override;

  /// Registers the root and wraps its children. The constructors call it; a further call wraps the children again,
  /// beside the wrappers that there are.
  void init();
  /// Wraps one node among the children of the root. Null, and what is not an element, does nothing.
  void initWithChildren(xercesc::DOMNode* node);

  /// The id of the document.
  const XMLCh* getId() const;
  void setId(const XMLCh* id);
  void removeId();

  /// The version of the language that the document is written in; 0.0 when absent. A new document has none.
  double getVersion() const;
  void setVersion(double version);

  /// The language of the document's texts.
  const XMLCh* getLang() const;
  void setLang(const XMLCh* lang);
  void removeLang();

  const XMLCh* getName() const;
  void setName(const XMLCh* name);
  void removeName();

  const XMLCh* getAuthor() const;
  void setAuthor(const XMLCh* author);
  void removeAuthor();

  const XMLCh* getDescription() const;
  void setDescription(const XMLCh* description);
  void removeDescription();

  /// The program that made the document.
  const XMLCh* getCreator() const;
  void setCreator(const XMLCh* creator);
  void removeCreator();

  const XMLCh* getDate() const;
  void setDate(const XMLCh* date);
  void removeDate();

  const XMLCh* getType() const;
  void setType(const XMLCh* type);
  void removeType();

  /// Whether the drawing is cut at the edge; false when absent.
  bool getClip() const;
  void setClip(bool clip);
  void removeClip();

  /// The style of the whole drawing.
  OrbStyle* getStyle() const;
  void setStyle(const OrbStyle& style);
  void removeStyle();

  /// Where the drawing stands: each fixes one edge or size.
  OrbLocation* addLocation(OrbLocation::ENUM_part part);
  std::vector<OrbLocation*> getLocations() const;
  unsigned int removeLocations();

  /// Free attributes of the host. The getter gives the first extension whose attribute `drillDown` is absent or empty,
  /// and null when there is none; no operation gives them all.
  OrbExtensionVis* addExtension();
  OrbExtensionVis* getExtension() const;
  unsigned int removeExtensions();

  /// Sources whose rows stand in a database.
  OrbDatabaseSource* addDatabaseSource(const XMLCh* id);
  std::vector<OrbDatabaseSource*> getDatabaseSources() const;
  unsigned int removeDatabaseSources();

  /// Sources whose rows stand in a delimited text file.
  OrbDelimitedFileSource* addDelimitedFileSource(const XMLCh* id);
  std::vector<OrbDelimitedFileSource*> getDelimitedFileSources() const;
  unsigned int removeDelimitedFileSources();

  /// Sources that a report gives.
  OrbReportSource* addReportSource();
  std::vector<OrbReportSource*> getReportSources() const;
  unsigned int removeReportSources();

  /// Sources whose rows stand in the document.
  OrbEmbeddedSource* addEmbeddedSource(const XMLCh* id);
  std::vector<OrbEmbeddedSource*> getEmbeddedSources() const;
  unsigned int removeEmbeddedSources();

  /// Sources whose rows come as a stream.
  OrbStreamingSource* addStreamingSource(const XMLCh* id, const XMLCh* url);
  std::vector<OrbStreamingSource*> getStreamingSources() const;
  unsigned int removeStreamingSources();

  /// Sources that the host fills at run time.
  OrbUserSource* addUserSource(const XMLCh* id);
  std::vector<OrbUserSource*> getUserSources() const;
  unsigned int removeUserSources();

  /// Sources whose rows stand in a statistics data file. A new one goes to the very end, whatever stands there.
  OrbSavFileSource* addSavFileSource();
  std::vector<OrbSavFileSource*> getSavFileSources() const;
  unsigned int removeSavFileSources();

  /// Variables read from a source. Removing a single one leaves its id registered, and answers false for a variable
  /// that is not a child here.
  OrbSourceVariable* addSourceVariable(const XMLCh* id);
  std::vector<OrbSourceVariable*> getSourceVariables() const;
  unsigned int removeSourceVariables();
  bool removeSourceVariable(OrbSourceVariable& variable);

  /// Variables computed from others. Removing a single one is as for a source variable.
  OrbDerivedVariable* addDerivedVariable(const XMLCh* id);
  std::vector<OrbDerivedVariable*> getDerivedVariables() const;
  unsigned int removeDerivedVariables();
  bool removeDerivedVariable(OrbDerivedVariable& variable);

  /// Variables that an expression defines.
  OrbExpressionVariable* addExpressionVariable(const XMLCh* id);
  std::vector<OrbExpressionVariable*> getExpressionVariables() const;
  unsigned int removeExpressionVariables();

  /// Sets of variables that together hold the answers to one question.
  OrbMultipleResponseVariable* addMultipleResponseVariable();
  std::vector<OrbMultipleResponseVariable*> getMultipleResponseVariables() const;
  unsigned int removeMultipleResponseVariables();

  /// Domains of categories.
  OrbCategoricalDomain* addCategoricalDomain(const XMLCh* id);
  std::vector<OrbCategoricalDomain*> getCategoricalDomains() const;
  unsigned int removeCategoricalDomains();

  /// Changes of domains of categories.
  OrbCategoricalDomainModifier* addCategoricalDomainModifier();
  std::vector<OrbCategoricalDomainModifier*> getCategoricalDomainModifiers() const;
  unsigned int removeCategoricalDomainModifiers();

  /// Changes of domains of ranges.
  OrbIntervalDomainModifier* addIntervalDomainModifier();
  std::vector<OrbIntervalDomainModifier*> getIntervalDomainModifiers() const;
  unsigned int removeIntervalDomainModifiers();

  /// Domains of ranges.
  OrbIntervalDomain* addIntervalDomain(const XMLCh* id);
  std::vector<OrbIntervalDomain*> getIntervalDomains() const;
  unsigned int removeIntervalDomains();

  /// The graphs.
  OrbGraph* addGraph(const XMLCh* id);
  std::vector<OrbGraph*> getGraphs() const;
  unsigned int removeGraphs();

  /// Groups of graphs, legends and frames.
  OrbContainer* addContainer(const XMLCh* id);
  std::vector<OrbContainer*> getContainers() const;
  unsigned int removeContainers();

  /// Frames with a control. A new one goes to the very end, whatever stands there.
  OrbControlFrame* addControlFrame();
  std::vector<OrbControlFrame*> getControlFrames() const;
  unsigned int removeControlFrames();

  /// The legends. The second add puts an element of this document that the caller has made, and attached nowhere, in
  /// its place and wraps it; null gives null. An element that the wrapper refuses is taken out again.
  OrbLegend* addLegend(const XMLCh* id);
  OrbLegend* addLegend(xercesc::DOMElement* element);
  std::vector<OrbLegend*> getLegends() const;
  unsigned int removeLegends();

  /// Frames with a text: titles, footnotes and the like.
  OrbLabelFrame* addLabelFrame(const XMLCh* id);
  std::vector<OrbLabelFrame*> getLabelFrames() const;
  unsigned int removeLabelFrames();

  /// The styles that references lead to.
  OrbStyle* addStyle();
  std::vector<OrbStyle*> getStyles() const;
  unsigned int removeStyles();

  /// Lists of styles that values run through in turn.
  OrbStyleCycle* addStyleCycle(const XMLCh* id);
  std::vector<OrbStyleCycle*> getStyleCycles() const;
  unsigned int removeStyleCycles();

  /// Texts that are shown when the viewer points at something. This and all that follows goes to the very end, whatever
  /// stands there.
  OrbPopup* addPopup();
  std::vector<OrbPopup*> getPopups() const;
  unsigned int removePopups();

  /// What happens when the viewer acts on something.
  OrbDrillDown* addDrillDown(const XMLCh* id);
  std::vector<OrbDrillDown*> getDrillDowns() const;
  unsigned int removeDrillDowns();

  OrbAnimation* addAnimation();
  std::vector<OrbAnimation*> getAnimations() const;
  unsigned int removeAnimations();

  OrbBrushing* addBrushing();
  std::vector<OrbBrushing*> getBrushings() const;
  unsigned int removeBrushings();

  OrbLineGuideController* addLineGuideController();
  std::vector<OrbLineGuideController*> getLineGuideControllers() const;
  unsigned int removeLineGuideControllers();

  OrbRectangleGuideController* addRectangleGuideController();
  std::vector<OrbRectangleGuideController*> getRectangleGuideControllers() const;
  unsigned int removeRectangleGuideControllers();

  OrbSwingController* addSwingController();
  std::vector<OrbSwingController*> getSwingControllers() const;
  unsigned int removeSwingControllers();

  OrbFacetSortController* addFacetSortController();
  std::vector<OrbFacetSortController*> getFacetSortControllers() const;
  unsigned int removeFacetSortControllers();

  OrbLayerController* addLayerController();
  std::vector<OrbLayerController*> getLayerControllers() const;
  unsigned int removeLayerControllers();

  OrbDragElement* addDragElement();
  std::vector<OrbDragElement*> getDragElements() const;
  unsigned int removeDragElements();

  OrbPivotController* addPivotController();
  std::vector<OrbPivotController*> getPivotControllers() const;
  unsigned int removePivotControllers();

  /// The images that the document uses.
  OrbResources* addResources();
  std::vector<OrbResources*> getResourcess() const;
  unsigned int removeResourcess();

  /// Dissolves the containers, each once, in document order, also those that stood in containers, and returns how many
  /// there were.
  ///
  /// The children of a container come to stand where it stood, comments and texts included, and have new wrappers:
  /// those that the container gave are ended. Its locations go to the front of its last graph, so that they end in
  /// reverse order, and the graph's wrapper does not hold them; without a graph they leave the document. A location
  /// anywhere whose `target` named the container loses that attribute. The container's id stays registered.
  ///
  /// A child with a name that the root does not know raises the text of ChildNotFoundError. It stands at the root then,
  /// what came before it has been moved, and the locations of this container have left the document.
  unsigned int reparentContainerChildren();
  /// Moves each other style of the root to the end of a style and returns how many there were. An id stays, and so
  /// references find the moved style; its children are not moved, and its wrapper is a new one. A style with the
  /// target's id stays, and so do all without an id where the target has none. The target may lie below a style that is
  /// moved: it ends with it.
  unsigned int reparentStyles(OrbStyle& target);
  /// Moves each legend of the root to the end of a container, with its wrapper, and returns how many there were.
  unsigned int reparentLegendChildren(OrbContainer& target);

private:
  struct Children;
  std::unique_ptr<Children> children_;
};
