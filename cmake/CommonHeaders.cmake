# What nearly every file reads is read once for all of them. A file still includes what it uses: the Windows build goes
# without this.
option(QUORVEL_COMMON_HEADERS "Read the most used headers once for all files" ON)

set(common_headers
  <algorithm> <functional> <map> <memory> <optional> <set> <span> <utility> <variant> <vector>
  <QDateTime> <QList> <QObject> <QPoint> <QSize> <QString> <QStringList> <QVariant>)
set(widget_headers
  <QBoxLayout> <QFontMetrics> <QKeyEvent> <QLabel> <QLayout> <QPainter> <QPushButton> <QWidget>)

# common_headers_for(DONOR LIBRARIES... HEADERS HEADER... TARGETS TARGET...)
function(common_headers_for donor)
  cmake_parse_arguments(arg "" "" "LIBRARIES;HEADERS;TARGETS" ${ARGN})
  set(source "${CMAKE_CURRENT_BINARY_DIR}/${donor}.cpp")
  file(GENERATE OUTPUT "${source}" CONTENT "")
  add_library(${donor} OBJECT "${source}")
  set_target_properties(${donor} PROPERTIES AUTOMOC OFF)
  target_link_libraries(${donor} PRIVATE project_options ${arg_LIBRARIES})
  target_precompile_headers(${donor} PRIVATE ${arg_HEADERS})
  foreach(target IN LISTS arg_TARGETS)
    target_precompile_headers(${target} REUSE_FROM ${donor})
  endforeach()
endfunction()
