# What `cmake --install` lays down, for both systems nearly the same tree; docs/packaging.md shows it. On
# Windows the libraries of both widths are made to lie in one tree, each in a folder of its own.
# Components: library, development, monitor, documents.
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

set(package_folder ${CMAKE_INSTALL_LIBDIR}/cmake/stmdata)

# ---- Library and headers ----------------------------------------------------------------------

install(DIRECTORY include/stmdata DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} COMPONENT development
  FILES_MATCHING PATTERN *.h)
if(WIN32)
  # The linker's own import library is no use to clients, so the target is installed without it.
  install(TARGETS stmdata RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT library
    ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} EXCLUDE_FROM_ALL)
  install(FILES ${CMAKE_BINARY_DIR}/libstmdata.dll.a DESTINATION ${CMAKE_INSTALL_LIBDIR}
    COMPONENT development)
  install(FILES ${CMAKE_BINARY_DIR}/stmdata.lib DESTINATION ${CMAKE_INSTALL_LIBDIR}
    COMPONENT development OPTIONAL)
else()
  install(TARGETS stmdata LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT library
    NAMELINK_COMPONENT development)
endif()

# ---- Programs ---------------------------------------------------------------------------------

add_custom_target(installed DEPENDS stmdata)  # what the tree below needs, without tests and benchmarks
foreach(program IN ITEMS stmon stmonw)
  if(TARGET ${program})
    add_dependencies(installed ${program})
    install(TARGETS ${program} RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT monitor)
    # In a tree that may lie anywhere the programs find the library by its place beside them.
    file(RELATIVE_PATH to_library /${CMAKE_INSTALL_BINDIR} /${CMAKE_INSTALL_LIBDIR})
    set_target_properties(${program} PROPERTIES INSTALL_RPATH $ORIGIN/${to_library})
  endif()
endforeach()

install(FILES monitor/report/stmon.schema.json DESTINATION ${CMAKE_INSTALL_DATAROOTDIR}/stmdata
  COMPONENT monitor)

# ---- For those who build against it -----------------------------------------------------------

configure_package_config_file(cmake/stmdata-config.cmake.in stmdata-config.cmake
  INSTALL_DESTINATION ${package_folder}
  PATH_VARS CMAKE_INSTALL_INCLUDEDIR CMAKE_INSTALL_LIBDIR CMAKE_INSTALL_BINDIR
  NO_CHECK_REQUIRED_COMPONENTS_MACRO)
# Refuses a project of another width than the library's.
write_basic_package_version_file(stmdata-config-version.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/stmdata-config.cmake
  ${CMAKE_CURRENT_BINARY_DIR}/stmdata-config-version.cmake DESTINATION ${package_folder}
  COMPONENT development)

file(RELATIVE_PATH to_prefix /${CMAKE_INSTALL_LIBDIR}/pkgconfig /)
string(REGEX REPLACE "/+$" "" to_prefix "${to_prefix}")
configure_file(cmake/stmdata.pc.in stmdata.pc @ONLY)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/stmdata.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig
  COMPONENT development)

# In a tree with both widths, the one that a project finds first.
if(WIN32)
  write_basic_package_version_file(either-width-config-version.cmake COMPATIBILITY SameMajorVersion
    ARCH_INDEPENDENT)
  install(FILES ${CMAKE_CURRENT_BINARY_DIR}/either-width-config-version.cmake
    RENAME stmdata-config-version.cmake DESTINATION cmake COMPONENT development)
  install(FILES cmake/either-width-config.cmake RENAME stmdata-config.cmake
    DESTINATION cmake COMPONENT development)
endif()

# ---- To read ----------------------------------------------------------------------------------

if(WIN32)
  set(doc_folder doc)
  set(examples_parent .)
else()
  set(doc_folder ${CMAKE_INSTALL_DOCDIR})
  set(examples_parent ${doc_folder})
endif()
install(FILES README.md CHANGELOG.md DESTINATION ${doc_folder} COMPONENT documents)
install(FILES docs/copyright DESTINATION ${doc_folder} COMPONENT documents)
# In a folder of their own, as in the source tree, so that the pages find each other.
install(DIRECTORY docs DESTINATION ${doc_folder} COMPONENT documents
  FILES_MATCHING PATTERN *.md PATTERN *.[ps][nv]g)
if(NOT WIN32)
  install(FILES docs/stmon.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 COMPONENT monitor)
endif()

# Terms of the libraries whose code is inside stmon, and of the run-time inside the Windows programs.
set(third_party libcli11-dev nlohmann-json3-dev libasio-dev libutfcpp-dev libstb-dev)
if(WIN32)
  list(APPEND third_party mingw-w64-common)
endif()
set(notices "")
foreach(name IN LISTS third_party)
  if(EXISTS /usr/share/doc/${name}/copyright)
    file(READ /usr/share/doc/${name}/copyright terms)
    string(APPEND notices "---- ${name} ----\n\n${terms}\n")
  else()
    message(WARNING "The terms of ${name} are not on this machine; third-party.txt lacks them")
  endif()
endforeach()
file(CONFIGURE OUTPUT third-party.txt CONTENT "@notices@" @ONLY)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/third-party.txt DESTINATION ${doc_folder} COMPONENT monitor)

if(EXISTS ${CMAKE_SOURCE_DIR}/examples)
  install(DIRECTORY examples DESTINATION ${examples_parent} COMPONENT documents)
endif()
