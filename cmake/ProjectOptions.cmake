# Language level, warnings and definitions of every target of ours: link to project_options.
add_library(project_options INTERFACE)
target_compile_features(project_options INTERFACE cxx_std_20)
target_include_directories(project_options INTERFACE "${CMAKE_SOURCE_DIR}/src")
target_compile_options(project_options INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wold-style-cast -Wnon-virtual-dtor -Woverloaded-virtual -Wimplicit-fallthrough
  # The log names source files as the tree does, wherever it was built.
  "-fmacro-prefix-map=${CMAKE_SOURCE_DIR}/=")
target_compile_definitions(project_options INTERFACE
  QT_MESSAGELOGCONTEXT          # the log needs file and line in release builds too
  QT_NO_CAST_FROM_BYTEARRAY
  QT_NO_FOREACH
  QT_NO_KEYWORDS
  QT_DISABLE_DEPRECATED_BEFORE=0x060000)

option(QUORVEL_WERROR "Treat warnings as errors" OFF)
if(QUORVEL_WERROR)
  target_compile_options(project_options INTERFACE -Werror)
endif()

set(QUORVEL_SANITIZE "" CACHE STRING "Sanitizers for -fsanitize=, such as address,undefined or thread")
if(QUORVEL_SANITIZE)
  target_compile_options(project_options INTERFACE -fsanitize=${QUORVEL_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=undefined)
  target_link_options(project_options INTERFACE -fsanitize=${QUORVEL_SANITIZE})
endif()
