# Installs the library, its public headers, a CMake package and the Designer plugin.
include(CMakePackageConfigHelpers)

# Designer looks for plugins in Qt's plugin folder; install there, relative to our prefix, so that a
# /usr install lands where the system Qt finds it and a private prefix stays self-contained.
get_target_property(_vela_qmake Qt5::qmake IMPORTED_LOCATION)
execute_process(COMMAND "${_vela_qmake}" -query QT_INSTALL_PLUGINS
                OUTPUT_VARIABLE _vela_qt_plugins OUTPUT_STRIP_TRAILING_WHITESPACE)
execute_process(COMMAND "${_vela_qmake}" -query QT_INSTALL_PREFIX
                OUTPUT_VARIABLE _vela_qt_prefix OUTPUT_STRIP_TRAILING_WHITESPACE)
file(RELATIVE_PATH _vela_plugin_rel "${_vela_qt_prefix}" "${_vela_qt_plugins}/designer")
set(VELA_DESIGNER_PLUGIN_DIR "${_vela_plugin_rel}" CACHE STRING
    "Where the Designer plugin is installed (relative paths are below the install prefix)")

set(VELA_CMAKE_DIR "${CMAKE_INSTALL_LIBDIR}/cmake/VelaQtCustomWidgets")

install(TARGETS VelaQtCustomWidgets EXPORT VelaQtCustomWidgetsTargets
        LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
        ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR}
        RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
install(TARGETS VelaQtCustomWidgets
        LIBRARY DESTINATION ${VELA_DESIGNER_PLUGIN_DIR}
        RUNTIME DESTINATION ${VELA_DESIGNER_PLUGIN_DIR})
install(FILES ${VELA_PUBLIC_HEADERS}
        DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/VelaQtCustomWidgets)
install(DIRECTORY ${CMAKE_CURRENT_BINARY_DIR}/VelaQtCustomWidgets_autogen/include/
        DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/VelaQtCustomWidgets
        FILES_MATCHING PATTERN "ui_*.h")
install(EXPORT VelaQtCustomWidgetsTargets NAMESPACE Vela::
        DESTINATION ${VELA_CMAKE_DIR})

configure_package_config_file(cmake/VelaQtCustomWidgetsConfig.cmake.in
    ${CMAKE_CURRENT_BINARY_DIR}/VelaQtCustomWidgetsConfig.cmake
    INSTALL_DESTINATION ${VELA_CMAKE_DIR})
write_basic_package_version_file(${CMAKE_CURRENT_BINARY_DIR}/VelaQtCustomWidgetsConfigVersion.cmake
    COMPATIBILITY SameMajorVersion)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/VelaQtCustomWidgetsConfig.cmake
              ${CMAKE_CURRENT_BINARY_DIR}/VelaQtCustomWidgetsConfigVersion.cmake
        DESTINATION ${VELA_CMAKE_DIR})
