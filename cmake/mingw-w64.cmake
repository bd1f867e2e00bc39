# Windows x86-64 by Debian's mingw-w64, with Qt and the other libraries from an SDK folder.
# The folder is named by -DQUORVEL_WINDOWS_SDK or by the environment variable of the same name.

if(NOT QUORVEL_WINDOWS_SDK)
  set(QUORVEL_WINDOWS_SDK "/opt/windows-sdk")
  # The variable may also name the packed SDK, which is unpacked at the default place.
  if(IS_DIRECTORY "$ENV{QUORVEL_WINDOWS_SDK}")
    set(QUORVEL_WINDOWS_SDK "$ENV{QUORVEL_WINDOWS_SDK}")
  endif()
endif()
set(QUORVEL_WINDOWS_SDK "${QUORVEL_WINDOWS_SDK}" CACHE PATH "Folder of the Windows libraries")
# Compiler checks are projects of their own: they need the folder too.
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES QUORVEL_WINDOWS_SDK)

set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

# The posix thread model: std::thread and std::mutex need it.
set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)

find_program(QUORVEL_CCACHE ccache)
if(QUORVEL_CCACHE)
  set(CMAKE_C_COMPILER_LAUNCHER "${QUORVEL_CCACHE}")
  set(CMAKE_CXX_COMPILER_LAUNCHER "${QUORVEL_CCACHE}")
endif()

set(CMAKE_FIND_ROOT_PATH "/usr/x86_64-w64-mingw32" "${QUORVEL_WINDOWS_SDK}")
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# moc, rcc and lrelease run here: they are the machine's own.
set(QT_HOST_PATH "/usr" CACHE PATH "Qt of the building machine")
set(QT_HOST_PATH_CMAKE_DIR "/usr/lib/x86_64-linux-gnu/cmake" CACHE PATH "Its CMake packages")
