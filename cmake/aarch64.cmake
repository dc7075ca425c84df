# For another processor: Debian's cross compiler, and an emulator that runs what it makes.

set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_SYSTEM_PROCESSOR aarch64)
set(CMAKE_C_COMPILER aarch64-linux-gnu-gcc)
set(CMAKE_CXX_COMPILER aarch64-linux-gnu-g++)

# The cross packages' own loader and libraries, and nobody else's: beside a C library of Debian's
# arm64 packages every start of a thread would hang.
set(CMAKE_CROSSCOMPILING_EMULATOR qemu-aarch64;-L;/usr/aarch64-linux-gnu)

set(CMAKE_FIND_ROOT_PATH /usr/aarch64-linux-gnu)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# Boost's headers are the same for every processor. Out of their directory alone: beside them stand
# the C library's headers, which are not.
file(MAKE_DIRECTORY ${CMAKE_BINARY_DIR}/headers)
file(CREATE_LINK /usr/include/boost ${CMAKE_BINARY_DIR}/headers/boost SYMBOLIC)
set(Boost_INCLUDE_DIR ${CMAKE_BINARY_DIR}/headers)
