// The optional error log, and what happens to an exception behind it.
#pragma once

#include "orbchartdom.h"
#include "orbchartexport.h"

#include <string>

class OrbException;

/// Reports an exception to the log and, for the families named below, throws it on. Made where an error arises and
/// ended at once: it holds nothing.
///
/// The log is off unless the environment variable DumpChartXMLPath is set; it is read anew for each entry. The log's
/// path is the variable's value with "\orbchart_error.log" behind it, a backslash on every system. Entries are added
/// at its end, one line each, as in
///
///     Tue Jan  5 14:07:09.042 2021 Error -- Orb: <message> at file <path>, line <n>, char 0
///
/// An entry without a source file ends behind its message, and the next one follows on the same line. A log that
/// cannot be written is without effect.
/// \ingroup documents
class ORBCHART_EXPORT OrbErrorHandler {
public:
  OrbErrorHandler();
  virtual ~OrbErrorHandler();

  /// Whether a report throws depends on the exception's family alone, not on the level: a copy of a DOMException or a
  /// SAXException is thrown, an OrbException or an XMLException only logged.
  void fatalError(const OrbException& exception);
  void error(const OrbException& exception);
  void warning(const OrbException& exception);

  void fatalError(const xercesc::DOMException& exception);
  void error(const xercesc::DOMException& exception);
  void warning(const xercesc::DOMException& exception);

  void fatalError(const xercesc::SAXException& exception);
  void error(const xercesc::SAXException& exception);
  void warning(const xercesc::SAXException& exception);

  void fatalError(const xercesc::XMLException& exception);
  void error(const xercesc::XMLException& exception);
  void warning(const xercesc::XMLException& exception);

  /// Writes one entry; `type` is the text before the message, as "Error -- Orb:". A DOMException gets its message from
  /// its code, where "invalid modication error" stands for code 13. A DOMException and a SAXException name the
  /// handler's own source as the place.
  void LogMessage(const std::string& type, const OrbException& exception) const;
  void LogMessage(const std::string& type, const xercesc::DOMException& exception) const;
  void LogMessage(const std::string& type, const xercesc::SAXException& exception) const;
  void LogMessage(const std::string& type, const xercesc::XMLException& exception) const;
  void LogMessage(const std::string& type, const std::string& message, const std::string& file, unsigned int line,
                  unsigned int column) const;
};
