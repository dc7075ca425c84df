// The metrics that are in the catalogue from the start. IDs and names are an interface: receivers
// of the metrics channel match on them, misspelt ones ("cpuUage") included, so none is ever
// changed.
//
// A numeric ID is made of the group (bits 31 to 24), the side that reports the metric (bits 23 to
// 16: 0x0B the client, 0x0A the server) and an index (bits 15 to 0).

#include "VMetrics/BuiltInMetrics.h"

namespace vmetrics {

constexpr std::array<BuiltInMetric, 121> kBuiltInMetrics = {{
    // 0x11: process.
    {0x110A0000, "string", "processName", "0"},
    {0x110A0001, "uint64_t", "blueScreenTime", "0"},
    // 0x12: display.
    {0x120A0000, "int", "displayOSRenderingDelay", "0"},
    {0x120A0001, "int", "displayFPS", "0"},
    {0x120A0002, "int", "displayDataCopyDelay", "0"},
    {0x120A0003, "int", "displayEncodingDelay", "0"},
    {0x120A0004, "int", "displayFlowControl", "0"},
    {0x120A0005, "string", "displayResolution", "0"},
    {0x120A0006, "enum", "displayOriginalFormat", "0"},
    {0x120A0007, "enum", "displayDecodingFormat", "0"},
    {0x120A0008, "enum", "displayEncoderType", "0"},
    {0x120A0009, "json", "displayBITRate", "0"},
    {0x120A000A, "int", "displayNumberOfVideoEncoders", "0"},
    {0x120A000B, "int", "displayEnableFullScreenVideo", "0"},
    {0x120A000C, "int", "displayEnable10Bits", "0"},
    {0x120A000D, "int", "displayEnableYuv444", "0"},
    {0x120A000E, "int", "displayEnableColorType", "0"},
    {0x120A000F, "int", "displayEnableChangeResolution", "0"},
    {0x120A0010, "int", "displayEnableAdaptive", "0"},
    {0x120A0011, "string", "enumDisplayDevicesBlock", "0"},
    {0x120B0000, "int", "displayDataCopyDelay", "0"},
    {0x120B0001, "int", "displayFPS", "0"},
    {0x120B0002, "int", "displayDecodingDelay", "0"},
    {0x120B0003, "int", "displayRenderingDelay", "0"},
    {0x120B0004, "int", "displayScheduleDelay", "0"},
    {0x120B0005, "string", "displayResolution", "0"},
    {0x120B0006, "enum", "displayOriginalFormat", "0"},
    {0x120B0007, "enum", "displayDecodingFormat", "0"},
    {0x120B0008, "enum", "displayDecoderType", "0"},
    {0x120B0009, "json", "displayBITRate", "0"},
    {0x120B000A, "int", "displayNumberOfVideoDecoders", "0"},
    {0x120B000B, "int", "displayEndToEndDelay", "0"},
    {0x120B000C, "json", "displayClientInfo", "0"},
    // 0x13: input.
    {0x130B0003, "json", "inputRtt", "0"},
    // 0x14: audio.
    {0x140B0000, "int", "audioLatency", "0"},
    // 0x15: drive redirection.
    {0x150A0000, "string", "fdRedirdiskInfo", "0"},
    {0x150B0000, "string", "fdRedirdiskInfo", "0"},
    // 0x16: clipboard.
    {0x160A0000, "string", "clipboardCopyType", "0"},
    {0x160A0001, "int", "clipboardCopySize", "0"},
    {0x160B0000, "string", "clipboardCopyType", "0"},
    {0x160B0001, "int", "clipboardCopySize", "0"},
    // 0x17: printer.
    {0x170A0000, "string", "printerList", "0"},
    {0x170B0000, "string", "printerList", "1"},
    {0x170B0001, "string", "printerTaskList", "0"},
    // 0x1B: camera.
    {0x1B0A0000, "int", "cameraFPS", "0"},
    {0x1B0B0000, "string", "cameraList", "1"},
    {0x1B0B0001, "string", "cameraResolutList", "0"},
    {0x1B0B0002, "string", "cameraStateList", "0"},
    {0x1B0B0003, "string", "cameraStreamFormat", "0"},
    {0x1B0B0004, "int", "cameraFPS", "0"},
    // 0x20: session and connection.
    {0x200A0000, "string", "preconnectBegin", "0"},
    {0x200A0001, "string", "preconnectEnd", "0"},
    {0x200A0002, "string", "sessionChange", "0"},
    {0x200A0003, "bool", "displayFirstFrameOrReconnect", "0"},
    {0x200A0004, "json", "clientDisconnectType", "0"},
    // 0x22: serial port.
    {0x220A0000, "string", "serialMap", "0"},
    {0x220B0000, "string", "serialOpen", "0"},
    {0x220B0001, "string", "serialList", "0"},
    // 0x23: scanner (TWAIN).
    {0x230A0000, "string", "twainOperationType", "0"},
    {0x230A0001, "string", "twainOperationResult", "0"},
    {0x230B0000, "string", "twainOperationType", "0"},
    {0x230B0001, "string", "twainOperationResult", "0"},
    // 0x24: smart card (PC/SC).
    {0x240A0000, "string", "pcscApiName", "0"},
    {0x240A0001, "string", "pcscHookProcess", "1"},
    {0x240B0000, "string", "pcscApiName", "0"},
    // 0x26: bypass.
    {0x260A0000, "string", "bypassAPPInfo", "0"},
    {0x260A0001, "string", "bypassUIMessages", "0"},
    {0x260B0000, "string", "bypassAPPInfo", "0"},
    {0x260B0001, "string", "bypassActivate", "0"},
    {0x260B0002, "string", "bypassUIMessages", "0"},
    // 0x27: file sharing.
    {0x270A0000, "uint64_t", "fileshareStartTime", "0"},
    {0x270A0001, "uint64_t", "fileshareEndTime", "0"},
    {0x270A0002, "uint64_t", "fileshareFileSize", "0"},
    {0x270B0000, "uint64_t", "fileshareStartTime", "0"},
    {0x270B0001, "uint64_t", "fileshareEndTime", "0"},
    {0x270B0002, "uint64_t", "fileshareFileSize", "0"},
    // 0x28: USB.
    {0x280A0000, "int", "usbNumber", "0"},
    {0x280A0001, "string", "usbIRPPackage", "0"},
    {0x280B0000, "string", "usbList", "1"},
    {0x280B0001, "string", "usbInfo", "1"},
    // 0x2F: system and base information.
    {0x2F0A0000, "string", "OS", "0"},
    {0x2F0A0001, "json", "cpuUage", "0"},
    {0x2F0A0002, "double", "diskUage", "0"},
    {0x2F0A0003, "double", "memoryUage", "0"},
    {0x2F0A0004, "string", "connect", "0"},
    {0x2F0A0005, "string", "disconnect", "0"},
    {0x2F0A0006, "string", "osEvent", "1"},
    {0x2F0A0007, "string", "topNcpu", "1"},
    {0x2F0A0008, "string", "topNmemory", "1"},
    {0x2F0A0009, "string", "topNhandle", "1"},
    {0x2F0A000A, "int", "gpuUsage", "0"},
    {0x2F0A000B, "string", "agentVersion", "0"},
    {0x2F0A000C, "json", "serverDisconnectType", "0"},
    {0x2F0A000D, "int", "metricsNum", "0"},
    {0x2F0A000E, "string", "updateMoxStatus", "0"},
    {0x2F0B0000, "string", "OS", "0"},
    {0x2F0B0001, "json", "cpuUage", "0"},
    {0x2F0B0002, "double", "diskUage", "0"},
    {0x2F0B0003, "double", "memoryUage", "0"},
    {0x2F0B0004, "string", "connect", "0"},
    {0x2F0B0005, "string", "disconnect", "0"},
    {0x2F0B0006, "string", "topNcpu", "1"},
    {0x2F0B0007, "string", "topNmemory", "1"},
    {0x2F0B0008, "string", "topNhandle", "1"},
    {0x2F0B0009, "int", "gpuUsage", "0"},
    {0x2F0B000A, "int", "clientRtt", "0"},
    {0x2F0B000B, "string", "clientVersion", "0"},
    {0x2F0B000C, "json", "clientAudioStallRate", "0"},
    {0x2F0B000D, "int", "metricsNum", "0"},
    // 0x31: API redirection.
    {0x310A0000, "string", "apiRedirApiType", "0"},
    {0x310A0001, "string", "apiRedirHandshake", "0"},
    {0x310B0000, "string", "apiRedirApiType", "0"},
    {0x310B0001, "string", "apiRedirBlockTime", "0"},
    // 0x36: RTSA transport.
    {0x360A0000, "int", "rtsaEnable", "0"},
    {0x360A0001, "int", "rtsaSendIndex", "0"},
    {0x360A0002, "int", "rtsaAckIndex", "0"},
    {0x360A0003, "int", "rtsaVideoRtt", "0"},
    {0x360A0004, "int", "rtsaVideoSendDelta", "0"},
    {0x360A0005, "int", "rtsaServerErrorCode", "0"},
    {0x360B0000, "int", "rtsaClientSupport", "0"},
    {0x360B0001, "int", "rtsaClientErrorCode", "0"},
}};

constexpr std::array<BuiltInEvent, 13> kBuiltInEvents = {{
    {"nox_user_connect", "json", "vmConnect", "0"},
    {"nox_user_login", "json", "vmLogin", "0"},
    {"nox_user_heart", "json", "heartBeat", "0"},
    {"VEVENT_MSG_PROCESS_SLOW", "json", "msgProcessSlow", "0"},
    {"VMETRICS_USB_DRIVER_ERROR", "string", "driverError", "0"},
    {"VEVENT_MSG_TRANS_CHANGE", "json", "msgTransChange", "0"},
    {"VEVENT_RECORD_PROCESS_INFO", "json", "processInfo", "0"},
    {"VEVENT_SERVER_RTSA_PING_PONG_RTT", "json", "serverRtsaPingPongRtt", "0"},
    {"VEVENT_SERVER_IDT_PING_PONG_RTT", "json", "serverIdtPingPongRtt", "0"},
    {"VEVENT_SERVER_TCP_PING_PONG_RTT", "json", "serverTcpPingPongRtt", "0"},
    {"VMETRICS_CLIENT_BASEINFO", "json", "baseInfo", "0"},
    {"VEVENT_DETECT_NETWORK_INFO", "json", "networkInfo", "0"},
    {"VMETRICS_SERVER_BASEINFO", "json", "thirdPartySoftware", "0"},
}};

}  // namespace vmetrics
