/// \file
/// VMetrics: a catalogue of metrics, their rendering to one-line JSON, ready-made event reporters,
/// and the tracing of a transaction's steps across processes.
///
/// Every function runs on the caller's thread and is done when it returns. All may be called from
/// several threads at once, with two exceptions: while a metric type is being registered, nothing
/// else may register, render or report; and calls of VMetrics::InsertRecord must not overlap each
/// other. Register during start-up; trace from one thread, or under a lock of your own.
///
/// Failures are told by the result and, where the function's comment says so, on the logger's
/// diagnostics channel. Of exceptions only std::bad_alloc leaves a function, and from
/// VMetrics::GenerateUuid and VMetrics::InsertRecord what the standard library throws when the
/// system's random device fails.
///
/// Arguments are borrowed for the call, results are the caller's own.
#ifndef VMETRICS_H_
#define VMETRICS_H_

#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <vector>

/// Marks what the library exports.
#define VMETRICS_API __attribute__((visibility("default")))

struct VMessage;  // The platform's IPC message.

/// What a metric is, as three texts: the type of its value, the JSON key under which it is
/// rendered, and "1" if it is private, "0" if not. The types are "string", "int", "uint64_t",
/// "int64_t", "double", "bool", "enum" and "json"; a value of any other type renders as an empty
/// object.
using MetricEntry = std::vector<std::string>;

/// The catalogue of metrics with a numeric ID.
using MetricsMap = std::map<int, MetricEntry>;

/// The catalogue of metrics with an event ID, which is a text.
using MetricsStringMap = std::map<std::string, MetricEntry>;

/// The outcomes that functions with an `int` result report.
enum VMetricsStatus : int {
  VMETRICS_OK = 0,                 ///< Done.
  VMETRICS_STEP_ERROR = -9996,     ///< An unknown step status, or the end of a step not started.
  VMETRICS_INVALID = -9999,        ///< A missing or unreadable argument, or an ID that is taken.
  VMETRICS_REPORT_FAILED = -10000  ///< A report could not be made; nothing was written.
};

/// The type code of a record with an event ID. Any int may be stored; receivers give it its
/// meaning.
enum VMetricsHeaderIndexType : int {
  VMETRICS_HEADER_INDEX_FRAMEWORK = 0,   ///< Events of the framework's modules.
  VMETRICS_HEADER_INDEX_CONNECTION = 2,  ///< Steps of a client's connecting.
  VMETRICS_HEADER_INDEX_TRANSPORT = 3    ///< Changes of the transport.
};

#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wpedantic"  // Flexible array members, in every C++ dialect.
#pragma pack(push, 1)

/// One occurrence of a metric with a numeric ID: 12 bytes, then the value. Packed, in host byte
/// order; may stand at any address.
struct VMetricsData {
  std::uint32_t terminalId;  ///< Offset 0; the number of the terminal.
  std::uint32_t eventId;     ///< Offset 4; the metric ID. Its upper half is the module ID.
  std::uint32_t dataLength;  ///< Offset 8; bytes in `data`; at most 65,535 are rendered.
  char data[];               ///< Offset 12; the value, as its type in the catalogue asks.
};

/// One occurrence of a metric with an event ID: 396 bytes, then the value. Packed, in host byte
/// order; may stand at any address. Texts end with a NUL byte; what follows it is zero.
struct VMetricsDataString {
  std::uint32_t terminalId;  ///< Offset 0; the number of the terminal.
  std::uint32_t type;        ///< Offset 4; a VMetricsHeaderIndexType.
  char eventId[128];         ///< Offset 8; the event ID.
  char userName[128];        ///< Offset 136.
  char transactionId[64];    ///< Offset 264.
  char businessType[32];     ///< Offset 328.
  char serviceName[32];      ///< Offset 360; a name of 32 bytes runs on into `dataLength`.
  std::uint32_t dataLength;  ///< Offset 392; bytes in `data`; at most 65,535 are rendered.
  char data[];               ///< Offset 396; the value, as its type in the catalogue asks.
};

#pragma pack(pop)
#pragma GCC diagnostic pop

static_assert(sizeof(VMetricsData) == 12, "the record is a wire format");
static_assert(offsetof(VMetricsData, data) == 12, "the record is a wire format");
static_assert(sizeof(VMetricsDataString) == 396, "the record is a wire format");
static_assert(offsetof(VMetricsDataString, eventId) == 8, "the record is a wire format");
static_assert(offsetof(VMetricsDataString, userName) == 136, "the record is a wire format");
static_assert(offsetof(VMetricsDataString, transactionId) == 264, "the record is a wire format");
static_assert(offsetof(VMetricsDataString, businessType) == 328, "the record is a wire format");
static_assert(offsetof(VMetricsDataString, serviceName) == 360, "the record is a wire format");
static_assert(offsetof(VMetricsDataString, dataLength) == 392, "the record is a wire format");
static_assert(offsetof(VMetricsDataString, data) == 396, "the record is a wire format");

/// The library's functions. There are no instances.
class VMETRICS_API VMetrics {
 public:
  VMetrics() = delete;

  // The catalogue ---------------------------------------------------------------------------------

  /// The live catalogue of numeric IDs; 121 metrics are built in. It may be changed through the
  /// reference, under the same rule as registration.
  static MetricsMap& GetMetricsMap();

  /// The live catalogue of event IDs; 13 metrics are built in. Otherwise as GetMetricsMap.
  static MetricsStringMap& GetMetricsStringMap();

  /// Adds a metric type from a definition "id;type;name;private", the ID in decimal.
  ///
  /// Separators in a row count as one, and what follows the fourth field is ignored. The type and
  /// the flag are stored as they are. `msg` is cut up in place: it must be writable.
  ///
  /// Returns VMETRICS_OK; or VMETRICS_INVALID, the catalogue unchanged, when `msg` is null, has
  /// fewer than four fields, or its ID is not a number, is 0, or is in the catalogue already. Only
  /// the low 32 bits of the ID count.
  ///
  ///     char definition[] = "302645266;int;myMetric;0";
  ///     VMetrics::RegisterMetricsDataType(definition);
  static int RegisterMetricsDataType(char* msg);

  /// Adds an event type from a definition "event ID;type;name;private". Any text is an event ID.
  /// Otherwise as RegisterMetricsDataType.
  ///
  ///     char definition[] = "nox_user_operation;json;userOperation;0";
  ///     VMetrics::RegisterMetricsStringDataType(definition);
  static int RegisterMetricsStringDataType(char* msg);

  // Rendering -------------------------------------------------------------------------------------

  /// Renders the value of metric `id` as a JSON object with one member, {"displayFPS":60}.
  ///
  /// `value` must point at as many bytes as the metric's type is wide (4 for "int" and "enum", 8
  /// for "uint64_t", "int64_t" and "double", 1 for "bool"), at a text that ends with NUL for
  /// "string" and "json". The text of a "json" metric is returned as it stands, checked or not.
  ///
  /// Returns the empty string when the ID is not in the catalogue, and, with a warning on the
  /// diagnostics channel, when `value` is null.
  static std::string ToString(int id, const char* value);

  /// Renders the value of the metric `eventId`; as above, and `eventId` must not be null either.
  static std::string ToString(const char* eventId, const char* value);

  /// Renders a record as one line of JSON, without a line break at its end.
  ///
  ///     {"eventId":"302710785","timestamp":1700000000000,"moduleId":4619,"terminalId":"7",
  ///      "args":{"displayFPS":60}}
  ///
  /// IDs appear as signed decimal texts; "timestamp" is the tick of the rendering. There is no
  /// "args" when the ID is not in the catalogue or the value of a "json" metric is not JSON. Value
  /// bytes that the type needs and the record lacks count as zero.
  ///
  /// Returns the empty string when `record` is null or announces more than 65,535 value bytes.
  static std::string GetBaseMetricsString(const VMetricsData* record);

  /// Renders a record with an event ID as one line of JSON; as above, with these members:
  /// "eventId", "timestamp", "terminalId", "type", "transactionId", "businessType", "serviceName",
  /// "userName", "args".
  static std::string GetStringBaseMetricsString(const VMetricsDataString* record);

  /// Renders the VMetricsData that `message` carries from its byte 24 on.
  ///
  /// Returns the empty string when GetBaseMetricsString would, when `message` is null, and, with an
  /// error on the diagnostics channel, when the record announces more than 65,536 value bytes.
  static std::string FmtMetricsMsgToString(const VMessage* message);

  /// Renders `record` as GetStringBaseMetricsString does, but wants a value: a record that
  /// announces none, or more than 65,536 bytes, is refused with an error on the diagnostics
  /// channel.
  static std::string StringFmtMetricsMsgToString(const VMetricsDataString* record);

  // Reporting -------------------------------------------------------------------------------------

  /// Reports that the USB drivers could not be initialised, as event "VMETRICS_USB_DRIVER_ERROR".
  ///
  /// `serviceName`: who reports it, 1 to 32 bytes. Returns VMETRICS_OK when the line is on the
  /// metrics channel, otherwise VMETRICS_REPORT_FAILED with an error on the diagnostics channel.
  static int SendUsbDriverErrorMetrics(const std::string& serviceName);

  // Tracing ---------------------------------------------------------------------------------------

  /// A new identifier: 128 random bits as 36 lower-case characters in groups of 8-4-4-4-12.
  ///
  /// Opens the random device and seeds a generator from it anew each time; throws what the standard
  /// library throws when the device cannot be read. The seed has 32 bits: among 10,000 identifiers
  /// two are equal once in about 86 times.
  static std::string GenerateUuid();

  /// The identifier of the step that ended last, in whatever process, from the span file.
  ///
  /// Returns the empty string when no step has ended yet, "ParentSpanId" when the file cannot be
  /// locked.
  static std::string GetCurrentParentSpanId();

  /// Reports that a step of a transaction starts (`status` 0) or has ended (`status` 1).
  ///
  /// The start only notes the time; a second start of a step that is open restarts its clock. The
  /// end gives the step an identifier, writes that to the span file, and puts a step record on the
  /// metrics channel. Steps of one transaction are told apart by `stepName`.
  ///
  /// `spanParentId` is the identifier of the parent span: "ParentSpanId" takes it from the span
  /// file (the step that ended last), an empty text leaves it out. `errorCode` is the step's
  /// result, 0 for success; it and `eventId` matter at the end only.
  ///
  /// At most 100 transactions are kept: the 101st drops all others with their open steps.
  ///
  /// Returns VMETRICS_OK; VMETRICS_INVALID when a text is null, the transaction ID is empty, or the
  /// transaction could not be allocated; VMETRICS_STEP_ERROR when the status is neither 0 nor 1 or
  /// a step ends that was not started. Each failure is an error on the diagnostics channel. A span
  /// file that cannot be locked or written is no failure.
  ///
  ///     VMetrics::InsertRecord(0, "order-7", "LOGIN", "authenticate", "ParentSpanId", 0);
  ///     const int error = Authenticate();
  ///     VMetrics::InsertRecord(1, "order-7", "LOGIN", "authenticate", "ParentSpanId", error);
  static int InsertRecord(int status, const char* transactionId, const char* eventId,
                          const char* stepName, const char* spanParentId, int errorCode);
};

// The reporters. Each writes one line to the metrics channel and returns VMETRICS_OK, or writes
// nothing there and returns VMETRICS_REPORT_FAILED, with an error on the diagnostics channel.

/// Writes any event: packs the arguments into a VMetricsDataString and renders that.
///
/// `eventId` has up to 128 bytes, `serviceName` up to 32 and may be empty; `data` is the value, as
/// the event's type in the catalogue asks, `length` its bytes (1 to 65,535) without a terminator. A
/// service name of exactly 32 bytes runs on into the record's length field when it is rendered.
VMETRICS_API int SendStringDataToMetric(std::string eventId, std::string serviceName,
                                        const char* data, int length,
                                        VMetricsHeaderIndexType headerIndexType);

/// Reports the client's step "bizboxCreation" as done.
VMETRICS_API int SendBizboxInsToMetric();

/// Reports the client's step "FirstPack": `startTime` is the tick at which the attempt to connect
/// began, `isSuccess` 0 if it timed out.
VMETRICS_API int SendConnectVagToMetric(unsigned long startTime, int isSuccess);

/// Reports the outcome of the automatic attempt to connect, described by "first:second".
///
/// Its event "nox_user_operation" is not built in: the line has "args" only once the host has
/// registered it.
VMETRICS_API int SendConnectVagToCommonMetric(const std::string& first, const std::string& second,
                                              bool success);

/// Reports that the module `moduleName` took `cost` for `message`, which `name` names. A null
/// message is refused.
VMETRICS_API int SendModuleProcessTimeoutMetric(std::string moduleName, std::string name,
                                                VMessage* message, unsigned int cost);

/// Reports a change of the transport in use.
VMETRICS_API int SendTransChangeToMetrics(std::string reason, int errorCode, int averageLatency);

#endif  // VMETRICS_H_
