# On another platform than the embedded one: what that has to be, said before anything fails for want
# of it.

# Built by itself, the project can bring that of its worked example.
if(PROJECT_IS_TOP_LEVEL AND VMETRICS_PLATFORM STREQUAL "ExamplePlatform")
  add_subdirectory(examples/platform)
endif()

if(NOT TARGET "${VMETRICS_PLATFORM}")
  message(FATAL_ERROR "VMETRICS_PLATFORM is ${VMETRICS_PLATFORM}, and there is no such target. "
    "A platform has to be added before VMetrics: see docs/platform.md.")
endif()
foreach(option VMETRICS_INSTALL VMETRICS_BUILD_TOOLS)
  if(${option})
    message(FATAL_ERROR "${option} is for the embedded platform: turn it off where VMETRICS_PLATFORM "
      "is ${VMETRICS_PLATFORM}.")
  endif()
endforeach()
if(VMETRICS_BUILD_TESTS AND NOT TARGET "${VMETRICS_PLATFORM}Json")
  message(FATAL_ERROR "VMETRICS_BUILD_TESTS needs the target ${VMETRICS_PLATFORM}Json, the "
    "platform's JSON alone: see docs/platform.md.")
endif()
