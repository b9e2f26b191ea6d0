// Where the writer's formatter puts its bytes: a stream.
#pragma once

#include <xercesc/framework/XMLFormatter.hpp>

#include <ostream>

class DOMPrintFormatTarget : public xercesc::XMLFormatTarget {
public:
  explicit DOMPrintFormatTarget(std::ostream& stream) : stream_(stream) {}

  void writeChars(const XMLByte* bytes, XMLSize_t count, xercesc::XMLFormatter*) override {
    stream_.write(reinterpret_cast<const char*>(bytes), static_cast<std::streamsize>(count));
  }

private:
  std::ostream& stream_;
};
