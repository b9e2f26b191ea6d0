// The root of a chart document, element `visualization`.
#pragma once

#include "orbbaseelement.h"

#include <memory>

class OrbCategoricalDomain;
class OrbCategoricalDomainModifier;
class OrbDatabaseSource;
class OrbDelimitedFileSource;
class OrbDerivedVariable;
class OrbEmbeddedSource;
class OrbExpressionVariable;
class OrbGraph;
class OrbIntervalDomain;
class OrbIntervalDomainModifier;
class OrbMultipleResponseVariable;
class OrbSavFileSource;
class OrbSourceVariable;
class OrbStreamingSource;
class OrbUserSource;

/// The root element: everything that other elements refer to by id (sources, variables, domains, styles) hangs from it.
///
/// The add operations keep the children in bands: sources, then variables, domains and domain modifiers, then graphs,
/// then styles. Within a band a new element goes last, whatever its kind. A savFileSource keeps no band: it goes to the
/// very end, whatever stands there. Nothing is counted, and a load takes any order.
class ORBCHART_EXPORT OrbVisualization : public OrbBaseElement {
public:
  static constexpr XMLCh _UTF_visualization[] = u"visualization";
  static constexpr const XMLCh* elementName = _UTF_visualization;

  /// Wraps the element and everything under it. A child element of another name raises the text of ChildNotFoundError;
  /// so it does further down, except under variables and aesthetics, which pass it over, and under elements that have
  /// text alone.
  explicit OrbVisualization(xercesc::DOMElement* element);
  /// The same, and then writes the id and the version.
  OrbVisualization(xercesc::DOMElement* element, double version, const XMLCh* id);
  ~OrbVisualization() override;

  /// The whole document as text, indented and with XML declaration.
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

  /// Sources whose rows stand in a database.
  OrbDatabaseSource* addDatabaseSource(const XMLCh* id);
  std::vector<OrbDatabaseSource*> getDatabaseSources() const;
  unsigned int removeDatabaseSources();

  /// Sources whose rows stand in a delimited text file.
  OrbDelimitedFileSource* addDelimitedFileSource(const XMLCh* id);
  std::vector<OrbDelimitedFileSource*> getDelimitedFileSources() const;
  unsigned int removeDelimitedFileSources();

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

  OrbGraph* addGraph(const XMLCh* id);
  std::vector<OrbGraph*> getGraphs() const;
  unsigned int removeGraphs();

  OrbStyle* addStyle();
  std::vector<OrbStyle*> getStyles() const;
  unsigned int removeStyles();

private:
  struct Children;
  std::unique_ptr<Children> children_;
};
