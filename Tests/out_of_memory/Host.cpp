#include "Host.h"

#include <cstddef>
#include <filesystem>
#include <stdexcept>

#include "FileContent.h"
#include "LinesOf.h"
#include "SpanIdentifierForm.h"
#include "VDateTime.h"
#include "VPlatformConfig.h"

// In place of the platform's: what is written must not depend on when it is.
unsigned long VDateTime::GetCurrentTick() { return 1700000000000; }

namespace {

constexpr std::size_t kSpanLength = sizeof kOldSpan - 1;

/// `line` with the step's identifier, if it has one, replaced by where else that is to be found.
std::string WithoutIdentifier(std::string line, const std::string& spanFile) {
  const std::string key = R"("spanId":")";
  const std::size_t found = line.find(key);
  if (found != std::string::npos) {
    const std::string identifier = line.substr(found + key.size(), kSpanLength);
    const char* const place = identifier == spanFile         ? "(in the span file)"
                              : IsSpanIdentifier(identifier) ? "(nowhere else)"
                                                             : "(malformed)";
    line.replace(found + key.size(), identifier.size(), place);
  }
  return line;
}

/// The messages of a diagnostics channel: what stands between ": " and " [" in each line.
std::string Messages(const std::string& diagnostics) {
  std::string messages;
  for (const std::string& line : LinesOf(diagnostics)) {
    const std::size_t begin = line.find(": ");
    const std::size_t end = line.rfind(" [");
    messages += begin < end && end != std::string::npos
                    ? "; says " + line.substr(begin + 2, end - begin - 2)
                    : "; says something odd: " + line;
  }
  return messages;
}

std::string SpanInWords(const std::string& content) {
  return content.empty()             ? "empty span file"
         : content == kOldSpan       ? "old span"
         : IsSpanIdentifier(content) ? "new span"
                                     : "malformed span " + content;
}

}  // namespace

Host& TheHost() {
  static Host host;
  return host;
}

Host::Host() {
  if (!VPlatformConfig::SetMetricsFile(directory_ / "metrics") ||
      !VPlatformConfig::SetDiagnosticsFile(directory_ / "diagnostics") ||
      !VPlatformConfig::SetLockFileDirectory(SpanDirectory())) {
    throw std::runtime_error("the platform does not take its configuration");
  }
  VPlatformConfig::SetDiagnosticsLevel(3);
}

void Host::Reset() const {
  VMetrics::GetMetricsMap() = metrics_;
  VMetrics::GetMetricsMap().insert({{kTextMetric, {"string", kName, "0"}},
                                    {kIntMetric, {"int", kName, "0"}},
                                    {kDoubleMetric, {"double", kName, "0"}},
                                    {kEnumMetric, {"enum", kName, "0"}},
                                    {kJsonMetric, {"json", kName, "0"}}});
  VMetrics::GetMetricsStringMap() = events_;
  VMetrics::GetMetricsStringMap().insert({{kTextEvent, {"string", kName, "0"}},
                                          {kJsonEvent, {"json", kName, "0"}},
                                          {"nox_user_operation", {"json", kName, "0"}}});
  FileContent::Write(directory_ / "metrics", "");
  FileContent::Write(directory_ / "diagnostics", "");
  std::filesystem::create_directory(SpanDirectory());
  FileContent::Write(SpanFile(), kOldSpan);
}

void Host::RemoveSpanFile() const { std::filesystem::remove(SpanFile()); }

void Host::RemoveSpanDirectory() const { std::filesystem::remove_all(SpanDirectory()); }

bool Host::HasSaidAnything() const {
  return std::filesystem::file_size(directory_ / "diagnostics") > 0;
}

View Host::Look() const {
  const bool hasSpan = std::filesystem::exists(SpanFile());
  const std::string span = hasSpan ? FileContent::Read(SpanFile()) : "";
  return {WithoutIdentifier(FileContent::Read(directory_ / "metrics"), span),
          Messages(FileContent::Read(directory_ / "diagnostics")),
          hasSpan ? SpanInWords(span) : "no span file", VMetrics::GetMetricsMap(),
          VMetrics::GetMetricsStringMap()};
}

std::string Host::SpanDirectory() const { return directory_ / std::string(100, 'd'); }

std::string Host::SpanFile() const { return SpanDirectory() + "/spanId"; }

std::string Changes(const View& before, const View& now, const View& after) {
  std::string changes = now.diagnostics;
  if (now.span != before.span) {
    changes += "; " + now.span;
  }
  if (now.metrics != before.metrics) {
    changes += now.metrics == after.metrics ? "; line" : "; damaged line " + now.metrics;
  }
  const auto sameCatalogue = [&now](const View& other) {
    return now.catalogue == other.catalogue && now.events == other.events;
  };
  if (!sameCatalogue(before)) {
    changes += sameCatalogue(after) ? "; entry" : "; damaged catalogue";
  }
  return changes;
}
