# Finds QScintilla for Qt 6, which comes without a CMake package of its own.
#
# Result: QScintilla_FOUND, and the imported target QScintilla::QScintilla. Set QScintilla_ROOT to
# look elsewhere than in the system's directories.
find_package(Qt6 QUIET COMPONENTS Widgets PrintSupport)

find_path(QScintilla_INCLUDE_DIR
  NAMES Qsci/qsciscintillabase.h
  HINTS ${Qt6Core_INCLUDE_DIRS}
  PATH_SUFFIXES qt6 include/qt6 x86_64-linux-gnu/qt6)
find_library(QScintilla_LIBRARY NAMES qscintilla2_qt6 qscintilla2-qt6)

if(QScintilla_INCLUDE_DIR AND EXISTS "${QScintilla_INCLUDE_DIR}/Qsci/qsciglobal.h")
  file(STRINGS "${QScintilla_INCLUDE_DIR}/Qsci/qsciglobal.h" QScintilla_VERSION_LINE
    REGEX "define[ \t]+QSCINTILLA_VERSION_STR")
  string(REGEX REPLACE ".*\"([^\"]*)\".*" "\\1" QScintilla_VERSION "${QScintilla_VERSION_LINE}")
endif()

include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(QScintilla
  REQUIRED_VARS QScintilla_LIBRARY QScintilla_INCLUDE_DIR
  VERSION_VAR QScintilla_VERSION)

if(QScintilla_FOUND AND NOT TARGET QScintilla::QScintilla)
  add_library(QScintilla::QScintilla UNKNOWN IMPORTED)
  set_target_properties(QScintilla::QScintilla PROPERTIES
    IMPORTED_LOCATION "${QScintilla_LIBRARY}"
    INTERFACE_INCLUDE_DIRECTORIES "${QScintilla_INCLUDE_DIR}"
    INTERFACE_LINK_LIBRARIES "Qt6::Widgets;Qt6::PrintSupport")
endif()
mark_as_advanced(QScintilla_INCLUDE_DIR QScintilla_LIBRARY)
