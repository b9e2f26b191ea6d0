// Writes the error log and throws on what its family asks to be thrown.
#include "orberrorhandler.h"

#include "orbexception.h"
#include "quvaiocv.h"

#include <xercesc/dom/DOMException.hpp>
#include <xercesc/sax/SAXException.hpp>
#include <xercesc/util/XMLException.hpp>

#include <cstdlib>
#include <ctime>
#include <fstream>
#include <iterator>

using xercesc::DOMException;
using xercesc::SAXException;
using xercesc::XMLException;

namespace {

constexpr const char* unknownDomError = "unknown DOM error";

/// By the code of a DOMException.
constexpr const char* domErrors[] = {
    unknownDomError,        "index size error",         "DOMString size error",  "hierarchy request error",
    "wrong document error", "invalid character error",  "no data allowed error", "no modification allowed error",
    "not found error",      "not supported error",      "inuse attribute error", "invalid state error",
    "syntax error",         "invalid modication error", "namespace error",       "invalid access error",
};

const char* domError(int code) {
  return code >= 0 && code < int(std::size(domErrors)) ? domErrors[code] : unknownDomError;
}

std::string generic(const XMLCh* text) {
  char* bytes = QUVAMBTranscodeGeneric(text);
  std::string result = bytes ? bytes : "";
  QUVAMBRelease(&bytes);
  return result;
}

/// The local time as "Tue Jan  5 14:07:09.042 2021".
std::string timeText() {
  timespec now{};
  clock_gettime(CLOCK_REALTIME, &now);
  tzset();
  char text[64] = "";
  ctime_r(&now.tv_sec, text);
  const std::string time = text;
  char milliseconds[16] = "";
  std::snprintf(milliseconds, sizeof milliseconds, ".%03d", static_cast<int>(now.tv_nsec / 1'000'000));
  return time.substr(0, 19) + milliseconds + time.substr(19, 5);
}

} // namespace

OrbErrorHandler::OrbErrorHandler() = default;

OrbErrorHandler::~OrbErrorHandler() = default;

void OrbErrorHandler::fatalError(const OrbException& exception) { LogMessage("Fatal Error -- Orb:", exception); }

void OrbErrorHandler::error(const OrbException& exception) { LogMessage("Error -- Orb:", exception); }

void OrbErrorHandler::warning(const OrbException& exception) { LogMessage("Warning -- Orb:", exception); }

void OrbErrorHandler::fatalError(const DOMException& exception) {
  LogMessage("Fatal Error -- DOM:", exception);
  throw DOMException(exception);
}

void OrbErrorHandler::error(const DOMException& exception) {
  LogMessage("Error -- DOM:", exception);
  throw DOMException(exception);
}

void OrbErrorHandler::warning(const DOMException& exception) {
  LogMessage("Warning -- DOM:", exception);
  throw DOMException(exception);
}

void OrbErrorHandler::fatalError(const SAXException& exception) {
  LogMessage("Fatal Error -- SAX:", exception);
  throw SAXException(exception);
}

void OrbErrorHandler::error(const SAXException& exception) {
  LogMessage("Error -- SAX:", exception);
  throw SAXException(exception);
}

void OrbErrorHandler::warning(const SAXException& exception) {
  LogMessage("Warning -- SAX:", exception);
  throw SAXException(exception);
}

void OrbErrorHandler::fatalError(const XMLException& exception) { LogMessage("XML Fatal Error --", exception); }

void OrbErrorHandler::error(const XMLException& exception) { LogMessage("XML Error --", exception); }

void OrbErrorHandler::warning(const XMLException& exception) { LogMessage("XML Warning --", exception); }

void OrbErrorHandler::LogMessage(const std::string& type, const OrbException& exception) const {
  LogMessage(type, exception.what(), exception.file(), exception.line(), 0);
}

void OrbErrorHandler::LogMessage(const std::string& type, const DOMException& exception) const {
  LogMessage(type, domError(exception.code), __FILE__, __LINE__, 0);
}

void OrbErrorHandler::LogMessage(const std::string& type, const SAXException& exception) const {
  LogMessage(type, generic(exception.getMessage()), __FILE__, __LINE__, 0);
}

void OrbErrorHandler::LogMessage(const std::string& type, const XMLException& exception) const {
  LogMessage(type, generic(exception.getMessage()), exception.getSrcFile(),
             static_cast<unsigned int>(exception.getSrcLine()), 0);
}

void OrbErrorHandler::LogMessage(const std::string& type, const std::string& message, const std::string& file,
                                 unsigned int line, unsigned int column) const {
  const char* directory = std::getenv("DumpChartXMLPath");
  if (!directory)
    return;
  std::ofstream log(std::string(directory) + "\\orbchart_error.log", std::ios::out | std::ios::app);
  // Numbers go through std::to_string: a host's global locale may group a stream's digits.
  log << timeText() << ' ' << type << ' ' << message;
  if (!file.empty())
    log << " at file " << file << ", line " << std::to_string(line) << ", char " << std::to_string(column) << '\n';
}
