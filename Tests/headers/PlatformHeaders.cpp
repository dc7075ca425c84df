// Compiles when each header of the platform needs nothing but itself and the next one, in each C++
// standard it is built with.

#include "BoundsChecked.h"
#include "VDateTime.h"
#include "VFileLock.h"
#include "VIpc.h"
#if __cplusplus >= 201703L
#include "VJson.h"
#endif
#include "VLogger.h"
#include "VPlatformConfig.h"
