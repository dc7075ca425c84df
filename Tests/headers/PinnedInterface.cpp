// Compiles as long as the public header declares exactly what hosts were built against: each
// signature, each value and each place in a record. What changes here changes their interface.

#include <type_traits>

#include "VMetrics.h"

namespace {

/// Whether a function, of which there may be overloads, has exactly the type `Pinned`.
template <typename Pinned>
constexpr bool Is(Pinned* /*function*/) {
  return true;
}

static_assert(std::is_same<MetricEntry, std::vector<std::string>>::value, "");
static_assert(std::is_same<MetricsMap, std::map<int, MetricEntry>>::value, "");
static_assert(std::is_same<MetricsStringMap, std::map<std::string, MetricEntry>>::value, "");

static_assert(Is<MetricsMap&()>(VMetrics::GetMetricsMap), "");
static_assert(Is<MetricsStringMap&()>(VMetrics::GetMetricsStringMap), "");
static_assert(Is<int(char*)>(VMetrics::RegisterMetricsDataType), "");
static_assert(Is<int(char*)>(VMetrics::RegisterMetricsStringDataType), "");
static_assert(Is<std::string(int, const char*)>(VMetrics::ToString), "");
static_assert(Is<std::string(const char*, const char*)>(VMetrics::ToString), "");
static_assert(Is<std::string(const VMetricsData*)>(VMetrics::GetBaseMetricsString), "");
static_assert(Is<std::string(const VMetricsDataString*)>(VMetrics::GetStringBaseMetricsString), "");
static_assert(Is<std::string(const VMessage*)>(VMetrics::FmtMetricsMsgToString), "");
static_assert(Is<std::string(const VMetricsDataString*)>(VMetrics::StringFmtMetricsMsgToString),
              "");
static_assert(Is<int(const std::string&)>(VMetrics::SendUsbDriverErrorMetrics), "");
static_assert(Is<std::string()>(VMetrics::GenerateUuid), "");
static_assert(Is<std::string()>(VMetrics::GetCurrentParentSpanId), "");
static_assert(
    Is<int(int, const char*, const char*, const char*, const char*, int)>(VMetrics::InsertRecord),
    "");

static_assert(Is<int(std::string, std::string, const char*, int, VMetricsHeaderIndexType)>(
                  SendStringDataToMetric),
              "");
static_assert(Is<int()>(SendBizboxInsToMetric), "");
static_assert(Is<int(unsigned long, int)>(SendConnectVagToMetric), "");
static_assert(Is<int(const std::string&, const std::string&, bool)>(SendConnectVagToCommonMetric),
              "");
static_assert(
    Is<int(std::string, std::string, VMessage*, unsigned int)>(SendModuleProcessTimeoutMetric), "");
static_assert(Is<int(std::string, int, int)>(SendTransChangeToMetrics), "");

static_assert(VMETRICS_OK == 0, "");
static_assert(VMETRICS_STEP_ERROR == -9996, "");
static_assert(VMETRICS_INVALID == -9999, "");
static_assert(VMETRICS_REPORT_FAILED == -10000, "");
static_assert(VMETRICS_HEADER_INDEX_FRAMEWORK == 0, "");
static_assert(VMETRICS_HEADER_INDEX_CONNECTION == 2, "");
static_assert(VMETRICS_HEADER_INDEX_TRANSPORT == 3, "");
static_assert(sizeof(VMetricsHeaderIndexType) == sizeof(int), "");
static_assert(std::is_same<std::underlying_type<VMetricsHeaderIndexType>::type, int>::value, "");

static_assert(sizeof(VMetricsData) == 12 && alignof(VMetricsData) == 1, "");
static_assert(offsetof(VMetricsData, terminalId) == 0, "");
static_assert(offsetof(VMetricsData, eventId) == 4, "");
static_assert(offsetof(VMetricsData, dataLength) == 8, "");
static_assert(offsetof(VMetricsData, data) == 12, "");
static_assert(std::is_same<decltype(VMetricsData::terminalId), std::uint32_t>::value, "");
static_assert(std::is_same<decltype(VMetricsData::eventId), std::uint32_t>::value, "");
static_assert(std::is_same<decltype(VMetricsData::dataLength), std::uint32_t>::value, "");

static_assert(sizeof(VMetricsDataString) == 396 && alignof(VMetricsDataString) == 1, "");
static_assert(offsetof(VMetricsDataString, terminalId) == 0, "");
static_assert(offsetof(VMetricsDataString, type) == 4, "");
static_assert(offsetof(VMetricsDataString, eventId) == 8, "");
static_assert(offsetof(VMetricsDataString, userName) == 136, "");
static_assert(offsetof(VMetricsDataString, transactionId) == 264, "");
static_assert(offsetof(VMetricsDataString, businessType) == 328, "");
static_assert(offsetof(VMetricsDataString, serviceName) == 360, "");
static_assert(offsetof(VMetricsDataString, dataLength) == 392, "");
static_assert(offsetof(VMetricsDataString, data) == 396, "");
static_assert(std::is_same<decltype(VMetricsDataString::terminalId), std::uint32_t>::value, "");
static_assert(std::is_same<decltype(VMetricsDataString::type), std::uint32_t>::value, "");
static_assert(std::is_same<decltype(VMetricsDataString::eventId), char[128]>::value, "");
static_assert(std::is_same<decltype(VMetricsDataString::userName), char[128]>::value, "");
static_assert(std::is_same<decltype(VMetricsDataString::transactionId), char[64]>::value, "");
static_assert(std::is_same<decltype(VMetricsDataString::businessType), char[32]>::value, "");
static_assert(std::is_same<decltype(VMetricsDataString::serviceName), char[32]>::value, "");
static_assert(std::is_same<decltype(VMetricsDataString::dataLength), std::uint32_t>::value, "");

}  // namespace
