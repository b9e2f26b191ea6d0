// What the measurements share: two sides measured in turn, the table of what came out, and the DOM that both sides use.
#pragma once

#include <benchmark/benchmark.h>
#include <orbchart.h>
#include <xercesc/dom/DOM.hpp>
#include <xercesc/framework/MemBufFormatTarget.hpp>
#include <xercesc/framework/MemBufInputSource.hpp>
#include <xercesc/parsers/XercesDOMParser.hpp>
#include <xercesc/util/PlatformUtils.hpp>

#include <malloc.h>
#include <unistd.h>

#include <algorithm>
#include <cstddef>
#include <cstdio>
#include <ctime>
#include <fstream>
#include <functional>
#include <optional>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

namespace bench {

/// One side of a comparison: does its work once and returns its figure, in seconds or in bytes. What it has to set up
/// and to tear down stays outside of the figure.
using Side = std::function<double()>;

/// The processor time of this program. Other programs on the machine disturb it less than the time of the clock.
inline double processorTime() {
  timespec time{};
  clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
  return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

/// The seconds of processor time that some work takes.
template <class Work> double seconds(Work work) {
  const double start = processorTime();
  work();
  return processorTime() - start;
}

/// A line of the table.
struct Comparison {
  std::string work;
  std::string beside;
  std::string ours;
  std::string theirs;
  std::string ratio;
  std::string atMost;
};

inline std::vector<Comparison>& table() {
  static std::vector<Comparison> lines;
  return lines;
}

template <class... Arguments> std::string formatted(const char* format, Arguments... arguments) {
  char text[64];
  std::snprintf(text, sizeof text, format, arguments...);
  return text;
}

inline std::string timeText(double seconds) {
  return seconds < 1e-3 ? formatted("%.1f µs", seconds * 1e6) : formatted("%.1f ms", seconds * 1e3);
}

inline std::string sizeText(double bytes) {
  constexpr double kibi = 1024;
  if (bytes < 10 * kibi)
    return formatted("%.0f bytes", bytes);
  return bytes < kibi * kibi ? formatted("%.0f KiB", bytes / kibi) : formatted("%.0f MiB", bytes / kibi / kibi);
}

/// A figure beside its limit; a limit of 0 is none.
inline std::string judged(const std::string& text, double figure, double limit) {
  return limit != 0 && figure > limit ? text + " **over**" : text;
}

inline double median(std::vector<double> figures) {
  const auto middle = figures.begin() + static_cast<std::ptrdiff_t>(figures.size() / 2);
  std::nth_element(figures.begin(), middle, figures.end());
  return *middle;
}

/// What several turns come to. A turn is a pair of figures that follow one another: the median of their ratios is the
/// least disturbed by what else the machine does.
struct Figures {
  double ours;
  double theirs;
  double ratio;
};

/// Runs both sides in turn, now the one and now the other first. The first turn warms up and does not count.
inline Figures measured(benchmark::State& state, const Side& ours, const Side& theirs) {
  ours();
  theirs();
  std::vector<double> oursAll;
  std::vector<double> theirsAll;
  std::vector<double> ratios;
  for ([[maybe_unused]] auto turn : state) {
    const bool oursFirst = ratios.size() % 2 == 0;
    const double first = oursFirst ? ours() : theirs();
    const double second = oursFirst ? theirs() : ours();
    oursAll.push_back(oursFirst ? first : second);
    theirsAll.push_back(oursFirst ? second : first);
    ratios.push_back(oursAll.back() / theirsAll.back());
    state.SetIterationTime(oursAll.back());
  }
  const Figures medians{median(oursAll), median(theirsAll), median(ratios)};
  state.counters["ours"] = medians.ours;
  state.counters["theirs"] = medians.theirs;
  state.counters["ratio"] = medians.ratio;
  return medians;
}

/// A comparison of times, with a limit of their ratio.
inline void compareTimes(const std::string& work, const std::string& beside, double limit, int turns, const Side& ours,
                         const Side& theirs) {
  const auto compare = [=](benchmark::State& state) {
    const Figures figures = measured(state, ours, theirs);
    table().push_back({work, beside, timeText(figures.ours), timeText(figures.theirs),
                       judged(formatted("%.2f", figures.ratio), figures.ratio, limit), formatted("%.2f", limit)});
  };
  benchmark::RegisterBenchmark((work + " | " + beside).c_str(), compare)
      ->UseManualTime()
      ->Unit(benchmark::kMicrosecond)
      ->Iterations(turns);
}

/// A comparison of bytes, with a limit of our own; 0 is none.
inline void compareBytes(const std::string& work, const std::string& beside, double limit, const Side& ours,
                         const Side& theirs) {
  const auto compare = [=](benchmark::State& state) {
    const Figures figures = measured(state, ours, theirs);
    table().push_back({work, beside, judged(sizeText(figures.ours), figures.ours, limit), sizeText(figures.theirs), "",
                       limit == 0 ? "" : sizeText(limit)});
  };
  benchmark::RegisterBenchmark((work + " | " + beside).c_str(), compare)->UseManualTime()->Iterations(1);
}

/// A comparison of bytes, with a limit of their ratio.
inline void compareSizes(const std::string& work, const std::string& beside, double limit, const Side& ours,
                         const Side& theirs) {
  const auto compare = [=](benchmark::State& state) {
    const Figures figures = measured(state, ours, theirs);
    table().push_back({work, beside, sizeText(figures.ours), sizeText(figures.theirs),
                       judged(formatted("%.2f", figures.ratio), figures.ratio, limit), formatted("%.2f", limit)});
  };
  benchmark::RegisterBenchmark((work + " | " + beside).c_str(), compare)->UseManualTime()->Iterations(1);
}

/// Lets the heap keep what is given back to it: which side has to fetch its memory anew from the system would depend on
/// what was measured before.
inline void keepMemory() {
  constexpr int largest = 1 << 30;
  mallopt(M_TRIM_THRESHOLD, largest);
  mallopt(M_MMAP_MAX, 0);
}

/// Measures what was registered and prints the table.
inline int run(int argc, char** argv) {
  keepMemory();
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv))
    return 1;
  benchmark::RunSpecifiedBenchmarks();
  std::printf("\n| work | beside | ours | theirs | ratio | at most |\n|---|---|---|---|---|---|\n");
  for (const Comparison& line : table())
    std::printf("| %s | %s | %s | %s | %s | %s |\n", line.work.c_str(), line.beside.c_str(), line.ours.c_str(),
                line.theirs.c_str(), line.ratio.c_str(), line.atMost.c_str());
  std::printf(
      "\nProcessor time; ours and theirs alternate in one process, and each figure is the median of several turns.\n");
  return 0;
}

/// The bytes of the heap that are in use.
inline double heapInUse() {
  const struct mallinfo2 heap = mallinfo2();
  return static_cast<double>(heap.uordblks + heap.hblkhd);
}

/// The bytes of memory that the process holds, without what the heap has free.
inline double residentMemory() {
  malloc_trim(0);
  std::ifstream statistics("/proc/self/statm");
  std::size_t size = 0;
  std::size_t resident = 0;
  statistics >> size >> resident;
  return static_cast<double>(resident) * static_cast<double>(sysconf(_SC_PAGESIZE));
}

/// The XML platform, for the time of a program.
class Platform {
public:
  Platform() { xercesc::XMLPlatformUtils::Initialize(); }
  Platform(const Platform&) = delete;
  Platform& operator=(const Platform&) = delete;
  ~Platform() { xercesc::XMLPlatformUtils::Terminate(); }
};

/// A document that a parser has made and holds.
class Parsed {
public:
  explicit Parsed(const std::string& xml) {
    parser_.parse(xercesc::MemBufInputSource(reinterpret_cast<const XMLByte*>(xml.data()), xml.size(), "chart"));
    if (parser_.getErrorCount() != 0)
      throw std::logic_error("what is measured does not parse");
  }
  xercesc::DOMDocument* document() const { return parser_.getDocument(); }

private:
  mutable xercesc::XercesDOMParser parser_;
};

inline xercesc::DOMImplementation* implementation() {
  return xercesc::DOMImplementationRegistry::getDOMImplementation(u"LS");
}

/// An empty document. Its root has no namespace: else Xerces would print an `xmlns=""` at each of its children.
class Empty {
public:
  Empty() = default;
  Empty(const Empty&) = delete;
  Empty& operator=(const Empty&) = delete;
  ~Empty() { document_->release(); }
  xercesc::DOMDocument* document() const { return document_; }

private:
  xercesc::DOMDocument* document_ = implementation()->createDocument(nullptr, u"visualization", nullptr);
};

/// Prints a document as Xerces does it, indented and as UTF-8.
inline void serialize(const xercesc::DOMDocument& document, xercesc::XMLFormatTarget& target) {
  xercesc::DOMLSSerializer* serializer = implementation()->createLSSerializer();
  serializer->getDomConfig()->setParameter(xercesc::XMLUni::fgDOMWRTFormatPrettyPrint, true);
  xercesc::DOMLSOutput* output = implementation()->createLSOutput();
  output->setByteStream(&target);
  output->setEncoding(xercesc::XMLUni::fgUTF8EncodingString);
  if (!serializer->write(&document, output))
    throw std::logic_error("what is measured does not print");
  output->release();
  serializer->release();
}

/// From a file's text to a text again, through the wrappers.
inline double parseWrapAndPrint(const std::string& xml) {
  std::optional<Parsed> parsed;
  std::optional<OrbDocument> chart;
  std::string text;
  return seconds([&] {
    parsed.emplace(xml);
    chart.emplace(parsed->document());
    text = chart->AsUTF8();
  });
}

/// The same without any wrapper.
inline double parseAndSerialize(const std::string& xml) {
  std::optional<Parsed> parsed;
  xercesc::MemBufFormatTarget target;
  return seconds([&] {
    parsed.emplace(xml);
    serialize(*parsed->document(), target);
  });
}

/// Compares the two. The text is asked for when it is measured, so that a program holds the texts that it needs.
inline void compareTextToText(const std::string& work, int turns, const std::string& (*xml)()) {
  compareTimes(
      "parse, wrap and print " + work, "parsing and `DOMLSSerializer`, indented, with nothing wrapped", 1.00, turns,
      [=] { return parseWrapAndPrint(xml()); }, [=] { return parseAndSerialize(xml()); });
}

/// A number as the DOM's text.
inline std::basic_string<XMLCh> textOf(unsigned int number) {
  const std::string digits = std::to_string(number);
  return {digits.begin(), digits.end()};
}

/// Both sides have to do the same work: what they make must not differ.
inline void requireSame(const xercesc::DOMDocument& ours, const xercesc::DOMDocument& theirs) {
  const auto text = [](const xercesc::DOMDocument& document) {
    std::ostringstream stream;
    ChartPrinter().Print(&document, stream);
    return stream.str();
  };
  if (text(ours) != text(theirs))
    throw std::logic_error("the two sides make different documents");
}

} // namespace bench
