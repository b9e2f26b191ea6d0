// A source whose rows stand in a delimited text file, element `delimitedFileSource`.
#pragma once

#include "orbbaseelement.h"

#include <memory>

class OrbAggregate;
class OrbDataReduction;
class OrbFilter;

/// A source whose rows stand in a delimited text file. The file is not opened: what is written is stored unchanged.
/// \ingroup data
class ORBCHART_EXPORT OrbDelimitedFileSource : public OrbBaseElement {
public:
  static constexpr XMLCh _UTF_delimitedFileSource[] = u"delimitedFileSource";
  static constexpr const XMLCh* elementName = _UTF_delimitedFileSource;

  static constexpr XMLCh _UTF_missing[] = u"missing";
  static constexpr XMLCh _UTF_missing_pairwise[] = u"pairwise";
  static constexpr XMLCh _UTF_missing_listwise[] = u"listwise";
  static constexpr XMLCh _UTF_filterToMissing[] = u"filterToMissing";
  static constexpr XMLCh _UTF_genericVariableName[] = u"genericVariableName";
  static constexpr XMLCh _UTF_replaceInvalidChar[] = u"replaceInvalidChar";
  static constexpr XMLCh _UTF_encoding[] = u"encoding";

  enum ENUM_missing : int {
    missing_unset = 0,
    missing_pairwise = 1,
    missing_listwise = 2,
  };

  explicit OrbDelimitedFileSource(xercesc::DOMElement* element);
  OrbDelimitedFileSource(xercesc::DOMElement* element, const XMLCh* id);
  ~OrbDelimitedFileSource() override;

  const XMLCh* getId() const;
  void setId(const XMLCh* id);
  void removeId();

  /// How rows with missing values are dropped; 0 when absent.
  ENUM_missing getMissing() const;
  void setMissing(ENUM_missing missing);
  bool isMissingPresent() const;
  void removeMissing();

  /// Whether rows that a filter drops count as missing; false when absent.
  bool getFilterToMissing() const;
  void setFilterToMissing(bool filterToMissing);
  bool isFilterToMissingPresent() const;
  void removeFilterToMissing();

  const XMLCh* getFileName() const;
  void setFileName(const XMLCh* fileName);
  void removeFileName();

  /// The text that separates the columns.
  const XMLCh* getDelimiter() const;
  void setDelimiter(const XMLCh* delimiter);
  void removeDelimiter();

  /// Whether the first line holds the names of the variables; false when absent.
  bool getHeader() const;
  void setHeader(bool header);
  void removeHeader();

  /// The name for variables that the file does not name.
  const XMLCh* getGenericVariableName() const;
  void setGenericVariableName(const XMLCh* genericVariableName);
  bool isGenericVariableNamePresent() const;
  void removeGenericVariableName();

  /// What stands in for a character that cannot be used.
  const XMLCh* getReplaceInvalidChar() const;
  void setReplaceInvalidChar(const XMLCh* replaceInvalidChar);
  bool isReplaceInvalidCharPresent() const;
  void removeReplaceInvalidChar();

  /// The encoding of the file, by name.
  const XMLCh* getEncoding() const;
  void setEncoding(const XMLCh* encoding);
  bool isEncodingPresent() const;
  void removeEncoding();

  /// How the rows are aggregated. There is no limit, but the getter gives the first alone; a remove takes all.
  OrbAggregate* addAggregate();
  OrbAggregate* getAggregate() const;
  unsigned int removeAggregate();

  /// Which rows are used.
  OrbFilter* addFilter();
  std::vector<OrbFilter*> getFilters() const;
  unsigned int removeFilters();

  /// How the rows are reduced in number.
  OrbDataReduction* addDataReduction();
  std::vector<OrbDataReduction*> getDataReductions() const;
  unsigned int removeDataReductions();

private:
  struct Children;
  std::unique_ptr<Children> children_;
};
