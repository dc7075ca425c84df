# What is installed, and how others find it: by find_package(VMetrics), by pkg-config, or by the plain
# names of the libraries.
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

# A directory of its own: the platform's headers have names that others may want, too.
set(headers_directory ${CMAKE_INSTALL_INCLUDEDIR}/vmetrics)

set_target_properties(VMetrics PROPERTIES EXPORT_NAME VMetrics)
set_target_properties(VPlatform PROPERTIES EXPORT_NAME Platform)
target_include_directories(VMetrics INTERFACE $<INSTALL_INTERFACE:${headers_directory}>)
target_include_directories(VPlatformContract INTERFACE $<INSTALL_INTERFACE:${headers_directory}>)
# Under another prefix than the system's the libraries are not where the loader looks by itself.
if(NOT CMAKE_INSTALL_PREFIX STREQUAL "/usr")
  set_target_properties(VMetrics PROPERTIES INSTALL_RPATH $ORIGIN)
  if(IS_ABSOLUTE "${CMAKE_INSTALL_LIBDIR}" OR IS_ABSOLUTE "${CMAKE_INSTALL_BINDIR}")
    set(tool_library_path ${CMAKE_INSTALL_FULL_LIBDIR})
  else()  # Both may be moved, together.
    file(RELATIVE_PATH path ${CMAKE_INSTALL_FULL_BINDIR} ${CMAKE_INSTALL_FULL_LIBDIR})
    set(tool_library_path $ORIGIN/${path})
  endif()
endif()
install(TARGETS VMetrics VPlatform VPlatformContract EXPORT VMetricsTargets
  LIBRARY COMPONENT libraries NAMELINK_COMPONENT development)
if(TARGET VMetricsTestKit)
  set_target_properties(VMetricsTestKit PROPERTIES EXPORT_NAME TestKit)
  target_include_directories(VMetricsTestKit INTERFACE $<INSTALL_INTERFACE:${headers_directory}>)
  install(TARGETS VMetricsTestKit EXPORT VMetricsTargets ARCHIVE COMPONENT development)
  install(FILES TestKit/include/VMetricsTestKit.h
    DESTINATION ${headers_directory} COMPONENT development)
endif()
install(FILES
  Framework/VMetrics/include/VMetrics.h
  Platform/include/BoundsChecked.h
  Platform/include/VDateTime.h
  Platform/include/VFileLock.h
  Platform/include/VIpc.h
  Platform/include/VJson.h
  Platform/include/VLogger.h
  Platform/src/VPlatformConfig.h
  DESTINATION ${headers_directory} COMPONENT development)

set(package_directory ${CMAKE_INSTALL_LIBDIR}/cmake/VMetrics)
install(EXPORT VMetricsTargets NAMESPACE VMetrics:: DESTINATION ${package_directory}
  COMPONENT development)
configure_package_config_file(cmake/VMetricsConfig.cmake.in VMetricsConfig.cmake
  INSTALL_DESTINATION ${package_directory})
write_basic_package_version_file(VMetricsConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/VMetricsConfig.cmake
  ${PROJECT_BINARY_DIR}/VMetricsConfigVersion.cmake
  DESTINATION ${package_directory} COMPONENT development)

# Where the files are installed by another prefix than the configured one, or moved, that one is
# found from them; not so in the system's, which pkg-config knows by its name.
if(IS_ABSOLUTE "${CMAKE_INSTALL_LIBDIR}" OR CMAKE_INSTALL_PREFIX STREQUAL "/usr")
  set(pkgconfig_prefix ${CMAKE_INSTALL_PREFIX})
else()
  file(RELATIVE_PATH path /prefix/${CMAKE_INSTALL_LIBDIR}/pkgconfig /prefix)
  string(REGEX REPLACE "/$" "" pkgconfig_prefix "\${pcfiledir}/${path}")
endif()
# A directory may be given as an absolute one, which then has no part of the prefix.
foreach(directory INCLUDE LIB)
  if(IS_ABSOLUTE "${CMAKE_INSTALL_${directory}DIR}")
    set(pkgconfig_${directory}DIR ${CMAKE_INSTALL_${directory}DIR})
  else()
    set(pkgconfig_${directory}DIR "\${prefix}/${CMAKE_INSTALL_${directory}DIR}")
  endif()
endforeach()
foreach(variable prefix INCLUDEDIR LIBDIR)
  string(REPLACE " " "\\ " pkgconfig_${variable} "${pkgconfig_${variable}}")
endforeach()
set(pkgconfig_modules vmetrics)
if(TARGET VMetricsTestKit)
  list(APPEND pkgconfig_modules vmetrics-testkit)
endif()
foreach(module ${pkgconfig_modules})
  configure_file(cmake/${module}.pc.in ${module}.pc @ONLY)
  install(FILES ${PROJECT_BINARY_DIR}/${module}.pc
    DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig COMPONENT development)
endforeach()

if(VMETRICS_BUILD_TOOLS)
  set_target_properties(vmetrics PROPERTIES INSTALL_RPATH "${tool_library_path}")
  install(TARGETS vmetrics COMPONENT tool)
  file(GLOB pages Tools/vmetrics/man/*.1)
  install(FILES ${pages} DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 COMPONENT tool)
  install(FILES Tools/vmetrics/completion/vmetrics
    DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions COMPONENT tool)
  # For log viewers and forwarders, and the logs of a page that teaches how to read them.
  install(DIRECTORY Tools/viewers/lnav Tools/forwarding examples/customer
    DESTINATION ${CMAKE_INSTALL_DATADIR}/vmetrics COMPONENT tool)
endif()

# The pages, and the sources that they speak of.
file(GLOB documents docs/*.md)
install(FILES ${documents} DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT development)
install(DIRECTORY examples DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT development
  PATTERN customer EXCLUDE REGEX examples/CMakeLists.txt$ EXCLUDE)

if(VMETRICS_PACKAGES_OF)
  include(cmake/packages.cmake)
endif()
