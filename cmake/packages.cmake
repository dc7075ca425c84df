# Debian packages of what another build tree has built: this tree compiles nothing, it only lays those
# files out below /usr, where the loader finds them by itself. bin/package configures it.
if(NOT CMAKE_INSTALL_PREFIX STREQUAL "/usr")
  message(FATAL_ERROR "Packages are installed below /usr, not ${CMAKE_INSTALL_PREFIX}.")
endif()
set(components libraries development)
set(binaries Framework Platform TestKit)
if(VMETRICS_BUILD_TOOLS)
  list(APPEND components tool)
  list(APPEND binaries Tools)
endif()
list(TRANSFORM binaries PREPEND ${VMETRICS_PACKAGES_OF}/)
file(COPY ${binaries} DESTINATION ${PROJECT_BINARY_DIR}
  FILES_MATCHING PATTERN *.so* PATTERN *TestKit.a PATTERN vmetrics PATTERN CMakeFiles EXCLUDE)

set(debian ${PROJECT_SOURCE_DIR}/cmake/debian)
set(made ${PROJECT_BINARY_DIR}/debian)
# Whoever was linked against an interface can do with any version that has it; minor versions add.
set(libraries_package libvmetrics${PROJECT_VERSION_MAJOR})
set(interface_version ${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR})
configure_file(${debian}/shlibs.in ${made}/shlibs @ONLY)
file(WRITE ${made}/control)  # dpkg-shlibdeps does not start without one.
execute_process(COMMAND ${debian}/changelog ${PROJECT_SOURCE_DIR}/docs/changes.md
  OUTPUT_FILE ${made}/changelog COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND gzip --best --no-name --force ${made}/changelog COMMAND_ERROR_IS_FATAL ANY)

# What binaries need at run time. CPack can ask dpkg-shlibdeps, too, but would then add scripts that
# call ldconfig, as the trigger does. Of another architecture no packages can be asked.
function(find_dependencies result)
  set(dependencies "libc6 (>= 2.33), libgcc-s1 (>= 3.0), libstdc++6 (>= 11)")
  if(NOT CMAKE_CROSSCOMPILING)
    execute_process(
      COMMAND dpkg-shlibdeps -O -L${made}/shlibs -lFramework/VMetrics -lPlatform ${ARGN}
      WORKING_DIRECTORY ${PROJECT_BINARY_DIR} OUTPUT_VARIABLE dependencies
      OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
    string(REPLACE "shlibs:Depends=" "" dependencies "${dependencies}")
  endif()
  set(${result} "${dependencies}" PARENT_SCOPE)
endfunction()

# A package of a component, with what each package has to have.
macro(add_package component name section dependencies)
  string(TOUPPER ${component} variable)
  file(READ ${debian}/${component}.description description)
  string(STRIP "${description}" CPACK_DEBIAN_${variable}_DESCRIPTION)
  set(CPACK_DEBIAN_${variable}_PACKAGE_NAME ${name})
  set(CPACK_DEBIAN_${variable}_PACKAGE_SECTION ${section})
  set(CPACK_DEBIAN_${variable}_PACKAGE_DEPENDS "${dependencies}")
  install(FILES ${made}/changelog.gz ${debian}/copyright DESTINATION share/doc/${name}
    COMPONENT ${component})
endmacro()

# CPack of CMake 3.25 has no variable for this field.
set(for_each_architecture "\nMulti-Arch: same")
find_dependencies(needed
  -x${libraries_package} Framework/VMetrics/libVMetrics.so Platform/libVPlatform.so)
add_package(libraries ${libraries_package} libs${for_each_architecture} "${needed}")
set(CPACK_DEBIAN_LIBRARIES_PACKAGE_CONTROL_EXTRA ${made}/shlibs ${debian}/triggers)
add_package(development libvmetrics-dev libdevel${for_each_architecture}
  "${libraries_package} (= ${PROJECT_VERSION})")
if(VMETRICS_BUILD_TOOLS)
  find_dependencies(needed Tools/vmetrics/vmetrics)
  add_package(tool vmetrics utils "${needed}")
  install(CODE "file(GLOB pages \$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/share/man/man1/*.1)
    execute_process(COMMAND gzip --best --no-name --force \${pages} COMMAND_ERROR_IS_FATAL ANY)"
    COMPONENT tool)
endif()

set(CPACK_GENERATOR DEB)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_ALL ${components})
set(CPACK_COMPONENTS_GROUPING ONE_PER_GROUP)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_PACKAGE_CONTACT "VMetrics developers <vmetrics@example.org>")
set(CPACK_DEBIAN_PACKAGE_SOURCE vmetrics)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_ARCHITECTURE ${VMETRICS_PACKAGES_ARCHITECTURE})
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
include(CPack)
