/// \file
/// What a host may set on the embedded platform.
///
/// Everything works without any of this: metrics go to standard output, errors and warnings to
/// standard error, and shared files lie in the working directory with mode 0600. A host that wants
/// otherwise calls these functions once at start-up, before other threads use the platform. One
/// that closes its standard output should name a metrics file: what it opens next may get that
/// descriptor, and the metrics.
///
/// Example:
///
///     if (!VPlatformConfig::SetMetricsFile("/var/log/product/metrics.log")) {
///       std::perror("metrics.log");  // Metrics still go to standard output.
///     }
///     VPlatformConfig::SetLockFileDirectory("/run/product");
#ifndef VPLATFORMCONFIG_H_
#define VPLATFORMCONFIG_H_

#include <string>

namespace VPlatformConfig {

/// Sends the metrics channel to the file `path`, one line appended by one write.
///
/// The file must be a regular file or not exist yet; a new one gets mode 0600. Several processes
/// may name the same file. When it is moved away or deleted, the channel follows to a new file of
/// that name within a second. Returns false, with errno telling why, when the file is refused: the
/// channel then stays where it was. A relative path is resolved now, once and for all.
bool SetMetricsFile(const std::string& path);

/// Sends the diagnostics channel to the file `path`; all else as for SetMetricsFile.
bool SetDiagnosticsFile(const std::string& path);

/// Lets diagnostics up to `level` through: 0 for none, 1 for errors, 2 for warnings too (which is
/// where it stands), 3 for information too.
void SetDiagnosticsLevel(int level);

/// Puts files that are locked by a relative name into `directory`. An empty one stands for the
/// working directory at the time of each locking. Returns false, and changes nothing, when the name
/// is too long for a path. The directory is not looked at: while it does not exist, every lock is
/// refused.
bool SetLockFileDirectory(const std::string& directory);

/// Gives files that locking creates the permissions `mode`, whatever the umask: 0660, say, for
/// processes of several users of one group. Files that exist keep theirs.
void SetLockFileMode(unsigned int mode);

}  // namespace VPlatformConfig

#endif  // VPLATFORMCONFIG_H_
