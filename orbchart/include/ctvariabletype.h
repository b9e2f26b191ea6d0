// What all variables share.
#pragma once

#include "orbbaseelement.h"

#include <memory>

class CTModifier;
class OrbAggregation;
class OrbCategoricalDomain;
class OrbExtensionSV;
class OrbFormat;
class OrbIntervalDomain;

/// A variable: the named column that graphs, aesthetics, statistics and sorts speak of, through its id.
///
/// The library evaluates nothing of it: what is written is stored unchanged. A load passes over child elements that it
/// does not know.
/// \ingroup variables
class ORBCHART_EXPORT CTVariableType : public OrbBaseElement {
public:
  static constexpr XMLCh _UTF_domainModifier[] = u"domainModifier";
  static constexpr XMLCh _UTF_dependsOn[] = u"dependsOn";
  static constexpr XMLCh _UTF_measurementLevel[] = u"measurementLevel";
  static constexpr XMLCh _UTF_measurementLevel_nominal[] = u"nominal";
  static constexpr XMLCh _UTF_measurementLevel_ordinal[] = u"ordinal";
  static constexpr XMLCh _UTF_measurementLevel_ratio[] = u"ratio";

  enum ENUM_measurementLevel : int {
    measurementLevel_unset = 0,
    measurementLevel_nominal = 1,
    measurementLevel_ordinal = 2,
    measurementLevel_interval = 3,
    measurementLevel_ratio = 4,
  };

  ~CTVariableType() override;

  const XMLCh* getId() const;
  void setId(const XMLCh* id);
  void removeId();

  /// The name that is shown for the variable.
  const XMLCh* getLabel() const;
  void setLabel(const XMLCh* label);
  void removeLabel();

  const XMLCh* getShortLabel() const;
  void setShortLabel(const XMLCh* shortLabel);
  void removeShortLabel();

  const XMLCh* getDescription() const;
  void setDescription(const XMLCh* description);
  void removeDescription();

  const XMLCh* getCreator() const;
  void setCreator(const XMLCh* creator);
  void removeCreator();

  /// The id of the source that the variable comes from: text when read, and written from the source's own id, whatever
  /// its class.
  const XMLCh* getSource() const;
  void setSource(const OrbBaseElement& source);
  void removeSource();

  /// The domain of the values, of either kind in the one attribute: at most one of the two getters gives it.
  OrbIntervalDomain* getIntervalDomain() const;
  OrbCategoricalDomain* getCategoricalDomain() const;
  void setDomain(const OrbIntervalDomain& domain);
  void setDomain(const OrbCategoricalDomain& domain);
  void removeDomain();

  /// The operation that changes the domain: an exclude, intersect, replace or union, else null. A modifier of another
  /// class writes nothing.
  CTModifier* getDomainModifier() const;
  void setDomainModifier(const CTModifier& modifier);
  bool isDomainModifierPresent() const;
  void removeDomainModifier();

  /// The variable that this one depends on: a source, derived or expression variable, else null. A multiple response
  /// variable can be written and reads as null.
  CTVariableType* getDependsOn() const;
  void setDependsOn(const CTVariableType& variable);
  bool isDependsOnPresent() const;
  void removeDependsOn();

  /// The variable whose values label this one's. The getter is always null: no wrapper registers the key that it looks
  /// under. The id is read from the DOM.
  CTVariableType* getLabelVariable() const;
  void setLabelVariable(const CTVariableType& variable);
  void removeLabelVariable();

  /// How the values may be compared; 0 when absent.
  ENUM_measurementLevel getMeasurementLevel() const;
  void setMeasurementLevel(ENUM_measurementLevel level);
  bool isMeasurementLevelPresent() const;
  void removeMeasurementLevel();

  /// Whether the values are categories; false when absent. Once written it cannot be removed.
  bool getCategorical() const;
  void setCategorical(bool categorical);

  /// Whether the values identify the rows; false when absent.
  bool getKey() const;
  void setKey(bool key);
  void removeKey();

  /// Whether the values weigh the rows; false when absent.
  bool getWeight() const;
  void setWeight(bool weight);
  void removeWeight();

  /// Statistics of the variable that stand in the document. The one getter gives the first, the other all.
  OrbExtensionSV* addExtension();
  OrbExtensionSV* getExtension() const;
  std::vector<OrbExtensionSV*> getExtensions() const;
  unsigned int removeExtensions();

  /// How small categories are gathered in one, at most one such. A second add raises "Can not add a Aggregation to a
  /// VariableType because 1 Aggregation(s) already exist(s)." with the number that there is. The arguments are the
  /// category, the variable whose shares are compared, and the share below which a category is gathered.
  OrbAggregation* addAggregation(const XMLCh* newCategory, const CTVariableType& sumVariable, double minFraction);
  std::vector<OrbAggregation*> getAggregations() const;
  unsigned int removeAggregations();

  /// How the values are printed, at most one by the first add: a second one raises "Can not add a Format to a
  /// VariableType because 1 Format(s) already exist(s)." with the number that there is. The other add appends a copy of
  /// a format, with all that is below it, and counts nothing.
  OrbFormat* addFormat();
  void addFormat(OrbFormat& format);
  std::vector<OrbFormat*> getFormats() const;
  unsigned int removeFormats();

protected:
  explicit CTVariableType(xercesc::DOMElement* element);
  CTVariableType(xercesc::DOMElement* element, const XMLCh* id);
  /// For a class that refuses the children which are wrapped here, and loads for itself.
  struct WithoutChildren {};
  CTVariableType(xercesc::DOMElement* element, WithoutChildren);

private:
  struct Children;
  std::unique_ptr<Children> children_;
};
