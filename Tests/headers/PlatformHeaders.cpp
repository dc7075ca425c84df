// Compiles when each header of the platform contract needs nothing but itself and the next one.

#include "BoundsChecked.h"
#include "VDateTime.h"
#include "VFileLock.h"
#include "VIpc.h"
#include "VJson.h"
#include "VLogger.h"
