// Errors on their way to the log and to the host.
#include "raise.h"

#include "chartstring.h"
#include "orberrorhandler.h"
#include "orbexception.h"

void orbchart::raise(const std::string& message, const char* file, unsigned int line) {
  const OrbException exception(message, file, line);
  OrbErrorHandler().error(exception);
  throw exception;
}

void orbchart::raise(const ChartString& message, const char* file, unsigned int line) {
  raise(message.toUTF8(), file, line);
}

void orbchart::raise(const char* message, const char* file, unsigned int line) {
  raise(std::string(message), file, line);
}

void orbchart::report(const std::string& message, const char* file, unsigned int line) {
  OrbErrorHandler().error(OrbException(message, file, line));
}
