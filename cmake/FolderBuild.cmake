# The files of a folder are compiled together, a dozen at a time: the headers that they share are read once for all of them,
# which is a third of the work. Names that a file keeps to itself are therefore distinct within their folder. The Windows,
# debug and sanitizer builds take file by file, and find what a file forgot to include.
option(QUORVEL_FOLDER_BUILD "Compile the files of a folder together" OFF)

set(folder_build_files 12)

# folder_build(TARGET...)
function(folder_build)
  foreach(target IN LISTS ARGN)
    get_target_property(sources ${target} SOURCES)
    get_target_property(base ${target} SOURCE_DIR)
    foreach(source IN LISTS sources)
      if(NOT source MATCHES "\\.cpp$")
        continue()
      endif()
      cmake_path(ABSOLUTE_PATH source BASE_DIRECTORY "${base}" OUTPUT_VARIABLE path)
      cmake_path(GET path PARENT_PATH folder)
      string(MAKE_C_IDENTIFIER "${folder}" key)
      math(EXPR count_${key} "${count_${key}} + 1")
      math(EXPR part "(${count_${key}} - 1) / ${folder_build_files}")
      set_source_files_properties("${path}" TARGET_DIRECTORY ${target} PROPERTIES UNITY_GROUP "${key}_${part}")
    endforeach()
    set_target_properties(${target} PROPERTIES UNITY_BUILD ON UNITY_BUILD_MODE GROUP)
  endforeach()
endfunction()
