# quorvel_windows_program(<target>): makes an executable a windowed program with icon, version information and
# manifest. Nothing happens on other systems.
function(quorvel_windows_program target)
  if(NOT WIN32)
    return()
  endif()
  string(REPLACE "." "," version_numbers "${PROJECT_VERSION}")
  set(resources "${CMAKE_SOURCE_DIR}/src/quorvel.rc")
  target_sources(${target} PRIVATE "${resources}")
  set_source_files_properties("${resources}" PROPERTIES
    COMPILE_DEFINITIONS "QUORVEL_VERSION=${PROJECT_VERSION};QUORVEL_VERSION_NUMBERS=${version_numbers}"
    INCLUDE_DIRECTORIES "${CMAKE_SOURCE_DIR}/src"
    OBJECT_DEPENDS "${CMAKE_SOURCE_DIR}/src/quorvel.manifest;${CMAKE_SOURCE_DIR}/resource/app.ico")
  set_target_properties(${target} PROPERTIES WIN32_EXECUTABLE ON)
endfunction()
