// Every function of the catalogue, the rendering and the reports, with each of its allocations
// failing. It does all or nothing: what comes out is std::bad_alloc or what came out with memory to
// spare.

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

#include "FailEachAllocation.h"
#include "FrameworkTest.h"
#include "RecordRenderers.h"

namespace {

// Names too long for a string's own room, so that each of them asks for memory.
constexpr int kMetric = 770001;
constexpr char kEvent[] = "METRICS_OUT_OF_MEMORY_TEST_EVENT";
constexpr char kName[] = "a name that is too long for a short string";

/// A call, its result as text.
struct Scenario {
  const char* name;
  std::string (*call)();
};

std::string RegisterMetric() {
  char definition[] = "770002;a type that is too long for it;a name that is too long for it;0";
  return std::to_string(VMetrics::RegisterMetricsDataType(definition));
}

std::string RegisterEvent() {
  char definition[] = "an event that is too long for it;a type that is too long for it;a name;0";
  return std::to_string(VMetrics::RegisterMetricsStringDataType(definition));
}

std::string RefuseMetric() {
  char definition[] = "0;int;a;0";
  return std::to_string(VMetrics::RegisterMetricsDataType(definition));
}

std::string RefuseEvent() {
  char definition[] = "nox_user_connect;a type that is too long for it;a;0";
  return std::to_string(VMetrics::RegisterMetricsStringDataType(definition));
}

TextRecord JsonRecord() {
  TextRecord record;
  record.eventId = kEvent;
  record.userName = kName;
  record.transactionId = kName;
  record.businessType = "a type too long for it";
  record.serviceName = "a service too long for it";
  record.value = "{ \"a\" : [ \"" + std::string(2000, 'x') + "\", { \"b\" : 1.5 } ] }";
  return record;
}

/// The bytes of the records, made while there is memory.
struct Prepared {
  const GuardedBytes numeric{NumericRecord(7, kMetric, std::string(2000, 'x'))};
  const GuardedBytes message{Message(1, 2, 3, NumericRecord(7, kMetric, std::string(2000, 'x')))};
  const GuardedBytes text{JsonRecord().Bytes()};
  const std::string payload = JsonRecord().value;
  const std::string name = kName;
};

const Prepared& ThePrepared() {
  static const Prepared prepared;
  return prepared;
}

std::string RenderMetricValue() { return VMetrics::ToString(kMetric, kName); }

std::string RenderEventValue() { return VMetrics::ToString(kEvent, ThePrepared().payload.c_str()); }

std::string RenderNumericRecord() {
  return VMetrics::GetBaseMetricsString(ThePrepared().numeric.As<VMetricsData>());
}

std::string RenderStringRecord() {
  return VMetrics::GetStringBaseMetricsString(ThePrepared().text.As<VMetricsDataString>());
}

std::string RenderNumericMessage() {
  return VMetrics::FmtMetricsMsgToString(ThePrepared().message.As<VMessage>());
}

std::string RenderCheckedRecord() {
  return VMetrics::StringFmtMetricsMsgToString(ThePrepared().text.As<VMetricsDataString>());
}

std::string Submit() {
  const std::string& payload = ThePrepared().payload;
  return std::to_string(SendStringDataToMetric(kEvent, "a service too long for it", payload.data(),
                                               static_cast<int>(payload.size()),
                                               VMETRICS_HEADER_INDEX_CONNECTION));
}

std::string FailToSubmit() {
  return std::to_string(
      SendStringDataToMetric(kEvent, kName, "{}", 2, VMETRICS_HEADER_INDEX_CONNECTION));
}

std::string ReportBizbox() { return std::to_string(SendBizboxInsToMetric()); }

std::string ReportFirstPack() { return std::to_string(SendConnectVagToMetric(1, 0)); }

std::string ReportOperation() {
  const std::string& name = ThePrepared().name;
  return std::to_string(SendConnectVagToCommonMetric(name, name, true));
}

std::string ReportSlowModule() {
  return std::to_string(SendModuleProcessTimeoutMetric(
      kName, kName, ThePrepared().message.As<VMessage>(), 4294967295));
}

std::string ReportTransportChange() {
  return std::to_string(SendTransChangeToMetrics(kName, 1, 2));
}

std::string ReportUsbError() {
  return std::to_string(VMetrics::SendUsbDriverErrorMetrics("a service too long for it"));
}

/// What a call has left behind for others to see.
struct Traces {
  std::vector<std::string> lines;
  MetricsMap metrics;
  MetricsStringMap events;
};

Traces TracesNow() {
  Traces traces{{}, VMetrics::GetMetricsMap(), VMetrics::GetMetricsStringMap()};
  for (const FakePlatform::MetricsLine& line : FakePlatform::MetricsLines()) {
    traces.lines.push_back(line.text);
  }
  return traces;
}

bool SameCatalogue(const Traces& one, const Traces& other) {
  return one.metrics == other.metrics && one.events == other.events;
}

class MetricsOutOfMemoryTest : public FrameworkTest, public testing::WithParamInterface<Scenario> {
 protected:
  void Prepare() const {
    FakePlatform::Reset();
    RestoreCatalogue();
    VMetrics::GetMetricsMap()[kMetric] = {"string", kName, "0"};
    VMetrics::GetMetricsStringMap()[kEvent] = {"json", kName, "0"};
    VMetrics::GetMetricsStringMap()["nox_user_operation"] = {"json", kName, "0"};
  }

  /// All or nothing, whichever allocation fails.
  void ExpectAllOrNothing(AllocationFailure::Extent extent) const {
    const auto call = GetParam().call;
    Prepare();
    const Traces before = TracesNow();
    const std::string result = call();
    const Traces after = TracesNow();
    FailEachAllocation(
        extent, [this] { Prepare(); }, call,
        [&](const std::optional<std::string>& got) {
          const Traces now = TracesNow();
          if (got.has_value()) {
            EXPECT_EQ(*got, result);
            EXPECT_EQ(now.lines, after.lines);
            EXPECT_TRUE(SameCatalogue(now, after));
          } else {
            EXPECT_TRUE(now.lines.empty() || now.lines == after.lines);
            EXPECT_TRUE(SameCatalogue(now, before) || SameCatalogue(now, after));
          }
        });
  }
};

INSTANTIATE_TEST_SUITE_P(
    Each, MetricsOutOfMemoryTest,
    testing::Values(
        Scenario{"RegisterMetric", RegisterMetric}, Scenario{"RegisterEvent", RegisterEvent},
        Scenario{"RefuseMetric", RefuseMetric}, Scenario{"RefuseEvent", RefuseEvent},
        Scenario{"RenderMetricValue", RenderMetricValue},
        Scenario{"RenderEventValue", RenderEventValue},
        Scenario{"RenderNumericRecord", RenderNumericRecord},
        Scenario{"RenderStringRecord", RenderStringRecord},
        Scenario{"RenderNumericMessage", RenderNumericMessage},
        Scenario{"RenderCheckedRecord", RenderCheckedRecord}, Scenario{"Submit", Submit},
        Scenario{"FailToSubmit", FailToSubmit}, Scenario{"ReportBizbox", ReportBizbox},
        Scenario{"ReportFirstPack", ReportFirstPack}, Scenario{"ReportOperation", ReportOperation},
        Scenario{"ReportSlowModule", ReportSlowModule},
        Scenario{"ReportTransportChange", ReportTransportChange},
        Scenario{"ReportUsbError", ReportUsbError}),
    [](const testing::TestParamInfo<Scenario>& scenario) { return scenario.param.name; });

TEST_P(MetricsOutOfMemoryTest, DoesAllOrNothingWhenOneAllocationFails) {
  ExpectAllOrNothing(AllocationFailure::Extent::kOnce);
}

TEST_P(MetricsOutOfMemoryTest, DoesAllOrNothingWhenMemoryHasRunOut) {
  ExpectAllOrNothing(AllocationFailure::Extent::kFromThereOn);
}

using AccessorMemoryTest = FrameworkTest;

TEST_F(AccessorMemoryTest, AsksForNone) {
  const long before = AllocationFailure::Allocations();
  VMetrics::GetMetricsMap();
  VMetrics::GetMetricsStringMap();
  const long after = AllocationFailure::Allocations();
  EXPECT_EQ(after, before);
}

}  // namespace
