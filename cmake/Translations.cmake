# Qt's tools run on the building machine, also when the program is built for another system.
foreach(tool IN ITEMS lrelease lconvert)
  string(TOUPPER "QUORVEL_${tool}" program)
  find_program(${program} NAMES ${tool} ${tool}-qt6 ${tool}6
    HINTS "${QT_HOST_PATH}/lib/qt6/bin" "${QT_HOST_PATH}/bin" "${Qt6_DIR}/../../../bin" /usr/lib/qt6/bin
    NO_CMAKE_FIND_ROOT_PATH DOC "${tool} of Qt 6, for translations")
  if(NOT ${program})
    message(FATAL_ERROR "${tool} of Qt 6 was not found; Debian has it in qt6-l10n-tools. Name it by -D${program}=...")
  endif()
endforeach()

# quorvel_compile_translation(<.qm> <.ts> <locale> <English .ts>): compiles the translation of a language. For texts that it
# lacks, also those that only name a text, the .qm holds the English ones.
function(quorvel_compile_translation output source locale english)
  set(own "${output}-own.ts")
  set(whole "${output}-whole.ts")
  add_custom_command(OUTPUT "${output}"
    COMMAND "${QUORVEL_LCONVERT}" -no-obsolete -no-untranslated -i "${source}" -o "${own}"
    # A later file wins, where it has the text.
    COMMAND "${QUORVEL_LCONVERT}" -i "${english}" -i "${own}" -target-language ${locale} -o "${whole}"
    COMMAND "${QUORVEL_LRELEASE}" -silent "${whole}" -qm "${output}"
    BYPRODUCTS "${own}" "${whole}"
    DEPENDS "${source}" "${english}"
    COMMENT "Compiling translation ${locale}"
    VERBATIM)
endfunction()
